// What the host says of colour books.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text colorBookLineProblem{L"%s，第 %d 行: %s。已忽略整个文件。",
                                           L"%s, line %d: %s. The whole file was ignored."};
inline constexpr Text colorBookFileProblem{L"%s: %s。已忽略。", L"%s: %s. It was ignored."};
inline constexpr Text colorBookFolderNotRead{L"无法列出文件夹(%s)", L"the folder cannot be listed (%s)"};
inline constexpr Text colorBookNotRead{L"无法读取文件(%s)", L"the file cannot be read (%s)"};
inline constexpr Text colorBookTooLarge{L"文件超过 %d MB，不是配色系统",
                                        L"the file is larger than %d MB and is not a color book"};
inline constexpr Text colorBookControl{L"名称中有控制字符，请将其删除",
                                       L"a name contains a control character; remove it"};
inline constexpr Text colorBookNotUtf8{L"该行不是 UTF-8 文本", L"the line is not UTF-8 text"};
inline constexpr Text colorBookNoName{L"第一个条目应为 book = \"名称\"", L"the first entry must be book = \"name\""};
inline constexpr Text colorBookSecondName{L"book 行只能出现一次", L"only one book line is allowed"};
inline constexpr Text colorBookBadName{
    L"配色系统名称应加双引号，长 4 到 131 个字符，不含 $ 和双引号，首尾没有空格",
    L"the name of a book must be in double quotes, with 4 to 131 characters, no $ or double quotes, and no leading or "
    L"trailing spaces"};
inline constexpr Text colorBookNoEquals{L"应为 颜色名称 = r,g,b", L"expected color name = r,g,b"};
inline constexpr Text colorBookBadColorName{L"颜色名称应为 1 到 131 个字符，不含 $",
                                            L"a color name must have 1 to 131 characters and no $"};
inline constexpr Text colorBookBadColor{L"颜色应为 r,g,b，每个数为 0 到 255 的整数",
                                        L"a color must be r,g,b with integers from 0 to 255"};
inline constexpr Text colorBookColorTwice{L"颜色“%s”已出现在第 %d 行",
                                          L"the color \"%s\" was already given in line %d"};
inline constexpr Text colorBookEmpty{L"其中没有颜色", L"it contains no colors"};
inline constexpr Text colorBookTwice{L"配色系统“%s”已由 %s 提供", L"the color book \"%s\" was already given by %s"};

// COLORBOOKS.
inline constexpr Text kAskColorBook{L"\n输入配色系统名称 <列出全部>: ", L"\nEnter color book name <list all>: "};
inline constexpr Text kNoColorBooks{L"\n没有配色系统。\n", L"\nThere are no color books.\n"};
inline constexpr Text kNoSuchColorBook{L"\n没有名为“%s”的配色系统。在 COLORBOOKS 的提示下按 Enter 可列出全部。\n",
                                       L"\nThere is no color book \"%s\". Press Enter at COLORBOOKS to list them.\n"};
inline constexpr Text kColorBookColors{L"%d 种颜色", L"%d colors"};
inline constexpr Text kColorBookOneColor{L"%d 种颜色", L"%d color"};

} // namespace quor::texts
