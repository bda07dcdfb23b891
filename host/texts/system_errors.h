// Why the system refused something, for the errors that people meet with files.
#pragma once

#include "host/texts/text.h"

#include <array>
#include <cerrno>

namespace quor::texts {

struct SystemErrorText {
    int number; // errno
    Text text;
};

inline constexpr std::array kSystemErrors{
    SystemErrorText{EACCES, {L"权限不足", L"permission denied"}},
    SystemErrorText{EPERM, {L"不允许该操作", L"operation not permitted"}},
    SystemErrorText{ENOENT, {L"文件或文件夹不存在", L"no such file or folder"}},
    SystemErrorText{ENOTDIR, {L"路径中有一段不是文件夹", L"part of the path is not a folder"}},
    SystemErrorText{EISDIR, {L"这是文件夹，不是文件", L"it is a folder, not a file"}},
    SystemErrorText{ENODEV, {L"它不是普通文件", L"it is not a regular file"}}, // see openFile()
    SystemErrorText{EEXIST, {L"文件已存在", L"the file already exists"}},
    SystemErrorText{ENOSPC, {L"磁盘已满", L"the disk is full"}},
    SystemErrorText{EDQUOT, {L"超出磁盘配额", L"the disk quota is exceeded"}},
    SystemErrorText{EFBIG, {L"文件过大", L"the file is too large"}},
    SystemErrorText{EROFS, {L"文件系统是只读的", L"the file system is read-only"}},
    SystemErrorText{EIO, {L"读写设备时出错", L"input/output error on the device"}},
    SystemErrorText{EMFILE, {L"打开的文件太多", L"too many open files"}},
    SystemErrorText{ENAMETOOLONG, {L"文件名过长", L"the file name is too long"}},
    SystemErrorText{ELOOP, {L"符号链接形成循环", L"symbolic links form a loop"}},
    SystemErrorText{ETXTBSY, {L"文件正在使用中", L"the file is in use"}},
    SystemErrorText{EBUSY, {L"文件正在使用中", L"the file is in use"}},
    SystemErrorText{ENOMEM, {L"内存不足", L"out of memory"}},
    SystemErrorText{EINVAL, {L"路径无效", L"the path is not valid"}},
};

} // namespace quor::texts
