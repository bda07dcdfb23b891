#include "console/run_console.h"

#include "console/exit_status.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <unistd.h>

namespace fs = std::filesystem;

namespace quor::console {
namespace {

// A run with text for its streams and a folder of its own for its files.
class RunConsoleTest : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(folder_);
        options_.language = L"en";
    }
    void TearDown() override { fs::remove_all(folder_); }

    std::string path(const std::string& name) const { return folder_ / name; }
    std::string write(const std::string& name, const std::string& bytes) const {
        std::ofstream(path(name), std::ios::binary) << bytes;
        return path(name);
    }
    std::string read(const std::string& name) const {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void script(const std::string& name, const std::string& text) {
        options_.runs.push_back({Run::Kind::Script, write(name, text)});
    }
    void command(const std::string& text) { options_.runs.push_back({Run::Kind::Command, text}); }

    int run(const std::string& input = {}) {
        input_ = input;
        Streams streams;
        streams.in = [this](char* buffer, std::size_t size) {
            const std::size_t count = input_.copy(buffer, size);
            input_.erase(0, count);
            return static_cast<std::ptrdiff_t>(count);
        };
        streams.out = [this](std::string_view bytes) {
            out_ += bytes;
            return outError_;
        };
        streams.err = [this](std::string_view bytes) {
            err_ += bytes;
            return 0;
        };
        SessionOptions session;
        session.settingsFile = folder_ / "settings.ini";
        session.moduleFolders = {fs::path(QUOR_BUILD_DIR) / "lib/quor/modules"};
        return runConsole(options_, streams, session);
    }

    static constexpr const char* kUnsaved =
        "quorc: warning: the drawing has unsaved changes; use -o or SAVE to keep them.\n";
    static bool has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

    fs::path folder_ = fs::temp_directory_path() / ("quor-run-" + std::to_string(getpid()));
    Options options_;
    std::string input_, out_, err_;
    int outError_ = 0;
};

TEST_F(RunConsoleTest, PipedAnswersReadLikeTheScreen) {
    EXPECT_EQ(run("LINE\n0,0\n1,1\n\n"), kSuccess);
    EXPECT_EQ(out_, "Command: LINE\nSpecify first point: 0,0\nSpecify next point or [Undo]: 1,1\nSpecify next point or "
                    "[Undo]: \nCommand: \n");
    EXPECT_EQ(err_, kUnsaved);
}

TEST_F(RunConsoleTest, PalettesAreShownAsTextBeforeTheNextPrompt) {
    EXPECT_EQ(run("LIGHTLIST\n"), kSuccess);
    EXPECT_EQ(out_, "Command: LIGHTLIST\nLights in Model\n  (none)\nCommand: \n");
}

TEST_F(RunConsoleTest, NamesAreWholeWhereTheOutputIsNoScreen) {
    const std::string name(255, 'x');
    EXPECT_EQ(run("DEFAULTLIGHTING 0\nPOINTLIGHT 0,0,3 N\n" + name + "\nX\nLIGHTLIST\nLIGHTTABLE\n\n"), kSuccess);
    EXPECT_TRUE(has(out_, "\n  Point light  " + name + "\n"));
    EXPECT_TRUE(has(out_, "      " + name + "  point  on"));
}

TEST_F(RunConsoleTest, PalettesAreNotShownQuietly) {
    options_.quiet = true;
    command("LIGHTLIST");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_EQ(out_, "");
}

TEST_F(RunConsoleTest, PipedInputGoesOnBehindAFailedCommand) {
    EXPECT_EQ(run("NOSUCH\nLINE 0,0 1,1 \n"), kSuccess);
    EXPECT_TRUE(has(out_, "Unknown command \"NOSUCH\""));
    EXPECT_TRUE(has(out_, "Specify first point: 0,0"));
}

TEST_F(RunConsoleTest, PipedInputThatEndsInACommandCountsAsEsc) {
    EXPECT_EQ(run("LINE\n0,0"), kSuccess);
    EXPECT_EQ(err_, "");
}

TEST_F(RunConsoleTest, CommandsRunOneAfterTheOtherAndTheDrawingIsSaved) {
    options_.output = path("out.dxf");
    command("LINE 0,0 1,1 ");
    command("LINE 2,2 3,3 ");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_TRUE(has(read("out.dxf"), "AcDbLine"));
    EXPECT_TRUE(has(out_, "The drawing was saved to " + path("out.dxf")));
}

TEST_F(RunConsoleTest, NothingIsSavedWithoutBeingAskedFor) {
    options_.drawing = write("in.dxf", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
    command("LINE 0,0 1,1 ");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_EQ(read("in.dxf"), "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
}

TEST_F(RunConsoleTest, ChangesThatAreDroppedAtTheEndAreWarnedOf) {
    options_.drawing = write("in.dxf", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
    script("a.scr", "LINE 0,0 1,1 \n");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_EQ(err_, kUnsaved);
}

TEST_F(RunConsoleTest, NothingIsWarnedOfWhenTheChangesWereSaved) {
    options_.drawing = write("in.dxf", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
    script("a.scr", "LINE 0,0 1,1 \nSAVE\n");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_EQ(err_, "");
    options_.runs.clear();
    command("LINE 2,2 3,3 ");
    options_.output = path("out.dxf");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_EQ(err_, "");
}

TEST_F(RunConsoleTest, OutputWithoutExtensionGetsOne) {
    options_.output = path("out");
    command("LINE 0,0 1,1 ");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_TRUE(fs::exists(path("out.dxf")));
    EXPECT_FALSE(fs::exists(path("out")));
    EXPECT_TRUE(has(out_, "The drawing was saved to " + path("out.dxf")));
}

TEST_F(RunConsoleTest, CommandOptionMayHoldSeveralLines) {
    command("; two lines\nLINE 0,0 1,1\n\nLINE\n5,5 6,6 ");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_TRUE(has(out_, "Specify first point: 5,5"));
}

TEST_F(RunConsoleTest, TextInAnotherEncodingIsRefusedBeforeAnythingRuns) {
    command("LINE 0,0 1,1 ");
    script("gbk.scr", "LINE 0,0 1,1 \n\xB5\xC6\n");
    EXPECT_EQ(run(), kWrongUsage);
    EXPECT_TRUE(has(err_, "gbk.scr\" is not valid UTF-8 text on line 2. Save it as UTF-8"));
    options_.runs.clear();
    err_.clear();
    command("\xB5\xC6");
    EXPECT_EQ(run(), kWrongUsage);
    EXPECT_EQ(err_, "quorc: -c number 1 is not valid UTF-8 text.\n");
    EXPECT_EQ(out_, "");
}

TEST_F(RunConsoleTest, SettingThatCannotBeKeptIsTakenForThisRun) {
    fs::create_directory(folder_ / "settings.ini");
    options_.settings = {{L"SUPPORTPATH", L"/lamps"}};
    command("SETVAR SUPPORTPATH\n");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_TRUE(has(err_, "SUPPORTPATH was changed for this session only"));
    EXPECT_TRUE(has(out_, "/lamps"));
}

TEST_F(RunConsoleTest, ScriptStopsAtItsFirstFailedCommandAndNothingIsSaved) {
    options_.output = path("out.dxf");
    script("a.scr", "; a comment\nLINE 0,0 1,1 \nNOSUCH\nLINE 2,2 3,3 \n");
    command("LINE 4,4 5,5 ");
    EXPECT_EQ(run(), kCommandFailed);
    EXPECT_EQ(err_, "quorc: a.scr, line 3: command NOSUCH failed: there is no such command.\n");
    EXPECT_FALSE(has(out_, "2,2"));
    EXPECT_FALSE(has(out_, "4,4"));
    EXPECT_FALSE(fs::exists(path("out.dxf")));
}

TEST_F(RunConsoleTest, KeepGoingReportsEveryFailureAndSaves) {
    options_.output = path("out.dxf");
    options_.keepGoing = true;
    script("a.scr", "NOSUCH\nLINE 2,2 3,3 \nNOTHER\n");
    EXPECT_EQ(run(), kCommandFailed);
    EXPECT_TRUE(has(err_, "a.scr, line 1: command NOSUCH failed"));
    EXPECT_TRUE(has(err_, "a.scr, line 3: command NOTHER failed"));
    EXPECT_TRUE(has(read("out.dxf"), "AcDbLine"));
}

TEST_F(RunConsoleTest, FailedSaveCountsForMoreThanAFailedCommandThatWasPassedOver) {
    options_.output = path("no/folder/out.dxf");
    options_.keepGoing = true;
    command("NOSUCH");
    EXPECT_EQ(run(), kNotSaved);
}

TEST_F(RunConsoleTest, DoesNotSaveADrawingOfWhichABlockIsBeingEdited) {
    options_.drawing = QUOR_TEST_DATA "/dxf/own/luminaires.dxf";
    options_.output = path("out.dxf");
    command("REFEDIT #60 ");
    EXPECT_EQ(run(), kNotSaved);
    EXPECT_EQ(err_, "quorc: Block \"LAMP\" is being edited; " + path("out.dxf") +
                        " was not saved. Finish with REFCLOSE, then save.\n");
    EXPECT_FALSE(std::filesystem::exists(path("out.dxf")));
}

TEST_F(RunConsoleTest, ADrawingOfWhichABlockIsBeingEditedCannotBeSavedAtOnce) {
    options_.drawing = QUOR_TEST_DATA "/dxf/own/luminaires.dxf";
    command("REFEDIT #60 ");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_TRUE(has(err_, "finish with REFCLOSE, then use -o or SAVE"));
}

TEST_F(RunConsoleTest, AnEditingThatChangedNothingIsNoUnsavedChange) {
    options_.drawing = QUOR_TEST_DATA "/dxf/own/luminaires.dxf";
    command("REFEDIT #60 ");
    command("REFCLOSE S");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_EQ(err_, "");
}

TEST_F(RunConsoleTest, AnEditingThatNeverBeganEndsTheRun) {
    options_.drawing = QUOR_TEST_DATA "/dxf/own/luminaires.dxf";
    command("REFEDIT #FF \nERASE ALL ");
    EXPECT_EQ(run(), kCommandFailed);
    EXPECT_TRUE(has(out_, "No block reference selected; nothing is being edited."));
    EXPECT_FALSE(has(out_, "erased"));
}

TEST_F(RunConsoleTest, AnswersThatRunOutAreAFailureOfTheScript) {
    command("LINE 0,0");
    EXPECT_EQ(run(), kCommandFailed);
    EXPECT_EQ(err_, "quorc: -c number 1: command LINE failed: input ended before the command was finished (a space "
                    "or an empty line is Enter).\n");
}

TEST_F(RunConsoleTest, EscInAScriptIsNoFailure) {
    script("a.scr", "LINE 0,0 ^C\n");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_EQ(err_, "");
}

TEST_F(RunConsoleTest, QuitEndsTheRunBeforeWhatFollows) {
    command("QUIT");
    command("NOSUCH");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_EQ(err_, "");
}

TEST_F(RunConsoleTest, ScriptThatIsTypedStopsAtItsFailureAndTheInputGoesOn) {
    write("bad.scr", "NOSUCH\nLINE 7,7 8,8 \n");
    EXPECT_EQ(run("SCRIPT\n" + path("bad.scr") + "\nLINE 0,0 1,1 \n"), kCommandFailed);
    EXPECT_TRUE(has(err_, "bad.scr, line 1: command NOSUCH failed"));
    EXPECT_FALSE(has(out_, "7,7"));
    EXPECT_TRUE(has(out_, "0,0"));
}

TEST_F(RunConsoleTest, QuietRunPrintsErrorsAlone) {
    options_.quiet = true;
    options_.keepGoing = true;
    command("LINE 0,0 1,1 ");
    command("NOSUCH");
    EXPECT_EQ(run(), kCommandFailed);
    EXPECT_EQ(out_, "");
    EXPECT_EQ(err_, "quorc: -c number 2: command NOSUCH failed: there is no such command.\n");
}

TEST_F(RunConsoleTest, QuietRunTellsOfABrokenColourBook) {
    fs::create_directories(path("colorbooks"));
    write("colorbooks/a.book", "book = \"Empty\"\n");
    options_.quiet = true;
    command("COLORBOOKS\n");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_EQ(out_, "");
    EXPECT_EQ(err_, "quorc: " + path("colorbooks/a.book") + ": it contains no colors. It was ignored.\n");
}

TEST_F(RunConsoleTest, BrokenColourBookIsToldOnTheScreenOtherwise) {
    fs::create_directories(path("colorbooks"));
    write("colorbooks/a.book", "book = \"Empty\"\n");
    command("COLORBOOKS\n");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_TRUE(has(out_, path("colorbooks/a.book") + ": it contains no colors. It was ignored.\n"));
    EXPECT_EQ(err_.find("a.book"), std::string::npos);
}

TEST_F(RunConsoleTest, SettingsAreMadeBeforeTheFirstCommand) {
    options_.settings = {{L"lightingunits", L"1"}};
    command("SETVAR LIGHTINGUNITS ");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_TRUE(has(out_, "<1>"));
}

TEST_F(RunConsoleTest, UnknownVariableAndBadValueAreWrongUsage) {
    options_.settings = {{L"NOSUCH", L"1"}};
    EXPECT_EQ(run(), kWrongUsage);
    EXPECT_TRUE(has(err_, "--set NOSUCH=1: "));
    options_.settings = {{L"LIGHTINGUNITS", L"3"}};
    EXPECT_EQ(run(), kWrongUsage);
    EXPECT_TRUE(has(err_, "--set LIGHTINGUNITS=3: "));
}

TEST_F(RunConsoleTest, MissingScriptIsSaidBeforeAnythingRuns) {
    command("LINE 0,0 1,1 ");
    options_.runs.push_back({Run::Kind::Script, path("missing.scr")});
    EXPECT_EQ(run(), kWrongUsage);
    EXPECT_TRUE(has(err_, "missing.scr"));
    EXPECT_EQ(out_, "");
}

TEST_F(RunConsoleTest, ModuleThatWasAskedForAndIsMissingEndsTheRun) {
    options_.modules = {path("missing.so")};
    command("LINE 0,0 1,1 ");
    EXPECT_EQ(run(), kCommandFailed);
    EXPECT_TRUE(has(err_, "missing.so"));
    EXPECT_EQ(out_, "");
}

TEST_F(RunConsoleTest, DrawingThatCannotBeReadIsStatusThreeWithOneMessage) {
    const std::string bad[] = {path("missing.dxf"), write("empty.dxf", ""),
                               write("garbage.dxf", "\x7F"
                                                    "ELF\x01\x02"),
                               folder_};
    for (const std::string& drawing : bad) {
        options_.drawing = drawing;
        err_.clear();
        EXPECT_EQ(run(), kNotRead) << drawing;
        EXPECT_TRUE(err_.starts_with("quorc: ")) << err_;
        EXPECT_EQ(std::count(err_.begin(), err_.end(), '\n'), 1) << err_;
    }
}

TEST_F(RunConsoleTest, DrawingThatBreaksOffIsRefusedWithItsLineAndRecoveredOnRequest) {
    options_.drawing = write("broken.dxf", "0\nSECTION\n2\nENTITIES\n0\nLINE\n5\n10\n10\n1.0\n20\n2.0\n");
    EXPECT_EQ(run(), kNotRead);
    EXPECT_TRUE(has(err_, "line 1"));
    EXPECT_TRUE(has(err_, "--recover"));

    options_.recover = true;
    EXPECT_EQ(run(), kSuccess);
    EXPECT_TRUE(has(out_, ". The rest was kept:\n  line "));
}

TEST_F(RunConsoleTest, ReaderOfTheOutputThatIsGoneEndsPipedInputQuietly) {
    outError_ = EPIPE;
    std::string lines;
    for (int i = 0; i < 20000; ++i)
        lines += "LINE 0,0 1,1 \n";
    EXPECT_EQ(run(lines), kReaderGone);
    EXPECT_EQ(err_, "");
    EXPECT_FALSE(input_.empty());
}

TEST_F(RunConsoleTest, ReaderOfTheOutputThatIsGoneDoesNotKeepAScriptFromSaving) {
    outError_ = EPIPE;
    options_.output = path("out.dxf");
    command("LINE 0,0 1,1 ");
    EXPECT_EQ(run(), kSuccess);
    EXPECT_TRUE(fs::exists(path("out.dxf")));
}

TEST_F(RunConsoleTest, OutputThatCannotBeWrittenIsAnError) {
    outError_ = ENOSPC;
    command("LINE 0,0 1,1 ");
    EXPECT_EQ(run(), kCommandFailed);
    EXPECT_TRUE(has(err_, "Cannot write to standard output"));
}

} // namespace
} // namespace quor::console
