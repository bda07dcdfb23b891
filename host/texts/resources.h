// What the host says of language packs.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text resourceProblem{L"%s，第 %d 行: %s", L"%s, line %d: %s"};
inline constexpr Text resourceFileProblem{L"%s: %s", L"%s: %s"};
inline constexpr Text resourceNotRead{L"无法读取文件(%s)，改用内置文本",
                                      L"the file cannot be read (%s); the built-in texts are used"};
inline constexpr Text resourceNotUtf8{L"该行不是 UTF-8 文本，已忽略", L"the line is not UTF-8 text and was ignored"};
inline constexpr Text resourceNoNumber{L"应为文本编号(0 到 4294967295)，已忽略该行",
                                       L"expected a text number (0 to 4294967295); the line was ignored"};
inline constexpr Text resourceNoEquals{L"编号后应为“=”，已忽略该行",
                                       L"expected \"=\" after the number; the line was ignored"};
inline constexpr Text resourceNoQuotes{L"文本应在双引号中，已忽略该行",
                                       L"the text must be in double quotes; the line was ignored"};
inline constexpr Text resourceBadEscape{
    L"转义序列“%s”无效(允许 \\n \\t \\\" \\\\ \\xNN \\uXXXX)，已忽略该行",
    L"the escape sequence \"%s\" is not valid (use \\n \\t \\\" \\\\ \\xNN \\uXXXX); the "
    L"line was ignored"};
inline constexpr Text resourceRest{L"文本之后有多余字符“%s”，已忽略该行",
                                   L"unexpected \"%s\" after the text; the line was ignored"};
inline constexpr Text resourceTwice{L"编号 %u 已出现在第 %d 行，已忽略该行",
                                    L"number %u was already given in line %d; the line was ignored"};
inline constexpr Text resourcePlaceholders{
    L"文本 %u 的占位符与内置文本不同(应为“%s”，实际为“%s”)，改用内置文本",
    L"the placeholders of text %u differ from those of the built-in text (expected "
    L"\"%s\", found \"%s\"); the built-in text "
    L"is used"};

} // namespace quor::texts
