#include "desktop/window/action_table.h"

#include "host/texts/window.h"

namespace quor::desktop {

namespace {

using enum MenuPlace;
using Bar = ToolBarPlace;
namespace words = texts::window;

constexpr bool kGroup = true;
constexpr bool kCheck = true;
constexpr bool kAnytime = false;

// clang-format off
constexpr ActionRow kRows[] = {
    {File, "new",        {L"新建(&N)", L"&New"},                 L"_NEW",     "Ctrl+N", Bar::File, false, false, kAnytime},
    {File, "open",       {L"打开(&O)…", L"&Open…"},              L"_OPEN",    "Ctrl+O", Bar::File, false, false, kAnytime},
    {File, "save",       {L"保存(&S)", L"&Save"},                L"_SAVE",    "Ctrl+S", Bar::File, kGroup},
    {File, "saveas",     {L"另存为(&A)…", L"Save &As…"},         L"_SAVEAS",  "Ctrl+Shift+S"},
    {File, "recover",    {L"修复(&V)…", L"Reco&ver…"},           L"_RECOVER", "", Bar::None, kGroup, false, kAnytime},
    {File, "script",     {L"运行脚本(&T)…", L"Run Scrip&t…"},     L"_SCRIPT",  "", Bar::None, false, false, kAnytime},
    {File, "close",      {L"关闭(&C)", L"&Close"},               L"_CLOSE",   "Ctrl+W; Ctrl+F4", Bar::None, kGroup},
    {File, "quit",       {L"退出(&X)", L"E&xit"},                nullptr,     "Ctrl+Q", Bar::None, false, false, kAnytime},

    {Edit, "undo",       {L"放弃(&U)", L"&Undo"},                L"_U",       "Ctrl+Z", Bar::File, kGroup},
    {Edit, "redo",       {L"重做(&R)", L"&Redo"},                L"_REDO 1",  "Ctrl+Y", Bar::File},
    {Edit, "erase",      {L"删除(&E)", L"&Erase"},               L"_ERASE",   "", Bar::File, kGroup},
    {Edit, "selectall",  {L"全部选择(&A)", L"Select &All"},       nullptr,     "Ctrl+A", Bar::None, kGroup},
    {Edit, "deselect",   {L"取消选择(&D)", L"&Deselect All"},     nullptr,     "Ctrl+Shift+A"},
    {Edit, "properties", {L"特性(&P)", L"&Properties"},          nullptr,     "Ctrl+1", Bar::File, kGroup, kCheck},

    {View, "zoomextents", {L"范围缩放(&E)", L"Zoom &Extents"},    L"'_ZOOM _E", "Ctrl+0", Bar::View},
    {View, "zoomwindow", {L"窗口缩放(&W)", L"Zoom &Window"},      L"'_ZOOM _W", "", Bar::View},
    {View, "zoomprevious", {L"上一个视图(&P)", L"Zoom &Previous"}, L"'_ZOOM _P", "", Bar::View},
    {View, "plan",       {L"平面视图(&L)", L"P&lan View"},        L"'_PLAN", ""},
    {View, "regen",      {L"重生成(&G)", L"Re&generate"},         L"_REGEN",   "F5"},
    {View, "perspective", {L"透视投影(&T)", L"Perspec&tive"},     nullptr,     "Ctrl+5", Bar::View, kGroup, kCheck},
    {View, "glyphs",     {L"显示光源图标(&I)", L"Light Gl&yphs"}, nullptr,     "", Bar::None, false, kCheck},
    {View, "nextdrawing",     {L"下一个图形(&D)", L"Next &Drawing"},     nullptr, "Ctrl+Tab", Bar::None, kGroup},
    {View, "previousdrawing", {L"上一个图形(&R)", L"P&revious Drawing"}, nullptr, "Ctrl+Shift+Tab"},
    {View, "textwindow", {L"文本窗口(&X)", L"Te&xt Window"},      nullptr,     "F2", Bar::None, kGroup, kCheck, kAnytime},

    {NamedViews, "viewtop",    {L"俯视(&T)", L"&Top"},            L"'_VIEW _TOP",    "Ctrl+Alt+1", Bar::View, kGroup},
    {NamedViews, "viewbottom", {L"仰视(&B)", L"&Bottom"},         L"'_VIEW _BOTTOM", ""},
    {NamedViews, "viewfront",  {L"前视(&F)", L"&Front"},          L"'_VIEW _FRONT",  "Ctrl+Alt+2", Bar::View},
    {NamedViews, "viewback",   {L"后视(&K)", L"Bac&k"},           L"'_VIEW _BACK",   ""},
    {NamedViews, "viewleft",   {L"左视(&L)", L"&Left"},           L"'_VIEW _LEFT",   ""},
    {NamedViews, "viewright",  {L"右视(&R)", L"&Right"},          L"'_VIEW _RIGHT",  ""},
    {NamedViews, "viewswiso",  {L"西南等轴测(&W)", L"South&west Isometric"}, L"'_VIEW _SWISO", "Ctrl+Alt+3", Bar::View, kGroup},
    {NamedViews, "viewseiso",  {L"东南等轴测(&E)", L"South&east Isometric"}, L"'_VIEW _SEISO", "Ctrl+Alt+4"},
    {NamedViews, "viewneiso",  {L"东北等轴测(&N)", L"&Northeast Isometric"}, L"'_VIEW _NEISO", ""},
    {NamedViews, "viewnwiso",  {L"西北等轴测(&H)", L"Nort&hwest Isometric"}, L"'_VIEW _NWISO", ""},
    {NamedViews, "viewnamed",  {L"命名视图…(&V)", L"Named &Views…"},          L"_VIEW", "", Bar::None, kGroup},

    {Style, "wireframe", {L"线框(&W)", L"&Wireframe"},           nullptr, "Ctrl+3", Bar::View, kGroup, kCheck},
    {Style, "shaded",    {L"着色(&S)", L"&Shaded"},              nullptr, "Ctrl+4", Bar::View, false, kCheck},
    {Style, "interior",  {L"室内(&I)", L"&Interior"},            nullptr, "", Bar::None, false, kCheck},
    {Style, "defaultlighting", {L"默认光源(&D)", L"&Default Lighting"}, nullptr, "", Bar::Light, kGroup, kCheck},

    {Draw, "line",       {L"直线(&L)", L"&Line"},                L"_LINE",   ""},
    {Draw, "face",       {L"三维面(&F)", L"3D &Face"},           L"_3DFACE", ""},
    {Draw, "layer",      {L"图层(&Y)…", L"La&yers…"},            L"_LAYERS", "", Bar::None, kGroup},
    {Draw, "ucs",        {L"用户坐标系(&U)", L"&UCS"},            L"_UCS",    ""},

    {Light, "pointlight",   {L"点光源(&P)", L"&Point Light"},             L"_POINTLIGHT",   "", Bar::Light},
    {Light, "spotlight",    {L"聚光灯(&S)", L"&Spotlight"},               L"_SPOTLIGHT",    "", Bar::Light},
    {Light, "weblight",     {L"光域网灯光(&W)", L"&Weblight"},             L"_WEBLIGHT",     "", Bar::Light},
    {Light, "distantlight", {L"平行光(&D)", L"&Distant Light"},           L"_DISTANTLIGHT", "", Bar::Light},
    {Light, "targetpoint",  {L"目标点光源(&T)", L"&Target Point Light"},   L"_TARGETPOINT",  "", Bar::Light, kGroup},
    {Light, "freespot",     {L"自由聚光灯(&F)", L"&Free Spotlight"},       L"_FREESPOT",     "", Bar::Light},
    {Light, "freeweb",      {L"自由光域网灯光(&B)", L"Free We&blight"},     L"_FREEWEB",      "", Bar::Light},
    {Light, "light",        {L"光源…(&L)", L"&Light…"},                   L"_LIGHT",        "", Bar::None, kGroup},
    {Light, "lightlist",    {L"模型中的光源(&M)", L"Lights in &Model"},     nullptr,          "Ctrl+2", Bar::Light, kGroup, kCheck},
    {Light, "lighttable",   {L"光源表(&A)", L"Light T&able"},             L"_LIGHTTABLE",   ""},
    {Light, "iesinfo",      {L"光域网文件信息(&I)…", L"Photometric Web &Info…"}, L"_IESINFO", "", Bar::None, false, false, kAnytime},

    {Units, "unitsgeneric",  {L"常规(&G)", L"&Generic"}, L"'LIGHTINGUNITS 0", "", Bar::None, false, kCheck},
    {Units, "unitsamerican", {L"美制(&A)", L"&American"}, L"'LIGHTINGUNITS 1", "", Bar::None, false, kCheck},
    {Units, "unitssi",       {L"国际(&I)", L"&International"}, L"'LIGHTINGUNITS 2", "", Bar::None, false, kCheck},

    {Panels, "layers",      {L"图层(&L)", L"&Layers"},          nullptr, "", Bar::None, false, kCheck, kAnytime},
    {Panels, "commandline", {L"命令行(&C)", L"&Command Line"},  nullptr, "Ctrl+9", Bar::None, false, kCheck, kAnytime},

    {Tools, "loadmodule", {L"加载模块(&M)…", L"Load &Module…"},      L"_LOADMODULE", "", Bar::None, false, false, kAnytime},
    {Tools, "snap",       {L"对象捕捉(&O)", L"&Object Snap"},        nullptr, "F3", Bar::None, kGroup, kCheck, kAnytime},
    {Tools, "ortho",      {L"正交(&R)", L"O&rtho"},                 nullptr, "F8", Bar::None, false, kCheck},

    {Theme, "themedesktop", {L"与桌面相同(&D)", L"As the &Desktop"}, L"'COLORTHEME 2", "", Bar::None, false, kCheck, kAnytime},
    {Theme, "themedark",    {L"深色(&K)", L"Dar&k"},                L"'COLORTHEME 0", "", Bar::None, false, kCheck, kAnytime},
    {Theme, "themelight",   {L"浅色(&L)", L"&Light"},               L"'COLORTHEME 1", "", Bar::None, false, kCheck, kAnytime},

    {Language, "languagezh",   {L"中文(&Z)", L"中文 (&Z)"},          L"'LANGUAGE zh",   "", Bar::None, false, kCheck, kAnytime},
    {Language, "languageen",   {L"English(&E)", L"&English"},      L"'LANGUAGE en",   "", Bar::None, false, kCheck, kAnytime},
    {Language, "languageauto", {L"依照环境(&A)", L"&As the Environment"}, L"'LANGUAGE auto", "", Bar::None, false, kCheck, kAnytime},

    {Help, "help",      {L"命令帮助(&C)", L"&Commands"},             L"'_HELP", "F1", Bar::None, false, false, kAnytime},
    {Help, "shortcuts", {L"键盘和鼠标(&K)…", L"&Keyboard and Mouse…"}, nullptr, "", Bar::None, false, false, kAnytime},
    {Help, "about",     {L"关于 Quor(&A)…", L"&About Quor…"},        nullptr, "", Bar::None, kGroup, false, kAnytime},
};

constexpr MenuRow kMenus[] = {
    {File,       words::kMenuFile,      File},
    {Edit,       words::kMenuEdit,      Edit},
    {View,       words::kMenuView,      View},
    {NamedViews, words::kSubNamedViews, View},
    {Style,      words::kSubStyle,      View},
    {Panels,     words::kSubPanels,     View},
    {Draw,       words::kMenuDraw,      Draw},
    {Light,      words::kMenuLight,     Light},
    {Units,      words::kSubUnits,      Light},
    {Tools,      words::kMenuTools,     Tools},
    {Theme,      words::kSubTheme,      Tools},
    {Language,   words::kSubLanguage,   Tools},
    {Help,       words::kMenuHelp,      Help},
};
// clang-format on

} // namespace

std::span<const ActionRow> actionRows() { return kRows; }
std::span<const MenuRow> menuRows() { return kMenus; }

} // namespace quor::desktop
