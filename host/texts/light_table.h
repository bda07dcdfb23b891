// What LIGHTTABLE asks and says. Headings that LIST has too are in list.h.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

// Questions.
inline constexpr Text kAskLights{L"\n选择光源 <全部>: ", L"\nSelect lights <all>: "};
inline constexpr Text kAskTableFormat{L"\n输入格式 [表格(T)/CSV(C)/JSON(J)] <CSV>: ",
                                      L"\nEnter format [Table/Csv/Json] <Csv>: "};
inline constexpr Text kAskTableFile{L"\n输入文件名 <%s>: ", L"\nEnter file name <%s>: "};

// The tables.
inline constexpr Text kTableWhat{L"光源", L"Lights"};
inline constexpr Text kTableWhere{L"位置和目标；没有目标的光源为 (方向)",
                                  L"Position and target (direction in parentheses for lights without a target)"};
inline constexpr Text kTableWhereIn{
    L"位置和目标，单位 %s；没有目标的光源为 (方向)",
    L"Position and target in %s (direction in parentheses for lights without a target)"};
inline constexpr Text kTableFactors{L"强度", L"Intensity"};
inline constexpr Text kTableIntensity{L"强度；带 * 的是图形中的值，其余为换算值；%s 为所列距离处的照度",
                                      L"Intensity (*: held by the drawing, others converted; %s at the distance)"};
inline constexpr Text kTableIntensityIn{
    L"强度；带 * 的是图形中的值，其余为换算值；%s 为所列距离 (%s) 处的照度",
    L"Intensity (*: held by the drawing, others converted; %s at the distance in %s)"};
inline constexpr Text kTableLook{L"颜色和阴影", L"Color and shadows"};
inline constexpr Text kTableFactor{L"因子", L"Factor"};
inline constexpr Text kTableDistance{L"距离", L"Distance"};
inline constexpr Text kTableWebFlux{L"光域网 lm", L"Web lm"};
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
                                   L"\n%d objects that are not lights were not listed.\n"};
inline constexpr Text kTableOneOther{L"\n未列出 %d 个不是光源的对象。\n",
                                     L"\n%d object that is not a light was not listed.\n"};
// While a block is edited in place.
inline constexpr Text kTableInWorkset{
    L"\n正在编辑块“%s”: 其中 %d 个光源属于工作集。\n",
    L"\nBlock \"%s\" is being edited in place: %d of these lights are in its working set.\n"};
inline constexpr Text kTableOneInWorkset{
    L"\n正在编辑块“%s”: 其中 %d 个光源属于工作集。\n",
    L"\nBlock \"%s\" is being edited in place: %d of these lights is in its working set.\n"};
inline constexpr Text kTableNoLights{L"\n图形中没有光源。\n", L"\nThere are no lights in the drawing.\n"};
inline constexpr Text kTableNoneSelected{L"\n所选对象中没有光源。\n",
                                         L"\nThere are no lights among the selected objects.\n"};

// Work that takes long.
inline constexpr Text kTableReading{L"正在读取光源", L"Reading lights"};
inline constexpr Text kTableShowing{L"正在列出光源", L"Listing lights"};
inline constexpr Text kTableWriting{L"正在写入 %s", L"Writing %s"};

// Files.
inline constexpr Text kTableWritten{L"\n已将 %d 个光源写入 %s。\n", L"\n%d lights written to %s.\n"};
inline constexpr Text kTableOneWritten{L"\n已将 %d 个光源写入 %s。\n", L"\n%d light written to %s.\n"};
inline constexpr Text kTableFormulas{
    L"\n%d 个光源含有电子表格会当作公式的文字。用电子表格打开时，请将各列作为文本导入。\n",
    L"\n%d lights have text that a spreadsheet would take for a formula. Import the columns as text.\n"};
inline constexpr Text kTableOneFormula{
    L"\n%d 个光源含有电子表格会当作公式的文字。用电子表格打开时，请将各列作为文本导入。\n",
    L"\n%d light has text that a spreadsheet would take for a formula. Import the columns as text.\n"};
inline constexpr Text kTableNotWritten{L"\n未写入 %s。\n", L"\nNothing was written to %s.\n"};
inline constexpr Text kTableIsFolder{L"\n%s 是文件夹。请给出其中文件的名称。\n",
                                     L"\n%s is a folder. Give the name of a file in it.\n"};
inline constexpr Text kTableNoRegularFile{L"\n%s 不是普通文件，未写入。请换一个名称。\n",
                                          L"\n%s is not a regular file; nothing was written. Choose another name.\n"};
inline constexpr Text kTableNoSuchFolder{
    L"\n文件夹 %s 不存在，未写入。请先创建该文件夹，或换一个位置。\n",
    L"\nThe folder %s does not exist; nothing was written. Create it first or choose another place.\n"};
inline constexpr Text kTableOtherFormat{L"\n注意: 写入 %s 的是 %s，与扩展名不符。\n",
                                        L"\nNote: %s gets %s, unlike what its extension says.\n"};
inline constexpr Text kTableIsDrawing{L"\n%s 是已打开的图形，不能覆盖。请换一个名称。\n",
                                      L"\n%s is an open drawing and cannot be overwritten. Choose another name.\n"};
inline constexpr Text kTableNotReplaced{L"\n文件 %s 未被替换。\n", L"\nThe file %s was not replaced.\n"};

} // namespace quor::texts
