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
inline constexpr Text kSubPanels{L"选项板(&P)", L"&Palettes"};
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
inline constexpr Text kNoRecent{L"(无)", L"(none)"};
inline constexpr Text kClearRecent{L"清除列表(&C)", L"&Clear List"};
inline constexpr Text kNoDrawingTitle{L"Quor", L"Quor"};
inline constexpr Text kTitle{L"%s%s - Quor", L"%s%s - Quor"};

// Status bar.
inline constexpr Text kCoordinates{L"光标坐标 (UCS)", L"Cursor coordinates (UCS)"};
inline constexpr Text kSnap{L"捕捉", L"Snap"};
inline constexpr Text kSnapTip{L"对象捕捉: 端点、中点、圆心、面上 (F3)", L"Object snap: endpoint, midpoint, center, on face (F3)"};
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
inline constexpr Text kUsage{
    L"用法: quor [选项] [图形…]\n\n"
    L"在窗口中打开图形 (DXF)；不给出图形时新建一个。\n\n"
    L"  --lang zh|en     这一次使用的语言\n"
    L"  --module 模块     加载的模块，可多次给出；默认为 light\n"
    L"  --script 脚本     启动后运行的脚本，可多次给出\n"
    L"  -h, --help       显示本说明\n"
    L"  --version        显示版本\n\n"
    L"没有显示器的机器上请使用 quorc。\n",
    L"Usage: quor [OPTIONS] [DRAWING…]\n\n"
    L"Opens drawings (DXF) in a window; makes a new one when none is given.\n\n"
    L"  --lang zh|en     language of this run\n"
    L"  --module NAME    module to load, may be repeated; light unless given\n"
    L"  --script FILE    script to run after the start, may be repeated\n"
    L"  -h, --help       show this text\n"
    L"  --version        show the version\n\n"
    L"On a machine without a display use quorc.\n"};
inline constexpr Text kWrongOption{L"quor: 无法识别的选项 %s；请参见 quor --help\n",
                                   L"quor: unknown option %s; see quor --help\n"};
inline constexpr Text kMissingValue{L"quor: 选项 %s 需要一个值；请参见 quor --help\n",
                                    L"quor: option %s needs a value; see quor --help\n"};
inline constexpr Text kNoDisplay{L"quor: 没有可用的显示器 (DISPLAY 和 WAYLAND_DISPLAY 都未设置)；请使用 quorc\n",
                                 L"quor: there is no display (neither DISPLAY nor WAYLAND_DISPLAY is set); use quorc\n"};

} // namespace quor::texts::window
