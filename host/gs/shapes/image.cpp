// IMAGE: its frame.
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

#include <array>

namespace quor::gs {

// The sides are those of a pixel, times the number of pixels.
void showImage(const Source& source, Pen& pen) {
    const Values<10, 20, 30, 11, 21, 31, 12, 22, 32, 13, 23> values(source);
    if (values.isBroken())
        return;
    const ZrGePoint3d corner = values.point<10>();
    const ZrGeVector3d across = values.point<11>().asVector() * values.real<13>();
    const ZrGeVector3d up = values.point<12>().asVector() * values.real<23>();
    const std::array corners{corner, corner + across, corner + across + up, corner + up};
    for (std::size_t i = 0; i < corners.size(); ++i)
        pen.edge(corners[i], corners[(i + 1) % corners.size()]);
}

} // namespace quor::gs
