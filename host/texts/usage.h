// What both programs say to their command line: which they are, and what of it they do not understand.
#pragma once

#include "host/texts/text.h"

namespace quor::texts::usage {

// The program and its version.
inline constexpr Text kVersion{L"%s %s\n", L"%s %s\n"};

// "%s": the program, then what is wrong, then the program again.
inline constexpr Text kHint{L"%s: %s\n使用 %s --help 查看用法。\n", L"%s: %s\nSee %s --help.\n"};

inline constexpr Text kUnknownOption{L"没有选项“%s”。", L"There is no option \"%s\"."};
inline constexpr Text kOneDrawing{L"只能打开一个图形，多余的参数是“%s”。",
                                  L"Only one drawing can be opened; the extra argument is \"%s\"."};
inline constexpr Text kOptionOneValue{L"选项 %s 需要且只能有一个值。", L"Option %s takes exactly one value."};
inline constexpr Text kOptionFlag{L"选项 %s 不带值。", L"Option %s does not take a value."};
inline constexpr Text kOptionEmpty{L"选项 %s 的值不能为空。", L"The value of option %s must not be empty."};
inline constexpr Text kBadLanguage{L"--lang 只能是 zh 或 en，不能是“%s”。", L"--lang must be zh or en, not \"%s\"."};
inline constexpr Text kEmptyDrawingName{L"图形的文件名为空。", L"The drawing file name is empty."};

} // namespace quor::texts::usage
