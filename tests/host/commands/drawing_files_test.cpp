#include "host/commands/ask.h"
#include "host/commands/drawing_files.h"
#include "host/sys/utf8.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace quor {

namespace {

namespace fs = std::filesystem;
using Kind = ed::Verdict::Kind;

class FileCommands : public ::testing::Test {
protected:
    [[nodiscard]] fs::path file(const char* name) const { return host.folder() / name; }
    [[nodiscard]] ZrString text(const char* name) const { return fromUtf8(file(name).native()); }

    static std::string contentOf(const fs::path& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    void drawLine() { host.run({L"LINE", L"0,0", L"1,1", L""}); }

    test::TestSession host;
};

TEST_F(FileCommands, SaveOfANewDrawingAsksForANameAndKeepsIt) {
    const ed::Verdict verdict = host.run({L"SAVE", text("a b.dxf")});

    EXPECT_EQ(verdict.kind, Kind::Done);
    EXPECT_TRUE(fs::exists(file("a b.dxf")));
    EXPECT_EQ(host.document().path(), file("a b.dxf"));
}

TEST_F(FileCommands, ANameWithoutExtensionGetsOne) {
    host.run({L"SAVE", text("plan")});

    EXPECT_TRUE(fs::exists(file("plan.dxf")));
    EXPECT_FALSE(fs::exists(file("plan")));
}

TEST_F(FileCommands, ADotAtTheEndOfANameIsNoExtension) {
    host.run({L"SAVE", text("plan.")});

    EXPECT_TRUE(fs::exists(file("plan.dxf")));
    EXPECT_FALSE(fs::exists(file("plan.")));
}

TEST_F(FileCommands, SavingTakesTheModifiedMarkAway) {
    drawLine();
    ASSERT_TRUE(host.document().isModified());

    host.run({L"SAVE", text("a.dxf")});

    EXPECT_FALSE(host.document().isModified());
}

TEST_F(FileCommands, UndoAfterSavingModifiesTheDrawingAgain) {
    drawLine();

    host.run({L"SAVE", text("a.dxf"), L"U"});

    EXPECT_TRUE(host.document().isModified());
}

TEST_F(FileCommands, SavingIsNoStepOfUndo) {
    drawLine();

    host.run({L"SAVE", text("a.dxf")});

    EXPECT_EQ(host.document().drawing().journal().undoDepth(), 1U);
}

TEST_F(FileCommands, AFileThatIsNotToBeReplacedStaysAsItIs) {
    std::ofstream(file("a.dxf")) << "mine";

    const ed::Verdict verdict = host.run({L"SAVEAS", text("a.dxf"), L"N"});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_FALSE(host.front().shows(L"*取消*"));
    EXPECT_EQ(contentOf(file("a.dxf")), "mine");
    EXPECT_TRUE(host.document().path().empty());
}

TEST_F(FileCommands, EscAtTheQuestionWhetherToReplaceKeepsTheFile) {
    std::ofstream(file("a.dxf")) << "mine";

    host.run({L"SAVEAS", text("a.dxf"), L"^C"});

    EXPECT_EQ(contentOf(file("a.dxf")), "mine");
}

TEST_F(FileCommands, SavingIntoAFolderThatIsNotThereFailsAndSaysWhere) {
    const ed::Verdict verdict = host.run({L"SAVEAS", text("none/a.dxf")});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_TRUE(host.front().shows(L"文件夹 " + text("none") + L" 不存在"));
}

TEST_F(FileCommands, TheFileOfAnotherOpenDrawingIsNotOverwritten) {
    const ed::Verdict verdict = host.run({L"SAVE", text("a.dxf"), L"NEW", L"SAVEAS", text("a.dxf")});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_TRUE(host.front().shows(L"正作为另一个图形打开"));
}

TEST_F(FileCommands, OpenSaysNameVersionAndNumberOfEntities) {
    drawLine();

    host.run({L"SAVE", text("a.dxf"), L"CLOSE", L"OPEN", text("a.dxf")});

    EXPECT_TRUE(host.front().shows(L"已打开 " + text("a.dxf") + L": 版本 AC1032 (2018)，1 个图元。"));
}

TEST_F(FileCommands, OpenOfAnOpenDrawingMakesItCurrent) {
    host.run({L"SAVE", text("a.dxf"), L"NEW", L"OPEN", text("a.dxf")});

    EXPECT_EQ(host.session().documents().all().size(), 2U);
    EXPECT_EQ(host.document().path(), file("a.dxf"));
}

TEST_F(FileCommands, OpenOfAMissingFileFailsAndKeepsTheCurrentDrawing) {
    const Document* before = &host.document();

    const ed::Verdict verdict = host.run({L"OPEN", text("missing.dxf")});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_EQ(&host.document(), before);
    EXPECT_TRUE(host.front().shows(L"找不到文件 " + text("missing.dxf")));
}

TEST_F(FileCommands, OpenOfAFolderFails) {
    const ed::Verdict verdict = host.run({L"OPEN", fromUtf8(host.folder().native())});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_TRUE(host.front().shows(L"是文件夹"));
}

TEST_F(FileCommands, OpenOfWhatIsNoDrawingFailsWithTheReason) {
    std::ofstream(file("a.dxf")) << "hello\n";

    const ed::Verdict verdict = host.run({L"OPEN", text("a.dxf")});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_EQ(host.session().documents().all().size(), 1U);
    EXPECT_TRUE(host.front().shows(L"a.dxf"));
}

TEST_F(FileCommands, OpenOfADeviceFails) {
    const ed::Verdict verdict = host.run({L"OPEN", L"/dev/null"});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_TRUE(host.front().shows(L"/dev/null 不是普通文件"));
}

TEST_F(FileCommands, ADeviceIsNoPlaceToSave) {
    const ed::Verdict verdict = host.run({L"SAVEAS", L"/dev/null"});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_TRUE(host.front().shows(L"/dev/null 不是普通文件"));
}

TEST_F(FileCommands, ControlCharactersInAFileNameAreSpelledOut) {
    host.run({L"OPEN", text("a\x1B[31mb.dxf")});

    EXPECT_TRUE(host.front().shows(L"a^[[31mb.dxf"));
}

TEST_F(FileCommands, EnterAtOpenOpensTheChosenFile) {
    host.run({L"SAVE", text("a.dxf"), L"CLOSE"});
    host.front().choose(text("a.dxf"));

    host.run({L"OPEN", L""});

    EXPECT_EQ(host.document().path(), file("a.dxf"));
}

TEST_F(FileCommands, EnterAtOpenWithNothingChosenIsCancelled) {
    host.front().choose(std::nullopt);

    EXPECT_EQ(host.run({L"OPEN", L""}).kind, Kind::Cancelled);
}

TEST_F(FileCommands, EnterAtOpenInAScriptChoosesNoFile) {
    host.front().choose(text("a.dxf"));

    host.runScript("OPEN\n\n");

    EXPECT_FALSE(host.front().shows(L"a.dxf"));
}

TEST_F(FileCommands, CloseWithYesSavesFirst) {
    host.run({L"SAVE", text("a.dxf")});
    drawLine();

    host.run({L"CLOSE", L"Y"});

    EXPECT_TRUE(host.session().documents().all().empty());
    EXPECT_NE(contentOf(file("a.dxf")).find("AcDbLine\n"), std::string::npos);
}

TEST_F(FileCommands, CloseWithNoLeavesTheFile) {
    host.run({L"SAVE", text("a.dxf")});
    drawLine();

    host.run({L"CLOSE", L"N"});

    EXPECT_TRUE(host.session().documents().all().empty());
    EXPECT_EQ(contentOf(file("a.dxf")).find("AcDbLine\n"), std::string::npos);
}

TEST_F(FileCommands, CloseWithEscKeepsTheDrawing) {
    drawLine();

    EXPECT_EQ(host.run({L"CLOSE", L"^C"}).kind, Kind::Cancelled);
    EXPECT_EQ(host.session().documents().all().size(), 1U);
}

TEST_F(FileCommands, QuitWithYesEndsTheProgram) {
    drawLine();

    host.run({L"QUIT", L"Y"});

    EXPECT_TRUE(host.session().processor().quitRequested());
}

TEST_F(FileCommands, QuitWithEnterStays) {
    drawLine();

    EXPECT_EQ(host.run({L"QUIT", L""}).kind, Kind::Failed);
    EXPECT_FALSE(host.front().shows(L"*取消*"));
    EXPECT_FALSE(host.session().processor().quitRequested());
}

TEST_F(FileCommands, QuitOfASavedDrawingAsksNothing) {
    host.run({L"QUIT"});

    EXPECT_TRUE(host.session().processor().quitRequested());
}

TEST_F(FileCommands, QuitOfAScriptAsksNothing) {
    drawLine();

    host.runScript("QUIT\n");

    EXPECT_TRUE(host.session().processor().quitRequested());
}

TEST_F(FileCommands, ScriptRunsTheCommandsOfAFile) {
    std::ofstream(file("two lines.scr")) << "LINE 0,0 1,1\n\nLINE 0,0 2,2\n\n";

    host.run({L"SCRIPT", text("two lines.scr")});

    EXPECT_EQ(host.document().drawing().journal().undoDepth(), 2U);
}

TEST_F(FileCommands, AScriptThatIsNotThereFailsAndSaysWhich) {
    const ed::Verdict verdict = host.run({L"SCRIPT", text("none.scr")});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_TRUE(host.front().shows(L"none.scr"));
}

TEST_F(FileCommands, AModuleThatIsNotThereFailsAndSaysWhich) {
    const ed::Verdict verdict = host.run({L"LOADMODULE", text("none.so")});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_TRUE(host.front().shows(L"none.so"));
}

} // namespace

} // namespace quor
