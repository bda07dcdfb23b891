// REGION, BODY, 3DSOLID, the surfaces: their edges, where the drawing holds them as text.
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/modeler_edges.h"
#include "host/gs/shapes/values.h"

namespace quor::gs {

namespace {

// A long line goes on in tags of their own.
std::string modelerText(const Source& source) {
    constexpr int kLine = 1;
    constexpr int kContinued = 3;
    static constexpr dxf::CodeSet kWanted{kLine, kContinued};
    std::string text;
    BodyTags tags(source, kWanted);
    while (tags.next()) {
        if (tags.code() == kLine && !text.empty())
            text += '\n';
        text += unscrambled(tags.tag().raw);
    }
    return text;
}

} // namespace

void showSolidModel(const Source& source, Pen& pen) {
    const ModelerText model(modelerText(source));
    for (const std::vector<ZrGePoint3d>& edge : edgesOf(model)) {
        pen.lines(edge);
        pen.snap(SnapPoint::Kind::End, edge.front());
        pen.snap(SnapPoint::Kind::End, edge.back());
        if (edge.size() == 2)
            pen.snap(SnapPoint::Kind::Middle, edge[0] + (edge[1] - edge[0]) / 2);
    }
}

} // namespace quor::gs
