// What the command line of a program with windows says itself.
#pragma once

#include "host/texts/text.h"

namespace quor::texts::line {

// Names for people who do not see the parts.
inline constexpr Text kHistoryName{L"命令历史", L"Command history"};
inline constexpr Text kPromptName{L"提示和选项", L"Prompt and options"};
inline constexpr Text kInputName{L"命令行", L"Command line"};
inline constexpr Text kListName{L"可输入的内容", L"Possible answers"};

inline constexpr Text kTextWindow{L"Quor 文本窗口", L"Quor Text Window"};
inline constexpr Text kShowTextWindow{L"文本窗口(&T)", L"&Text Window"};

// While a command works.
inline constexpr Text kWorking{L"正在执行…", L"Working…"};
inline constexpr Text kWorkingOn{L"正在执行 %s…", L"Running %s…"};
inline constexpr Text kProgress{L"%s: %d%%", L"%s: %d%%"};

inline constexpr Text kScriptStopped{L"\n已停止执行。\n", L"\nStopped.\n"};

inline constexpr Text kTypeHere{L"输入命令", L"Type a command"};

// The menu of the right button.
inline constexpr Text kLastCommands{L"最近使用的命令(&R)", L"&Recent Commands"};
inline constexpr Text kNoLastCommands{L"(无)", L"(None)"};
inline constexpr Text kCopy{L"复制(&C)", L"&Copy"};
inline constexpr Text kCopyHistory{L"复制全部历史(&H)", L"Copy &History"};
inline constexpr Text kPaste{L"粘贴并执行(&P)", L"&Paste"};
inline constexpr Text kPasteToLine{L"粘贴到命令行(&L)", L"Paste to Command &Line"};
inline constexpr Text kClearHistory{L"清除显示(&E)", L"Cl&ear Display"};
inline constexpr Text kZoomIn{L"放大文字(&I)", L"Zoom &In"};
inline constexpr Text kZoomOut{L"缩小文字(&O)", L"Zoom &Out"};

} // namespace quor::texts::line
