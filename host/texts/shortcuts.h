// The habits of mouse and keyboard that the program's help lists, in groups.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text kShortcutsTitle{L"键盘和鼠标", L"Keyboard and mouse"};
inline constexpr Text kShortcutsDo{L"操作", L"Do this"};
inline constexpr Text kShortcutsEffect{L"作用", L"What happens"};

// A row without an effect is the heading of those below it.
struct Shortcut {
    Text keys;
    Text effect;

    [[nodiscard]] bool isHeading() const { return effect.chinese == nullptr; }
};

inline constexpr Shortcut kShortcuts[] = {
    {{L"观察图形", L"Looking at the drawing"}, {}},
    {{L"滚轮", L"Wheel"}, {L"以光标为中心缩放", L"Zoom to the cursor"}},
    {{L"按住滚轮拖动", L"Drag with the wheel"}, {L"平移", L"Pan"}},
    {{L"Shift 或 Ctrl + 按住滚轮拖动", L"Shift or Ctrl + drag with the wheel"}, {L"旋转", L"Orbit"}},
    {{L"Alt + 左键拖动", L"Alt + drag with the left button"}, {L"旋转", L"Orbit"}},
    {{L"双击滚轮、Home、Ctrl+0", L"Double-click the wheel, Home, Ctrl+0"}, {L"范围缩放", L"Zoom extents"}},
    {{L"方向键", L"Arrow keys"}, {L"平移", L"Pan"}},
    {{L"Ctrl + 方向键", L"Ctrl + arrow keys"}, {L"旋转", L"Orbit"}},
    {{L"Ctrl+加号、Ctrl+减号", L"Ctrl+Plus, Ctrl+Minus"}, {L"放大、缩小", L"Zoom in, zoom out"}},
    {{L"Ctrl+3、Ctrl+4、Ctrl+5", L"Ctrl+3, Ctrl+4, Ctrl+5"},
     {L"线框、着色、透视投影", L"Wireframe, shaded, perspective"}},
    {{L"选择", L"Selecting"}, {}},
    {{L"单击对象", L"Click an object"}, {L"选择", L"Select it"}},
    {{L"Shift + 单击", L"Shift + click"}, {L"从选择中去除", L"Take it out of the selection"}},
    {{L"Ctrl + 单击", L"Ctrl + click"}, {L"加入选择，或从中去除", L"Add it to the selection, or take it out"}},
    {{L"从左到右的矩形", L"Rectangle from left to right"}, {L"选择完全在其中的对象", L"Select what lies inside"}},
    {{L"从右到左的矩形", L"Rectangle from right to left"},
     {L"选择其中以及与之相交的对象", L"Select what lies inside or crosses it"}},
    {{L"双击对象", L"Double-click an object"}, {L"特性", L"Properties"}},
    {{L"Ctrl+A、Esc", L"Ctrl+A, Esc"}, {L"全部选择、取消选择", L"Select all, deselect"}},
    {{L"命令行", L"Command line"}, {}},
    {{L"在任意位置键入", L"Type anywhere"}, {L"输入到命令行", L"Goes to the command line"}},
    {{L"Enter、空格", L"Enter, Space"}, {L"回答；在命令提示下重复上一个命令", L"Answer; repeats the last command"}},
    {{L"Esc", L"Esc"}, {L"取消", L"Cancel"}},
    {{L"向上、向下", L"Up, Down"}, {L"以前键入的内容", L"What was typed before"}},
    {{L"Tab", L"Tab"}, {L"补全", L"Complete"}},
    {{L"单击提示中的选项", L"Click an option in the prompt"}, {L"选择该选项", L"Choose it"}},
    {{L"右键", L"Right button"}, {L"提问时为 Enter 或选项菜单", L"Enter, or a menu of the options, at a question"}},
    {{L"F2", L"F2"}, {L"文本窗口", L"Text window"}},
    {{L"F3、F8", L"F3, F8"}, {L"对象捕捉、正交", L"Object snap, ortho"}},
    {{L"窗口和文件", L"Windows and files"}, {}},
    {{L"Ctrl+1、Ctrl+2", L"Ctrl+1, Ctrl+2"}, {L"特性、模型中的光源", L"Properties, Lights in Model"}},
    {{L"Ctrl+N、Ctrl+O、Ctrl+S", L"Ctrl+N, Ctrl+O, Ctrl+S"}, {L"新建、打开、保存", L"New, open, save"}},
    {{L"Ctrl+Z、Ctrl+Y", L"Ctrl+Z, Ctrl+Y"}, {L"放弃、重做", L"Undo, redo"}},
    {{L"F1", L"F1"}, {L"命令帮助", L"Help on commands"}},
};

} // namespace quor::texts
