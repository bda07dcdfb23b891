// transcripts [--rebaseline] PATH…
// Replays whole sessions, each against a fresh host with a new drawing, and shows where the program prints something
// else than the file says. --rebaseline rewrites what is expected and keeps what is typed and the comments.

#include "tests/support/transcript.h"
#include "tests/support/transcript_session.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string_view>
#include <vector>

namespace {

std::vector<std::filesystem::path> filesBelow(const std::filesystem::path& path) {
    if (!std::filesystem::is_directory(path))
        return {path};
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path))
        if (entry.is_regular_file() && entry.path().extension() == ".txt")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

// Whether the transcript is as expected (or was made so).
bool check(const std::filesystem::path& path, bool rebaseline) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        std::cout << path.string() << ": cannot be read\n";
        return false;
    }
    const std::string expected{std::istreambuf_iterator<char>(in), {}};
    const quor::test::TranscriptResult result = quor::test::runTranscript(path, expected);
    if (!result.problem.empty()) {
        std::cout << path.string() << ": " << result.problem << '\n';
        return false;
    }
    if (result.file == expected)
        return true;
    if (rebaseline) {
        std::ofstream(path, std::ios::binary) << result.file;
        std::cout << path.string() << ": rewritten\n";
        return true;
    }
    std::cout << "--- " << path.string() << " (expected)\n+++ " << path.string() << " (printed)\n"
              << quor::test::difference(expected, result.file);
    return false;
}

} // namespace

int main(int argc, char** argv) {
    bool rebaseline = false;
    std::vector<std::filesystem::path> files;
    for (const std::string_view argument : std::vector<std::string_view>(argv + 1, argv + argc)) {
        if (argument == "--rebaseline") {
            rebaseline = true;
            continue;
        }
        const std::vector<std::filesystem::path> found = filesBelow(argument);
        files.insert(files.end(), found.begin(), found.end());
    }
    const auto failed =
        std::count_if(files.begin(), files.end(), [&](const auto& file) { return !check(file, rebaseline); });
    std::cout << files.size() - static_cast<std::size_t>(failed) << " passed, " << failed << " failed\n";
    return failed == 0 ? 0 : 1;
}
