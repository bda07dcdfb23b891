// What went wrong with a drawing file, in words for a person: what, where, what to do.
#pragma once

#include "host/dxf/error.h"
#include "host/dxf/file_saver.h"
#include "sdk/sys/string.h"

#include <filesystem>

namespace quor::db {

[[nodiscard]] ZrString describe(const dxf::Error& error, const ZrString& file);
[[nodiscard]] ZrString describe(const dxf::SaveError& error, const ZrString& file);
// A lesser problem of a recovered drawing.
[[nodiscard]] ZrString describeProblem(const dxf::Error& error);
[[nodiscard]] ZrString pathText(const std::filesystem::path& path);

} // namespace quor::db
