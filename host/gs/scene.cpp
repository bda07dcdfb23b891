#include "host/gs/scene.h"

#include "host/db/database.h"
#include "host/gs/drawing_changes.h"
#include "host/gs/light_marks.h"
#include "host/gs/scene_items.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <unordered_map>
#include <unordered_set>

namespace quor::gs {

namespace {

// Entities that show what stands in blocks.
constexpr std::array<std::string_view, 3> kBlockTypes{"INSERT", "DIMENSION", "ACAD_TABLE"};

bool showsBlock(const db::Database& drawing, const db::ObjectEntry& entity) {
    const std::string_view type = drawing.file().typeName(entity.type);
    return std::find(kBlockTypes.begin(), kBlockTypes.end(), type) != kBlockTypes.end();
}

// Of all scenes, so that no two have the same contents by chance.
std::uint64_t nextContents() {
    static std::atomic<std::uint64_t> last = 0;
    return ++last;
}

double middleOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

class Scene::Parts {
public:
    explicit Parts(ZrDbDatabase& drawing)
        : drawing_(drawing.host()), changes_(drawing), looks_(drawing_), reader_(drawing_) {}

    bool update(const std::function<void(double)>& progress);
    void regenerate() { block_ = nullptr; }
    [[nodiscard]] SceneData data() const;
    [[nodiscard]] Box extents() const;
    [[nodiscard]] bool isIncomplete() const { return items_.isIncomplete(); }
    void setSelected(const std::vector<ZrDbObjectId>& ids);
    void setHovered(ZrDbObjectId id);

private:
    void build(const db::Block& block, const std::function<void(double)>& progress);
    void takeIn(const DrawingChanges::Changes& changes);
    void takeSettings();
    void takeLayers();
    void put(std::uint32_t number);
    // Entities that were appended since the last time.
    void takeNewEntities();
    [[nodiscard]] ZrGePoint3d originFor(const db::Block& block);
    [[nodiscard]] std::optional<ZrGePoint3d> somePointOf(const db::ObjectEntry& entity);
    [[nodiscard]] bool isFarFromOrigin() const;
    // The number of an entity; nothing for one of another space, or one that is not known yet.
    [[nodiscard]] std::optional<std::uint32_t> numberOf(const db::ObjectEntry* entity);
    void emphasise();
    void setEmphasis(ZrDbObjectId id, Emphasis emphasis);

    db::Database& drawing_;
    DrawingChanges changes_;
    LayerLooks looks_;
    SceneItems items_;
    LightMarks lights_;
    const db::Block* block_ = nullptr; // what is shown; null: all is to be made anew
    // An entity's number is its place in the block, erased ones counted, so that it holds for good.
    std::vector<ZrDbObjectId> entities_;
    std::vector<Emphasis> emphasis_;
    std::unordered_map<const db::ObjectEntry*, std::uint32_t> numbers_; // of the first so many, once they are asked for
    std::vector<ZrDbObjectId> selected_;
    ZrDbObjectId hovered_;
    std::vector<std::uint32_t> emphasised_;
    bool emphasisChanged_ = false;
    std::uint64_t contents_ = nextContents();
    mutable std::optional<Box> extents_;
    ShapeReader reader_;
    Shape shape_;
};

bool Scene::Parts::update(const std::function<void(double)>& progress) {
    if (changes_.isOver())
        return false;
    const DrawingChanges::Changes changes = changes_.take();
    if (changes.inBlocks || changes.ofLayers)
        reader_.forget();
    const db::Block& block = drawing_.currentSpace();
    bool changed = false;
    if (&block != block_) {
        build(block, progress);
        changed = true;
    } else if (!changes.none() || block.entities.size() > entities_.size()) {
        takeIn(changes);
        if (isFarFromOrigin() && originFor(block) != items_.origin())
            build(block, progress);
        changed = true;
    }
    if (changed) {
        contents_ = nextContents();
        extents_.reset();
    }
    if (!changed && !emphasisChanged_)
        return false;
    emphasise();
    return true;
}

void Scene::Parts::build(const db::Block& block, const std::function<void(double)>& progress) {
    constexpr std::size_t kStep = 8192;
    block_ = &block;
    reader_.forget();
    looks_.refresh();
    items_.start(originFor(block));
    lights_.start(lightSettings(drawing_));
    numbers_.clear();
    emphasised_.clear();
    entities_.assign(block.entities.size(), ZrDbObjectId());
    emphasis_.assign(block.entities.size(), Emphasis::None);
    for (std::size_t i = 0; i < entities_.size(); ++i) {
        if (progress && i % kStep == kStep - 1)
            progress(static_cast<double>(i) / static_cast<double>(entities_.size()));
        put(static_cast<std::uint32_t>(i));
    }
    if (progress)
        progress(1);
    items_.settle();
    lights_.settle();
}

// In the midst of what is there, so that a stray entity far away takes no precision from the others.
ZrGePoint3d Scene::Parts::originFor(const db::Block& block) {
    constexpr std::size_t kSamples = 255;
    std::array<std::vector<double>, 3> values;
    const std::size_t step = std::max<std::size_t>(block.entities.size() / kSamples, 1);
    for (std::size_t i = 0; i < block.entities.size(); i += step)
        if (const auto point = somePointOf(*block.entities[i])) {
            values[0].push_back(point->x);
            values[1].push_back(point->y);
            values[2].push_back(point->z);
        }
    if (values[0].empty())
        return {};
    return {middleOf(values[0]), middleOf(values[1]), middleOf(values[2])};
}

std::optional<ZrGePoint3d> Scene::Parts::somePointOf(const db::ObjectEntry& entity) {
    if (entity.erased)
        return std::nullopt;
    shape_.clear();
    reader_.append(shape_, entity);
    const auto& points = shape_.lines.empty() ? shape_.triangles : shape_.lines;
    if (points.empty() || !std::isfinite(points.front().asVector().lengthSqrd()))
        return std::nullopt;
    return points.front();
}

void Scene::Parts::put(std::uint32_t number) {
    db::ObjectEntry& entity = *block_->entities[number];
    entities_[number] = entity.erased ? ZrDbObjectId() : ZrDbObjectId(&entity);
    shape_.clear();
    const bool hasNoRoom = items_.isFull() && !items_.holds(number);
    if (hasNoRoom && !entity.erased && !isLight(drawing_, entity))
        items_.leaveOut();
    else if (!entity.erased)
        reader_.append(shape_, entity);
    items_.put(number, shape_, looks_);
    lights_.put(number, drawing_, entity, looks_);
}

void Scene::Parts::takeIn(const DrawingChanges::Changes& changes) {
    if (changes.ofLayers)
        takeLayers();
    if (changes.ofSettings)
        takeSettings();
    std::unordered_set<std::uint32_t> numbers;
    for (const db::ObjectEntry* entity : changes.entities)
        if (const auto number = entity->owner == block_->record ? numberOf(entity) : std::nullopt)
            numbers.insert(*number);
    if (changes.inBlocks)
        for (std::size_t i = 0; i < entities_.size(); ++i)
            if (showsBlock(drawing_, *block_->entities[i]))
                numbers.insert(static_cast<std::uint32_t>(i));
    for (const std::uint32_t number : numbers)
        put(number);
    takeNewEntities();
    items_.settle();
    lights_.settle();
}

void Scene::Parts::takeNewEntities() {
    const std::size_t known = entities_.size();
    entities_.resize(block_->entities.size());
    emphasis_.resize(block_->entities.size(), Emphasis::None);
    for (std::size_t i = known; i < entities_.size(); ++i)
        put(static_cast<std::uint32_t>(i));
}

void Scene::Parts::takeLayers() {
    looks_.refresh();
    items_.refreshLooks(looks_);
    lights_.refreshGlyphs(looks_);
}

void Scene::Parts::takeSettings() {
    const LightSettings settings = lightSettings(drawing_);
    const LightSettings& before = lights_.settings();
    if (settings.units.lightingUnits != before.units.lightingUnits ||
        settings.units.unitsPerMillimetre != before.units.unitsPerMillimetre) {
        lights_.start(settings);
        for (std::size_t i = 0; i < entities_.size(); ++i)
            lights_.put(static_cast<std::uint32_t>(i), drawing_, *block_->entities[i], looks_);
        lights_.settle();
    } else if (settings.showsGlyphs != before.showsGlyphs) {
        lights_.showGlyphs(settings.showsGlyphs);
        lights_.refreshGlyphs(looks_);
    }
}

// Whether single precision has become too coarse, as after the first line of a new drawing far away.
bool Scene::Parts::isFarFromOrigin() const {
    constexpr double kTooFar = 100;
    Box box;
    for (const SceneChunk& chunk : items_.chunks())
        if (chunk.low[0] <= chunk.high[0]) {
            const ZrGeVector3d origin = items_.origin().asVector();
            box.add(ZrGePoint3d(chunk.low[0], chunk.low[1], chunk.low[2]) + origin);
            box.add(ZrGePoint3d(chunk.high[0], chunk.high[1], chunk.high[2]) + origin);
        }
    return !box.isEmpty() && box.center().distanceTo(items_.origin()) > kTooFar * (box.diagonal() + 1);
}

std::optional<std::uint32_t> Scene::Parts::numberOf(const db::ObjectEntry* entity) {
    if (block_ == nullptr || entity == nullptr)
        return std::nullopt;
    for (std::size_t i = numbers_.size(); i < entities_.size(); ++i)
        numbers_.emplace(block_->entities[i], static_cast<std::uint32_t>(i));
    const auto found = numbers_.find(entity);
    return found == numbers_.end() ? std::nullopt : std::optional(found->second);
}

void Scene::Parts::emphasise() {
    for (const std::uint32_t number : emphasised_)
        emphasis_[number] = Emphasis::None;
    emphasised_.clear();
    setEmphasis(hovered_, Emphasis::Hovered);
    for (const ZrDbObjectId id : selected_)
        setEmphasis(id, Emphasis::Selected);
    emphasisChanged_ = false;
}

void Scene::Parts::setEmphasis(ZrDbObjectId id, Emphasis emphasis) {
    const auto number = id.isNull() ? std::nullopt : numberOf(id.entry());
    if (!number)
        return;
    emphasis_[*number] = emphasis;
    emphasised_.push_back(*number);
}

void Scene::Parts::setSelected(const std::vector<ZrDbObjectId>& ids) {
    if (ids == selected_)
        return;
    selected_ = ids;
    emphasise();
    emphasisChanged_ = true;
}

void Scene::Parts::setHovered(ZrDbObjectId id) {
    if (id == hovered_)
        return;
    hovered_ = id;
    emphasise();
    emphasisChanged_ = true;
}

SceneData Scene::Parts::data() const {
    return {items_.origin(), items_.chunks(), items_.items(), items_.lines(), items_.triangles(),
            lights_.marks(), entities_,       emphasis_,      contents_};
}

Box Scene::Parts::extents() const {
    if (!extents_) {
        extents_ = items_.extents();
        extents_->add(lights_.extents());
    }
    return *extents_;
}

Scene::Scene(ZrDbDatabase& drawing) : parts_(std::make_unique<Parts>(drawing)) {}

Scene::~Scene() = default;

bool Scene::update(const std::function<void(double)>& progress) { return parts_->update(progress); }

void Scene::regenerate() { parts_->regenerate(); }

SceneData Scene::data() const { return parts_->data(); }

bool Scene::isIncomplete() const { return parts_->isIncomplete(); }

Box Scene::extents() const { return parts_->extents(); }

void Scene::setSelected(const std::vector<ZrDbObjectId>& ids) { parts_->setSelected(ids); }

void Scene::setHovered(ZrDbObjectId id) { parts_->setHovered(id); }

} // namespace quor::gs
