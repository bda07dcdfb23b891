// Vectors under transformations.
#include "sdk/ge/matrix3d.h"

ZrGeVector3d& ZrGeVector3d::rotateBy(double angle, const ZrGeVector3d& axis) {
    return transformBy(ZrGeMatrix3d().setToRotation(angle, axis));
}

ZrGeVector3d& ZrGeVector3d::transformBy(const ZrGeMatrix3d& matrix) { return *this = matrix * *this; }
