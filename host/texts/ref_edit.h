// What REFEDIT and REFCLOSE ask and say.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

// REFEDIT.
inline constexpr Text kSelectReference{L"\n选择要编辑的块参照: ", L"\nSelect block reference to edit: "};
inline constexpr Text kRefEditStarted{L"\n正在编辑块“%s”，工作集中有 %d 个对象。完成后用 REFCLOSE 保存或放弃更改。\n",
                                      L"\nEditing block \"%s\": %d objects in the working set. When done, use REFCLOSE "
                                      L"to save or discard the changes.\n"};
inline constexpr Text kRefEditStartedOne{
    L"\n正在编辑块“%s”，工作集中有 %d 个对象。完成后用 REFCLOSE 保存或放弃更改。\n",
    L"\nEditing block \"%s\": %d object in the working set. When done, use REFCLOSE to save "
    L"or discard the changes.\n"};
inline constexpr Text kRefEditStartedEmpty{
    L"\n正在编辑块“%s”。其中没有可在此编辑的对象；新画的对象将加入该块。完成后用 REFCLOSE 保存或放弃更改。\n",
    L"\nEditing block \"%s\". Nothing in it can be edited here; what you draw is added to it. When done, use "
    L"REFCLOSE to save or discard the changes.\n"};
inline constexpr Text kRefEditLeft{L"\n%d 个其他类型的对象保留在块中，不能在此编辑。\n",
                                   L"\n%d objects of other types stay in the block and cannot be edited here.\n"};
inline constexpr Text kRefEditOneLeft{L"\n%d 个其他类型的对象保留在块中，不能在此编辑。\n",
                                      L"\n%d object of another type stays in the block and cannot be edited here.\n"};
inline constexpr Text kRefEditOthers{L"\n已忽略 %d 个不是块参照的对象。\n",
                                     L"\n%d objects ignored: not block references.\n"};
inline constexpr Text kRefEditOneOther{L"\n已忽略 %d 个不是块参照的对象。\n",
                                       L"\n%d object ignored: not a block reference.\n"};

// Why a reference is not edited.
inline constexpr Text kRefEditNothing{L"\n没有选择块参照，未开始编辑。\n",
                                      L"\nNo block reference selected; nothing is being edited.\n"};
inline constexpr Text kRefEditOne{L"\n选择了 %d 个块参照。每次只能编辑一个，请只选择一个。\n",
                                  L"\n%d block references are selected. Only one can be edited at a time; select just "
                                  L"one.\n"};
inline constexpr Text kRefEditNoReferences{
    L"\n选择的 %d 个对象都不是块参照。请选择块参照(INSERT)。\n",
    L"\nNone of the %d objects selected is a block reference. Select a block reference (INSERT).\n"};
inline constexpr Text kRefEditGoesOn{L"\n正在编辑块“%s”。请先用 REFCLOSE 保存或放弃更改。\n",
                                     L"\nBlock \"%s\" is being edited. Use REFCLOSE first to save or discard the "
                                     L"changes.\n"};
inline constexpr Text kRefEditNoReference{L"\n句柄为 %s 的对象(%s)不是块参照。请选择块参照(INSERT)。\n",
                                          L"\nThe object with handle %s (%s) is not a block reference. Select a block "
                                          L"reference (INSERT).\n"};
inline constexpr Text kRefEditNoBlock{L"\n图形中没有块“%s”的定义，不能编辑。请选择其他块参照。\n",
                                      L"\nThe drawing has no definition of block \"%s\". Select another block "
                                      L"reference.\n"};
inline constexpr Text kRefEditSpaceBlock{L"\n“%s”是模型空间或布局，不能作为块编辑。请用 MODEL 或 LAYOUT 切换到它。\n",
                                         L"\n\"%s\" is model space or a layout and cannot be edited as a block. Switch "
                                         L"to it with MODEL or LAYOUT.\n"};
inline constexpr Text kRefEditExternal{L"\n“%s”是外部参照，不能在此编辑。请打开它自己的图形进行编辑。\n",
                                       L"\n\"%s\" is an external reference and cannot be edited here. Open its own "
                                       L"drawing to edit it.\n"};
inline constexpr Text kRefEditArray{L"\n此参照把块“%s”排成阵列，不能编辑。请选择该块的单个参照。\n",
                                    L"\nThis reference shows block \"%s\" as an array and cannot be edited. Select a "
                                    L"single reference to the block.\n"};
inline constexpr Text kRefEditZeroScale{
    L"\n此参照的比例有一个为 0，不能编辑。请选择块“%s”的其他参照。\n",
    L"\nThis reference has a scale factor of 0 and cannot be edited. Select another "
    L"reference to block \"%s\".\n"};
inline constexpr Text kRefEditEmpty{L"\n块“%s”中没有对象，没有可编辑的内容。请选择其他块参照。\n",
                                    L"\nBlock \"%s\" contains no objects. Select another block reference.\n"};
inline constexpr Text kRefEditBroken{
    L"\n块“%s”的定义在文件中不完整，不能编辑。请选择其他块参照。\n",
    L"\nThe definition of block \"%s\" is incomplete in the file and cannot be edited. "
    L"Select another block reference.\n"};
inline constexpr Text kRefEditInUse{L"\n块“%s”的对象正被使用，没有作任何更改。请稍后再试。\n",
                                    L"\nObjects of block \"%s\" are in use; nothing was changed. Try again later.\n"};

// REFCLOSE.
inline constexpr Text kAskRefClose{L"\n输入选项 [保存(S)/放弃(D)] <保存>: ",
                                   L"\nEnter an option [Save/Discard] <Save>: "};
inline constexpr Text kNotRefEditing{L"\n目前没有在位编辑块。请先用 REFEDIT。\n",
                                     L"\nNo block is being edited in place. Use REFEDIT first.\n"};
inline constexpr Text kRefEditSaved{L"\n已保存到块“%s”: 更改 %d 个，添加 %d 个，删除 %d 个。\n",
                                    L"\nSaved to block \"%s\": %d changed, %d added, %d erased.\n"};
inline constexpr Text kRefEditUnchanged{L"\n块“%s”没有改变。\n", L"\nBlock \"%s\" was not changed.\n"};
inline constexpr Text kRefEditDiscarded{L"\n已放弃更改，块“%s”保持原样。\n",
                                        L"\nChanges discarded; block \"%s\" stays as it was.\n"};
inline constexpr Text kRefEditTooFar{
    L"\n对象 #%s 的坐标太大，块“%s”放不下。没有作任何更改，编辑仍在继续；请删除它，或用 REFCLOSE D 放弃。\n",
    L"\nObject #%s has coordinates too large for block \"%s\". Nothing was changed and the editing goes on. Erase "
    L"it, or discard with REFCLOSE D.\n"};

// Saving the drawing meanwhile.
inline constexpr Text kNotSavedWhileEditing{L"正在编辑块“%s”，图形未保存。请用 REFCLOSE 结束编辑，再保存。",
                                            L"Block \"%s\" is being edited; the drawing was not saved. Finish with "
                                            L"REFCLOSE, then save."};
// Before somebody decides what is to become of a drawing that cannot be saved yet.
inline constexpr Text kEditingGoesOn{L"\n正在编辑块“%s”: 要保存图形，请先用 REFCLOSE 结束编辑，再用 SAVE。\n",
                                     L"\nBlock \"%s\" is being edited: to save the drawing, finish with REFCLOSE, then "
                                     L"use SAVE.\n"};

} // namespace quor::texts
