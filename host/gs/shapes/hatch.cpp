// HATCH: its boundary, and what is inside of a solid one.
#include "host/gs/shapes/curves.h"
#include "host/gs/shapes/fill.h"
#include "host/gs/shapes/hatch_edge.h"
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

#include <algorithm>

namespace quor::gs {

namespace {

constexpr int kSolid = 70;
constexpr int kPath = 92; // begins a path: lines and arcs that follow each other, or edges of several types
constexpr int kEdgeType = 72;
constexpr int kDegree = 94;
constexpr int kStyle = 75; // behind all paths
constexpr std::int64_t kPolylinePath = 2;

// Follows the tags of a hatch and puts its paths together.
class HatchReader {
public:
    explicit HatchReader(const Source& source) {
        static constexpr dxf::CodeSet kWanted{10, 20,  30,  11,  21,     40,    42,        50,      51,
                                              73, 210, 220, 230, kSolid, kPath, kEdgeType, kDegree, kStyle};
        BodyTags tags(source, kWanted);
        while (tags.next() && tags.code() != kStyle)
            inPath_ || tags.code() == kPath ? takeOfPath(tags) : takeOfHead(tags);
        endPath();
        broken_ = tags.isBroken();
    }

    [[nodiscard]] bool isBroken() const { return broken_; }
    [[nodiscard]] bool isSolid() const { return solid_; }
    // Of the boundary.
    [[nodiscard]] const std::vector<Piece>& pieces() const { return pieces_; }
    [[nodiscard]] ZrGeMatrix3d placement() const {
        ZrGeMatrix3d raised;
        raised.setToTranslation({0, 0, elevation_});
        return ZrGeMatrix3d().setToPlaneToWorld(normal_) * raised;
    }

private:
    void takeOfHead(BodyTags& tags) {
        switch (tags.code()) {
        case 30:
            elevation_ = tags.real();
            break;
        case 210:
            normal_.x = tags.real();
            break;
        case 220:
            normal_.y = tags.real();
            break;
        case 230:
            normal_.z = tags.real();
            break;
        case kSolid:
            solid_ = tags.whole() != 0;
            break;
        default:
            break;
        }
    }

    void takeOfPath(BodyTags& tags) {
        if (tags.code() == kPath) {
            endPath();
            inPath_ = true;
            isPolyline_ = (tags.whole() & kPolylinePath) != 0;
        } else if (isPolyline_) {
            takeOfPolyline(tags);
        } else if (tags.code() == kEdgeType) {
            endEdge();
            edge_.type = static_cast<int>(std::clamp<std::int64_t>(tags.whole(), 0, HatchEdge::Spline));
        } else {
            takeOfEdge(tags);
        }
    }

    void takeOfPolyline(BodyTags& tags) {
        if (tags.code() == 10)
            vertices_.push_back({{tags.real(), 0, 0}, 0});
        else if (tags.code() == 20 && !vertices_.empty())
            vertices_.back().at.y = tags.real();
        else if (tags.code() == 42 && !vertices_.empty())
            vertices_.back().bulge = tags.real();
    }

    void takeOfEdge(BodyTags& tags) {
        switch (tags.code()) {
        case 10:
            edge_.first.push_back({tags.real(), 0, 0});
            break;
        case 11:
            edge_.second.push_back({tags.real(), 0, 0});
            break;
        case 20:
            takeY(edge_.first, tags.real());
            break;
        case 21:
            takeY(edge_.second, tags.real());
            break;
        case 40:
            edge_.numbers.push_back(tags.real());
            break;
        case 42:
            edge_.weights.push_back(tags.real());
            break;
        case 50:
            edge_.start = tags.real();
            break;
        case 51:
            edge_.end = tags.real();
            break;
        case 73:
            edge_.counterclockwise = tags.whole() != 0;
            break;
        case kDegree:
            edge_.degree = static_cast<int>(std::clamp<std::int64_t>(tags.whole(), 0, 1000));
            break;
        default:
            break;
        }
    }

    static void takeY(std::vector<ZrGePoint3d>& points, double y) {
        if (!points.empty())
            points.back().y = y;
    }

    void endEdge() {
        if (edge_.type != HatchEdge::None)
            pieces_.push_back(pointsOf(edge_));
        edge_ = {};
    }

    void endPath() {
        if (!inPath_)
            return;
        endEdge();
        if (!vertices_.empty()) {
            Piece piece{vertices_.front().at};
            for (std::size_t i = 0; i < vertices_.size(); ++i)
                appendSegment(piece, vertices_[i], vertices_[(i + 1) % vertices_.size()]);
            pieces_.push_back(std::move(piece));
        }
        vertices_.clear();
        isPolyline_ = false;
    }

    std::vector<Piece> pieces_;
    std::vector<PlaneVertex> vertices_;
    HatchEdge edge_;
    ZrGeVector3d normal_ = ZrGeVector3d::kZAxis;
    double elevation_ = 0;
    bool solid_ = false;
    bool inPath_ = false;
    bool isPolyline_ = false;
    bool broken_ = false;
};

void place(std::vector<ZrGePoint3d>& points, const ZrGeMatrix3d& placement) {
    for (ZrGePoint3d& point : points)
        point = placement * point;
}

} // namespace

void showHatch(const Source& source, Pen& pen) {
    if (pen.wanted() != Wanted::Lines)
        return;
    const HatchReader hatch(source);
    if (hatch.isBroken())
        return;
    const ZrGeMatrix3d placement = hatch.placement();
    for (Piece piece : hatch.pieces()) {
        place(piece, placement);
        pen.lines(piece);
    }
    if (!hatch.isSolid())
        return;
    auto triangles = filled(hatch.pieces()).value_or(std::vector<ZrGePoint3d>());
    place(triangles, placement);
    for (std::size_t i = 2; i < triangles.size(); i += 3)
        pen.triangle(triangles[i - 2], triangles[i - 1], triangles[i]);
}

} // namespace quor::gs
