// What quorc itself says: its help, its errors, its progress.
#pragma once

#include "host/texts/text.h"

namespace quor::texts::console {

inline constexpr Text kHelp{LR"(用法: quorc [选项]... [图形]

在终端、管道或脚本里打开、编辑和保存 DXF 图形。
不给出图形时新建一个；不给出脚本和命令时从标准输入读取命令。

执行什么(可重复，按命令行上的顺序执行)
  -s, --script 文件       执行脚本
  -c, --command 文本      执行这些命令，如同输入后按 Enter；空格和行尾都是 Enter，
                          所以结束选择等提问要在末尾加空格；可以有多行，与脚本相同

图形
  -o, --output 文件       最后把图形保存到这里(没有扩展名时加上 .dxf)；脚本中途停下时不保存
      --recover           打开损坏的图形: 列出问题，保留其余部分
      --set 名称=值       打开图形后设置系统变量(可重复)；与 SETVAR 一样，SUPPORTPATH
                          等用户变量会保留到以后

如何运行
  -k, --keep-going        命令失败后继续执行脚本
      --quiet             除错误外不显示任何内容
      --lang zh|en        界面语言；默认为系统变量 LANGUAGE 所设: zh、en，或 auto(依照
                          LC_ALL、LC_MESSAGES、LANG)；没有设置时为中文
      --module 文件       加载模块(可重复)；默认加载程序旁的 light
  -h, --help              显示本帮助
      --version           显示版本

在终端中
  Tab 补全命令和选项，上下箭头取回输入过的内容，
  Ctrl+C 取消(等于 Esc)，空行上 Ctrl+D 结束。

示例
  quorc                                             在新图形中交互工作
  quorc 户型.dxf                                    打开图形，交互工作
  quorc 户型.dxf -s 灯光.scr -o 户型-带灯.dxf       执行脚本，另存结果
  quorc 户型.dxf -c "LIST ALL "                     列出所有对象
  quorc --set LIGHTINGUNITS=1 -c "POINTLIGHT 0,0,0 " -o 灯.dxf
  printf 'LIST ALL\n\n' | quorc 户型.dxf            从管道读取命令

退出状态
    0  一切正常
    1  脚本中有命令失败，--module 指定的模块无法加载，或输出无法写入
    2  命令行用法错误；脚本文件无法读取；--set 的变量或值无效
    3  图形无法读取
    4  图形无法保存(-o)
  130  被 Ctrl+C 中断(脚本和管道)；不保存
  141  读取管道时，接收输出的程序已退出；不保存
  2、3 和加载失败的 --module 在执行任何命令之前结束程序。
  之后命令失败为 1；-k 时仍会保存，保存失败则为 4。
)",
                            LR"(Usage: quorc [OPTIONS]... [DRAWING]

Opens, edits, and saves DXF drawings from a terminal, a pipe, or a script.
Without DRAWING, a new one is started; without a script or command, commands are read from standard input.

What to run (repeatable; runs in command-line order)
  -s, --script FILE       run a script
  -c, --command TEXT      run commands as if typed and followed by Enter; spaces and line ends act as Enter,
                          so a space at the end ends a selection; may have several lines, like a script

The drawing
  -o, --output FILE       save the drawing here at the end, unless a script did not finish;
                          .dxf is added to a name without an extension
      --recover           open a damaged drawing: list the problems, keep the rest
      --set NAME=VALUE    set a system variable once the drawing is open (repeatable); as with
                          SETVAR, per-user variables such as SUPPORTPATH are saved

How to run
  -k, --keep-going        continue a script after a command fails
      --quiet             show only errors
      --lang zh|en        language; default: the system variable LANGUAGE, set to zh, en, or auto
                          (from LC_ALL, LC_MESSAGES, LANG); Chinese if it is not set
      --module FILE       load a module (repeatable); default: light, beside the program
  -h, --help              show this help
      --version           show the version

On a terminal
  Tab completes commands and options, the up and down arrows recall earlier input,
  Ctrl+C cancels (like Esc), Ctrl+D on an empty line exits.

Examples
  quorc                                             work in a new drawing
  quorc plan.dxf                                    open a drawing and work in it
  quorc plan.dxf -s lights.scr -o plan-lit.dxf      run a script, save the result to another file
  quorc plan.dxf -c "LIST ALL "                     list all objects
  quorc --set LIGHTINGUNITS=1 -c "POINTLIGHT 0,0,0 " -o lamp.dxf
  printf 'LIST ALL\n\n' | quorc plan.dxf            read commands from a pipe

Exit status
    0  success
    1  a command in a script failed, a --module file could not be loaded, or the output could not be written
    2  incorrect usage; a script file could not be read; a --set variable or value is not valid
    3  the drawing could not be read
    4  the drawing could not be saved (-o)
  130  interrupted by Ctrl+C (scripts and pipes); nothing is saved
  141  the program reading the output exited while commands came from a pipe; nothing is saved
  2, 3, and a --module that fails end the program before any command runs.
  After that, a failed command gives 1; with -k the drawing is still saved, and a failed save gives 4.
)"};

// Wrong usage; what both programs say is in usage.h.
inline constexpr Text kBadSetting{L"--set 的格式是 名称=值，不能是“%s”。", L"--set takes NAME=VALUE, not \"%s\"."};

// Errors, one line each.
inline constexpr Text kError{L"quorc: %s\n", L"quorc: %s\n"};
inline constexpr Text kSettingRefused{L"--set %s=%s: %s", L"--set %s=%s: %s"};
inline constexpr Text kCommandFailed{L"%s: 命令 %s 失败: %s", L"%s: command %s failed: %s"};
inline constexpr Text kNothingToSave{L"没有打开的图形，%s 没有保存。", L"No drawing is open; %s was not saved."};
inline constexpr Text kNotSavedEditing{L"正在编辑块“%s”，%s 没有保存。请用 REFCLOSE 结束编辑，再保存。",
                                       L"Block \"%s\" is being edited; %s was not saved. Finish with REFCLOSE, then "
                                       L"save."};
inline constexpr Text kOutputBroken{L"无法写入标准输出: %s。", L"Cannot write to standard output: %s."};
inline constexpr Text kInternalError{L"内部错误: %s", L"internal error: %s"};
inline constexpr Text kOutOfMemory{L"内存不足。", L"Out of memory."};

// Why a command failed; what it said itself stands above.
inline constexpr Text kWhyFailed{L"命令报告了错误。", L"it reported an error."};
inline constexpr Text kWhyUnknown{L"没有这个命令。", L"there is no such command."};
inline constexpr Text kWhyEnded{L"命令还在提问，回答用完了(空格或空行就是 Enter)。",
                                L"input ended before the command was finished (a space or an empty line is Enter)."};

// No error; said where the drawing is dropped.
inline constexpr Text kUnsaved{L"警告: 图形有未保存的更改；用 -o 或 SAVE 保存。",
                               L"warning: the drawing has unsaved changes; use -o or SAVE to keep them."};
inline constexpr Text kUnsavedEditing{
    L"警告: 正在编辑块“%s”，图形有未保存的更改；请用 REFCLOSE 结束编辑，再用 -o 或 SAVE 保存。",
    L"warning: block \"%s\" is being edited and the drawing has unsaved changes; finish with REFCLOSE, then use -o or "
    L"SAVE to keep them."};
inline constexpr Text kCommandNotUtf8{L"第 %d 个 -c 不是有效的 UTF-8 文字。", L"-c number %d is not valid UTF-8 text."};

// Where a command stood, for those that came from no script file.
inline constexpr Text kCommandOption{L"第 %d 个 -c", L"-c number %d"};

// Around a session.
inline constexpr Text kBanner{L"Quor %s。输入 HELP 查看命令，QUIT 退出。\n",
                              L"Quor %s. Type HELP for a list of commands, QUIT to exit.\n"};
inline constexpr Text kUnsavedEnd{L"\n图形有未保存的更改: 用 SAVE 保存，或再按一次 Ctrl+D 放弃。\n",
                                  L"\nThe drawing has unsaved changes: use SAVE to keep them, or press Ctrl+D "
                                  L"again to discard them.\n"};
inline constexpr Text kUnsavedEndEditing{
    L"\n正在编辑块“%s”，图形有未保存的更改: 用 REFCLOSE 结束编辑，再用 SAVE 保存，或再按一次 Ctrl+D 放弃。\n",
    L"\nBlock \"%s\" is being edited and the drawing has unsaved changes: finish with REFCLOSE, then use SAVE to keep "
    L"them, or press Ctrl+D again to discard them.\n"};
inline constexpr Text kRecovered{L"\n图形 %s 有 %d 个问题，其余部分已保留:\n",
                                 L"\nProblems found in drawing %s: %d. The rest was kept:\n"};
inline constexpr Text kSaved{L"\n图形已保存到 %s。\n", L"\nThe drawing was saved to %s.\n"};

// Progress.
inline constexpr Text kProgressScript{L"正在执行 %s", L"Running %s"};
inline constexpr Text kProgressOpen{L"正在打开 %s", L"Opening %s"};

} // namespace quor::texts::console
