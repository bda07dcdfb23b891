// Puts together what an entity shows with all blocks inside blocks.
#pragma once

#include "host/gs/shapes/blocks.h"

namespace quor::gs {

class Expansion {
public:
    explicit Expansion(BlockLibrary& blocks) : blocks_(blocks) {}

    // Append what the definition shows. However blocks are nested in each other, both end: there are limits to the
    // depth, to the number of blocks that are shown, and to what they show.
    void append(Shape& shape, Definition& definition);
    void append(std::vector<SnapPoint>& points, Definition& definition);

private:
    // What contents without a colour or layer of their own take.
    struct Surroundings {
        PartColor color;
        const db::ObjectEntry* colorLayer = nullptr;
        const db::ObjectEntry* layer = nullptr;
    };
    static Surroundings resolved(const Look& look, const Surroundings* around);

    void walk(Definition& definition, const ZrGeMatrix3d& placement, const Surroundings* around);
    void walkUse(const BlockUse& use, const ZrGeMatrix3d& placement, const Surroundings* around);
    void appendOwn(const Drawn& own, const ZrGeMatrix3d& placement, const Surroundings* around);
    void appendParts(const Drawn& own, const ZrGeMatrix3d& placement, const Surroundings* around);
    Part& partFor(const Surroundings& look);
    // Appends so many lines or triangles, placed; how many of them could be drawn there.
    std::uint32_t carry(std::vector<ZrGePoint3d>& to, const ZrGePoint3d* from, std::size_t primitives,
                        std::size_t pointsEach, const ZrGeMatrix3d& placement);
    [[nodiscard]] bool isFull() const;

    BlockLibrary& blocks_;
    Shape* shape_ = nullptr;
    std::vector<SnapPoint>* points_ = nullptr;
    std::size_t firstPart_ = 0; // of this entity
    std::size_t room_ = 0;      // so much more may be appended
    std::size_t visits_ = 0;    // blocks shown
    int depth_ = 0;
};

} // namespace quor::gs
