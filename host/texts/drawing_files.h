// What the host says of drawing files that cannot be read or saved.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

// Where in the file: filled into the %s of the texts below.
inline constexpr Text kAtLine{L"第 %d 行", L"line %d"};
inline constexpr Text kAtOffset{L"第 %d 字节处", L"byte %d"};

inline constexpr Text kCannotOpenDrawing{L"无法打开图形“%s”: %s。请检查路径和权限。",
                                         L"Cannot open the drawing \"%s\": %s. Check the path and permissions."};
inline constexpr Text kCannotReadDrawing{L"读取图形“%s”时出错: %s。", L"Reading the drawing \"%s\" failed: %s."};
inline constexpr Text kEmptyDrawing{
    L"“%s”是空文件(0 字节)，不是图形。请给出图形文件的名称。",
    L"\"%s\" is empty (0 bytes) and is not a drawing. Give the name of a drawing file."};
inline constexpr Text kNotADrawing{L"“%s”不是 DXF 图形: %s应为“0”和“SECTION”。图形未打开。",
                                   L"\"%s\" is not a DXF drawing: \"0\" and \"SECTION\" were expected at %s. "
                                   L"The drawing was not opened."};
inline constexpr Text kBadGroupCode{L"“%s”，%s: 组码“%s”不是数字；图形未打开。可用 RECOVER 或 --recover 修复后打开。",
                                    L"\"%s\", %s: the group code \"%s\" is not a number; the drawing was not opened. "
                                    L"RECOVER or --recover opens the intact part."};
inline constexpr Text kMissingValue{
    L"“%s”，%s: 组码 %s 之后文件中断，缺少其值；图形未打开。可用 RECOVER 或 --recover 修复后打开。",
    L"\"%s\", %s: the file ends after group code %s and its value is missing; the "
    L"drawing was not opened. RECOVER or --recover opens the intact part."};
inline constexpr Text kNoEndOfFile{
    L"“%s”，%s: 文件中断，缺少文件结束标记(0 EOF)；图形未打开。可用 RECOVER 或 --recover 修复后打开。",
    L"\"%s\", %s: the file ends without the end-of-file marker (0 EOF); the drawing "
    L"was not opened. RECOVER or --recover opens the intact part."};
inline constexpr Text kSectionWithoutEnd{
    L"“%s”，%s: 段 %s 没有结束(0 ENDSEC)；图形未打开。可用 RECOVER 或 --recover 修复后打开。",
    L"\"%s\", %s: section %s has no end (0 ENDSEC); the drawing was not opened. "
    L"RECOVER or --recover opens the intact part."};
inline constexpr Text kRecordTooLong{L"“%s”，%s: 单个对象超过 4 GB；图形未打开。",
                                     L"\"%s\", %s: an object is larger than 4 GB; the drawing was not opened."};

inline constexpr Text kProblemBadGroupCode{
    L"%s: 组码“%s”不是数字，该对象的其余部分按原样保留。",
    L"%s: the group code \"%s\" is not a number; the rest of the object is kept unchanged."};
inline constexpr Text kProblemMissingValue{L"%s: 组码 %s 缺少其值，文件在此中断。",
                                           L"%s: the value of group code %s is missing; the file ends here."};
inline constexpr Text kProblemNoEnd{L"%s: 缺少文件结束标记(0 EOF)。",
                                    L"%s: the end-of-file marker (0 EOF) is missing."};
inline constexpr Text kProblemSectionWithoutEnd{L"%s: 段 %s 没有结束(0 ENDSEC)。",
                                                L"%s: section %s has no end (0 ENDSEC)."};
inline constexpr Text kProblemCutValue{L"%s: 此处的值不完整。", L"%s: the value here is incomplete."};
inline constexpr Text kProblemIncomplete{L"%s: 对象 %s 不完整，已略去。",
                                         L"%s: object %s is incomplete and was omitted."};
inline constexpr Text kProblemIncompleteVariable{L"%s: 图形设置 %s 不完整，已略去。",
                                                 L"%s: the drawing setting %s is incomplete and was omitted."};
inline constexpr Text kProblemBadNumber{
    L"%s: 值“%s”不是数字，使用时按未给出处理，文件中按原样保留。",
    L"%s: the value \"%s\" is not a number; it is treated as not given and is kept unchanged in the file."};
inline constexpr Text kProblemOther{L"%s: 无法识别的内容，按原样保留。", L"%s: unrecognized content, kept unchanged."};
inline constexpr Text kMoreFileProblems{L"另有 %d 个问题未列出。", L"%d more not listed."};

inline constexpr Text kVersionHoldsNoLights{
    L"无法保存“%s”: %s 版本的图形不能包含光源(AC1015 及更高版本可以)。文件未改动。"
    L"请删除光源，或在 AC1015 及更高版本的图形中创建光源。",
    L"Cannot save \"%s\": a drawing of version %s cannot contain lights (AC1015 and later "
    L"can). The file was not changed. Erase the lights, or create them in a drawing of "
    L"version AC1015 or later."};
inline constexpr Text kCannotSaveTarget{L"无法保存到“%s”: %s。文件未改动。",
                                        L"Cannot save to \"%s\": %s. The file was not changed."};
inline constexpr Text kCannotSaveTemp{L"无法在“%s”所在的文件夹中写入: %s。文件未改动。",
                                      L"Cannot write in the folder of \"%s\": %s. The file was not changed."};
inline constexpr Text kCannotSaveWrite{L"保存“%s”时写入失败: %s。原文件未改动。",
                                       L"Writing \"%s\" failed: %s. The file was not changed."};
inline constexpr Text kCannotSaveBackup{
    L"无法为“%s”保留备份(.bak): %s。原文件未改动。",
    L"Cannot keep the previous version of \"%s\" as .bak: %s. The file was not changed."};
inline constexpr Text kCannotSaveReplace{L"无法替换“%s”: %s。原文件未改动。",
                                         L"Cannot replace \"%s\": %s. The file was not changed."};

} // namespace quor::texts
