// The picture of the current drawing, as far as commands such as ZOOM need it. A program that shows drawings implements
// it.
#pragma once

#include "host/gs/camera.h"

namespace quor::gs {

enum class VisualStyle {
    Wireframe,
    Shaded,
    Interior // shaded, and open towards the eye (CutAway)
};
[[nodiscard]] constexpr bool showsFaces(VisualStyle style) { return style != VisualStyle::Wireframe; }

class View {
public:
    virtual ~View() = default;
    [[nodiscard]] virtual Camera camera() const = 0;
    // Keeps the one before for ZOOM Previous.
    virtual void setCamera(const Camera& camera) = 0;
    // False when there is none before.
    virtual bool backToPreviousCamera() = 0;
    [[nodiscard]] virtual PictureSize size() const = 0;
    [[nodiscard]] virtual VisualStyle visualStyle() const = 0;
    virtual void setVisualStyle(VisualStyle style) = 0;
    // Of everything that is visible in the current space; empty when nothing is.
    [[nodiscard]] virtual Box extents() const = 0;
    // Makes the picture anew from the drawing.
    virtual void regenerate() = 0;
};

} // namespace quor::gs
