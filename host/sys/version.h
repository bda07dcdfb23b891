// The version of the program.
#pragma once

namespace quor::sys {

// The version of the project as the build knows it.
inline constexpr const wchar_t* kVersion = L"" QUOR_VERSION;

} // namespace quor::sys
