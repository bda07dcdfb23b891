// What the dialogs of a program with windows say. "&" stands before the letter of the keyboard.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

// Buttons that several dialogs have.
inline constexpr Text kButtonCancel{L"取消", L"Cancel"};
inline constexpr Text kButtonClose{L"关闭", L"Close"};

// What a command link tells a screen reader beside its text.
inline constexpr Text kLinkNumber{L"按 %d 选择", L"Press %d to choose"};

// Unsaved changes.
inline constexpr Text kSaveTitle{L"保存图形", L"Save drawing"};
inline constexpr Text kSaveQuestion{L"是否保存对 %s 的更改?", L"Save the changes to %s?"};
inline constexpr Text kSaveConsequence{L"不保存则更改将丢失。", L"If you do not save, the changes are lost."};
inline constexpr Text kSaveButton{L"保存(&S)", L"&Save"};
inline constexpr Text kDiscardButton{L"不保存(&N)", L"Do&n't Save"};

// Something that cannot be done.
inline constexpr Text kProblemTitle{L"无法完成", L"Cannot be done"};

// Choosing a file.
inline constexpr Text kFileLookIn{L"查找范围(&I):", L"Look &in:"};
inline constexpr Text kFileSaveIn{L"保存位置(&I):", L"Save &in:"};
inline constexpr Text kFileName{L"文件名(&N):", L"File &name:"};
inline constexpr Text kFileType{L"文件类型(&T):", L"Files of &type:"};
inline constexpr Text kFileOpen{L"打开(&O)", L"&Open"};
inline constexpr Text kFileSave{L"保存(&S)", L"&Save"};
inline constexpr Text kFileReadOnly{L"只读打开(&R)", L"Open as &read-only"};
inline constexpr Text kFileBack{L"后退", L"Back"};
inline constexpr Text kFileForward{L"前进", L"Forward"};
inline constexpr Text kFileParent{L"上一级文件夹", L"Parent folder"};
inline constexpr Text kFileNewFolder{L"新建文件夹", L"New folder"};
inline constexpr Text kFileList{L"列表", L"List"};
inline constexpr Text kFileDetails{L"详细信息", L"Details"};
inline constexpr Text kFileRename{L"重命名(&R)", L"&Rename"};
inline constexpr Text kFileDelete{L"删除(&D)", L"&Delete"};
inline constexpr Text kFileHidden{L"显示隐藏文件(&H)", L"Show &hidden files"};
inline constexpr Text kFileColumnName{L"名称", L"Name"};
inline constexpr Text kFileColumnSize{L"大小", L"Size"};
inline constexpr Text kFileColumnType{L"类型", L"Type"};
inline constexpr Text kFileColumnDate{L"修改时间", L"Modified"};
inline constexpr Text kFileKindFolder{L"文件夹", L"Folder"};
inline constexpr Text kFileKindOf{L"%s 文件", L"%s file"};
inline constexpr Text kFileKindPlain{L"文件", L"File"};
inline constexpr Text kFilePlaces{L"位置", L"Places"};
inline constexpr Text kFilePlaceDrawing{L"图形所在文件夹", L"Drawing's folder"};
inline constexpr Text kFilePlaceWebs{L"随附的光域网", L"Supplied webs"};
inline constexpr Text kFilePlaceHome{L"主文件夹", L"Home"};
inline constexpr Text kFileNotThere{L"找不到文件“%s”。请检查名称，或在列表中选择。",
                                    L"The file \"%s\" was not found. Check the name, or choose one from the list."};
inline constexpr Text kFileFolderNotThere{L"文件夹“%s”不存在。请先创建该文件夹，或换一个位置。",
                                          L"The folder \"%s\" does not exist. Create it first or choose another "
                                          L"location."};
inline constexpr Text kReplaceQuestion{L"文件 %s 已存在。是否替换?", L"The file %s already exists. Replace it?"};
inline constexpr Text kReplaceConsequence{L"替换后，文件现有的内容将丢失。",
                                          L"What the file holds now is lost when it is replaced."};
inline constexpr Text kReplaceButton{L"替换(&R)", L"&Replace"};

// What a file holds.
inline constexpr Text kPreview{L"预览", L"Preview"};
inline constexpr Text kPreviewNothing{L"选择一个文件即可预览", L"Choose a file to see it here"};
inline constexpr Text kPreviewReading{L"正在读取…", L"Reading…"};
inline constexpr Text kPreviewVersion{L"版本", L"Version"};
inline constexpr Text kPreviewEntities{L"图元", L"Entities"};
inline constexpr Text kPreviewSize{L"大小", L"Size"};
inline constexpr Text kPreviewTooLarge{L"文件较大，打开后即可查看。", L"This file is large; open it to see it."};
inline constexpr Text kPreviewMegabytes{L"%.1f MB", L"%.1f MB"};
inline constexpr Text kPreviewKilobytes{L"%.1f KB", L"%.1f KB"};
// Over the polar curve, for people who do not see it.
inline constexpr Text kPolarName{L"配光曲线", L"Polar curve"};
inline constexpr Text kPolarAllPlanes{L"所有 C 平面", L"all C planes"};
inline constexpr Text kPolarHorizontal{L"水平", L"horizontal"};
inline constexpr Text kPolarVertical{L"垂直", L"vertical"};

// Drawings of a program that ended unexpectedly.
inline constexpr Text kRecoverTitle{L"恢复图形", L"Recover drawings"};
inline constexpr Text kRecoverIntroduction{
    L"上次程序意外结束时，下列图形有未保存的更改。恢复后的图形尚未保存；用 SAVE 保存到原来的位置。",
    L"These drawings had unsaved changes when the program ended unexpectedly. Recovered drawings are not saved yet; "
    L"SAVE writes them to their original location."};
inline constexpr Text kRecoverName{L"图形", L"Drawing"};
inline constexpr Text kRecoverPath{L"位置", L"Location"};
inline constexpr Text kRecoverTime{L"副本时间", L"Copied"};
inline constexpr Text kRecoverSize{L"大小", L"Size"};
inline constexpr Text kRecoverNeverSaved{L"(从未保存)", L"(never saved)"};
inline constexpr Text kRecoverButton{L"恢复(&R)", L"&Recover"};
inline constexpr Text kRecoverDiscard{L"全部放弃(&D)…", L"&Discard All…"};
inline constexpr Text kRecoverLater{L"以后再说(&L)", L"&Later"};
inline constexpr Text kRecoverDiscardQuestion{L"是否删除全部 %d 个副本?", L"Delete all copies (%d)?"};
inline constexpr Text kRecoverDiscardConsequence{L"其中未保存的更改将永久丢失。",
                                                 L"The unsaved changes in them are lost for good."};
inline constexpr Text kRecoverDelete{L"删除(&D)", L"&Delete"};

// About the program.
inline constexpr Text kAboutTitle{L"关于 Quor", L"About Quor"};
inline constexpr Text kAboutVersion{L"版本 %s", L"Version %s"};
inline constexpr Text kAboutWhat{
    L"在 DXF 图形中布置、编辑和管理光源，包括光度数据和光域网。",
    L"Places, edits and manages lights in DXF drawings, with their photometric data and webs."};
inline constexpr Text kAboutBuilt{L"Qt %s", L"Qt %s"};

} // namespace quor::texts
