// Faces with straight edges.
#pragma once

#include "host/gs/shapes/pen.h"

#include <span>

namespace quor::gs {

// A face of three or four corners as triangles, and its edges but those whose bit is set: bit i is that behind corner
// i. Edges without length are left out.
void showFlatFace(std::span<const ZrGePoint3d> corners, unsigned hiddenEdges, Pen& pen);

// Points in rows and columns as triangles and lines along both.
struct Grid {
    std::span<const ZrGePoint3d> points; // a row after the other; as many as rows times columns
    std::size_t rows = 0;
    std::size_t columns = 0;
    bool closedRows = false;    // the last row is joined to the first
    bool closedColumns = false; // the last column is joined to the first
};
void showGrid(const Grid& grid, Pen& pen);

} // namespace quor::gs
