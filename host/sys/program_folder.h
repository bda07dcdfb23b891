// Where the running program stands, and what is installed beside it.
#pragma once

#include <filesystem>

namespace quor::sys {

// The folder of the program file; empty when the system does not tell.
[[nodiscard]] std::filesystem::path programFolder();
// `<program folder>/../lib/quor/modules`.
[[nodiscard]] std::filesystem::path defaultModuleFolder();

} // namespace quor::sys
