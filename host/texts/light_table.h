// What LIGHTTABLE asks and says. Headings that LIST has too are in list.h.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

// Questions.
inline constexpr Text kAskLights{L"\n选择光源 (未选择时按 Enter: 全部): ",
                                 L"\nSelect lights (Enter with none selected: all of them): "};
inline constexpr Text kAskTableFormat{L"\n输入格式 [表格(T)/CSV(C)/JSON(J)] <CSV>: ",
                                      L"\nFormat [Table/Csv/Json] <Csv>: "};
inline constexpr Text kAskTableFile{L"\n输入文件名 <%s>: ", L"\nFile name <%s>: "};

// The tables.
inline constexpr Text kTableWhat{L"光源", L"Lights"};
inline constexpr Text kTableWhere{L"位置和目标；没有目标的光源为 (方向)",
                                  L"Position and target, or the (direction) of a light without target"};
inline constexpr Text kTableWhereIn{L"位置和目标，单位 %s；没有目标的光源为 (方向)",
                                    L"Position and target in %s, or the (direction) of a light without target"};
inline constexpr Text kTableIntensity{L"强度", L"Intensity"};
inline constexpr Text kTableLook{L"颜色和阴影", L"Color and shadows"};
inline constexpr Text kTableFactor{L"因子", L"Factor"};
inline constexpr Text kTableTargetX{L"目标 X", L"Target X"};
inline constexpr Text kTableTargetY{L"目标 Y", L"Target Y"};
inline constexpr Text kTableTargetZ{L"目标 Z", L"Target Z"};
inline constexpr Text kTableKinds[] = {
    {L"点光源", L"point"}, {L"目标点光源", L"target point"}, {L"聚光灯", L"spot"},   {L"自由聚光灯", L"free spot"},
    {L"光域灯光", L"web"}, {L"自由光域灯光", L"free web"},   {L"平行光", L"distant"}};
inline constexpr Text kTableMapped{L"%s，贴图 %d，柔和度 %d", L"%s, map %d, softness %d"};
inline constexpr Text kTableSampled{L"%s，采样 %d，%s %s", L"%s, samples %d, %s %s"};

// Behind them.
inline constexpr Text kTableTotal{L"\n共 %d 个光源: %s。\n", L"\nLights: %d (%s).\n"};
inline constexpr Text kTableKindCount{L"%s %d", L"%s %d"};
inline constexpr Text kTableComma{L"，", L", "};
inline constexpr Text kTableOthers{L"\n未列出 %d 个不是光源的对象。\n",
                                   L"\nObjects that are no lights, not listed: %d.\n"};
inline constexpr Text kTableNoLights{L"\n图形中没有光源。\n", L"\nThere are no lights in the drawing.\n"};
inline constexpr Text kTableNoneSelected{L"\n所选对象中没有光源。\n",
                                         L"\nThere are no lights among the selected objects.\n"};

// Work that takes long.
inline constexpr Text kTableReading{L"正在读取光源", L"Reading lights"};
inline constexpr Text kTableShowing{L"正在列出光源", L"Listing lights"};
inline constexpr Text kTableWriting{L"正在写入 %s", L"Writing %s"};

// Files.
inline constexpr Text kTableWritten{L"\n已写入 %s，光源 %d 个。\n", L"\nWritten to %s; lights: %d.\n"};
inline constexpr Text kTableFormulas{
    L"\n其中 %d 个光源有以 =、+、-、@、制表符或回车开头的文字。用电子表格打开时，请将各列作为文本导入。\n",
    L"\nLights with a text that begins with =, +, -, @, a tab or a carriage return: %d. Import the columns as text "
    L"when "
    L"you open the file in a spreadsheet.\n"};
inline constexpr Text kTableNotWritten{L"\n未写入 %s。\n", L"\nNothing was written to %s.\n"};
inline constexpr Text kTableIsFolder{L"\n%s 是文件夹。请给出其中文件的名称。\n",
                                     L"\n%s is a folder. Give the name of a file in it.\n"};
inline constexpr Text kTableNoRegularFile{L"\n%s 不是普通文件，未写入。请换一个名称。\n",
                                          L"\n%s is no regular file; nothing was written. Choose another name.\n"};
inline constexpr Text kTableNoSuchFolder{
    L"\n文件夹 %s 不存在，未写入。请先创建该文件夹，或换一个位置。\n",
    L"\nThe folder %s does not exist; nothing was written. Make it first or choose another place.\n"};
inline constexpr Text kTableIsDrawing{L"\n%s 是已打开的图形，不能覆盖。请换一个名称。\n",
                                      L"\n%s is an open drawing and cannot be overwritten. Choose another name.\n"};
inline constexpr Text kTableNotReplaced{L"\n文件 %s 未被替换。\n", L"\nThe file %s was not replaced.\n"};

} // namespace quor::texts
