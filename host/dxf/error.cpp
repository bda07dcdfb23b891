#include "host/dxf/error.h"

#include <algorithm>

namespace quor::dxf {

std::wstring excerptOf(std::string_view text) {
    constexpr std::size_t kLength = 40;
    text = text.substr(0, kLength);
    std::wstring shown(text.size(), L'?');
    std::transform(text.begin(), text.end(), shown.begin(),
                   [](char c) { return c >= 0x20 && c < 0x7F ? static_cast<wchar_t>(c) : L'?'; });
    return shown;
}

} // namespace quor::dxf
