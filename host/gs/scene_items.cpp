#include "host/gs/scene_items.h"

#include <algorithm>
#include <cmath>

namespace quor::gs {

namespace {

constexpr std::uint32_t kItemsOfChunk = 512;
// Items of many lines make chunks of fewer items.
constexpr std::uint32_t kPrimitivesOfChunk = 8192;
// So much may lie waste without being looked at.
constexpr std::size_t kWasteAllowed = 4096;
// Beyond this, single precision has no products of two coordinates any more.
constexpr double kFarthest = 1e18;

constexpr Coordinates kLowOfNothing{1, 1, 1};
constexpr Coordinates kHighOfNothing{-1, -1, -1};

bool relative(Coordinates& to, const ZrGePoint3d& point, const ZrGePoint3d& origin) {
    const ZrGeVector3d v = point - origin;
    to = {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)};
    return std::abs(v.x) < kFarthest && std::abs(v.y) < kFarthest && std::abs(v.z) < kFarthest;
}

// The box around what is added, in the coordinates of the scene.
struct Bounds {
    Coordinates low = kLowOfNothing;
    Coordinates high = kHighOfNothing;
    bool isEmpty = true;

    void add(const Coordinates& point) {
        if (isEmpty)
            low = high = point;
        isEmpty = false;
        for (std::size_t i = 0; i < 3; ++i) {
            low[i] = std::min(low[i], point[i]);
            high[i] = std::max(high[i], point[i]);
        }
    }
    void add(const SceneItem& item, const std::vector<SceneLine>& lines, const std::vector<SceneTriangle>& triangles) {
        for (const SceneLine& line : std::span(lines).subspan(item.firstLine, item.lineCount)) {
            add(line.a);
            add(line.b);
        }
        for (const SceneTriangle& triangle : std::span(triangles).subspan(item.firstTriangle, item.triangleCount)) {
            add(triangle.a);
            add(triangle.b);
            add(triangle.c);
        }
    }
};

ZrGePoint3d inWorld(const Coordinates& point, const ZrGePoint3d& origin) {
    return {origin.x + point[0], origin.y + point[1], origin.z + point[2]};
}

} // namespace

void SceneItems::Draft::clear() {
    items.clear();
    sources.clear();
    lines.clear();
    triangles.clear();
}

void SceneItems::start(const ZrGePoint3d& origin, std::size_t mostPrimitives) {
    *this = SceneItems();
    origin_ = origin;
    mostPrimitives_ = mostPrimitives;
}

void SceneItems::put(std::uint32_t entity, const Shape& shape, LayerLooks& looks) {
    makeDraft(entity, shape, looks);
    if (entity >= places_.size())
        places_.resize(entity + 1);
    if (const Place place = places_[entity]; place.itemCount > 0) {
        empty(place);
        if (fits(place)) {
            overwrite(place);
            return;
        }
    }
    if (draft_.items.empty())
        return;
    if (isFull())
        leaveOut();
    else
        append(entity);
}

void SceneItems::makeDraft(std::uint32_t entity, const Shape& shape, LayerLooks& looks) {
    draft_.clear();
    for (const Part& part : shape.parts)
        addPart(entity, shape, part, looks);
}

void SceneItems::addPart(std::uint32_t entity, const Shape& shape, const Part& part, LayerLooks& looks) {
    SceneItem item{.entity = entity};
    item.firstLine = static_cast<std::uint32_t>(draft_.lines.size());
    item.firstTriangle = static_cast<std::uint32_t>(draft_.triangles.size());
    SceneLine line;
    for (std::size_t i = part.firstLine; i < std::size_t{part.firstLine} + part.lineCount; ++i)
        if (relative(line.a, shape.lines[2 * i], origin_) && relative(line.b, shape.lines[2 * i + 1], origin_))
            draft_.lines.push_back(line);
    SceneTriangle triangle;
    for (std::size_t i = part.firstTriangle; i < std::size_t{part.firstTriangle} + part.triangleCount; ++i)
        if (relative(triangle.a, shape.triangles[3 * i], origin_) &&
            relative(triangle.b, shape.triangles[3 * i + 1], origin_) &&
            relative(triangle.c, shape.triangles[3 * i + 2], origin_))
            draft_.triangles.push_back(triangle);
    item.lineCount = static_cast<std::uint32_t>(draft_.lines.size()) - item.firstLine;
    item.triangleCount = static_cast<std::uint32_t>(draft_.triangles.size()) - item.firstTriangle;
    if (item.lineCount == 0 && item.triangleCount == 0)
        return;
    const Source source{part.color, looks.numberOf(part.layer),
                        looks.numberOf(part.colorLayer != nullptr ? part.colorLayer : part.layer)};
    look(item, source, looks);
    draft_.items.push_back(item);
    draft_.sources.push_back(source);
}

bool SceneItems::fits(Place place) const {
    if (draft_.items.size() != place.itemCount)
        return false;
    for (std::uint32_t i = 0; i < place.itemCount; ++i)
        if (draft_.items[i].lineCount > lineRoom(place.firstItem + i) ||
            draft_.items[i].triangleCount > triangleRoom(place.firstItem + i))
            return false;
    return true;
}

void SceneItems::overwrite(Place place) {
    for (std::uint32_t i = 0; i < place.itemCount; ++i) {
        SceneItem item = draft_.items[i];
        const SceneItem& old = items_[place.firstItem + i];
        std::copy_n(draft_.lines.begin() + item.firstLine, item.lineCount, lines_.begin() + old.firstLine);
        std::copy_n(draft_.triangles.begin() + item.firstTriangle, item.triangleCount,
                    triangles_.begin() + old.firstTriangle);
        item.firstLine = old.firstLine;
        item.firstTriangle = old.firstTriangle;
        items_[place.firstItem + i] = item;
        sources_[place.firstItem + i] = draft_.sources[i];
        live_ += 1 + item.lineCount + item.triangleCount;
    }
}

void SceneItems::empty(Place place) {
    for (std::uint32_t i = place.firstItem; i < place.firstItem + place.itemCount; ++i) {
        SceneItem& item = items_[i];
        if (item.lineCount + item.triangleCount > 0)
            live_ -= 1 + item.lineCount + item.triangleCount;
        item.lineCount = 0;
        item.triangleCount = 0;
        markChunkOf(i);
    }
}

void SceneItems::append(std::uint32_t entity) {
    places_[entity] = {static_cast<std::uint32_t>(items_.size()), static_cast<std::uint32_t>(draft_.items.size())};
    const auto firstLine = static_cast<std::uint32_t>(lines_.size());
    const auto firstTriangle = static_cast<std::uint32_t>(triangles_.size());
    lines_.insert(lines_.end(), draft_.lines.begin(), draft_.lines.end());
    triangles_.insert(triangles_.end(), draft_.triangles.begin(), draft_.triangles.end());
    sources_.insert(sources_.end(), draft_.sources.begin(), draft_.sources.end());
    live_ += draft_.items.size() + draft_.lines.size() + draft_.triangles.size();
    for (SceneItem item : draft_.items) {
        item.firstLine += firstLine;
        item.firstTriangle += firstTriangle;
        items_.push_back(item);
        addToChunk(static_cast<std::uint32_t>(items_.size() - 1));
    }
}

void SceneItems::addToChunk(std::uint32_t item) {
    const auto isFull = [&](const SceneChunk& chunk) {
        const SceneItem& first = items_[chunk.firstItem];
        return chunk.itemCount >= kItemsOfChunk || items_[item].firstLine - first.firstLine >= kPrimitivesOfChunk ||
               items_[item].firstTriangle - first.firstTriangle >= kPrimitivesOfChunk;
    };
    if (chunks_.empty() || isFull(chunks_.back())) {
        chunks_.push_back({kLowOfNothing, kHighOfNothing, item, 0});
        isStale_.push_back(false);
    }
    ++chunks_.back().itemCount;
    if (!isStale_.back()) {
        isStale_.back() = true;
        stale_.push_back(static_cast<std::uint32_t>(chunks_.size() - 1));
    }
}

void SceneItems::markChunkOf(std::uint32_t item) {
    const auto after =
        std::upper_bound(chunks_.begin(), chunks_.end(), item,
                         [](std::uint32_t wanted, const SceneChunk& chunk) { return wanted < chunk.firstItem; });
    const auto chunk = static_cast<std::uint32_t>(after - chunks_.begin() - 1);
    if (!isStale_[chunk]) {
        isStale_[chunk] = true;
        stale_.push_back(chunk);
    }
}

void SceneItems::settle() {
    if (total() > 2 * live_ + kWasteAllowed)
        compact();
    for (const std::uint32_t chunk : stale_) {
        fillBox(chunks_[chunk]);
        isStale_[chunk] = false;
    }
    stale_.clear();
}

void SceneItems::fillBox(SceneChunk& chunk) const {
    Bounds bounds;
    for (const SceneItem& item : std::span(items_).subspan(chunk.firstItem, chunk.itemCount))
        bounds.add(item, lines_, triangles_);
    chunk.low = bounds.low;
    chunk.high = bounds.high;
}

void SceneItems::compact() {
    SceneItems tidy;
    tidy.origin_ = origin_;
    tidy.mostPrimitives_ = mostPrimitives_;
    tidy.isIncomplete_ = isIncomplete_;
    tidy.places_.resize(places_.size());
    for (std::size_t entity = 0; entity < places_.size(); ++entity) {
        const Place place = places_[entity];
        tidy.draft_.clear();
        for (std::uint32_t i = place.firstItem; i < place.firstItem + place.itemCount; ++i) {
            SceneItem item = items_[i];
            if (item.lineCount + item.triangleCount == 0)
                continue;
            const auto line = lines_.begin() + item.firstLine;
            const auto triangle = triangles_.begin() + item.firstTriangle;
            item.firstLine = static_cast<std::uint32_t>(tidy.draft_.lines.size());
            item.firstTriangle = static_cast<std::uint32_t>(tidy.draft_.triangles.size());
            tidy.draft_.lines.insert(tidy.draft_.lines.end(), line, line + item.lineCount);
            tidy.draft_.triangles.insert(tidy.draft_.triangles.end(), triangle, triangle + item.triangleCount);
            tidy.draft_.items.push_back(item);
            tidy.draft_.sources.push_back(sources_[i]);
        }
        if (!tidy.draft_.items.empty())
            tidy.append(static_cast<std::uint32_t>(entity));
    }
    *this = std::move(tidy);
}

void SceneItems::look(SceneItem& item, const Source& source, const LayerLooks& looks) const {
    const bool byLayer = source.color.from == PartColor::From::Layer;
    item.rgb = byLayer ? looks.at(source.colorLayer).rgb : source.color.rgb;
    item.visible = looks.at(source.layer).visible;
}

void SceneItems::refreshLooks(const LayerLooks& looks) {
    for (std::size_t i = 0; i < items_.size(); ++i)
        look(items_[i], sources_[i], looks);
}

std::uint32_t SceneItems::lineRoom(std::uint32_t item) const {
    const std::size_t end = item + 1 < items_.size() ? items_[item + 1].firstLine : lines_.size();
    return static_cast<std::uint32_t>(end - items_[item].firstLine);
}

std::uint32_t SceneItems::triangleRoom(std::uint32_t item) const {
    const std::size_t end = item + 1 < items_.size() ? items_[item + 1].firstTriangle : triangles_.size();
    return static_cast<std::uint32_t>(end - items_[item].firstTriangle);
}

Box SceneItems::extents() const {
    Bounds bounds;
    for (const SceneItem& item : items_)
        if (item.visible)
            bounds.add(item, lines_, triangles_);
    Box box;
    if (!bounds.isEmpty) {
        box.add(inWorld(bounds.low, origin_));
        box.add(inWorld(bounds.high, origin_));
    }
    return box;
}

} // namespace quor::gs
