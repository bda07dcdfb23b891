// Runs one transcript against a fresh host with a new drawing and gives the file back as the session makes it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quor::test {

// What could not be set up; empty when the session ran.
struct TranscriptResult {
    std::string file;
    std::string problem;
};

// Directives, each on a line of its own:
//   #! open FILE       opens a drawing; the path is relative to the transcript
//   #! set NAME=VALUE  sets a system variable
//   #! script          the typed lines that follow, up to the next directive, come from a script
//   #! keyboard        ends that
//   #! lang en         the language of the whole session
//   #! no-module       the session runs without the module of lighting commands
//   #! light LABEL…    shows what LIST says under these labels of the light that was made last
//   #! copy FILE [AS]  copies a file from beside the transcript into the working folder; AS may hold blanks, and
//                      folders, which are made
//   #! link AS TARGET  makes a symbolic link in the working folder; nothing needs to be where it leads
[[nodiscard]] TranscriptResult runTranscript(const std::filesystem::path& path, std::string_view text);

} // namespace quor::test
