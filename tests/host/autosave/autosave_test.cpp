// Drawings with unsaved changes have a copy that is complete, and only as long as it is needed.
#include "host/autosave/autosave.h"

#include "host/autosave/recovery.h"
#include "host/sys/path_text.h"
#include "host/sys/system_variables.h"
#include "host/sys/utf8.h"
#include "host/sys/whole_file.h"
#include "tests/support/test_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace quor::autosave {
namespace {

namespace fs = std::filesystem;
using quor::test::TemporaryFolder;
using quor::test::TestSession;
using testing::IsEmpty;
using testing::SizeIs;

class AutosaveTest : public testing::Test {
protected:
    [[nodiscard]] std::vector<fs::path> copies() const {
        std::vector<fs::path> found;
        if (!fs::exists(folder()))
            return found;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder()))
            if (entry.path().extension() == ".dxf")
                found.push_back(entry.path());
        return found;
    }
    [[nodiscard]] fs::path folder() const { return state_.path() / "quor/autosave"; }
    [[nodiscard]] static std::string bytes(const fs::path& file) { return readWholeFile(file, 1 << 24).valueOr(""); }
    [[nodiscard]] std::string savedBytes() { return test_.document().drawing().toBytes().valueOr(""); }
    void drawLine() { test_.run({L"LINE", L"0,0", L"10,10", L""}); }
    void saveTo(const fs::path& file) { test_.run({L"SAVEAS", textOf(file)}); }

    TemporaryFolder state_;
    TestSession test_;
    double now_ = 100;
    Autosave autosave_{test_.session(), folder(), [this] { return now_; }};
};

TEST_F(AutosaveTest, AChangedDrawingIsCopiedAsASaveWouldWriteIt) {
    drawLine();
    autosave_.tick();
    ASSERT_THAT(copies(), SizeIs(1));
    EXPECT_EQ(bytes(copies()[0]), savedBytes());
}

TEST_F(AutosaveTest, ADrawingWithoutChangesLeavesNothingOnTheDisk) {
    autosave_.tick();
    EXPECT_FALSE(fs::exists(folder()));
}

TEST_F(AutosaveTest, TheDrawingCountsAsModifiedAfterwards) {
    drawLine();
    autosave_.tick();
    EXPECT_TRUE(test_.document().isModified());
    EXPECT_TRUE(test_.document().path().empty());
}

TEST_F(AutosaveTest, TheNextCopyWaitsTwoSeconds) {
    drawLine();
    autosave_.tick();
    const std::string first = savedBytes();
    drawLine();
    now_ += 1.9;
    autosave_.tick();
    EXPECT_EQ(bytes(copies()[0]), first);
    now_ += 0.2;
    autosave_.tick();
    EXPECT_EQ(bytes(copies()[0]), savedBytes());
}

TEST_F(AutosaveTest, WithoutANewChangeTheCopyStaysAsItIs) {
    drawLine();
    autosave_.tick();
    const fs::file_time_type long_ago = fs::file_time_type::clock::now() - std::chrono::hours(1);
    fs::last_write_time(copies()[0], long_ago);
    now_ += 1000;
    autosave_.tick();
    EXPECT_EQ(fs::last_write_time(copies()[0]), long_ago);
}

TEST_F(AutosaveTest, NothingIsWrittenWhileACommandRuns) {
    test_.addCommand(L"WORK", [this] {
        drawLine();
        autosave_.tick();
        return 5100;
    });
    test_.run({L"WORK"});
    EXPECT_THAT(copies(), IsEmpty());
}

TEST_F(AutosaveTest, TheCopyGoesWhenTheDrawingIsSaved) {
    drawLine();
    autosave_.tick();
    saveTo(test_.folder() / "plan.dxf");
    autosave_.tick();
    EXPECT_THAT(copies(), IsEmpty());
}

TEST_F(AutosaveTest, TheCopyGoesWhenTheChangeIsUndone) {
    drawLine();
    autosave_.tick();
    test_.run({L"U"});
    autosave_.tick();
    EXPECT_THAT(copies(), IsEmpty());
}

TEST_F(AutosaveTest, TheCopyGoesWhenTheDrawingIsClosed) {
    drawLine();
    autosave_.tick();
    test_.session().documents().close(test_.document());
    EXPECT_THAT(copies(), IsEmpty());
}

TEST_F(AutosaveTest, EveryDrawingHasACopyOfItsOwn) {
    drawLine();
    test_.session().documents().newDocument();
    drawLine();
    autosave_.tick();
    EXPECT_THAT(copies(), SizeIs(2));
}

TEST_F(AutosaveTest, Savetime0TurnsItOff) {
    test_.session().variables().set(L"SAVETIME", short{0});
    drawLine();
    autosave_.tick();
    EXPECT_THAT(copies(), IsEmpty());
}

TEST_F(AutosaveTest, WhereItCannotWriteItSaysSoOnce) {
    std::ofstream(state_.path() / "quor") << "no folder";
    drawLine();
    autosave_.tick();
    const ZrString said = test_.front().screen();
    drawLine();
    now_ += 100;
    autosave_.tick();
    EXPECT_THAT(said, testing::HasSubstr(L"自动保存"));
    EXPECT_EQ(test_.front().screen().find(L"自动保存", said.size()), ZrString::npos);
}

TEST_F(AutosaveTest, AtTheEndOfTheProgramNothingIsLeft) {
    {
        Autosave other(test_.session(), folder());
        drawLine();
        other.tick();
        ASSERT_THAT(copies(), SizeIs(1));
    }
    EXPECT_THAT(copies(), IsEmpty());
}

TEST_F(AutosaveTest, WhenTheProgramIsMadeToEndTheCopiesStay) {
    {
        Autosave other(test_.session(), folder());
        drawLine();
        other.writeAllNow();
    }
    ASSERT_THAT(copies(), SizeIs(1));
    EXPECT_EQ(bytes(copies()[0]), savedBytes());
}

TEST_F(AutosaveTest, GoingOnAfterThatRemovesThemAtTheEndAsEver) {
    {
        Autosave other(test_.session(), folder());
        drawLine();
        other.writeAllNow();
        other.tick();
    }
    EXPECT_THAT(copies(), IsEmpty());
}

TEST_F(AutosaveTest, AtSuchAnEndTheRunningCommandIsCopiedAsFarAsItCame) {
    std::string asFarAsItCame;
    test_.addCommand(L"WORK", [&] {
        drawLine();
        asFarAsItCame = savedBytes();
        autosave_.writeAllNow();
        return 5100;
    });
    test_.run({L"WORK"});
    ASSERT_THAT(copies(), SizeIs(1));
    EXPECT_EQ(bytes(copies()[0]), asFarAsItCame);
}

TEST_F(AutosaveTest, WhileABlockIsEditedInPlaceTheCopyFromBeforeStays) {
    test_.run({L"OPEN", fromUtf8(QUOR_TEST_DATA "/dxf/own/luminaires.dxf")});
    drawLine();
    autosave_.tick();
    const std::string before = savedBytes();
    test_.run({L"REFEDIT", L"#60", L""});
    drawLine();
    now_ += 100;
    autosave_.tick();
    autosave_.writeAllNow();
    ASSERT_THAT(copies(), SizeIs(1));
    EXPECT_EQ(bytes(copies()[0]), before);
}

TEST_F(AutosaveTest, FoldersAreForTheUserAlone) {
    drawLine();
    autosave_.tick();
    EXPECT_EQ(fs::status(copies()[0].parent_path()).permissions(), fs::perms::owner_all);
}

} // namespace
} // namespace quor::autosave
