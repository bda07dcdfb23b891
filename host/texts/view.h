// What the commands say that change how a drawing is seen.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text kNoPicture{L"\n这个程序不显示图形，%s 在这里不起作用。请在桌面程序中使用。\n",
                                 L"\nThis program shows no picture, so %s does nothing here. Use it in the desktop "
                                 L"program.\n"};

// ZOOM.
inline constexpr Text kAskZoom{
    L"\n指定窗口的角点，输入比例因子 (nX)，或 [全部(A)/中心(C)/范围(E)/上一个(P)/比例(S)/窗口(W)] <范围>: ",
    L"\nSpecify corner of window, enter a scale factor (nX), or [All/Center/Extents/Previous/Scale/Window] "
    L"<Extents>: "};
inline constexpr Text kAskZoomCorner{L"\n指定第一个角点: ", L"\nSpecify first corner: "};
inline constexpr Text kAskZoomOther{L"\n指定对角点: ", L"\nSpecify opposite corner: "};
inline constexpr Text kAskZoomCenter{L"\n指定中心点 <当前中心>: ", L"\nSpecify center point <current center>: "};
inline constexpr Text kAskZoomHeight{L"\n输入比例因子 (nX) 或视图高度 <%s>: ",
                                     L"\nEnter a scale factor (nX) or the height of the view <%s>: "};
inline constexpr Text kAskZoomScale{L"\n输入比例因子 (nX): ", L"\nEnter a scale factor (nX): "};
inline constexpr Text kBadZoomScale{
    L"\n“%s”不是比例因子。请输入正数，如 2 (相对于全部)或 2X (相对于当前视图)。\n",
    L"\n\"%s\" is no scale factor. Enter a positive number such as 2 (of all) or 2X (of the current view).\n"};
inline constexpr Text kZoomWindowIsPoint{L"\n两个角点在画面上重合，视图未改变。请指定分开的角点。\n",
                                         L"\nThe corners coincide on the screen; the view was not changed. Specify "
                                         L"corners that are apart.\n"};
inline constexpr Text kNoPreviousView{L"\n没有上一个视图，视图未改变。\n",
                                      L"\nThere is no previous view; the view was not changed.\n"};
inline constexpr Text kZoomLimit{L"\n已到缩放的极限，视图未改变。\n",
                                 L"\nThe limit of zooming is reached; the view was not changed.\n"};

// VIEW.
inline constexpr Text kAskView{
    L"\n输入视图名称或 "
    L"[?/恢复(R)/保存(S)/删除(D)/俯视(T)/仰视(B)/前视(F)/后视(BA)/左视(L)/右视(RI)/西南(SW)/东南(SE)/东北(NE)/"
    L"西北(NW)] <?>: ",
    L"\nEnter view name or "
    L"[?/Restore/Save/Delete/Top/Bottom/Front/BAck/Left/RIght/SWiso/SEiso/NEiso/NWiso] <?>: "};
inline constexpr Text kAskViewToRestore{L"\n输入要恢复的视图的名称: ", L"\nEnter name of view to restore: "};
inline constexpr Text kAskViewToSave{L"\n输入名称以保存当前视图: ", L"\nEnter name to save current view: "};
inline constexpr Text kAskViewToDelete{L"\n输入要删除的视图的名称: ", L"\nEnter name of view to delete: "};
inline constexpr Text kAskReplaceView{L"\n视图“%s”已存在。替换吗？ [是(Y)/否(N)] <否>: ",
                                      L"\nView \"%s\" already exists. Replace it? [Yes/No] <No>: "};
inline constexpr Text kNoSuchView{L"\n没有名为“%s”的视图。用 VIEW 的“?”选项可查看所有视图。\n",
                                  L"\nThere is no view \"%s\". The ? option of VIEW shows all views.\n"};
inline constexpr Text kBadViewName{
    L"\n“%s”不能作为视图名称: 名称不能为空，不能超过 255 个字符，不能含 %s 或控制字符。\n",
    L"\n\"%s\" cannot be the name of a view: names are not empty, have at most 255 "
    L"characters, and contain none of %s and no control characters.\n"};
inline constexpr Text kStandardViewName{L"\n“%s”是标准视图，不能保存或删除。请用其他名称。\n",
                                        L"\n\"%s\" is a standard view and cannot be saved or deleted. Use another "
                                        L"name.\n"};
inline constexpr Text kUnusableView{L"\n视图“%s”的数值不完整，无法恢复。\n",
                                    L"\nThe values of view \"%s\" are incomplete; it cannot be restored.\n"};
inline constexpr Text kViewSaved{L"\n已保存视图“%s”。\n", L"\nView \"%s\" was saved.\n"};
inline constexpr Text kViewDeleted{L"\n已删除视图“%s”。\n", L"\nView \"%s\" was deleted.\n"};
inline constexpr Text kStandardViews{L"\n标准视图: %s\n", L"\nStandard views: %s\n"};
inline constexpr Text kNamedViews{L"\n图形中的视图: %s\n", L"\nViews of the drawing: %s\n"};
inline constexpr Text kNoNamedViews{L"\n图形中没有命名视图。\n", L"\nThe drawing has no named views.\n"};

// VISUALSTYLE, PROJECTION, PLAN.
inline constexpr Text kAskVisualStyle{L"\n输入视觉样式 [线框(W)/着色(S)/室内(I)] <%s>: ",
                                      L"\nEnter visual style [Wireframe/Shaded/Interior] <%s>: "};
inline constexpr Text kStyleWireframe{L"线框", L"Wireframe"};
inline constexpr Text kStyleShaded{L"着色", L"Shaded"};
inline constexpr Text kStyleInterior{L"室内", L"Interior"};
inline constexpr Text kAskProjection{L"\n输入投影方式 [平行(P)/透视(E)] <%s>: ",
                                     L"\nEnter projection [Parallel/pErspective] <%s>: "};
inline constexpr Text kProjectionParallel{L"平行", L"Parallel"};
inline constexpr Text kProjectionPerspective{L"透视", L"pErspective"};
inline constexpr Text kAskPlan{L"\n输入选项 [当前(C)/世界(W)] <当前>: ",
                               L"\nEnter an option [Current/World] <Current>: "};

// OSNAP.
inline constexpr Text kSnapsAre{L"\n对象捕捉: %s\n", L"\nObject snaps: %s\n"};
inline constexpr Text kAskSnap{
    L"\n输入要切换的捕捉模式或 [端点(E)/中点(M)/中心(C)/全部(A)/无(N)/开(ON)/关(OFF)] <完成>: ",
    L"\nEnter snap to switch or [End/Mid/Center/All/None/ON/OFF] <done>: "};
inline constexpr Text kSnapEndName{L"端点", L"End"};
inline constexpr Text kSnapMidName{L"中点", L"Mid"};
inline constexpr Text kSnapCenterName{L"中心", L"Center"};
inline constexpr Text kSnapsNone{L"无", L"None"};
inline constexpr Text kSnapsOff{L"%s (关)", L"%s (off)"};

} // namespace quor::texts
