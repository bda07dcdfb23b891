#include "sdk/ed/find_file.h"

#include "host/ed/support_files.h"
#include "host/sys/path_text.h"
#include "host/sys/system_variables.h"
#include "tests/support/test_session.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

namespace quor {
namespace {

namespace fs = std::filesystem;

// A host whose places for support files are folders of its own; the working folder and HOME are put back.
class FindFile : public testing::Test {
protected:
    FindFile() : before_(fs::current_path()), home_(std::getenv("HOME") != nullptr ? std::getenv("HOME") : "") {
        for (const char* folder : {"drawing", "working", "first", "second", "home", "share/webs"})
            fs::create_directories(root() / folder);
        fs::current_path(root() / "working");
        setenv("HOME", (root() / "home").c_str(), 1);
        session_.documents().newDocument();
    }
    ~FindFile() override {
        fs::current_path(before_);
        setenv("HOME", home_.c_str(), 1);
    }

    [[nodiscard]] const fs::path& root() const { return root_.path(); }
    fs::path make(const fs::path& name) const {
        const fs::path file = root() / name;
        fs::create_directories(file.parent_path());
        std::ofstream(file) << "x";
        return file;
    }
    void saveDrawing() { session_.documents().current()->setPath(root() / "drawing" / "a.dxf"); }
    void setSupportPath(const ZrString& folders) { session_.variables().set(L"SUPPORTPATH", folders); }
    [[nodiscard]] ZrString folder(const char* name) const { return textOf(root() / name); }
    [[nodiscard]] std::optional<fs::path> find(const ZrString& name) { return ed::findSupportFile(session_, name); }

    fs::path before_;
    std::string home_;
    test::TemporaryFolder root_;
    test::ScriptedFrontEnd front_;
    Session session_{front_,
                     {.settingsFile = root_.path() / "settings.ini",
                      .resourceFolder = root_.path() / "share",
                      .moduleFolders = {},
                      .language = {}}};
};

TEST_F(FindFile, TheFoldersAreLookedAtInTheirOrder) {
    saveDrawing();
    setSupportPath(folder("first") + L";" + folder("second"));
    const fs::path files[] = {make("drawing/a.ies"), make("working/a.ies"), make("first/a.ies"), make("second/a.ies"),
                              make("share/webs/a.ies")};

    EXPECT_EQ(find(L"a.ies"), files[0]);
    fs::remove(files[0]);
    EXPECT_EQ(find(L"a.ies"), files[1]);
    fs::remove(files[1]);
    EXPECT_EQ(find(L"a.ies"), files[2]);
    fs::remove(files[2]);
    EXPECT_EQ(find(L"a.ies"), files[3]);
    fs::remove(files[3]);
    EXPECT_EQ(find(L"a.ies"), files[4]);
    fs::remove(files[4]);
    EXPECT_EQ(find(L"a.ies"), std::nullopt);
}

TEST_F(FindFile, ADrawingThatWasNeverSavedHasNoFolder) {
    make("drawing/a.ies");

    EXPECT_EQ(find(L"a.ies"), std::nullopt);
    EXPECT_EQ(ed::supportFolders(session_), (std::vector{root() / "working", root() / "share" / "webs"}));
}

TEST_F(FindFile, WithoutADrawingTheOtherFoldersAreLookedAt) {
    session_.documents().closeAll();
    const fs::path file = make("working/a.ies");

    EXPECT_EQ(find(L"a.ies"), file);
}

TEST_F(FindFile, EmptyAndBlankFoldersOfSupportPathAreSkipped) {
    setSupportPath(L"; ;;\t;" + folder("first") + L"; " + folder("second") + L" ;");

    EXPECT_EQ(ed::supportFolders(session_),
              (std::vector{root() / "working", root() / "first", root() / "second", root() / "share" / "webs"}));
}

TEST_F(FindFile, AFolderOfSupportPathThatIsNotThereIsPassedOver) {
    setSupportPath(folder("none") + L";" + folder("second"));
    const fs::path file = make("second/a.ies");

    EXPECT_EQ(find(L"a.ies"), file);
}

TEST_F(FindFile, RelativeFoldersOfSupportPathStartAtTheWorkingFolder) {
    setSupportPath(L"lamps;../second");
    const fs::path inLamps = make("working/lamps/a.ies");
    const fs::path inSecond = make("second/b.ies");

    EXPECT_EQ(find(L"a.ies"), inLamps);
    EXPECT_EQ(find(L"b.ies"), inSecond);
}

TEST_F(FindFile, ATildeBeforeASlashInSupportPathIsTheHomeFolder) {
    setSupportPath(L"~/lamps");
    const fs::path file = make("home/lamps/a.ies");

    EXPECT_EQ(find(L"a.ies"), file);
}

TEST_F(FindFile, ATildeInTheNameIsACharacterLikeAnyOther) {
    make("home/a.ies");

    EXPECT_EQ(find(L"~/a.ies"), std::nullopt);
}

TEST_F(FindFile, ANameWithFoldersIsLookedForBelowEachPlace) {
    const fs::path file = make("share/webs/street/a.ies");
    make("working/b.ies");

    EXPECT_EQ(find(L"street/a.ies"), file);
    EXPECT_EQ(find(L"street/b.ies"), std::nullopt);
}

TEST_F(FindFile, DotsAreTakenOutOfThePathThatIsFound) {
    const fs::path file = make("first/a.ies");

    EXPECT_EQ(find(L"./../first/a.ies"), file);
}

TEST_F(FindFile, DotsBehindALinkStayWhereTheyLeadElsewhere) {
    const fs::path file = make("first/a.ies");
    fs::create_directories(root() / "first" / "inner");
    fs::create_directory_symlink(root() / "first" / "inner", root() / "working" / "link");

    EXPECT_EQ(find(L"link/../a.ies"), root() / "working" / "link/../a.ies");
    EXPECT_TRUE(fs::equivalent(*find(L"link/../a.ies"), file));
}

TEST_F(FindFile, FoldersAreNoFiles) {
    fs::create_directories(root() / "working" / "a.ies");
    const fs::path file = make("share/webs/a.ies");

    EXPECT_EQ(find(L"a.ies"), file);
    EXPECT_EQ(find(L"."), std::nullopt);
    EXPECT_EQ(find(L".."), std::nullopt);
}

TEST_F(FindFile, AnAbsolutePathIsAnsweredAsItIsWhetherOrNotItExists) {
    make("working/tmp/a.ies");

    EXPECT_EQ(find(L"/none/../a.ies"), fs::path("/none/../a.ies"));
    EXPECT_EQ(find(L"/"), fs::path("/"));
}

TEST_F(FindFile, BlanksAndOtherScriptsBelongToNames) {
    const fs::path file = make("working/筒灯 A.ies");

    EXPECT_EQ(find(L"筒灯 A.ies"), file);
    EXPECT_EQ(find(L"筒灯 A.ies "), std::nullopt);
}

TEST_F(FindFile, ANameThatNoFileCanHaveIsNotFound) {
    EXPECT_EQ(find(L""), std::nullopt);
    EXPECT_EQ(find(ZrString(100000, L'a')), std::nullopt);
}

TEST_F(FindFile, AWorkingFolderThatIsGoneIsPassedOver) {
    fs::create_directories(root() / "gone");
    fs::current_path(root() / "gone");
    fs::remove(root() / "gone");
    const fs::path file = make("share/webs/a.ies");

    EXPECT_EQ(find(L"a.ies"), file);
}

TEST_F(FindFile, ANameMayAlsoBeThatOfAFolderWhereThereIsNoFile) {
    fs::create_directories(root() / "working" / "a.ies");

    EXPECT_EQ(ed::findSupportName(session_, L"a.ies"), root() / "working" / "a.ies");
    const fs::path file = make("share/webs/a.ies");
    EXPECT_EQ(ed::findSupportName(session_, L"a.ies"), file);
    EXPECT_EQ(ed::findSupportName(session_, L"b.ies"), std::nullopt);
}

TEST_F(FindFile, ALinkThatLeadsToItselfHasItsNameAndOneThatLeadsNowhereHasNot) {
    fs::create_symlink(root() / "working" / "a.ies", root() / "working" / "a.ies");
    fs::create_symlink(root() / "nowhere", root() / "working" / "b.ies");

    EXPECT_EQ(find(L"a.ies"), std::nullopt);
    EXPECT_EQ(ed::findSupportName(session_, L"a.ies"), root() / "working" / "a.ies");
    EXPECT_EQ(ed::findSupportName(session_, L"b.ies"), std::nullopt);
}

TEST_F(FindFile, ANameThatNothingCanHaveIsNotFoundEither) {
    EXPECT_EQ(ed::findSupportName(session_, L""), std::nullopt);
    EXPECT_EQ(ed::findSupportName(session_, ZrString(100000, L'a')), std::nullopt);
}

TEST_F(FindFile, AKeptAbsolutePathStandsForItselfWhileSomethingIsThere) {
    const fs::path kept = make("first/a.ies");
    const fs::path byName = make("working/a.ies");

    EXPECT_EQ(ed::findKeptFile(session_, textOf(kept)), kept);
    fs::remove(kept);
    EXPECT_EQ(ed::findKeptFile(session_, textOf(kept)), byName);
    fs::create_directories(kept);
    EXPECT_EQ(ed::findKeptFile(session_, textOf(kept)), kept) << "reading it tells what is wrong";
}

TEST_F(FindFile, AKeptRelativePathIsLookedForAsAWholeFirst) {
    saveDrawing();
    const fs::path byName = make("drawing/a.ies");
    const fs::path whole = make("share/webs/lamps/a.ies");

    EXPECT_EQ(ed::findKeptFile(session_, L"lamps/a.ies"), whole);
    fs::remove(whole);
    EXPECT_EQ(ed::findKeptFile(session_, L"lamps/a.ies"), byName);
    fs::remove(byName);
    EXPECT_EQ(ed::findKeptFile(session_, L"lamps/a.ies"), std::nullopt);
}

TEST_F(FindFile, AKeptRelativePathStartsAtTheDrawingBeforeTheWorkingFolder) {
    saveDrawing();
    const fs::path atDrawing = make("drawing/lamps/a.ies");
    const fs::path atWork = make("working/lamps/a.ies");

    EXPECT_EQ(ed::findKeptFile(session_, L"lamps/a.ies"), atDrawing);
    fs::remove(atDrawing);
    EXPECT_EQ(ed::findKeptFile(session_, L"lamps/a.ies"), atWork);
}

TEST_F(FindFile, AKeptPathWithBackslashesIsLookedForByItsLastName) {
    const fs::path file = make("working/a.ies");

    EXPECT_EQ(ed::findKeptFile(session_, L"C:\\lamps\\a.ies"), file);
    EXPECT_EQ(ed::findKeptFile(session_, L"lamps\\a.ies"), file);
    EXPECT_EQ(ed::findKeptFile(session_, L"lamps/old\\a.ies"), file);
    EXPECT_EQ(ed::findKeptFile(session_, L"C:\\lamps\\"), std::nullopt);
}

TEST_F(FindFile, AKeptRelativePathWithBackslashesIsFoundInItsFolder) {
    make("working/a.ies");
    const fs::path file = make("working/lamps/a.ies");

    EXPECT_EQ(ed::findKeptFile(session_, L"lamps\\a.ies"), file);
}

TEST_F(FindFile, AKeptNameOfAFolderOnlyIsAnsweredSoThatReadingItTellsWhatIsWrong) {
    fs::create_directories(root() / "working" / "a.ies");

    EXPECT_EQ(ed::findKeptFile(session_, L"a.ies"), root() / "working" / "a.ies");
    EXPECT_EQ(ed::findKeptFile(session_, L"/none/a.ies"), std::nullopt);
    EXPECT_EQ(ed::findKeptFile(session_, L""), std::nullopt);
}

TEST_F(FindFile, TheInterfaceAnswersTheFullPath) {
    const fs::path file = make("working/a.ies");
    ZrString found;

    EXPECT_EQ(zredFindFile(L"a.ies", found), RTNORM);
    EXPECT_EQ(found, textOf(file));
}

TEST_F(FindFile, TheInterfaceLeavesTheAnswerAloneWhereNothingIsFound) {
    ZrString found = L"before";

    EXPECT_EQ(zredFindFile(L"none.ies", found), RTERROR);
    EXPECT_EQ(zredFindFile(L"", found), RTERROR);
    EXPECT_EQ(zredFindFile(nullptr, found), RTERROR);
    EXPECT_EQ(found, L"before");
}

TEST(FindFileWithoutAHost, NothingIsFound) {
    ZrString found = L"before";

    EXPECT_EQ(zredFindFile(L"a.ies", found), RTERROR);
    EXPECT_EQ(found, L"before");
}

} // namespace
} // namespace quor
