// What the host says of plug-in modules and their resources.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text moduleNotFound{L"未加载模块“%s”: 找不到文件，已搜索: %s。请检查文件名或给出完整路径。",
                                     L"Module \"%s\" was not loaded: file not found; searched: %s. Check the name or "
                                     L"give the full path."};
inline constexpr Text moduleNotLoadable{L"未加载模块“%s”: 系统无法将其作为动态库打开(%s)。",
                                        L"Module \"%s\" was not loaded: the system cannot open it as a shared library "
                                        L"(%s)."};
inline constexpr Text moduleWithoutEntry{
    L"未加载模块“%s”: 它没有导出函数 %s，不是本程序的模块。",
    L"Module \"%s\" was not loaded: it does not export the function %s, so it is not a "
    L"module of this program."};
inline constexpr Text moduleOtherVersion{L"未加载模块“%s”: 它使用接口版本 %d，本程序提供版本 %d。请安装匹配的模块。",
                                         L"Module \"%s\" was not loaded: it uses interface version %d; this "
                                         L"program provides version %d. Install a matching module."};
inline constexpr Text moduleInitFailed{L"未加载模块“%s”: 模块初始化失败。",
                                       L"Module \"%s\" was not loaded: its initialization failed."};
inline constexpr Text moduleNotLoaded{L"模块“%s”未加载，无法卸载。",
                                      L"Module \"%s\" is not loaded, so it cannot be unloaded."};
inline constexpr Text moduleLocked{L"模块“%s”不允许在程序运行时卸载。",
                                   L"Module \"%s\" cannot be unloaded while the program is running."};

inline constexpr Text commandFailed{L"\n命令因内部错误而终止: %s。\n",
                                    L"\nThe command ended because of an internal error: %s.\n"};
inline constexpr Text unknownError{L"未知错误", L"unknown error"};

} // namespace quor::texts
