// Writes lights to a file, one after the other, so that the file may be longer than memory.
#pragma once

#include "host/commands/light_files.h"
#include "host/commands/light_selection.h"
#include "host/dxf/file_saver.h"

#include <filesystem>

namespace quor::commands {

struct WrittenLights {
    std::size_t count = 0;
    std::size_t formulas = 0; // of them, those with a text that a spreadsheet would take for a formula
};

// The whole file or nothing, as drawings are saved, without a backup.
[[nodiscard]] Result<WrittenLights, dxf::SaveError> writeLightFile(Session& session, const LightSelection& selection,
                                                                   const LightFileFormat& format,
                                                                   const std::filesystem::path& path);

} // namespace quor::commands
