// The text type of the interface: wide characters, one code point each.
#pragma once

#include <string>
#include <string_view>

using ZrString = std::wstring;
