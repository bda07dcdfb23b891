// MESH: its faces as they are before they are smoothed.
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

#include <algorithm>
#include <utility>

namespace quor::gs {

namespace {

constexpr int kFaceList = 93; // so many numbers follow in tags 90
constexpr int kEdgeList = 94;
constexpr int kNumber = 90;

struct Mesh {
    std::vector<ZrGePoint3d> points;
    std::vector<std::int64_t> faces; // of each one the number of its corners, then the corners
    bool isBroken = false;
};

Mesh read(const Source& source) {
    static constexpr dxf::CodeSet kWanted{10, 20, 30, kNumber, kFaceList, kEdgeList};
    Mesh mesh;
    bool inFaces = false;
    BodyTags tags(source, kWanted);
    while (tags.next() && tags.code() != kEdgeList) {
        const int code = tags.code();
        if (code == kFaceList)
            inFaces = true;
        else if (code == kNumber && inFaces)
            mesh.faces.push_back(tags.whole());
        else if (code == 10)
            mesh.points.push_back({tags.real(), 0, 0});
        else if (code != kNumber && !mesh.points.empty())
            (code == 20 ? mesh.points.back().y : mesh.points.back().z) = tags.real();
    }
    mesh.isBroken = tags.isBroken();
    return mesh;
}

using Edge = std::pair<std::int64_t, std::int64_t>;

// False when it has corners that are not there.
bool isFace(std::span<const std::int64_t> corners, const Mesh& mesh) {
    const auto count = static_cast<std::int64_t>(mesh.points.size());
    return corners.size() > 2 &&
           std::ranges::all_of(corners, [&](std::int64_t corner) { return corner >= 0 && corner < count; });
}

void showFan(std::span<const std::int64_t> corners, const Mesh& mesh, Pen& pen) {
    const auto at = [&](std::size_t i) { return mesh.points[static_cast<std::size_t>(corners[i])]; };
    for (std::size_t i = 2; i < corners.size(); ++i)
        pen.triangle(at(0), at(i - 1), at(i));
}

void addEdges(std::span<const std::int64_t> corners, std::vector<Edge>& edges) {
    for (std::size_t i = 0; i < corners.size(); ++i)
        edges.push_back(std::minmax({corners[i], corners[(i + 1) % corners.size()]}));
}

} // namespace

void showSubdivisionMesh(const Source& source, Pen& pen) {
    const Mesh mesh = read(source);
    if (mesh.isBroken)
        return;
    std::vector<Edge> edges;
    std::span<const std::int64_t> left = mesh.faces;
    while (!left.empty()) {
        const std::int64_t count = left.front();
        left = left.subspan(1);
        if (count < 0 || static_cast<std::size_t>(count) > left.size())
            break;
        const auto corners = left.first(static_cast<std::size_t>(count));
        left = left.subspan(corners.size());
        if (!isFace(corners, mesh))
            continue;
        showFan(corners, mesh, pen);
        addEdges(corners, edges);
    }
    // Faces that stand side by side share theirs.
    std::ranges::sort(edges);
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    for (const auto& [from, to] : edges)
        pen.edge(mesh.points[static_cast<std::size_t>(from)], mesh.points[static_cast<std::size_t>(to)]);
}

} // namespace quor::gs
