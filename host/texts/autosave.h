// What is said about the copies that drawings leave for the case that the program ends before they are saved.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text kCopyNotWritten{
    L"无法写入 %s 的自动保存副本: %s。请尽快保存图形，并检查磁盘空间和文件夹 %s 的权限。",
    L"Cannot write the autosave copy of %s: %s. Save the drawing soon, and check the disk space and the permissions of "
    L"the folder %s."};
inline constexpr Text kNoCopyFolder{L"无法自动保存图形: HOME 和 XDG_STATE_HOME 都没有设置。",
                                    L"Drawings cannot be saved automatically: neither HOME nor XDG_STATE_HOME is set."};
inline constexpr Text kRecoveredCopy{L"\n已恢复 %s。用 SAVE 保存后，自动保存的副本即被删除。\n",
                                     L"\nRecovered %s. The autosave copy is deleted once you use SAVE.\n"};

} // namespace quor::texts
