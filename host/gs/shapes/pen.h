// Takes down what the kinds of entities look like, and keeps it within bounds.
#pragma once

#include "host/gs/shapes/drawn.h"

#include <span>

namespace quor::gs {

// What somebody wants to know of an entity.
enum class Wanted : std::uint8_t { Lines, Snaps };

// Coordinates that are no numbers, or so large that differences of them are none in single precision, are in no shape.
[[nodiscard]] bool isDrawable(const ZrGePoint3d& point);

class Pen {
public:
    Pen(Drawn& drawn, Wanted wanted) : drawn_(drawn), wanted_(wanted) {}

    // What comes from now on is drawn like this.
    void take(const Look& look);

    void line(const ZrGePoint3d& a, const ZrGePoint3d& b);
    // Lines from each point to the next, and from the last to the first when it is closed.
    void lines(std::span<const ZrGePoint3d> points, bool closed = false);
    void triangle(const ZrGePoint3d& a, const ZrGePoint3d& b, const ZrGePoint3d& c);

    void snap(SnapPoint::Kind kind, const ZrGePoint3d& at);
    // The ends and the middle of a straight line.
    void snapsOf(const ZrGePoint3d& a, const ZrGePoint3d& b);
    // Both of these: a line that is picked as it is drawn.
    void edge(const ZrGePoint3d& a, const ZrGePoint3d& b);

    // Nothing more is taken down.
    [[nodiscard]] bool isFull() const;
    [[nodiscard]] Wanted wanted() const { return wanted_; }

private:
    DrawnPart& part();

    Drawn& drawn_;
    Wanted wanted_;
    Look look_;
};

} // namespace quor::gs
