#include "host/gs/shapes/faces.h"

namespace quor::gs {

void showFlatFace(std::span<const ZrGePoint3d> corners, unsigned hiddenEdges, Pen& pen) {
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const ZrGePoint3d& next = corners[(i + 1) % corners.size()];
        if ((hiddenEdges >> i & 1U) == 0 && corners[i] != next)
            pen.edge(corners[i], next);
    }
    for (std::size_t i = 2; i < corners.size(); ++i)
        if (corners[i] != corners[i - 1] && corners[i] != corners[0])
            pen.triangle(corners[0], corners[i - 1], corners[i]);
}

void showGrid(const Grid& grid, Pen& pen) {
    if (grid.rows == 0 || grid.columns == 0 || grid.points.size() / grid.columns < grid.rows)
        return;
    const auto at = [&](std::size_t row, std::size_t column) -> const ZrGePoint3d& {
        return grid.points[row % grid.rows * grid.columns + column % grid.columns];
    };
    const std::size_t lastRow = grid.rows - (grid.closedRows ? 0 : 1);
    const std::size_t lastColumn = grid.columns - (grid.closedColumns ? 0 : 1);
    for (std::size_t row = 0; row < grid.rows && !pen.isFull(); ++row)
        for (std::size_t column = 0; column < grid.columns; ++column) {
            if (row < lastRow)
                pen.edge(at(row, column), at(row + 1, column));
            if (column < lastColumn)
                pen.edge(at(row, column), at(row, column + 1));
            if (row < lastRow && column < lastColumn) {
                pen.triangle(at(row, column), at(row, column + 1), at(row + 1, column + 1));
                pen.triangle(at(row, column), at(row + 1, column + 1), at(row + 1, column));
            }
        }
}

} // namespace quor::gs
