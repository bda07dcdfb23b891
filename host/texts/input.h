// What the command line says to people: command prompt, refusals of answers, selection, scripts.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text kCommandPrompt{L"\n命令: ", L"\nCommand: "};
inline constexpr Text kRepeats{L"\n%s\n", L"\n%s\n"};
inline constexpr Text kUnknownCommand{L"\n未知命令“%s”。输入 HELP 可列出所有命令。\n",
                                      L"\nUnknown command \"%s\". Type HELP for a list of commands.\n"};
inline constexpr Text kNoDrawing{L"\n没有打开的图形，无法执行 %s。请先用 NEW 或 OPEN。\n",
                                 L"\n%s requires an open drawing. Use NEW or OPEN first.\n"};
inline constexpr Text kNotTransparent{L"\n命令 %s 不能透明使用。\n", L"\n%s cannot be used transparently.\n"};
inline constexpr Text kResuming{L"\n正在恢复执行 %s 命令。\n", L"\nResuming %s command.\n"};
inline constexpr Text kCommandThrew{L"\n命令 %s 因内部错误中止，其更改已撤消: %s\n",
                                    L"\n%s ended because of an internal error and its changes were undone: %s\n"};
inline constexpr Text kCancelled{L"\n*取消*\n", L"\n*Cancel*\n"};
inline constexpr Text kUnexpectedError{L"未知异常", L"unknown exception"};

// Refusals of answers; the question follows again.
inline constexpr Text kBadKeyword{L"\n选项关键字无效。\n", L"\nInvalid option keyword.\n"};
inline constexpr Text kNeedKeyword{L"\n需要选项关键字。\n", L"\nRequires an option keyword.\n"};
inline constexpr Text kNeedText{L"\n需要输入文字。\n", L"\nText is required.\n"};
inline constexpr Text kZeroByte{L"\n输入的内容含有零字节，不是文字。请重新输入。\n",
                                L"\nThe input contains a null byte and was not accepted. Enter it again.\n"};
inline constexpr Text kNotUtf8{
    L"\n输入的内容不是有效的 UTF-8 文字。请检查终端或管道的编码后重新输入。\n",
    L"\nThe input is not valid UTF-8 text. Check the encoding of the terminal or pipe, then enter it again.\n"};
inline constexpr Text kNeedInteger{L"\n需要整数。\n", L"\nRequires an integer.\n"};
inline constexpr Text kNeedIntegerOrKeyword{L"\n需要整数或选项关键字。\n",
                                            L"\nRequires an integer or option keyword.\n"};
inline constexpr Text kNeedIntegerBetween{L"\n需要 %d 到 %d 之间的整数。\n",
                                          L"\nRequires an integer between %d and %d.\n"};
inline constexpr Text kNeedNumber{L"\n需要数值。\n", L"\nRequires a number.\n"};
inline constexpr Text kNeedNumberOrKeyword{L"\n需要数值或选项关键字。\n", L"\nRequires a number or option keyword.\n"};
inline constexpr Text kNeedDistance{L"\n需要距离数值或两点。\n", L"\nRequires a distance or two points.\n"};
inline constexpr Text kNeedDistanceOrKeyword{L"\n需要距离数值、两点或选项关键字。\n",
                                             L"\nRequires a distance, two points, or option keyword.\n"};
inline constexpr Text kNeedAngle{L"\n需要有效的角度或两点。\n", L"\nRequires a valid angle or two points.\n"};
inline constexpr Text kNeedAngleOrKeyword{L"\n需要有效的角度、两点或选项关键字。\n",
                                          L"\nRequires a valid angle, two points, or option keyword.\n"};
inline constexpr Text kNeedPoint{L"\n点无效。\n", L"\nInvalid point.\n"};
inline constexpr Text kNeedPointOrKeyword{L"\n需要点或选项关键字。\n", L"\nRequires a point or option keyword.\n"};
inline constexpr Text kNeedPositive{L"\n值必须为正数且不为零。\n", L"\nValue must be positive and nonzero.\n"};
inline constexpr Text kNeedNotNegative{L"\n值必须为正数或零。\n", L"\nValue must be positive or zero.\n"};
inline constexpr Text kNeedNotZero{L"\n值不能为零。\n", L"\nValue must be nonzero.\n"};
inline constexpr Text kFirstPoint{L"\n指定第一点: ", L"\nSpecify first point: "};
inline constexpr Text kSecondPoint{L"\n指定第二点: ", L"\nSpecify second point: "};

// Selection.
inline constexpr Text kSelectPrompt{L"\n选择对象: ", L"\nSelect objects: "};
inline constexpr Text kRemovePrompt{L"\n删除对象: ", L"\nRemove objects: "};
inline constexpr Text kHandlePrompt{L"\n输入句柄: ", L"\nEnter handle: "};
inline constexpr Text kWindowFirst{L"\n指定第一个角点: ", L"\nSpecify first corner: "};
inline constexpr Text kWindowSecond{L"\n指定对角点: ", L"\nSpecify opposite corner: "};
inline constexpr Text kFound{L"\n找到 %d 个\n", L"\n%d found\n"};
inline constexpr Text kFoundTotal{L"\n找到 %d 个，总计 %d 个\n", L"\n%d found, %d total\n"};
inline constexpr Text kFoundDuplicates{L"\n找到 %d 个 (%d 个重复)，总计 %d 个\n",
                                       L"\n%d found (%d duplicate), %d total\n"};
inline constexpr Text kFoundRemoved{L"\n找到 %d 个，删除 %d 个，总计 %d 个\n", L"\n%d found, %d removed, %d total\n"};
inline constexpr Text kSelectionUndone{L"\n已放弃上一步，总计 %d 个\n", L"\nLast step undone, %d total\n"};
inline constexpr Text kNothingToUndo{L"\n没有可放弃的选择。\n", L"\nNothing to undo.\n"};
inline constexpr Text kBadSelection{
    L"\n选择无效。可输入点或 上一个(L)/前一个(P)/全部(ALL)/窗口(W)/添加(A)/删除(R)/"
    L"放弃(U)/句柄(H)，#1F 表示句柄为 1F 的对象。\n",
    L"\nInvalid selection. Expects a point or "
    L"Last/Previous/ALL/Window/Add/Remove/Undo/Handle; #1F is the object with handle 1F.\n"};
inline constexpr Text kNotInWorkset{L"\n%d 个未选: 不在块“%s”的工作集中。\n",
                                    L"\n%d not selected: not in the working set of block \"%s\".\n"};
inline constexpr Text kNoSuchHandle{L"\n当前空间中没有句柄为 %s 的对象。\n",
                                    L"\nNo object with handle %s in the current space.\n"};

// Task dialogs as text.
inline constexpr Text kDialogCheckbox{L"[ ] %s (在编号后加 + 勾选)", L"[ ] %s (add + to the number to select it)"};
inline constexpr Text kDialogPrompt{L"\n请选择 [1-%d] <1>: ", L"\nEnter choice [1-%d] <1>: "};
inline constexpr Text kDialogBadAnswer{L"\n请输入 1 到 %d 的编号，Esc 取消。\n",
                                       L"\nEnter a number from 1 to %d, or press Esc to cancel.\n"};
// As above, for a dialog with a box to tick.
inline constexpr Text kDialogBadAnswerOrTick{
    L"\n请输入 1 到 %d 的编号，要勾选则在编号后加 +，例如 1+；Esc 取消。\n",
    L"\nEnter a number from 1 to %d, followed by + to select the check box (such as 1+), or press Esc to cancel.\n"};

// Choosing a file where there are no windows: caption, patterns.
inline constexpr Text kFilePrompt{L"\n%s (%s)，输入路径 <取消>: ", L"\n%s (%s), enter path <cancel>: "};

// Scripts.
inline constexpr Text kScriptPlace{L"%s，第 %d 行", L"%s, line %d"};
inline constexpr Text kScriptIsFolder{L"“%s”是文件夹，不是脚本文件。", L"\"%s\" is a folder, not a script file."};
inline constexpr Text kScriptUnreadable{L"无法读取脚本文件“%s”: %s。请检查路径和权限。",
                                        L"Cannot read the script file \"%s\": %s. Check the path and permissions."};
inline constexpr Text kScriptNotUtf8{
    L"脚本文件“%s”第 %d 行不是有效的 UTF-8 文字。请把它另存为 UTF-8 编码后再执行。",
    L"The script file \"%s\" is not valid UTF-8 text on line %d. Save it as UTF-8, then "
    L"run it again."};
inline constexpr Text kScriptIsRunning{
    L"脚本“%s”正在执行，还有未执行的行，不能再次执行。只有写在最后一行的脚本命令才能重新执行它。",
    L"The script \"%s\" is running and has more lines, so it cannot be run again. "
    L"Only a SCRIPT command on its last line can restart it."};
inline constexpr Text kScriptsTooDeep{L"脚本嵌套超过 %d 层，未执行“%s”。",
                                      L"Scripts are nested more than %d deep; \"%s\" was not run."};

inline constexpr Text kNewDrawingName{L"Drawing%d", L"Drawing%d"};

} // namespace quor::texts
