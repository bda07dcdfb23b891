// What a person does with mouse and keyboard, as it reaches a window.
#pragma once

#include "sdk/ui/geometry.h"

class CWnd;

// Keys and buttons that are held down meanwhile.
inline constexpr unsigned MK_SHIFT = 0x4;
inline constexpr unsigned MK_CONTROL = 0x8;

// Keys by number; letters and digits are their capital character.
inline constexpr unsigned VK_RETURN = 0x0D;
inline constexpr unsigned VK_ESCAPE = 0x1B;
inline constexpr unsigned VK_SPACE = 0x20;
inline constexpr unsigned VK_PRIOR = 0x21; // page up
inline constexpr unsigned VK_NEXT = 0x22;  // page down
inline constexpr unsigned VK_END = 0x23;
inline constexpr unsigned VK_HOME = 0x24;
inline constexpr unsigned VK_UP = 0x26;
inline constexpr unsigned VK_DOWN = 0x28;
inline constexpr unsigned VK_DELETE = 0x2E;
inline constexpr unsigned VK_F2 = 0x71;

struct InputMessage {
    enum class Kind { MouseMove, LeftDown, LeftUp, LeftDouble, RightDown, RightUp, Wheel, KeyDown };
    Kind kind = Kind::MouseMove;
    CWnd* window = nullptr; // that it is meant for
    CPoint point{};         // of the mouse, in that window's client coordinates
    unsigned flags = 0;     // MK_…
    unsigned key = 0;       // VK_…, of KeyDown
    int lines = 0;          // of Wheel: downwards
};
