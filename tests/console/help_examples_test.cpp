// The examples of --help, run by a shell just as they are printed.
#include "host/sys/utf8.h"
#include "host/texts/console.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace quor::console {
namespace {

// The lines between a heading and the next empty line, without their explanations, which stand behind two blanks.
std::vector<std::string> examplesOf(const wchar_t* help, const std::string& heading) {
    std::istringstream text(toUtf8(help));
    std::vector<std::string> commands;
    std::string line;
    while (std::getline(text, line) && line != heading)
        ;
    while (std::getline(text, line) && !line.empty())
        commands.push_back(line.substr(2, line.find("  ", 2) - 2));
    return commands;
}

struct Outcome {
    int status;
    std::string output;
};

class HelpExamples : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(folder_);
        for (const char* script : {"lights.scr", "灯光.scr"})
            std::ofstream(folder_ / script) << "POINTLIGHT 1,2,3 \n";
        for (const char* drawing : {"plan.dxf", "户型.dxf"})
            EXPECT_EQ(run("quorc --quiet --set LIGHTINGUNITS=2 -c 'LINE 0,0 1,1 ' -o " + std::string(drawing)).status,
                      0);
    }
    void TearDown() override { fs::remove_all(folder_); }

    [[nodiscard]] Outcome run(const std::string& command) const {
        const std::string line = "cd '" + folder_.string() +
                                 "' && export HOME=\"$PWD\" PATH='" QUOR_BUILD_DIR "/bin':$PATH && { " + command +
                                 "; } </dev/null 2>&1";
        FILE* const pipe = popen(line.c_str(), "r");
        Outcome outcome{-1, {}};
        std::array<char, 4096> bytes{};
        for (std::size_t count = 1; count > 0;) {
            count = fread(bytes.data(), 1, bytes.size(), pipe);
            outcome.output.append(bytes.data(), count);
        }
        outcome.status = pclose(pipe);
        return outcome;
    }

    void expectAllToRun(const std::vector<std::string>& examples) const {
        EXPECT_EQ(examples.size(), 6U);
        for (const std::string& example : examples) {
            const Outcome outcome = run(example);
            EXPECT_EQ(outcome.status, 0) << example << "\n" << outcome.output;
            EXPECT_EQ(outcome.output.find("quorc: "), std::string::npos) << example << "\n" << outcome.output;
            const bool lists = example.find("LIST") != std::string::npos;
            EXPECT_EQ(outcome.output.find("\nLINE\n") != std::string::npos, lists) << example << "\n" << outcome.output;
        }
    }

    fs::path folder_ = fs::temp_directory_path() / ("quor-examples-" + std::to_string(getpid()));
};

TEST_F(HelpExamples, AllRunInEnglish) { expectAllToRun(examplesOf(texts::console::kHelp.english, "Examples")); }

TEST_F(HelpExamples, AllRunInChinese) { expectAllToRun(examplesOf(texts::console::kHelp.chinese, "示例")); }

TEST_F(HelpExamples, PipeOfTheReadmeListsTheDrawing) {
    const Outcome outcome = run("printf 'LIST ALL\\n\\n' | quorc plan.dxf");
    EXPECT_NE(outcome.output.find("\nLINE\n"), std::string::npos) << outcome.output;
}

} // namespace
} // namespace quor::console
