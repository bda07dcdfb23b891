// Which version of drawing files brought what, as the number in $ACADVER.
#pragma once

namespace quor::db::versions {

inline constexpr int kOldest = 1009; // counts for files that name no version
inline constexpr int kFirstWithUcs = 1006;
inline constexpr int kFirstWithPaperSpace = 1009;
inline constexpr int kFirstWithSubclasses = 1012; // subclass markers, owners, handles everywhere
inline constexpr int kFirstWithLights = 1015;
inline constexpr int kOnlyWithRawLightColor = 1015; // the light's colour as one word
inline constexpr int kFirstWithPlotStyles = 1015;
inline constexpr int kFirstWithRenderModes = 1015; // of views, and coordinate systems of their own
inline constexpr int kFirstWithTrueColor = 1018;
inline constexpr int kFirstWithClassCounts = 1018;
inline constexpr int kFirstWithHiddenLayers = 1021; // marked by an asterisk
inline constexpr int kFirstWithMaterials = 1021;
inline constexpr int kFirstWithDefaultLighting = 1021;

} // namespace quor::db::versions
