// What the host says of the file that keeps a user's settings.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text kSettingsBadName{L"设置的节名或键名无效", L"a section or key name is not valid"};
inline constexpr Text kSettingsNoFolder{
    L"无法创建设置文件夹，该值仅在本次运行中有效",
    L"the settings folder cannot be created; the value applies to this session only"};
inline constexpr Text kSettingsUnreadable{L"无法读取设置文件，请检查其权限",
                                          L"the settings file cannot be read; check its permissions"};
inline constexpr Text kSettingsUnwritable{
    L"无法写入设置文件，该值仅在本次运行中有效",
    L"the settings file cannot be written; the value applies to this session only"};

} // namespace quor::texts
