// LEADER: its line, without arrow.
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

namespace quor::gs {

void showLeader(const Source& source, Pen& pen) {
    static constexpr dxf::CodeSet kWanted{10, 20, 30};
    std::vector<ZrGePoint3d> points;
    BodyTags tags(source, kWanted);
    while (tags.next()) {
        if (tags.code() == 10)
            points.push_back({tags.real(), 0, 0});
        else if (!points.empty())
            (tags.code() == 20 ? points.back().y : points.back().z) = tags.real();
    }
    if (tags.isBroken())
        return;
    for (std::size_t i = 1; i < points.size(); ++i)
        pen.edge(points[i - 1], points[i]);
}

} // namespace quor::gs
