// Where a session takes colour books and the names of colours from.
#include "sdk/cm/color_services.h"

#include "host/session.h"
#include "host/sys/problem_report.h"
#include "tests/support/scripted_front_end.h"
#include "tests/support/test_session.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quor {
namespace {

class SessionColors : public testing::Test {
protected:
    void write(const std::string& name, const std::string& text) const {
        const std::filesystem::path file = folder_.path() / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
    }

    // What is installed is in "shared", what is the user's own in "own".
    [[nodiscard]] SessionOptions options(const ZrString& language = L"zh") const {
        return {.settingsFile = folder_.path() / "own" / "settings.ini",
                .resourceFolder = folder_.path() / "shared",
                .moduleFolders = {},
                .language = language};
    }

    static std::vector<ZrString> bookNames() {
        std::vector<ZrString> names;
        std::vector<ZrString> displayNames;
        EnumBookNames(names, displayNames);
        return names;
    }

    test::TemporaryFolder folder_;
    test::ScriptedFrontEnd front_;
};

TEST_F(SessionColors, BooksComeFromTheInstallationAndFromTheUser) {
    write("shared/colorbooks/a.book", "book = \"Installed\"\nink = 1,2,3\n");
    write("own/colorbooks/b.book", "book = \"Added\"\nsand = 4,5,6\n");
    const Session session(front_, options());

    EXPECT_EQ(bookNames(), (std::vector<ZrString>{L"Added", L"Installed"}));
    ZrCmColor color;
    EXPECT_EQ(zrcmGetColorFromColorBookName(color, L"added", L"Sand"), Quor::eOk);
    EXPECT_EQ(color.colorNameForDisplay(), L"Added$sand");
    EXPECT_EQ(front_.screen(), L"");
}

TEST_F(SessionColors, WithoutBooksNothingIsSaid) {
    const Session session(front_, options());

    EXPECT_EQ(bookNames(), std::vector<ZrString>{});
    EXPECT_EQ(front_.screen(), L"");
}

TEST_F(SessionColors, ABookThatIsAddedBeforeTheFirstUseIsFound) {
    const Session session(front_, options());
    write("own/colorbooks/late.book", "book = \"Late\"\nink = 1,2,3\n");

    EXPECT_EQ(bookNames(), std::vector<ZrString>{L"Late"});
}

TEST_F(SessionColors, ABrokenBookIsReportedOnceAndTheOthersCount) {
    write("shared/colorbooks/a.book", "book = \"Broken\"\nink = 1,2,256\n");
    write("shared/colorbooks/b.book", "book = \"Whole\"\nink = 1,2,3\n");
    const Session session(front_, options());
    EXPECT_EQ(front_.screen(), L"");

    EXPECT_EQ(bookNames(), std::vector<ZrString>{L"Whole"});
    EXPECT_EQ(bookNames(), std::vector<ZrString>{L"Whole"});

    EXPECT_EQ(front_.screen(), (folder_.path() / "shared/colorbooks/a.book").wstring() +
                                   L"，第 2 行: 颜色应为 r,g,b，每个数为 0 到 255 的整数。已忽略整个文件。");
}

TEST_F(SessionColors, ABrokenBookIsReportedToWhoeverTakesProblems) {
    write("own/colorbooks/a.book", "book = \"Broken\"\n");
    const Session session(front_, options(L"en"));
    std::vector<ZrString> told;
    setProblemReporter([&](const ZrString& message) { told.push_back(message); });

    EXPECT_EQ(bookNames(), std::vector<ZrString>{});
    EXPECT_EQ(bookNames(), std::vector<ZrString>{});

    ASSERT_EQ(told.size(), 1U);
    EXPECT_TRUE(told[0].ends_with(L"a.book: it contains no colors. It was ignored."));
    EXPECT_EQ(front_.screen(), L"");
}

TEST_F(SessionColors, AFileThatCannotBeReadTakesNoOtherBookAway) {
    write("shared/colorbooks/b.book", "book = \"Whole\"\nink = 1,2,3\n");
    std::filesystem::create_symlink("/proc/self/mem", folder_.path() / "shared/colorbooks/a.book");
    const Session session(front_, options(L"en"));

    EXPECT_EQ(bookNames(), std::vector<ZrString>{L"Whole"});
    EXPECT_EQ(front_.screen(), (folder_.path() / "shared/colorbooks/a.book").wstring() +
                                   L": the file cannot be read (input/output error on the device). It was ignored.");
}

TEST_F(SessionColors, ABrokenBookIsReportedInTheLanguageInUse) {
    write("own/colorbooks/a.book", "book = \"Broken\"\n");
    const Session session(front_, options(L"en"));

    EXPECT_EQ(bookNames(), std::vector<ZrString>{});

    EXPECT_EQ(front_.screen(),
              (folder_.path() / "own/colorbooks/a.book").wstring() + L": it contains no colors. It was ignored.");
}

TEST_F(SessionColors, ABookOfTheUserDoesNotReplaceTheInstalledOneOfItsName) {
    write("shared/colorbooks/a.book", "book = \"Inks\"\nink = 1,2,3\n");
    write("own/colorbooks/b.book", "book = \"INKS\"\nink = 4,5,6\n");
    const Session session(front_, options(L"en"));

    EXPECT_EQ(bookNames(), std::vector<ZrString>{L"Inks"});
    ZrCmColor color;
    EXPECT_EQ(zrcmGetColorFromColorBookName(color, L"Inks", L"ink"), Quor::eOk);
    EXPECT_EQ(color.rgb(), 0x010203U);
    EXPECT_EQ(front_.screen(), (folder_.path() / "own/colorbooks/b.book").wstring() +
                                   L": the color book \"Inks\" was already given by " +
                                   (folder_.path() / "shared/colorbooks/a.book").wstring() + L". It was ignored.");
}

TEST_F(SessionColors, TheBooksOfASessionEndWithIt) {
    write("shared/colorbooks/a.book", "book = \"Installed\"\nink = 1,2,3\n");
    {
        const Session session(front_, options());
        EXPECT_EQ(bookNames(), std::vector<ZrString>{L"Installed"});
    }

    EXPECT_EQ(bookNames(), std::vector<ZrString>{});
}

TEST_F(SessionColors, NamesOfColoursComeFromTheLanguagePack) {
    write("shared/lang/en/quorcmdres.txt", "6924 = \"Scarlet\"\n6930 = \"Snow\"\n");
    const Session session(front_, options(L"en"));

    EXPECT_EQ(ZrCmColor::fromIndex(1).colorNameForDisplay(), L"Scarlet");
    EXPECT_EQ(ZrCmColor::fromIndex(7).colorNameForDisplay(), L"Snow");
    ZrCmColor color;
    EXPECT_EQ(zrcmGetColorFromACIName(color, L"SCARLET"), Quor::eOk);
    EXPECT_EQ(color.colorIndex(), 1);
    EXPECT_EQ(zrcmGetColorFromACIName(color, L"white"), Quor::eOk);
    EXPECT_EQ(color.colorIndex(), 7);
}

TEST_F(SessionColors, ANameThatThePackDoesNotHaveIsTheHostsOwn) {
    write("shared/lang/en/quorcmdres.txt", "6924 = \"Scarlet\"\n");
    const Session session(front_, options(L"en"));

    EXPECT_EQ(ZrCmColor::fromIndex(2).colorNameForDisplay(), L"Yellow");
}

TEST_F(SessionColors, ThePackIsReadWhenTheFirstNameIsWanted) {
    const Session session(front_, options(L"en"));
    write("shared/lang/en/quorcmdres.txt", "6925 = \"Amber\"\n");

    EXPECT_EQ(ZrCmColor::fromIndex(2).colorNameForDisplay(), L"Amber");
}

TEST_F(SessionColors, NamesOfAPackEndWithTheSession) {
    write("shared/lang/en/quorcmdres.txt", "6924 = \"Scarlet\"\n");
    {
        const Session session(front_, options(L"en"));
        EXPECT_EQ(ZrCmColor::fromIndex(1).colorNameForDisplay(), L"Scarlet");
    }

    EXPECT_NE(ZrCmColor::fromIndex(1).colorNameForDisplay(), L"Scarlet");
}

} // namespace
} // namespace quor
