// LINE, 3DLINE, POINT.
#include "host/db/data.h"
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

namespace quor::gs {

void showLine(const Source& source, Pen& pen) {
    if (const auto* const line = source.opened<ZrDbLineData>())
        return pen.edge(line->start, line->end);
    const Values<10, 20, 30, 11, 21, 31> values(source);
    if (!values.isBroken())
        pen.edge(values.point<10>(), values.point<11>());
}

// A line without length is seen as one pixel, however near one looks.
void showPoint(const Source& source, Pen& pen) {
    const Values<10, 20, 30> values(source);
    if (values.isBroken())
        return;
    const ZrGePoint3d at = values.point<10>();
    pen.line(at, at);
    pen.snap(SnapPoint::Kind::End, at);
}

} // namespace quor::gs
