// What the host's own commands ask and say, apart from those about files (files.h) and the words of LIST (list.h).
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

// UNDO, U, REDO.
inline constexpr Text kAskUndo{L"\n输入要放弃的命令数或 [全部(A)/标记(M)/后退(B)] <1>: ",
                               L"\nEnter number of commands to undo or [All/Mark/Back] <1>: "};
inline constexpr Text kAskRedo{L"\n输入要重做的命令数或 [全部(A)] <1>: ",
                               L"\nEnter number of commands to redo or [All] <1>: "};
inline constexpr Text kUndone{L"\n已放弃 %d 个命令: %s\n", L"\nCommands undone: %d (%s)\n"};
inline constexpr Text kRedone{L"\n已重做 %d 个命令: %s\n", L"\nCommands redone: %d (%s)\n"};
inline constexpr Text kNoCommandToUndo{L"\n没有可放弃的命令。\n", L"\nThere is no command to undo.\n"};
inline constexpr Text kNoCommandToRedo{L"\n没有可重做的命令；REDO 只能紧接在 U 或 UNDO 之后使用。\n",
                                       L"\nThere is no command to redo; REDO must immediately follow U or UNDO.\n"};
inline constexpr Text kUndoMarked{L"\n已设标记。UNDO 的“后退”选项可回到此处。\n",
                                  L"\nMark set. The Back option of UNDO returns here.\n"};
inline constexpr Text kNoUndoMark{L"\n没有标记可供后退。先用 UNDO 的“标记”选项设置，或输入要放弃的命令数。\n",
                                  L"\nThere is no mark to go back to. Set one with the Mark option of UNDO, or enter a "
                                  L"number of commands.\n"};
inline constexpr Text kNothingSinceMark{L"\n标记之后没有可放弃的命令，标记已取消。\n",
                                        L"\nThere is no command to undo since the mark; the mark was removed.\n"};

// SELECT, ERASE.
inline constexpr Text kSelected{L"\n已选择 %d 个对象。\n", L"\n%d selected\n"};
inline constexpr Text kErased{L"\n已删除 %d 个对象。\n", L"\n%d erased\n"};
inline constexpr Text kOnLockedLayer{L"\n%d 个对象在锁定的图层上，未删除。请先解锁图层。\n",
                                     L"\n%d not erased: on locked layers. Unlock the layers first.\n"};
inline constexpr Text kNotErased{L"\n%d 个对象正被使用，未删除。请稍后再试。\n",
                                 L"\n%d not erased: in use. Try again later.\n"};

// LINE, 3DFACE.
inline constexpr Text kAskFirstPoint{L"\n指定第一个点: ", L"\nSpecify first point: "};
inline constexpr Text kAskNextPoint{L"\n指定下一点或 [放弃(U)]: ", L"\nSpecify next point or [Undo]: "};
inline constexpr Text kAskNextOrClose{L"\n指定下一点或 [闭合(C)/放弃(U)]: ", L"\nSpecify next point or [Close/Undo]: "};
inline constexpr Text kNoSegmentToUndo{L"\n所有线段都已放弃。\n", L"\nAll segments have been undone.\n"};
inline constexpr Text kAskFaceFirst{L"\n指定第一点或 [不可见(I)]: ", L"\nSpecify first point or [Invisible]: "};
inline constexpr Text kAskFaceSecond{L"\n指定第二点或 [不可见(I)]: ", L"\nSpecify second point or [Invisible]: "};
inline constexpr Text kAskFaceThird{L"\n指定第三点或 [不可见(I)] <退出>: ",
                                    L"\nSpecify third point or [Invisible] <exit>: "};
inline constexpr Text kAskFaceFourth{L"\n指定第四点或 [不可见(I)] <三角形>: ",
                                     L"\nSpecify fourth point or [Invisible] <triangle>: "};
inline constexpr Text kNotAppended{
    L"\n无法将对象加入图形，命令中止。请检查当前空间和当前图层。\n",
    L"\nThe object could not be added to the drawing; the command was ended. Check the current "
    L"space and layer.\n"};

// UCS.
inline constexpr Text kUcsIsWorld{L"\n当前 UCS: 世界\n", L"\nCurrent UCS: World\n"};
inline constexpr Text kUcsIs{L"\n当前 UCS (世界坐标):\n  原点  %s\n  X 轴  %s\n  Y 轴  %s\n",
                             L"\nCurrent UCS (in world coordinates):\n  Origin  %s\n  X axis  %s\n  Y axis  %s\n"};
inline constexpr Text kAskUcs{
    L"\n指定 UCS 的原点或 [世界(W)/原点(O)/Z 轴(ZA)/上一个(P)/三点(3P)/X(X)/Y(Y)/Z(Z)] <世界>: ",
    L"\nSpecify origin of UCS or [World/Origin/ZAxis/Previous/3Point/X/Y/Z] <World>: "};
inline constexpr Text kAskUcsOrigin{L"\n指定新原点 <当前原点>: ", L"\nSpecify new origin <current>: "};
inline constexpr Text kAskUcsX{L"\n指定 X 轴上的点或 <接受>: ", L"\nSpecify point on X axis or <accept>: "};
inline constexpr Text kAskUcsXy{L"\n指定 XY 平面上 Y 轴一侧的点或 <接受>: ",
                                L"\nSpecify point on XY plane on the Y side or <accept>: "};
inline constexpr Text kAskUcsZ{L"\n指定正 Z 轴上的点 <保持方向>: ",
                               L"\nSpecify point on positive Z axis <keep direction>: "};
inline constexpr Text kAskUcsAngle{L"\n指定绕 %s 轴的旋转角度 <90>: ",
                                   L"\nSpecify rotation angle about %s axis <90>: "};
inline constexpr Text kNoUcsPlane{
    L"\n这些点重合或在一条直线上，不能确定坐标系。UCS 未改变；请指定不共线的点。\n",
    L"\nThe points coincide or are collinear and do not define a coordinate system. The UCS was not "
    L"changed; specify points that are not collinear.\n"};
inline constexpr Text kNoPreviousUcs{L"\n没有上一个 UCS，UCS 未改变。\n",
                                     L"\nThere is no previous UCS; the UCS was not changed.\n"};

// LAYOUT, MODEL, PAPER, MSPACE, PSPACE.
inline constexpr Text kAskLayout{L"\n输入布局选项 [列出(L)/设置(S)] <设置>: ",
                                 L"\nEnter layout option [List/Set] <Set>: "};
inline constexpr Text kAskLayoutName{L"\n输入要置为当前的布局 <%s>: ", L"\nEnter layout to make current <%s>: "};
inline constexpr Text kModelTab{L"模型", L"Model"};
inline constexpr Text kNoSuchLayout{L"\n没有名为“%s”的布局。用 LAYOUT 的“列出”选项可查看所有布局。\n",
                                    L"\nThere is no layout \"%s\". The List option of LAYOUT shows all layouts.\n"};
inline constexpr Text kNoLayouts{L"\n此图形没有布局。\n", L"\nThis drawing has no layouts.\n"};
inline constexpr Text kLayoutNow{L"\n当前布局: %s。\n", L"\nCurrent layout: %s.\n"};
inline constexpr Text kInModelSpace{L"\n当前空间: 模型空间。\n", L"\nCurrent space: model space.\n"};
inline constexpr Text kInPaperSpace{L"\n当前空间: 布局 %s 的图纸空间。\n",
                                    L"\nCurrent space: paper space of layout %s.\n"};
inline constexpr Text kInModelOfLayout{L"\n当前空间: 布局 %s 中的模型空间。\n",
                                       L"\nCurrent space: model space in layout %s.\n"};
inline constexpr Text kNotInModelTab{L"\n%s 不能在“模型”选项卡中使用。请先用 PAPER 或 LAYOUT 切换到布局。\n",
                                     L"\n%s is not available on the Model tab. Switch to a layout with PAPER or LAYOUT "
                                     L"first.\n"};

// LAYER.
inline constexpr Text kCurrentLayer{L"\n当前图层: %s\n", L"\nCurrent layer: %s\n"};
inline constexpr Text kAskLayer{
    L"\n输入选项 [列出(?)/新建(M)/设置(S)/开(ON)/关(OFF)/颜色(C)/冻结(F)/解冻(T)/锁定(LO)/解锁(U)] <退出>: ",
    L"\nEnter an option [?/Make/Set/ON/OFF/Color/Freeze/Thaw/LOck/Unlock] <exit>: "};
inline constexpr Text kAskLayerToMake{L"\n输入新图层的名称 (成为当前图层): ",
                                      L"\nEnter name of new layer (becomes the current layer): "};
inline constexpr Text kAskLayerToSet{L"\n输入要置为当前的图层 <%s>: ", L"\nEnter layer to make current <%s>: "};
inline constexpr Text kNoSuchLayer{L"\n没有名为“%s”的图层。用“列出”选项查看图层，或用“新建”创建。\n",
                                   L"\nThere is no layer \"%s\". Use ? to list the layers or Make to create it.\n"};
inline constexpr Text kLayerIsHidden{
    L"\n图层“%s”由系统管理，不能置为当前。请选择其他图层。\n",
    L"\nLayer \"%s\" is reserved by the system and cannot be made current. Choose another layer.\n"};
inline constexpr Text kLayerIsFrozen{L"\n图层“%s”已冻结，不能置为当前。请先解冻。\n",
                                     L"\nLayer \"%s\" is frozen and cannot be made current. Thaw it first.\n"};
inline constexpr Text kBadLayerName{
    L"\n“%s”不能作为图层名: 长度须为 1 到 255 个字符，且不含 %s 和控制字符。\n",
    L"\n\"%s\" is not a valid layer name: use 1 to 255 characters, none of them %s or a control "
    L"character.\n"};
inline constexpr Text kAskLayersOn{L"\n输入要打开的图层的名称: ", L"\nEnter names of layers to turn on: "};
inline constexpr Text kAskLayersOff{L"\n输入要关闭的图层的名称: ", L"\nEnter names of layers to turn off: "};
inline constexpr Text kAskLayersFreeze{L"\n输入要冻结的图层的名称: ", L"\nEnter names of layers to freeze: "};
inline constexpr Text kAskLayersThaw{L"\n输入要解冻的图层的名称: ", L"\nEnter names of layers to thaw: "};
inline constexpr Text kAskLayersLock{L"\n输入要锁定的图层的名称: ", L"\nEnter names of layers to lock: "};
inline constexpr Text kAskLayersUnlock{L"\n输入要解锁的图层的名称: ", L"\nEnter names of layers to unlock: "};
inline constexpr Text kAskLayerColor{L"\n输入颜色名称或编号 (1-255)，或 红,绿,蓝: ",
                                     L"\nEnter color name or number (1-255), or red,green,blue: "};
inline constexpr Text kAskLayersColored{L"\n输入颜色为 %s 的图层的名称: ", L"\nEnter names of layers for color %s: "};
inline constexpr Text kLayersOn{L"\n已打开 %d 个图层。\n", L"\nLayers turned on: %d\n"};
inline constexpr Text kLayersOff{L"\n已关闭 %d 个图层。\n", L"\nLayers turned off: %d\n"};
inline constexpr Text kLayersFrozen{L"\n已冻结 %d 个图层。\n", L"\nLayers frozen: %d\n"};
inline constexpr Text kLayersThawed{L"\n已解冻 %d 个图层。\n", L"\nLayers thawed: %d\n"};
inline constexpr Text kLayersLocked{L"\n已锁定 %d 个图层。\n", L"\nLayers locked: %d\n"};
inline constexpr Text kLayersUnlocked{L"\n已解锁 %d 个图层。\n", L"\nLayers unlocked: %d\n"};
inline constexpr Text kLayersColored{L"\n已更改 %d 个图层的颜色。\n", L"\nLayers whose color was changed: %d\n"};
inline constexpr Text kBadLayerColor{
    L"\n“%s”不是颜色。请输入 1 到 255、颜色名、“红,绿,蓝”(0 到 255) 或“配色系统$颜色”。\n",
    L"\n\"%s\" is not a color. Enter 1 to 255, a color name, \"red,green,blue\" (0 to 255), or \"book$color\".\n"};
inline constexpr Text kNoLayerMatches{L"\n没有图层与“%s”匹配。用“列出”选项可查看图层。\n",
                                      L"\nNo layer matches \"%s\". Use ? to list the layers.\n"};
inline constexpr Text kLayerColumnName{L"名称", L"Name"};
inline constexpr Text kLayerColumnState{L"状态", L"State"};
inline constexpr Text kLayerColumnColor{L"颜色", L"Color"};
inline constexpr Text kLayerOn{L"开", L"on"};
inline constexpr Text kLayerOff{L"关", L"off"};
inline constexpr Text kLayerFrozen{L"冻结", L"frozen"};
inline constexpr Text kLayerLocked{L"锁定", L"locked"};

// TEXTSCR, GRAPHSCR.
inline constexpr Text kOneScreen{L"\n这里只有一个屏幕，文字和图形不能切换。\n",
                                 L"\nThere is one screen only here; text and graphics cannot be switched.\n"};

// SETVAR.
inline constexpr Text kAskVariable{L"\n输入变量名或 [?]: ", L"\nEnter variable name or [?]: "};
inline constexpr Text kAskVariablePattern{L"\n输入要列出的变量 <*>: ", L"\nEnter variables to list <*>: "};
inline constexpr Text kAskVariableValue{L"\n输入 %s 的新值 <%s>: ", L"\nEnter new value for %s <%s>: "};
inline constexpr Text kAskVariableText{L"\n输入 %s 的新值，或输入 . 表示空 <%s>: ",
                                       L"\nEnter new value for %s, or . for none <%s>: "};
inline constexpr Text kVariableReadOnly{L"\n%s = %s (只读)\n", L"\n%s = %s (read-only)\n"};
inline constexpr Text kEmptyValue{L"(无)", L"(none)"};
inline constexpr Text kReadOnlyMark{L"(只读)", L"(read-only)"};
inline constexpr Text kNoSuchVariable{L"\n没有名为“%s”的系统变量。输入 SETVAR ? 可列出所有变量。\n",
                                      L"\nThere is no system variable \"%s\". SETVAR ? lists all variables.\n"};
inline constexpr Text kVariableNeedsDrawing{L"\n变量 %s 属于图形，但没有打开的图形。请先用 NEW 或 OPEN。\n",
                                            L"\nVariable %s belongs to a drawing, and none is open. Use NEW or OPEN "
                                            L"first.\n"};
inline constexpr Text kNoVariableMatches{L"\n没有变量与“%s”匹配。\n", L"\nNo variable matches \"%s\".\n"};
inline constexpr Text kVariableFromNextStart{L"\n%s 的新值从下次启动起有效。\n",
                                             L"\nThe new value of %s takes effect at the next start.\n"};

// SCRIPT, LOADMODULE.
inline constexpr Text kAskScript{L"\n输入脚本文件名: ", L"\nEnter script file name: "};
inline constexpr Text kChooseScript{L"运行脚本", L"Run script"};
inline constexpr Text kScriptFiles{L"脚本", L"Scripts"};
inline constexpr Text kChooseModule{L"加载模块", L"Load module"};
inline constexpr Text kModuleFiles{L"模块", L"Modules"};
inline constexpr Text kAskModule{L"\n输入模块的文件名或 [?]: ", L"\nEnter module file name or [?]: "};
inline constexpr Text kModuleLoaded{L"\n已加载模块 %s。\n", L"\nModule %s loaded.\n"};
inline constexpr Text kNoModules{L"\n未加载任何模块。\n", L"\nNo modules are loaded.\n"};

// HELP.
inline constexpr Text kAskHelp{L"\n输入命令名 <概览>: ", L"\nEnter command name <overview>: "};
inline constexpr Text kHelpHow{L"\n输入 HELP 和命令名可查看该命令的说明。\n",
                               L"\nType HELP and a command name for a description of that command.\n"};
inline constexpr Text kHelpModuleCommands{L"模块命令", L"Module commands"};
inline constexpr Text kHelpAliases{L"别名: %s", L"Aliases: %s"};
inline constexpr Text kHelpExample{L"例: %s", L"Example: %s"};
inline constexpr Text kHelpExampleWithBlank{L"例: \"%s\"(末尾的空格就是 Enter)",
                                            L"Example: \"%s\" (the space at the end is Enter)"};
inline constexpr Text kHelpModulePage{L"\n%s 是已加载模块的命令；按其提示回答即可。\n",
                                      L"\n%s is a command of a loaded module; answer its prompts.\n"};
inline constexpr Text kHelpVariable{L"\n%s 是系统变量。输入其名称可查看或更改它的值。\n",
                                    L"\n%s is a system variable. Type its name to see or change its value.\n"};
inline constexpr Text kHelpReadOnlyVariable{L"\n%s 是只读的系统变量。输入其名称可查看它的值。\n",
                                            L"\n%s is a read-only system variable. Type its name to see its value.\n"};
inline constexpr Text kNoHelp{L"\n没有名为“%s”的命令。输入 HELP 可列出所有命令。\n",
                              L"\nThere is no command \"%s\". HELP lists all commands.\n"};

} // namespace quor::texts
