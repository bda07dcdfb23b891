// The main window of the desktop program: menus, status bar, tabs, titles. "&" stands before the letter that is typed
// with Alt.
#pragma once

#include "host/texts/text.h"

namespace quor::texts::window {

inline constexpr Text kMenuFile{L"文件(&F)", L"&File"};
inline constexpr Text kMenuEdit{L"编辑(&E)", L"&Edit"};
inline constexpr Text kMenuView{L"视图(&V)", L"&View"};
inline constexpr Text kMenuDraw{L"绘图(&D)", L"&Draw"};
inline constexpr Text kMenuLight{L"光源(&L)", L"&Lights"};
inline constexpr Text kMenuTools{L"工具(&T)", L"&Tools"};
inline constexpr Text kMenuHelp{L"帮助(&H)", L"&Help"};

inline constexpr Text kSubRecent{L"最近的图形(&R)", L"&Recent Drawings"};
inline constexpr Text kSubNamedViews{L"命名视图(&N)", L"&Named Views"};
inline constexpr Text kSubStyle{L"视觉样式(&S)", L"Visual &Style"};
inline constexpr Text kSubPanels{L"选项板(&A)", L"P&alettes"};
inline constexpr Text kSubTheme{L"颜色主题(&C)", L"&Color Theme"};
inline constexpr Text kSubLanguage{L"语言(&L) Language", L"&Language 语言"};
inline constexpr Text kSubUnits{L"光源单位(&U)", L"Lighting &Units"};

inline constexpr Text kToolBarFile{L"标准工具栏", L"Standard"};
inline constexpr Text kToolBarView{L"视图工具栏", L"View"};
inline constexpr Text kToolBarLight{L"光源工具栏", L"Lights"};

inline constexpr Text kCommandLine{L"命令行", L"Command Line"};
inline constexpr Text kProperties{L"特性", L"Properties"};
inline constexpr Text kLayers{L"图层", L"Layers"};
inline constexpr Text kDrawing{L"图形", L"Drawing"};
inline constexpr Text kDrawings{L"打开的图形", L"Open drawings"};
inline constexpr Text kCloseDrawing{L"关闭", L"Close"};
inline constexpr Text kNoRecent{L"(无)", L"(none)"};
inline constexpr Text kClearRecent{L"清除列表(&C)", L"&Clear List"};
inline constexpr Text kNoDrawingTitle{L"Quor", L"Quor"};
inline constexpr Text kTitle{L"%s%s - Quor", L"%s%s - Quor"};

// Status bar.
inline constexpr Text kCoordinates{L"光标坐标 (UCS)", L"Cursor coordinates (UCS)"};
inline constexpr Text kSnap{L"捕捉", L"Snap"};
inline constexpr Text kSnapTip{L"对象捕捉: 端点、中点、圆心、面上 (F3)",
                               L"Object snap: endpoint, midpoint, center, on face (F3)"};
inline constexpr Text kOrtho{L"正交", L"Ortho"};
inline constexpr Text kOrthoTip{L"只沿 UCS 的轴移动 (F8)", L"Only along the axes of the UCS (F8)"};
inline constexpr Text kShaded{L"着色", L"Shaded"};
inline constexpr Text kShadedTip{L"着色或线框", L"Shaded or wireframe"};
inline constexpr Text kDefaultLighting{L"默认光源", L"Default lighting"};
inline constexpr Text kDefaultLightingTip{L"打开: 视图由默认光源照亮；关闭: 由图形中的光源照亮 (DEFAULTLIGHTING)",
                                          L"On: the view is lit by default lights; off: by the lights of the drawing "
                                          L"(DEFAULTLIGHTING)"};
inline constexpr Text kUnitsTip{L"光源单位 (LIGHTINGUNITS)", L"Lighting units (LIGHTINGUNITS)"};
inline constexpr Text kUnitsGeneric{L"常规", L"Generic"};
inline constexpr Text kUnitsAmerican{L"美制 (fc)", L"American (fc)"};
inline constexpr Text kUnitsInternational{L"国际 (lx)", L"International (lx)"};
inline constexpr Text kUcsTip{L"用户坐标系 (UCS)", L"User coordinate system (UCS)"};
inline constexpr Text kUcsWorld{L"世界", L"World"};
inline constexpr Text kUcsUnnamed{L"未命名", L"Unnamed"};
inline constexpr Text kUcs{L"UCS: %s", L"UCS: %s"};
inline constexpr Text kNothingOpen{L"没有打开的图形。按 Ctrl+N 新建，按 Ctrl+O 打开。",
                                   L"No drawing is open. Ctrl+N makes a new one, Ctrl+O opens one."};

// Context menu of the drawing.
inline constexpr Text kRepeat{L"重复 %s(&R)", L"&Repeat %s"};
inline constexpr Text kRecentCommands{L"最近的命令(&I)", L"Recent &Commands"};

// Starting.
inline constexpr Text kUsage{LR"(用法: quor [选项]... [图形]...

在窗口中打开、编辑和保存 DXF 图形；不给出图形时新建一个。
没有显示器的机器、管道和脚本请使用 quorc。

选项
  -s, --script 文件       启动后执行脚本(可重复，按命令行上的顺序执行)
      --lang zh|en        这一次使用的语言；默认为系统变量 LANGUAGE 所设: zh、en，或 auto(依照
                          LC_ALL、LC_MESSAGES、LANG)；没有设置时为中文
      --module 文件       加载模块(可重复)；默认加载程序旁的 light
  -h, --help              显示本帮助
      --version           显示版本

示例
  quor 户型.dxf -s 灯光.scr     打开图形，执行脚本
  quor --lang en                用英文界面打开新图形
  quor -- -户型.dxf             文件名以 - 开头时，放在 -- 之后

退出状态
    0  正常结束
    2  命令行用法错误
    3  没有可用的显示器
  128+N  被信号 N 结束；未保存的工作留有副本，下次启动时可以恢复
)",
                             LR"(Usage: quor [OPTIONS]... [DRAWING]...

Opens, edits, and saves DXF drawings in a window; without DRAWING, a new one is started.
On a machine without a display, in pipes, and in scripts, use quorc.

Options
  -s, --script FILE       run a script after the start (repeatable; runs in command-line order)
      --lang zh|en        language of this run; default: the system variable LANGUAGE, set to zh, en,
                          or auto (from LC_ALL, LC_MESSAGES, LANG); Chinese if it is not set
      --module FILE       load a module (repeatable); default: light, beside the program
  -h, --help              show this help
      --version           show the version

Examples
  quor plan.dxf -s lights.scr   open a drawing, run a script
  quor --lang en                start a new drawing in English
  quor -- -plan.dxf             a file name that begins with - stands behind --

Exit status
    0  normal end
    2  incorrect usage
    3  no display can be used
  128+N  ended by signal N; copies of unsaved work are kept and offered at the next start
)"};
inline constexpr Text kNoDisplay{
    L"quor: 没有可用的显示器 (DISPLAY 和 WAYLAND_DISPLAY 都未设置)；请使用 quorc\n",
    L"quor: there is no display (neither DISPLAY nor WAYLAND_DISPLAY is set); use quorc\n"};
inline constexpr Text kDisplayRefused{L"quor: 无法使用显示器；请使用 quorc。原因:\n%s\n",
                                      L"quor: the display cannot be used; use quorc. The reason:\n%s\n"};

} // namespace quor::texts::window
