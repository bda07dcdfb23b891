// What the host's pictures show, for those who do not see them.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text lightListPicture{L"光源列表", L"List of lights"};

} // namespace quor::texts
