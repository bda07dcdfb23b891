#include "desktop/viewport/viewport_colors.h"

namespace quor::desktop {

namespace {

ViewportColors darkColors() {
    return {.picture = {},
            .crosshair = QColor(0xE8, 0xEB, 0xEF),
            .rubberBand = QColor(0xF2, 0xC8, 0x5B),
            .snap = QColor(0x4C, 0xE0, 0x8A),
            .light = QColor(0xFF, 0xD5, 0x4A),
            .window = {.edge = QColor(0x6F, 0xB1, 0xFF), .inside = QColor(0x3D, 0x8B, 0xF0, 0x40)},
            .crossing = {.edge = QColor(0x6E, 0xD8, 0x8C), .inside = QColor(0x3C, 0xB8, 0x64, 0x40)},
            .labelBackground = QColor(0x23, 0x26, 0x2B, 0xE0),
            .labelText = QColor(0xE8, 0xEB, 0xEF),
            .labelEdge = QColor(0x5B, 0x62, 0x6E),
            .xAxis = QColor(0xF0, 0x62, 0x5D),
            .yAxis = QColor(0x5F, 0xC9, 0x6B),
            .zAxis = QColor(0x5B, 0x9B, 0xFF)};
}

ViewportColors lightColors() {
    return {.picture = {.backgroundTop = 0xFFFBFCFD,
                        .backgroundBottom = 0xFFDFE4EB,
                        .ink = 0xFF1B1F24,
                        .hovered = 0xFF1C8DE0,
                        .selected = 0xFF0A57C8,
                        .lightOn = 0xFFD08400,
                        .lightOff = 0xFF7E848D},
            .crosshair = QColor(0x1B, 0x1F, 0x24),
            .rubberBand = QColor(0xB3, 0x5C, 0x00),
            .snap = QColor(0x0C, 0x8A, 0x3E),
            .light = QColor(0xC0, 0x74, 0x00),
            .window = {.edge = QColor(0x1E, 0x66, 0xC8), .inside = QColor(0x3D, 0x8B, 0xF0, 0x38)},
            .crossing = {.edge = QColor(0x1C, 0x87, 0x42), .inside = QColor(0x3C, 0xB8, 0x64, 0x38)},
            .labelBackground = QColor(0xFF, 0xFF, 0xFF, 0xE8),
            .labelText = QColor(0x1E, 0x22, 0x27),
            .labelEdge = QColor(0xB4, 0xBB, 0xC5),
            .xAxis = QColor(0xC9, 0x2F, 0x2B),
            .yAxis = QColor(0x22, 0x8B, 0x35),
            .zAxis = QColor(0x1F, 0x5F, 0xD0)};
}

} // namespace

const ViewportColors& viewportColors(bool isDark) {
    static const ViewportColors dark = darkColors();
    static const ViewportColors light = lightColors();
    return isDark ? dark : light;
}

} // namespace quor::desktop
