#include "host/sys/program_folder.h"

#include <system_error>

namespace quor::sys {

std::filesystem::path programFolder() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

std::filesystem::path defaultModuleFolder() {
    return (programFolder().parent_path() / "lib" / "quor" / "modules").lexically_normal();
}

} // namespace quor::sys
