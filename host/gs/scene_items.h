// The lines and triangles of a scene, with their items and chunks. An entity is replaced where it stands if it fits
// there; else its old place stays empty until more than half of all is.
#pragma once

#include "host/gs/layer_looks.h"
#include "host/gs/scene.h"

namespace quor::gs {

class SceneItems {
public:
    // A scene does not grow beyond this, whatever a drawing says: entities behind it are not drawn.
    static constexpr std::size_t kMostPrimitives = 20'000'000;

    // Empty, with coordinates from here on relative to `origin`.
    void start(const ZrGePoint3d& origin, std::size_t mostPrimitives = kMostPrimitives);
    // Nothing more is taken in, except in the place of what is there already.
    [[nodiscard]] bool isFull() const { return total() >= mostPrimitives_; }
    [[nodiscard]] bool holds(std::uint32_t entity) const {
        return entity < places_.size() && places_[entity].itemCount > 0;
    }
    // Something was left out for that.
    void leaveOut() { isIncomplete_ = true; }
    [[nodiscard]] bool isIncomplete() const { return isIncomplete_; }
    // What an entity is drawn with from now on; nothing for an empty shape.
    void put(std::uint32_t entity, const Shape& shape, LayerLooks& looks);
    // To be called after the last put of some: boxes, and tidying up.
    void settle();
    // Takes the colours and the visibility of layers over.
    void refreshLooks(const LayerLooks& looks);

    [[nodiscard]] const ZrGePoint3d& origin() const { return origin_; }
    [[nodiscard]] bool hasNothing() const { return live_ == 0; }
    [[nodiscard]] std::span<const SceneChunk> chunks() const { return chunks_; }
    [[nodiscard]] std::span<const SceneItem> items() const { return items_; }
    [[nodiscard]] std::span<const SceneLine> lines() const { return lines_; }
    [[nodiscard]] std::span<const SceneTriangle> triangles() const { return triangles_; }
    // Of the visible items, in the world.
    [[nodiscard]] Box extents() const;

private:
    // Where the look of an item comes from.
    struct Source {
        PartColor color;
        std::uint32_t layer = 0;
        std::uint32_t colorLayer = 0; // whose colour counts
    };
    // The items of an entity; they stay its own while it has none, to be used again.
    struct Place {
        std::uint32_t firstItem = 0;
        std::uint32_t itemCount = 0;
    };
    // Of one entity: items count from 0, as do their lines and triangles.
    struct Draft {
        std::vector<SceneItem> items;
        std::vector<Source> sources;
        std::vector<SceneLine> lines;
        std::vector<SceneTriangle> triangles;
        void clear();
    };

    void makeDraft(std::uint32_t entity, const Shape& shape, LayerLooks& looks);
    void addPart(std::uint32_t entity, const Shape& shape, const Part& part, LayerLooks& looks);
    [[nodiscard]] bool fits(Place place) const;
    void overwrite(Place place);
    void empty(Place place);
    void append(std::uint32_t entity);
    void addToChunk(std::uint32_t item);
    void markChunkOf(std::uint32_t item);
    void fillBox(SceneChunk& chunk) const;
    void look(SceneItem& item, const Source& source, const LayerLooks& looks) const;
    [[nodiscard]] std::uint32_t lineRoom(std::uint32_t item) const;
    [[nodiscard]] std::uint32_t triangleRoom(std::uint32_t item) const;
    [[nodiscard]] std::size_t total() const { return items_.size() + lines_.size() + triangles_.size(); }
    void compact();

    ZrGePoint3d origin_;
    std::vector<SceneItem> items_;
    std::vector<Source> sources_; // of the items
    std::vector<SceneLine> lines_;
    std::vector<SceneTriangle> triangles_;
    std::vector<SceneChunk> chunks_;
    std::vector<Place> places_; // of the entities
    std::vector<bool> isStale_; // of the chunks: the box is to be made
    std::vector<std::uint32_t> stale_;
    std::size_t live_ = 0; // items, lines and triangles in use
    std::size_t mostPrimitives_ = kMostPrimitives;
    bool isIncomplete_ = false;
    Draft draft_;
};

} // namespace quor::gs
