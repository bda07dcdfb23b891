#include "host/sys/variable_access.h"

#include "host/db/ref_edit.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/session.h"
#include "host/sys/resource_library.h"
#include "host/sys/settings_store.h"
#include "host/sys/utf8.h"
#include "sdk/db/symbol_table.h"

#include <numbers>

namespace quor::sys::access {
namespace {

Document& document(Session& session) { return *session.documents().current(); }
db::Database& drawing(Session& session) { return document(session).drawing(); }

ZrGePoint3d asPoint(const ZrGeVector3d& vector) { return {vector.x, vector.y, vector.z}; }

constexpr double degree = std::numbers::pi / 180;
constexpr const wchar_t* angBaseHeader = L"$ANGBASE";
constexpr int angBaseCode = 50;

} // namespace

VariableValue readTileMode(Session& session) { return static_cast<short>(drawing(session).isModelTab() ? 1 : 0); }

SetResult writeTileMode(Session& session, const VariableValue& value) {
    drawing(session).setModelTab(std::get<short>(value) != 0);
    return SetResult::Ok;
}

VariableValue readCvPort(Session& session) { return static_cast<short>(drawing(session).currentViewport()); }

SetResult writeCvPort(Session& session, const VariableValue& value) {
    if (!drawing(session).hasViewport(std::get<short>(value)))
        return SetResult::OutOfRange;
    drawing(session).setCurrentViewport(std::get<short>(value));
    return SetResult::Ok;
}

VariableValue readDefaultLighting(Session& session) {
    return static_cast<short>(drawing(session).defaultLighting() ? 1 : 0);
}

SetResult writeDefaultLighting(Session& session, const VariableValue& value) {
    drawing(session).setDefaultLighting(std::get<short>(value) != 0);
    return SetResult::Ok;
}

// A drawing that says nothing is generic. The drawing that NEW opens says that it is photometric.
VariableValue readLightingUnits(Session& session) {
    const auto text = drawing(session).dictionaryVariable(L"LIGHTINGUNITS");
    const bool isKnown = text && text->size() == 1 && text->front() >= L'0' && text->front() <= L'2';
    return static_cast<short>(isKnown ? text->front() - L'0' : 0);
}

VariableValue readAngBase(Session& session) {
    const auto header = drawing(session).header(angBaseHeader);
    const auto* degrees = header ? std::get_if<double>(&*header) : nullptr;
    return degrees != nullptr ? *degrees * degree : 0.0;
}

SetResult writeAngBase(Session& session, const VariableValue& value) {
    drawing(session).setHeader(angBaseHeader, angBaseCode, std::get<double>(value) / degree);
    return SetResult::Ok;
}

VariableValue readLayer(Session& session) {
    ZrDbObjectPointer<ZrDbLayerTableRecord> layer(drawing(session).interface().currentLayerId(), ZrDb::kForRead);
    return layer ? layer->displayName() : ZrString();
}

SetResult writeLayer(Session& session, const VariableValue& value) {
    ZrDbLayerTable* table = nullptr;
    if (drawing(session).interface().getLayerTable(table, ZrDb::kForRead) != Quor::eOk)
        return SetResult::NoSuchLayer;
    ZrDbObjectId id;
    const Quor::ErrorStatus status = table->getIdAt(std::get<ZrString>(value), id);
    table->close();
    if (status != Quor::eOk)
        return SetResult::NoSuchLayer;
    if (ZrDbObjectPointer<ZrDbLayerTableRecord> layer(id, ZrDb::kForRead);
        !layer || layer->isHidden() || layer->isFrozen())
        return SetResult::NoSuchLayer;
    drawing(session).setCurrentLayer(id);
    return SetResult::Ok;
}

VariableValue readUcsName(Session& session) { return drawing(session).ucs().name; }
VariableValue readUcsOrigin(Session& session) { return drawing(session).ucs().origin; }
VariableValue readUcsXDirection(Session& session) { return asPoint(drawing(session).ucs().xAxis); }
VariableValue readUcsYDirection(Session& session) { return asPoint(drawing(session).ucs().yAxis); }

VariableValue readRefEditName(Session& session) { return drawing(session).refEdit().blockName(); }

VariableValue readWorldUcs(Session& session) {
    const db::Ucs ucs = drawing(session).ucs();
    const bool world =
        ucs.origin == ZrGePoint3d() && ucs.xAxis == ZrGeVector3d::kXAxis && ucs.yAxis == ZrGeVector3d::kYAxis;
    return static_cast<short>(world ? 1 : 0);
}

VariableValue readDrawingName(Session& session) {
    const std::filesystem::path& path = document(session).path();
    return path.empty() ? document(session).fileName() : fromUtf8(path.filename().string());
}

VariableValue readDrawingPrefix(Session& session) {
    const std::filesystem::path folder = document(session).path().parent_path();
    return folder.empty() ? ZrString() : fromUtf8((folder / "").string());
}

VariableValue readDrawingModified(Session& session) {
    return static_cast<short>(document(session).isModified() ? 1 : 0);
}
VariableValue readDrawingVersion(Session& session) { return drawing(session).version(); }
VariableValue readLastPoint(Session& session) { return document(session).lastPoint; }

SetResult writeLastPoint(Session& session, const VariableValue& value) {
    document(session).lastPoint = std::get<ZrGePoint3d>(value);
    return SetResult::Ok;
}

VariableValue readCommandNames(Session& session) {
    ZrString names;
    for (const ZrString& name : session.processor().running())
        names += (names.empty() ? L"" : L"'") + name;
    return names;
}

// What the user chose, which counts from the next start on; else the language in use.
VariableValue readLanguage(Session& session) {
    return session.settings().get(kLanguageSection, kLanguageKey).value_or(session.resources().language());
}

SetResult writeLanguage(Session& session, const VariableValue& value) {
    const auto error = session.settings().set(kLanguageSection, kLanguageKey, std::get<ZrString>(value));
    return error ? SetResult::NotSaved : SetResult::Ok;
}

} // namespace quor::sys::access
