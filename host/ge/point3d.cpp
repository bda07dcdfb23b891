// Points under transformations.
#include "sdk/ge/matrix3d.h"

ZrGePoint3d& ZrGePoint3d::transformBy(const ZrGeMatrix3d& matrix) { return *this = matrix * *this; }
