// What a program leaves behind that is killed is found, complete, and goes only with the person's will.
#include "host/autosave/recovery.h"

#include "host/autosave/autosave.h"
#include "host/sys/path_text.h"
#include "host/sys/whole_file.h"
#include "tests/support/test_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

namespace quor::autosave {
namespace {

namespace fs = std::filesystem;
using quor::test::TemporaryFolder;
using quor::test::TestSession;
using testing::IsEmpty;
using testing::SizeIs;

std::string bytes(const fs::path& file) { return readWholeFile(file, 1 << 24).valueOr(""); }

// A program that draws a line into a drawing, keeps what a save would have written, and is killed while it waits.
void runAndKill(const fs::path& folder, const fs::path& expected, const fs::path& drawing) {
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t program = ::fork();
    if (program == 0) {
        TestSession test;
        Autosave autosave(test.session(), folder);
        if (!drawing.empty())
            test.run({L"SAVEAS", textOf(drawing)});
        test.run({L"LINE", L"1,2", L"3,4,5", L""});
        autosave.tick();
        std::ofstream(expected) << test.document().drawing().toBytes().valueOr("");
        (void)!::write(ready[1], "r", 1);
        ::pause();
    }
    char byte = 0;
    ASSERT_EQ(::read(ready[0], &byte, 1), 1);
    ::kill(program, SIGKILL);
    ::waitpid(program, nullptr, 0);
    ::close(ready[0]);
    ::close(ready[1]);
}

class RecoveryTest : public testing::Test {
protected:
    void leave(const fs::path& drawing = {}) { runAndKill(folder(), scratch_.path() / "expected", drawing); }
    [[nodiscard]] fs::path folder() const { return scratch_.path() / "autosave"; }
    [[nodiscard]] std::string expected() const { return bytes(scratch_.path() / "expected"); }

    TemporaryFolder scratch_;
};

TEST_F(RecoveryTest, TheCopyOfAKilledProgramIsComplete) {
    leave();
    const Recovery recovery(folder());
    ASSERT_THAT(recovery.copies(), SizeIs(1));
    EXPECT_EQ(bytes(recovery.copies()[0].file.drawing()), expected());
    EXPECT_EQ(recovery.copies()[0].size, expected().size());
}

TEST_F(RecoveryTest, ItIsKnownWhereACopyBelongs) {
    leave(scratch_.path() / "平面 plan.dxf");
    const Recovery recovery(folder());
    ASSERT_THAT(recovery.copies(), SizeIs(1));
    EXPECT_EQ(recovery.copies()[0].info.path, textOf(scratch_.path() / "平面 plan.dxf"));
    EXPECT_EQ(recovery.copies()[0].info.title, L"平面 plan.dxf");
    EXPECT_GT(recovery.copies()[0].info.time, 0);
}

TEST_F(RecoveryTest, NothingIsFoundWhereNoProgramWasKilled) { EXPECT_THAT(Recovery(folder()).copies(), IsEmpty()); }

TEST_F(RecoveryTest, TheCopiesOfARunningProgramAreItsOwn) {
    TestSession test;
    Autosave running(test.session(), folder());
    test.run({L"LINE", L"0,0", L"1,1", L""});
    running.tick();
    EXPECT_THAT(Recovery(folder()).copies(), IsEmpty());
}

TEST_F(RecoveryTest, WhatOneProgramOffersNoOtherOneDoes) {
    leave();
    const Recovery first(folder());
    EXPECT_THAT(first.copies(), SizeIs(1));
    EXPECT_THAT(Recovery(folder()).copies(), IsEmpty());
}

TEST_F(RecoveryTest, WhatIsLeftForLaterIsFoundAgain) {
    leave();
    { const Recovery later(folder()); }
    EXPECT_THAT(Recovery(folder()).copies(), SizeIs(1));
}

TEST_F(RecoveryTest, WhatIsDiscardedIsGoneWithItsFolder) {
    leave();
    {
        const Recovery recovery(folder());
        Recovery::discard(recovery.copies()[0]);
    }
    EXPECT_TRUE(fs::is_empty(folder()));
}

class RecoveredTest : public RecoveryTest {
protected:
    // The program that is killed, then the one that recovers.
    void leave(const fs::path& drawing = {}) {
        RecoveryTest::leave(drawing);
        test_.emplace(quor::test::TestSessionOptions{.newDrawing = false});
        autosave_.emplace(test_->session(), folder());
    }
    Document& recovered() {
        const Recovery recovery(folder());
        return **recovery.recover(test_->session(), *autosave_, recovery.copies().at(0));
    }
    // All that later programs would find.
    [[nodiscard]] std::size_t copiesOnDisk() const {
        std::size_t count = 0;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder()))
            count += entry.path().extension() == ".dxf" ? 1 : 0;
        return count;
    }

    std::optional<TestSession> test_;
    std::optional<Autosave> autosave_;
};

TEST_F(RecoveredTest, ARecoveredDrawingHasUnsavedChangesUnderItsOwnPath) {
    leave(scratch_.path() / "plan.dxf");
    const Document& document = recovered();
    EXPECT_TRUE(document.isModified());
    EXPECT_EQ(document.path(), scratch_.path() / "plan.dxf");
    EXPECT_EQ(test_->session().documents().current(), &document);
}

TEST_F(RecoveredTest, OneThatWasNeverSavedKeepsItsName) {
    leave();
    const Document& document = recovered();
    EXPECT_TRUE(document.path().empty());
    EXPECT_EQ(document.fileName(), L"Drawing1");
}

TEST_F(RecoveredTest, SavingWritesToWhereItCameFrom) {
    leave(scratch_.path() / "plan.dxf");
    recovered();
    test_->run({L"SAVE"});
    EXPECT_EQ(bytes(scratch_.path() / "plan.dxf"), expected());
}

TEST_F(RecoveredTest, TheCopyStaysUntilTheDrawingIsSaved) {
    leave(scratch_.path() / "plan.dxf");
    recovered();
    EXPECT_EQ(copiesOnDisk(), 1U);
    autosave_->tick();
    EXPECT_EQ(copiesOnDisk(), 1U);
    test_->run({L"SAVE"});
    autosave_->tick();
    EXPECT_EQ(copiesOnDisk(), 0U);
}

TEST_F(RecoveredTest, TheCopyGoesWhenTheDrawingIsClosed) {
    leave();
    test_->session().documents().close(recovered());
    EXPECT_EQ(copiesOnDisk(), 0U);
}

TEST_F(RecoveredTest, UndoDoesNotMakeItUnmodified) {
    leave();
    Document& document = recovered();
    test_->run({L"LINE", L"0,0", L"1,1", L"", L"U"});
    EXPECT_TRUE(document.isModified());
}

TEST_F(RecoveredTest, BesideTheDrawingThatIsOpenItHasNoPath) {
    leave(scratch_.path() / "plan.dxf");
    test_->run({L"OPEN", textOf(scratch_.path() / "plan.dxf")});
    const Document& document = recovered();
    EXPECT_TRUE(document.path().empty());
    EXPECT_EQ(document.fileName(), L"plan.dxf");
}

TEST_F(RecoveredTest, OverAFileThatIsNewerItHasNoPath) {
    leave(scratch_.path() / "plan.dxf");
    fs::last_write_time(scratch_.path() / "plan.dxf", fs::file_time_type::clock::now() + std::chrono::minutes(1));
    const Document& document = recovered();
    EXPECT_TRUE(document.path().empty());
    EXPECT_EQ(document.fileName(), L"plan.dxf");
}

TEST_F(RecoveredTest, ACopyThatIsNoDrawingIsRefusedAndStays) {
    leave();
    {
        const Recovery recovery(folder());
        std::ofstream(recovery.copies()[0].file.drawing()) << "no drawing";
        EXPECT_FALSE(recovery.recover(test_->session(), *autosave_, recovery.copies()[0]).ok());
    }
    EXPECT_THAT(Recovery(folder()).copies(), SizeIs(1));
}

TEST_F(RecoveredTest, ACopyThatLostItsInfoIsStillOffered) {
    leave();
    {
        const Recovery recovery(folder());
        fs::remove(recovery.copies()[0].file.info());
    }
    const Recovery recovery(folder());
    ASSERT_THAT(recovery.copies(), SizeIs(1));
    EXPECT_EQ(recovery.copies()[0].info.title, L"1.dxf");
}

} // namespace
} // namespace quor::autosave
