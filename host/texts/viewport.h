// What the drawing area says: names of snaps, the menu of a question, what those hear who do not see it.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text kViewportName{L"绘图区", L"Drawing area"};
inline constexpr Text kViewportHelp{
    L"显示当前图形。滚轮缩放，按住中键平移，按住 Shift 和中键旋转；方向键平移，Ctrl+方向键旋转，"
    L"Ctrl+加号和 Ctrl+减号缩放，Home 显示全部。",
    L"Shows the current drawing. The wheel zooms, the middle button pans, with Shift it "
    L"orbits; arrow keys pan, Ctrl+arrow keys orbit, Ctrl+plus and Ctrl+minus zoom, "
    L"Home shows everything."};
inline constexpr Text kViewportSnapEnd{L"端点", L"Endpoint"};
inline constexpr Text kViewportSnapMiddle{L"中点", L"Midpoint"};
inline constexpr Text kViewportSnapCenter{L"圆心", L"Center"};
inline constexpr Text kViewportSnapFace{L"面上", L"On face"};
inline constexpr Text kViewportEnter{L"确认(&E)", L"&Enter"};
inline constexpr Text kViewportCancel{L"取消(&C)", L"&Cancel"};
inline constexpr Text kViewportIncomplete{L"图形过大，部分对象未显示",
                                          L"The drawing is too large: not all of it is shown"};
inline constexpr Text kViewportMakingPicture{L"正在生成图形", L"Preparing the drawing"};

} // namespace quor::texts
