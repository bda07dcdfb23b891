// The version of the program.
#pragma once

namespace quor::sys {

// The same as that of the project in CMakeLists.txt.
inline constexpr const wchar_t* kVersion = L"0.1.0";

} // namespace quor::sys
