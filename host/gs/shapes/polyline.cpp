// POLYLINE with its vertices: in a plane, in space, a mesh of rows and columns, a mesh of faces.
#include "host/gs/shapes/curves.h"
#include "host/gs/shapes/faces.h"
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

#include <array>
#include <cstdlib>

namespace quor::gs {

namespace {

using Whole = Values<10, 20, 30, 70, 71, 72, 73, 74, 210, 220, 230>;
using Vertex = Values<10, 20, 30, 42, 70, 71, 72, 73, 74>;

// Of the whole.
constexpr int kClosed = 1;
constexpr int kInSpace = 8;
constexpr int kMesh = 16;
constexpr int kClosedColumns = 32;
constexpr int kFaces = 64;
// Of a vertex.
constexpr int kFrame = 16; // a point that guides the curve and is not on it
constexpr int kFaceOrVertex = 128;
constexpr int kVertexOfMesh = 64;

// False when a number is no number.
template <class Take>
bool forEachVertex(const Source& source, Take&& take) {
    const db::DrawingFile& file = source.file();
    for (std::uint32_t i = 1; i < source.entity.recordCount; ++i) {
        const dxf::Record& record = file.record(source.entity.record + i);
        if (file.typeName(record.type) != "VERTEX")
            continue;
        const Vertex vertex(BodyTags(file, record, Vertex::kWanted));
        if (vertex.isBroken())
            return false;
        take(vertex);
    }
    return true;
}

bool isFrame(const Vertex& vertex) { return (vertex.whole<70>() & kFrame) != 0; }

void showInPlane(const Source& source, const Whole& head, Pen& pen) {
    std::vector<PlaneVertex> vertices;
    const double elevation = head.real<30>();
    const bool isWhole = forEachVertex(source, [&](const Vertex& vertex) {
        if (!isFrame(vertex))
            vertices.push_back({{vertex.real<10>(), vertex.real<20>(), elevation}, vertex.real<42>()});
    });
    if (isWhole)
        show(vertices, (head.whole<70>() & kClosed) != 0, head.plane(), pen);
}

// The points of all vertices but those of a frame; nothing when one is broken.
std::vector<ZrGePoint3d> curvePoints(const Source& source) {
    std::vector<ZrGePoint3d> points;
    const bool isWhole = forEachVertex(source, [&](const Vertex& vertex) {
        if (!isFrame(vertex))
            points.push_back(vertex.point<10>());
    });
    return isWhole ? points : std::vector<ZrGePoint3d>();
}

void showInSpace(const Source& source, const Whole& head, Pen& pen) {
    const std::vector<ZrGePoint3d> points = curvePoints(source);
    for (std::size_t i = 1; i < points.size(); ++i)
        pen.edge(points[i - 1], points[i]);
    if ((head.whole<70>() & kClosed) != 0 && points.size() > 2)
        pen.edge(points.back(), points.front());
}

// A smoothed mesh has as many rows and columns as it was divided into.
void showMesh(const Source& source, const Whole& head, Pen& pen) {
    const std::vector<ZrGePoint3d> points = curvePoints(source);
    const auto size = [](int number) { return static_cast<std::size_t>(std::max(number, 0)); };
    Grid grid{points, size(head.whole<71>()), size(head.whole<72>()), (head.whole<70>() & kClosed) != 0,
              (head.whole<70>() & kClosedColumns) != 0};
    if (grid.rows * grid.columns != points.size()) {
        grid.rows = size(head.whole<73>());
        grid.columns = size(head.whole<74>());
    }
    if (grid.rows * grid.columns == points.size())
        showGrid(grid, pen);
}

struct MeshFace {
    std::array<int, 4> corners{}; // numbers from 1, negative when the edge behind is hidden; 0: none
};

void showMeshFace(const MeshFace& face, std::span<const ZrGePoint3d> points, Pen& pen) {
    std::array<ZrGePoint3d, 4> corners;
    std::size_t count = 0;
    unsigned hidden = 0;
    for (const int corner : face.corners) {
        const auto number = static_cast<std::size_t>(std::abs(corner));
        if (corner == 0)
            continue;
        if (number > points.size())
            return;
        hidden |= corner < 0 ? 1U << count : 0U;
        corners[count++] = points[number - 1];
    }
    if (count > 2)
        showFlatFace(std::span(corners).first(count), hidden, pen);
    else if (count == 2 && (hidden & 1U) == 0)
        pen.edge(corners[0], corners[1]);
}

void showFaces(const Source& source, Pen& pen) {
    std::vector<ZrGePoint3d> points;
    std::vector<MeshFace> faces;
    const bool isWhole = forEachVertex(source, [&](const Vertex& vertex) {
        const int flags = vertex.whole<70>();
        if ((flags & kFaceOrVertex) != 0 && (flags & kVertexOfMesh) == 0)
            faces.push_back({{vertex.whole<71>(), vertex.whole<72>(), vertex.whole<73>(), vertex.whole<74>()}});
        else
            points.push_back(vertex.point<10>());
    });
    if (isWhole)
        for (const MeshFace& face : faces)
            showMeshFace(face, points, pen);
}

} // namespace

void showPolyline(const Source& source, Pen& pen) {
    const Whole head(source);
    if (head.isBroken())
        return;
    const int flags = head.whole<70>();
    if ((flags & kFaces) != 0)
        showFaces(source, pen);
    else if ((flags & kMesh) != 0)
        showMesh(source, head, pen);
    else if ((flags & kInSpace) != 0)
        showInSpace(source, head, pen);
    else
        showInPlane(source, head, pen);
}

} // namespace quor::gs
