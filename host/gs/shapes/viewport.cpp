// VIEWPORT: the frame of a window of a sheet.
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

#include <array>

namespace quor::gs {

void showViewport(const Source& source, Pen& pen) {
    constexpr int kSheetItself = 1;
    const Values<10, 20, 30, 40, 41, 69> values(source);
    if (values.isBroken() || values.whole<69>() == kSheetItself)
        return;
    const ZrGePoint3d center = values.point<10>();
    const ZrGeVector3d across(values.real<40>() / 2, 0, 0);
    const ZrGeVector3d up(0, values.real<41>() / 2, 0);
    const std::array corners{center - across - up, center + across - up, center + across + up, center - across + up};
    for (std::size_t i = 0; i < corners.size(); ++i)
        pen.edge(corners[i], corners[(i + 1) % corners.size()]);
}

} // namespace quor::gs
