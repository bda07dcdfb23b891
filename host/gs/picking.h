// What is under the cursor or within a rectangle of a picture, and where exactly a point is meant.
#pragma once

#include "host/gs/scene.h"

namespace quor::gs {

// Half the width of a glyph, in pixels of a picture at 96 dots per inch.
inline constexpr double kGlyphRadius = 11;

struct PickOptions {
    double radius = 5; // pixels around the cursor
    double glyphRadius = kGlyphRadius;
    bool faces = false;  // triangles are hit inside as well (shaded pictures)
    bool isOpen = false; // but not those that stand before an interior (CutAway)
};

// The nearest entity under the cursor; null for none. Hidden and frozen layers are not hit.
[[nodiscard]] ZrDbObjectId pickAt(const SceneData& scene, const Projector& projector, double x, double y,
                                  const PickOptions& options = {});

struct PixelRect {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};
// Entities that lie wholly inside (window), or also those that the rectangle touches (crossing). In drawing order.
enum class RectPick { Window, Crossing };
[[nodiscard]] std::vector<ZrDbObjectId> pickIn(const SceneData& scene, const Projector& projector,
                                               const PixelRect& rect, RectPick how, const PickOptions& options = {});

// Object snaps, as bits of OSMODE.
inline constexpr int kSnapEnd = 1;
inline constexpr int kSnapMiddle = 2;
inline constexpr int kSnapCenter = 4;
inline constexpr int kSnapOff = 16384; // they are kept, but switched off
// On a face, where the ray meets it: a bit of 3DOSMODE, here beside the others.
inline constexpr int kSnapFace = 1 << 20;

inline constexpr double kSnapRadius = 12; // pixels around the cursor

struct Snap {
    enum class Kind { End, Middle, Center, Face };
    Kind kind;
    ZrGePoint3d at;
};
// The snap that is meant at the cursor; nothing when none is near. `isOpen` as in PickOptions.
[[nodiscard]] std::optional<Snap> snapAt(const SceneData& scene, const Projector& projector, double x, double y,
                                         int modes, double radius = kSnapRadius, bool isOpen = false);

} // namespace quor::gs
