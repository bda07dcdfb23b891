// MLINE: parallel lines, each at an offset along the miter of every vertex.
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

namespace quor::gs {

namespace {

constexpr int kVertex = 11;
constexpr int kMiter = 13;
constexpr int kElement = 74; // begins the numbers of an element at a vertex
constexpr int kNumber = 41;  // the first is the offset
constexpr int kFlags = 71;
constexpr std::int64_t kClosed = 2;

struct Vertex {
    ZrGePoint3d at;
    ZrGeVector3d miter;
    std::vector<double> offsets; // an element each
};

struct Multiline {
    std::vector<Vertex> vertices;
    bool closed = false;
    bool isBroken = false;
};

void take(Vertex& vertex, int code, double value) {
    switch (code) {
    case kMiter:
        vertex.miter.x = value;
        break;
    case kMiter + 10:
        vertex.miter.y = value;
        break;
    case kMiter + 20:
        vertex.miter.z = value;
        break;
    case kVertex + 10:
        vertex.at.y = value;
        break;
    default:
        vertex.at.z = value;
    }
}

Multiline read(const Source& source) {
    static constexpr dxf::CodeSet kWanted{11, 21, 31, 13, 23, 33, kNumber, kFlags, kElement};
    Multiline multiline;
    bool expectsOffset = false;
    BodyTags tags(source, kWanted);
    while (tags.next()) {
        const int code = tags.code();
        if (code == kFlags) {
            multiline.closed = (tags.whole() & kClosed) != 0;
        } else if (code == kVertex) {
            multiline.vertices.emplace_back().at.x = tags.real();
        } else if (multiline.vertices.empty()) {
            continue;
        } else if (code == kElement) {
            expectsOffset = true;
        } else if (code != kNumber) {
            take(multiline.vertices.back(), code, tags.real());
        } else if (expectsOffset) {
            multiline.vertices.back().offsets.push_back(tags.real());
            expectsOffset = false;
        }
    }
    multiline.isBroken = tags.isBroken();
    return multiline;
}

void showSegment(const Vertex& from, const Vertex& to, Pen& pen) {
    const std::size_t elements = std::min(from.offsets.size(), to.offsets.size());
    for (std::size_t i = 0; i < elements; ++i)
        pen.edge(from.at + from.miter * from.offsets[i], to.at + to.miter * to.offsets[i]);
}

} // namespace

void showMultiline(const Source& source, Pen& pen) {
    const Multiline multiline = read(source);
    if (multiline.isBroken)
        return;
    const std::vector<Vertex>& vertices = multiline.vertices;
    for (std::size_t i = 1; i < vertices.size(); ++i)
        showSegment(vertices[i - 1], vertices[i], pen);
    if (multiline.closed && vertices.size() > 2)
        showSegment(vertices.back(), vertices.front(), pen);
}

} // namespace quor::gs
