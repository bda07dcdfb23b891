// What the host says about drawing files: opening, saving, closing, switching between drawings.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

// Questions.
inline constexpr Text kAskOpenPath{L"\n输入图形文件名 <浏览>: ", L"\nEnter drawing file name <browse>: "};
inline constexpr Text kAskRecoverPath{L"\n输入要修复的图形文件名 <浏览>: ",
                                      L"\nEnter name of drawing file to recover <browse>: "};
inline constexpr Text kAskSavePath{L"\n输入保存图形的文件名: ", L"\nEnter file name to save the drawing as: "};
inline constexpr Text kAskReplace{L"\n文件 %s 已存在。是否替换? [是(Y)/否(N)] <否>: ",
                                  L"\nThe file %s already exists. Replace it? [Yes/No] <No>: "};
inline constexpr Text kAskSaveChanges{L"\n是否保存对 %s 的更改? [是(Y)/否(N)] <是>: ",
                                      L"\nSave the changes to %s? [Yes/No] <Yes>: "};
inline constexpr Text kAskDiscard{L"\n%s 有未保存的更改。是否放弃? [是(Y)/否(N)] <否>: ",
                                  L"\n%s has unsaved changes. Discard them? [Yes/No] <No>: "};
inline constexpr Text kAskDocument{L"\n输入要切换到的图形的编号或名称 <退出>: ",
                                   L"\nEnter number or name of drawing to switch to <exit>: "};

// Captions of the file chooser.
inline constexpr Text kChooseOpen{L"打开图形", L"Open drawing"};
inline constexpr Text kChooseRecover{L"修复图形", L"Recover drawing"};
inline constexpr Text kChooseSave{L"图形另存为", L"Save drawing as"};
inline constexpr Text kDxfFiles{L"DXF 图形", L"DXF drawings"};

// Progress.
inline constexpr Text kSaving{L"正在保存 %s", L"Saving %s"};
inline constexpr Text kOpening{L"正在打开 %s", L"Opening %s"};

// What was done.
inline constexpr Text kMadeNew{L"\n新建图形 %s。\n", L"\nNew drawing %s.\n"};
inline constexpr Text kOpened{L"\n已打开 %s: 版本 %s，%d 个图元。\n", L"\nOpened %s: version %s, entities: %d.\n"};
inline constexpr Text kHoldsNoLights{
    L"\n%s 版本的图形不能包含光源；含有光源时无法保存。需要光源时，请使用 AC1015 或更高版本的图形。\n",
    L"\nA drawing of version %s cannot contain lights and cannot be saved with any. For lights, use a drawing of "
    L"version AC1015 or later.\n"};
inline constexpr Text kOpenAlready{L"\n%s 已经打开，现切换到该图形。\n",
                                   L"\n%s is already open; it is now the current drawing.\n"};
inline constexpr Text kRecoveredWhole{L"\n未发现错误。\n", L"\nNo errors were found.\n"};
inline constexpr Text kRecoveredProblems{L"\n发现 %d 处问题:\n", L"\nProblems found: %d.\n"};
inline constexpr Text kMoreProblems{L"\n  … 另有 %d 处。\n", L"\n  … and %d more.\n"};
inline constexpr Text kSavedTo{L"\n已保存到 %s。\n", L"\nSaved to %s.\n"};
inline constexpr Text kClosed{L"\n已关闭 %s。\n", L"\nClosed %s.\n"};
inline constexpr Text kSwitched{L"\n当前图形: %s。\n", L"\nCurrent drawing: %s.\n"};
inline constexpr Text kNoDocuments{L"\n没有打开的图形。用 NEW 新建，或用 OPEN 打开。\n",
                                   L"\nNo drawing is open. Use NEW to create one or OPEN to open one.\n"};
inline constexpr Text kModifiedMark{L"(已修改)", L"(modified)"};
inline constexpr Text kEditingMark{L"(正在编辑块“%s”)", L"(editing block \"%s\")"};

// What could not be done.
inline constexpr Text kNoSuchFile{L"\n找不到文件 %s。请检查路径后再试。\n",
                                  L"\nThe file %s was not found. Check the path.\n"};
inline constexpr Text kIsFolder{L"\n%s 是文件夹。请给出其中图形文件的名称。\n",
                                L"\n%s is a folder. Enter the name of a drawing file in it.\n"};
inline constexpr Text kNoRegularFile{L"\n%s 不是普通文件，不能用于图形。请给出图形文件的名称。\n",
                                     L"\n%s is not a regular file and cannot be used for a drawing. Enter the name of "
                                     L"a drawing file.\n"};
inline constexpr Text kNoSuchFolder{
    L"\n文件夹 %s 不存在，图形未保存。请先创建该文件夹，或换一个位置。\n",
    L"\nThe folder %s does not exist; the drawing was not saved. Create it first or choose "
    L"another location.\n"};
inline constexpr Text kNotReplaced{L"\n文件 %s 未被替换，图形未保存。\n",
                                   L"\nThe file %s was not replaced; the drawing was not saved.\n"};
inline constexpr Text kOpenElsewhere{
    L"\n%s 正作为另一个图形打开，不能覆盖。请换一个名称，或先关闭那个图形。\n",
    L"\n%s is open as another drawing and cannot be overwritten. Choose another name or "
    L"close that drawing first.\n"};
inline constexpr Text kNotQuit{L"\n已取消退出: %s 有未保存的更改。用 SAVE 保存后再用 QUIT 退出。\n",
                               L"\nQUIT was canceled: %s has unsaved changes. Use SAVE, then QUIT.\n"};
inline constexpr Text kNotQuitEditing{
    L"\n已取消退出: %s 有未保存的更改，并且正在编辑块。用 REFCLOSE 结束编辑，用 SAVE 保存后再用 QUIT 退出。\n",
    L"\nQUIT was canceled: %s has unsaved changes, and a block is being edited. Finish with REFCLOSE, then use SAVE, "
    L"then QUIT.\n"};
inline constexpr Text kNoSuchDocument{L"\n没有编号或名称为“%s”的图形。请输入列表中的编号或名称。\n",
                                      L"\nNo open drawing has the number or name \"%s\". Enter one from the list.\n"};
inline constexpr Text kAmbiguousDocument{L"\n有多个图形名为“%s”。请输入编号。\n",
                                         L"\nSeveral drawings are named \"%s\". Enter a number.\n"};

// Releases of the drawing file format.
struct Release {
    const wchar_t* version;
    const wchar_t* name;
};
inline constexpr Release kReleases[] = {
    {L"AC1009", L"R12"},  {L"AC1012", L"R13"},  {L"AC1014", L"R14"},  {L"AC1015", L"2000"}, {L"AC1018", L"2004"},
    {L"AC1021", L"2007"}, {L"AC1024", L"2010"}, {L"AC1027", L"2013"}, {L"AC1032", L"2018"},
};

} // namespace quor::texts
