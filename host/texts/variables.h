// What the host says of system variables.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text variableUnknown{L"未知的系统变量“%s”。输入 SETVAR ? 可列出所有变量。",
                                      L"Unknown system variable \"%s\". SETVAR ? lists all variables."};
inline constexpr Text variableReadOnly{L"系统变量 %s 是只读的。", L"System variable %s is read-only."};
inline constexpr Text variableWantsWhole{L"系统变量 %s 需要整数。", L"System variable %s requires an integer."};
inline constexpr Text variableWantsWholeRange{L"系统变量 %s 需要 %s 到 %s 之间的整数。",
                                              L"System variable %s requires an integer from %s to %s."};
inline constexpr Text variableWantsReal{L"系统变量 %s 需要数值。", L"System variable %s requires a number."};
inline constexpr Text variableWantsRealRange{L"系统变量 %s 需要 %s 到 %s 之间的数值。",
                                             L"System variable %s requires a number from %s to %s."};
inline constexpr Text variableWantsAngle{L"系统变量 %s 需要角度。", L"System variable %s requires an angle."};
inline constexpr Text variableWantsText{L"系统变量 %s 需要文本。", L"System variable %s requires text."};
inline constexpr Text variableWantsPoint{L"系统变量 %s 需要点(x,y 或 x,y,z)。",
                                         L"System variable %s requires a point (x,y or x,y,z)."};
inline constexpr Text variableWantsChoice{L"系统变量 %s 需要下列值之一: %s。",
                                          L"System variable %s requires one of the following: %s."};
inline constexpr Text variableNoDrawing{L"系统变量 %s 属于图形，而当前没有打开的图形。",
                                        L"System variable %s belongs to a drawing, and none is open."};
inline constexpr Text variableNoLayer{
    L"%s: 图形中没有该名称的可用图层(隐藏或冻结的图层不能作为当前图层)。",
    L"%s: no layer of this name can be made current (hidden and frozen layers cannot be current)."};
inline constexpr Text variableNotSaved{
    L"系统变量 %s 仅在本次运行中有效: 无法写入用户设置。",
    L"System variable %s was changed for this session only: the user settings cannot "
    L"be written."};
inline constexpr Text variableNotKept{
    L"系统变量 %s 的新值从下次启动起才有效，但无法写入用户设置，因此不会保留。",
    L"The new value of system variable %s takes effect only at the next start, but it was not "
    L"saved: the user settings cannot be written."};

// What HELP tells of a variable beside its name.
struct VariableNote {
    const wchar_t* name;
    Text note;
};
inline constexpr VariableNote variableNotes[] = {
    {L"COLORTHEME",
     {L"0 为深色，1 为浅色，2 与桌面相同；用于有窗口的程序，以后运行时仍然有效。",
      L"0 is dark, 1 is light, 2 is as the desktop; for programs with windows. Kept for later runs."}},
    {L"DEFAULTLIGHTING",
     {L"1 为打开默认光源，0 为关闭。打开时，光源命令先问是否关闭它；脚本中不问。\n"
      L"勾选“始终执行我的当前选择”后不再询问；要恢复询问，请从设置文件\n"
      L"(~/.config/quor/settings.ini)中删去 allowCurSelectDialog。",
      L"1 turns default lighting on, 0 off. While it is on, light commands first ask whether to turn it off; a\n"
      L"script is not asked. Once its check box is selected, the question is not asked again; to restore it,\n"
      L"remove allowCurSelectDialog from the settings file (~/.config/quor/settings.ini)."}},
    {L"FILEDIA",
     {L"1 为在对话框中选择文件，0 为在命令行中输入；用于有窗口的程序。脚本中总是输入。",
      L"1 asks for files in a dialog, 0 on the command line; for programs with windows. Scripts always type them."}},
    {L"LANGUAGE",
     {L"zh 为中文，en 为英文，auto 依照环境变量: LC_ALL、LC_MESSAGES、LANG 中\n"
      L"第一个有值的以 en 开头时为英文，否则为中文。\n"
      L"新值从下次启动起有效；启动时的 --lang zh 或 --lang en 只用于那一次。",
      L"zh is Chinese, en is English, auto follows the environment: English when the first of LC_ALL,\n"
      L"LC_MESSAGES and LANG that has a value begins with en, otherwise Chinese.\n"
      L"A new value takes effect at the next start; --lang zh or --lang en applies to one run only."}},
    {L"LIGHTINGUNITS",
     {L"0 为常规: 光源命令不可用；1 为光度控制，照度单位为英尺烛光(FC)；2 为光度控制，照度单位为勒克斯(Lx)。",
      L"0 is generic: light commands are not available. 1 is photometric with foot-candles (FC), 2 with lux (Lx)."}},
    {L"ORTHOMODE",
     {L"1 为用鼠标指定的点只沿 UCS 的 X 轴或 Y 轴离开基点，0 为任意方向；用于有窗口的程序，F8 切换。",
      L"1 keeps points shown with the mouse on the X or Y axis of the UCS through the base point, 0 does not; for\n"
      L"programs with windows. F8 toggles it."}},
    {L"OSMODE",
     {L"对象捕捉，各值相加: 1 端点，2 中点，4 圆心，16384 暂时关闭；用于有窗口的程序，F3 开关，以后运行时仍然有效。\n"
      L"着色显示时还捕捉到面上的点。",
      L"The object snaps, added up: 1 endpoint, 2 midpoint, 4 center, 16384 switches them off for now; for programs\n"
      L"with windows. F3 toggles them. Kept for later runs. In shaded pictures points snap to faces as well."}},
    {L"REFEDITNAME",
     {L"REFEDIT 正在编辑的块的名称；没有编辑时为空。",
      L"The name of the block that is being edited with REFEDIT; empty when none is."}},
    {L"SAVETIME",
     {L"有未保存更改的图形最迟在这么多分钟后有一个自动保存的副本；0 为不自动保存。\n"
      L"通常在命令结束后就写入副本；很大的图形则少写一些。程序意外结束后，下次启动时可恢复这些副本。",
      L"A drawing with unsaved changes has an autosave copy after this many minutes at the latest; 0 turns this off.\n"
      L"A copy is usually written once a command has ended, and less often for very large drawings. If the program\n"
      L"ends unexpectedly, the next start offers to recover the copies."}},
};

} // namespace quor::texts
