// The settings of a drawing: header variables, variable dictionary, viewport, layouts, UCS.
#include "host/db/database.h"

#include "host/db/data.h"
#include "host/db/saver.h"
#include "host/db/versions.h"

#include <algorithm>
#include <utility>

namespace quor::db {

namespace {

constexpr int kDefaultLightingCode = 292;
constexpr int kViewportNumberCode = 69;
constexpr int kModelTabViewport = 2;
constexpr int kSheetViewport = 1;

// What the names of the variables begin with that hold the UCS of model space, or of a layout.
ZrString ucsPrefix(bool ofModel) { return ofModel ? L"$" : L"$P"; }

ZrGePoint3d pointAt(const HeaderStore::Place& place, const ZrGePoint3d& otherwise) {
    const auto* found = place.value() == nullptr ? nullptr : std::get_if<ZrGePoint3d>(place.value());
    return found == nullptr ? otherwise : *found;
}

} // namespace

template <class T>
void Database::changeSetting(const ZrString& name, T& place, T value) {
    if (place == value)
        return;
    T before = std::exchange(place, std::move(value));
    journal_.settingChanged(name, [&place, kept = std::move(before)]() mutable { std::swap(place, kept); });
}

const std::vector<ZrString>& Database::problems() const { return problems_; }

const ZrString& Database::version() const { return file_.versionName(); }

bool Database::isNew() const { return isNew_; }

std::optional<HeaderValue> Database::header(std::wstring_view name) const {
    const HeaderValue* const value = headers_.place(name).value();
    return value == nullptr ? std::nullopt : std::optional(*value);
}

void Database::setHeader(const ZrString& name, int code, const HeaderValue& value) {
    if (header(name) == value)
        return;
    std::optional<HeaderStore::Variable> before = headers_.set(name, HeaderStore::Variable{code, value});
    journal_.settingChanged(name.substr(1), [this, name, kept = std::move(before)]() mutable {
        kept = headers_.set(name, std::move(kept));
    });
}

std::optional<ZrString> Database::dictionaryVariable(std::wstring_view name) const { return variables_.get(name); }

void Database::setDictionaryVariable(const ZrString& name, const ZrString& value) {
    if (variables_.get(name) == value)
        return;
    std::optional<ZrString> before = variables_.set(name, value);
    journal_.settingChanged(
        name, [this, name, kept = std::move(before)]() mutable { kept = variables_.set(name, std::move(kept)); });
}

bool Database::defaultLightingInFile() {
    dxf::Tag tag;
    const ObjectEntry* viewport = structure_.activeViewport();
    if (viewport == nullptr || !file_.findTag(file_.record(viewport->record), kDefaultLightingCode, tag))
        return true;
    return tag.asInt().value_or(1) != 0;
}

bool Database::defaultLighting() {
    if (defaultLighting_)
        return *defaultLighting_;
    if (!defaultLightingRead_)
        defaultLightingRead_ = defaultLightingInFile();
    return *defaultLightingRead_;
}

void Database::setDefaultLighting(bool on) {
    if (defaultLighting() != on)
        changeSetting(L"DEFAULTLIGHTING", defaultLighting_, std::optional(on));
}

std::optional<bool> Database::defaultLightingToSave() {
    const bool hasPlace =
        file_.version() >= versions::kFirstWithDefaultLighting && structure_.activeViewport() != nullptr;
    return hasPlace && defaultLighting_ && *defaultLighting_ != defaultLightingInFile() ? defaultLighting_
                                                                                        : std::nullopt;
}

std::vector<LayoutInfo> Database::layouts() const {
    std::vector<LayoutInfo> sheets;
    for (const LayoutRecord& sheet : structure_.layouts())
        sheets.push_back({sheet.name, sheet.tabOrder, ZrDbObjectId(sheet.block->record)});
    return sheets;
}

ZrString Database::currentLayout() const { return currentLayout_; }

bool Database::setCurrentLayout(const ZrString& name) {
    for (const LayoutRecord& sheet : structure_.layouts())
        if (equalFolded(sheet.name, name)) {
            changeSetting(L"CTAB", currentLayout_, sheet.name);
            return true;
        }
    return false;
}

bool Database::isModelTab() const {
    const HeaderValue* const value = tileMode_.value();
    const auto* number = value == nullptr ? nullptr : std::get_if<long long>(value);
    return number == nullptr || *number != 0;
}

void Database::setModelTab(bool model) {
    if (model == isModelTab())
        return;
    setHeader(L"$TILEMODE", 70, static_cast<long long>(model ? 1 : 0));
    setCurrentViewport(model ? 2 : 1);
}

int Database::currentViewport() const { return currentViewport_; }

void Database::setCurrentViewport(int number) { changeSetting(L"CVPORT", currentViewport_, number); }

bool Database::hasViewport(int number) {
    if (isModelTab())
        return number == kModelTabViewport;
    if (number == kSheetViewport)
        return true;
    const auto& viewports = structure_.entitiesOf(currentSheet(), file_.typeNumber("VIEWPORT"));
    return std::any_of(viewports.begin(), viewports.end(), [&](const ObjectEntry* viewport) {
        dxf::Tag tag;
        return !viewport->erased && viewport->isInFile() &&
               file_.findTag(file_.record(viewport->record), kViewportNumberCode, tag) && tag.asInt() == number;
    });
}

Block& Database::currentSheet() const {
    for (const LayoutRecord& sheet : structure_.layouts())
        if (sheet.name == currentLayout_)
            return *sheet.block;
    return structure_.paperSpace();
}

// Drawings without paper space keep what is drawn in the model, whichever tab is in use.
Block& Database::currentSpace() const {
    const bool inModel =
        isModelTab() || currentViewport_ > kSheetViewport || file_.version() < versions::kFirstWithPaperSpace;
    return inModel ? structure_.modelSpace() : currentSheet();
}

Database::UcsPlaces Database::ucsPlaces(bool ofModel) const {
    const ZrString prefix = ucsPrefix(ofModel);
    return {headers_.place(prefix + L"UCSORG"), headers_.place(prefix + L"UCSXDIR"),
            headers_.place(prefix + L"UCSYDIR"), headers_.place(prefix + L"UCSNAME")};
}

bool Database::isModelUcs() const { return isModelTab() || currentViewport_ > kSheetViewport; }

Ucs Database::ucs() const {
    const UcsPlaces& places = isModelUcs() ? modelUcs_ : paperUcs_;
    Ucs ucs;
    ucs.origin = pointAt(places.origin, {});
    ucs.xAxis = pointAt(places.xAxis, {1, 0, 0}).asVector().normal();
    ucs.yAxis = pointAt(places.yAxis, {0, 1, 0}).asVector().normal();
    if (ucs.xAxis.isParallelTo(ucs.yAxis) || ucs.xAxis.isZeroLength() || ucs.yAxis.isZeroLength()) {
        ucs.xAxis = ZrGeVector3d::kXAxis;
        ucs.yAxis = ZrGeVector3d::kYAxis;
    }
    if (const HeaderValue* const value = places.name.value())
        if (const auto* text = std::get_if<ZrString>(value))
            ucs.name = *text;
    return ucs;
}

void Database::setUcs(const Ucs& ucs) {
    const ZrString prefix = ucsPrefix(isModelUcs());
    const auto asPoint = [](const ZrGeVector3d& v) { return ZrGePoint3d(v.x, v.y, v.z); };
    setHeader(prefix + L"UCSNAME", 2, ucs.name);
    setHeader(prefix + L"UCSORG", 10, ucs.origin);
    setHeader(prefix + L"UCSXDIR", 10, asPoint(ucs.xAxis));
    setHeader(prefix + L"UCSYDIR", 10, asPoint(ucs.yAxis));
}

ObjectEntry* Database::currentLayer() {
    if (const HeaderValue* const value = currentLayerName_.value())
        if (const auto* name = std::get_if<ZrString>(value))
            if (ObjectEntry* layer = layers_.find(*name))
                return layer;
    return layers_.find(L"0");
}

void Database::setCurrentLayer(ZrDbObjectId layer) {
    if (!layer.isNull() && layer.entry()->owner == layers_.table().entry)
        setHeader(L"$CLAYER", 8, layers_.nameInFile(*layer.entry()));
}

std::vector<ZrDbObjectId> Database::layerIds() const {
    std::vector<ZrDbObjectId> ids;
    for (ObjectEntry* entry : layers_.table().records)
        if (!entry->erased)
            ids.emplace_back(entry);
    return ids;
}

ZrDbObjectId Database::makeLayer(const ZrString& name) {
    if (ObjectEntry* existing = layers_.find(name))
        return ZrDbObjectId(existing);
    auto layer = std::make_unique<ZrDbLayerTableRecord>();
    layer->setName(name);
    ObjectEntry& entry = addLayer(std::move(layer));
    closeObject(entry);
    return ZrDbObjectId(&entry);
}

std::vector<ZrDbObjectId> Database::entities(ZrDbObjectId space) const {
    std::vector<ZrDbObjectId> ids;
    if (const Block* block = structure_.blockOf(space.entry()))
        for (ObjectEntry* entity : block->entities)
            if (!entity->erased)
                ids.emplace_back(entity);
    return ids;
}

ZrDbObjectId Database::lastEntity(ZrDbObjectId space) {
    Block* const block = structure_.blockOf(space.entry());
    ObjectEntry* const last = block != nullptr ? Structure::lastEntity(*block) : nullptr;
    return last != nullptr ? ZrDbObjectId(last) : ZrDbObjectId();
}

ZrString Database::typeName(ZrDbObjectId id) const {
    const ObjectEntry& entry = *id.entry();
    return file_.codec().decode(entry.isInFile() ? file_.layout().typeName(file_.image(), file_.record(entry.record))
                                                 : file_.typeName(entry.type));
}

std::vector<std::pair<int, ZrString>> Database::tags(ZrDbObjectId id) {
    const std::string bytes = objectBytes(*this, *id.entry());
    std::vector<std::pair<int, ZrString>> found;
    dxf::TagReader reader(bytes, file_.layout().form, 0, bytes.size());
    dxf::Tag tag;
    while (reader.next(tag))
        found.emplace_back(tag.code, tagText(file_, tag));
    return found;
}

} // namespace quor::db
