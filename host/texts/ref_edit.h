// What REFEDIT and REFCLOSE ask and say.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

// REFEDIT.
inline constexpr Text kSelectReference{L"\n选择要编辑的块参照: ", L"\nSelect block reference to edit: "};
inline constexpr Text kRefEditStarted{L"\n正在编辑块“%s”，工作集中有 %d 个对象。完成后用 REFCLOSE 保存或放弃修改。\n",
                                      L"\nEditing block \"%s\": %d in the working set. When done, use REFCLOSE to save "
                                      L"or discard the changes.\n"};
inline constexpr Text kRefEditLeft{L"\n%d 个其他类型的对象保留在块中，不能在此编辑。\n",
                                   L"\n%d of other types cannot be edited here and stay in the block as they are.\n"};

// Why a reference is not edited.
inline constexpr Text kRefEditOne{L"\n选择了 %d 个对象。每次只能编辑一个块参照，请只选择一个。\n",
                                  L"\n%d objects are selected. Only one block reference can be edited at a time; "
                                  L"select just one.\n"};
inline constexpr Text kRefEditGoesOn{L"\n正在编辑块“%s”。请先用 REFCLOSE 保存或放弃修改。\n",
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
inline constexpr Text kRefEditExternal{L"\n“%s”是外部参照，不能在此编辑。请打开它自己的图形进行修改。\n",
                                       L"\n\"%s\" is an external reference and cannot be edited here. Open its own "
                                       L"drawing to change it.\n"};
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
inline constexpr Text kRefEditInUse{L"\n块“%s”的对象正被使用，没有作任何修改。请稍后再试。\n",
                                    L"\nObjects of block \"%s\" are in use; nothing was changed. Try again later.\n"};

// REFCLOSE.
inline constexpr Text kAskRefClose{L"\n输入选项 [保存(S)/放弃(D)] <保存>: ",
                                   L"\nEnter an option [Save/Discard] <Save>: "};
inline constexpr Text kNotRefEditing{L"\n没有正在编辑的块参照。请先用 REFEDIT。\n",
                                     L"\nNo block reference is being edited. Use REFEDIT first.\n"};
inline constexpr Text kRefEditSaved{L"\n已保存到块“%s”: 修改 %d 个，添加 %d 个，删除 %d 个。\n",
                                    L"\nSaved to block \"%s\": %d changed, %d added, %d erased.\n"};
inline constexpr Text kRefEditUnchanged{L"\n块“%s”没有改变。\n", L"\nBlock \"%s\" was not changed.\n"};
inline constexpr Text kRefEditDiscarded{
    L"\n已放弃对块“%s”的修改，块没有改变；工作集中的 %d 个对象已删除。\n",
    L"\nThe changes to block \"%s\" were discarded; %d in the working set erased.\n"};
inline constexpr Text kRefEditTooFar{
    L"\n块“%s”中放不下工作集里的一个对象: 坐标太大。没有作任何修改，编辑仍在继续；请把该对象移近或删除。\n",
    L"\nAn object of the working set has coordinates that are too large for block "
    L"\"%s\". Nothing was changed and the editing goes on; move the object nearer or "
    L"erase it.\n"};

// Saving the drawing meanwhile.
inline constexpr Text kNotSavedWhileEditing{L"正在编辑块“%s”，图形未保存。请先用 REFCLOSE 保存或放弃对块的修改。",
                                            L"Block \"%s\" is being edited; the drawing was not saved. Use REFCLOSE "
                                            L"first to save or discard the changes to the block."};

} // namespace quor::texts
