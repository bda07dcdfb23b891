// Webs of files: what is kept, what is read again, what is no web file at all.
#include "host/ies/web_cache.h"
#include "tests/host/dxf/scratch_folder.h"
#include "tests/host/ies/web_text.h"

#include <cerrno>
#include <chrono>

#include <sys/stat.h>

namespace quor::ies {
namespace {

namespace fs = std::filesystem;
using dxf::put;
using dxf::ScratchFolder;

const std::string kBright = WebText{.candela = "900 80 20\n"}.text();
const std::string kDim = WebText{.candela = "100 80 20\n"}.text(); // as long as the other

class WebCaching : public testing::Test {
protected:
    // The intensity straight down of the web in the file.
    double straightDown(const std::string& name) { return cache.load(folder / name).value()->web.candela.at(0); }

    // Other content with the time of change of the old one.
    void replaceUnnoticed(const std::string& name, const std::string& content) {
        const fs::file_time_type time = fs::last_write_time(folder / name);
        put(folder / name, content);
        fs::last_write_time(folder / name, time);
    }

    void makeLater(const std::string& name) {
        fs::last_write_time(folder / name, fs::last_write_time(folder / name) + std::chrono::seconds(1));
    }

    ScratchFolder folder;
    WebCache cache{3};
};

TEST_F(WebCaching, GivesTheWebWithItsFlux) {
    put(folder / "a.ies", kDim);

    const auto file = cache.load(folder / "a.ies").value();

    EXPECT_EQ(file->web.candela.at(0), 100);
    EXPECT_EQ(file->flux, luminousFlux(file->web));
    EXPECT_GT(file->flux, 0);
}

TEST_F(WebCaching, GivesTheSameWebAgainWithoutReading) {
    put(folder / "a.ies", kDim);
    const auto first = cache.load(folder / "a.ies").value();
    replaceUnnoticed("a.ies", kBright);

    EXPECT_EQ(cache.load(folder / "a.ies").value(), first);
}

TEST_F(WebCaching, ReadsAFileWithAnotherTimeOfChangeAgain) {
    put(folder / "a.ies", kDim);
    (void)straightDown("a.ies");
    put(folder / "a.ies", kBright);
    makeLater("a.ies");

    EXPECT_EQ(straightDown("a.ies"), 900);
    EXPECT_EQ(cache.size(), 1U);
}

TEST_F(WebCaching, ReadsAFileOfAnotherSizeAgain) {
    put(folder / "a.ies", kDim);
    (void)straightDown("a.ies");
    replaceUnnoticed("a.ies", kBright + "\n");

    EXPECT_EQ(straightDown("a.ies"), 900);
}

TEST_F(WebCaching, ReadsAnotherFileUnderTheSameNameAgain) {
    put(folder / "a.ies", kDim);
    put(folder / "b.ies", kBright);
    (void)straightDown("a.ies");
    fs::last_write_time(folder / "b.ies", fs::last_write_time(folder / "a.ies"));
    fs::rename(folder / "b.ies", folder / "a.ies");

    EXPECT_EQ(straightDown("a.ies"), 900);
}

TEST_F(WebCaching, WebInUseOutlivesItsFile) {
    put(folder / "a.ies", kDim);
    const auto inUse = cache.load(folder / "a.ies").value();
    fs::remove(folder / "a.ies");

    EXPECT_EQ(cache.load(folder / "a.ies").error().kind, Error::Kind::NotFound);
    EXPECT_EQ(cache.size(), 0U);
    EXPECT_EQ(inUse->web.candela.at(0), 100);
}

TEST_F(WebCaching, DropsWhatWasNotUsedForTheLongestTime) {
    for (const char* name : {"a.ies", "b.ies", "c.ies", "d.ies"})
        put(folder / name, kDim);
    for (const char* name : {"a.ies", "b.ies", "c.ies", "a.ies", "d.ies"})
        (void)straightDown(name);
    replaceUnnoticed("a.ies", kBright);
    replaceUnnoticed("b.ies", kBright);

    EXPECT_EQ(cache.size(), 3U);
    EXPECT_EQ(straightDown("a.ies"), 100) << "used again in between";
    EXPECT_EQ(straightDown("b.ies"), 900);
    EXPECT_EQ(cache.size(), 3U);
}

TEST_F(WebCaching, KeepsLessOfLargeFiles) {
    std::string large = kDim;
    large.resize(kMostBytes, ' ');
    for (const char* name : {"a.ies", "b.ies", "c.ies"}) {
        put(folder / name, large);
        (void)straightDown(name);
    }

    EXPECT_EQ(cache.size(), 2U);
}

TEST_F(WebCaching, RemembersWhatIsWrongInAFile) {
    std::string broken = kDim;
    broken.replace(broken.find("100 80"), 6, "100 x0");
    put(folder / "a.ies", broken);
    EXPECT_EQ(cache.load(folder / "a.ies").error().kind, Error::Kind::BadNumber);
    replaceUnnoticed("a.ies", kDim);

    const Error again = cache.load(folder / "a.ies").error();

    EXPECT_EQ(again.kind, Error::Kind::BadNumber);
    EXPECT_EQ(again.line, 9U);
    EXPECT_EQ(again.excerpt, L"x0");
}

TEST_F(WebCaching, ReadsAFileThatWasMended) {
    put(folder / "a.ies", "no web");
    EXPECT_EQ(cache.load(folder / "a.ies").error().kind, Error::Kind::NoTilt);
    put(folder / "a.ies", kDim);

    EXPECT_EQ(straightDown("a.ies"), 100);
    EXPECT_EQ(cache.size(), 1U);
}

TEST_F(WebCaching, LargeBrokenFilesTakeNoPlaceFromSoundOnes) {
    put(folder / "a.ies", kDim);
    (void)straightDown("a.ies");
    for (const char* name : {"b.ies", "c.ies"}) {
        put(folder / name, std::string(kMostBytes, 'x'));
        EXPECT_EQ(cache.load(folder / name).error().kind, Error::Kind::NoTilt);
    }
    replaceUnnoticed("a.ies", kBright);

    EXPECT_EQ(straightDown("a.ies"), 100) << "still the one in memory";
}

TEST_F(WebCaching, FileThatBecomesBadIsRefused) {
    put(folder / "a.ies", kDim);
    (void)straightDown("a.ies");
    put(folder / "a.ies", "no web");

    EXPECT_EQ(cache.load(folder / "a.ies").error().kind, Error::Kind::NoTilt);
}

TEST_F(WebCaching, ThatAFileCannotBeOpenedIsNotRemembered) {
    EXPECT_EQ(cache.load(folder / "a.ies").error().kind, Error::Kind::NotFound);
    EXPECT_EQ(cache.size(), 0U);
}

TEST_F(WebCaching, LinkThatLeadsToItselfIsRefusedWithTheReason) {
    fs::create_symlink(folder / "a.ies", folder / "a.ies");

    const Error error = cache.load(folder / "a.ies").error();

    EXPECT_EQ(error.kind, Error::Kind::Unreadable);
    EXPECT_EQ(error.systemError, ELOOP);
}

TEST_F(WebCaching, FileThatIsNotThere) {
    EXPECT_EQ(cache.load(folder / "a.ies").error().kind, Error::Kind::NotFound);
    EXPECT_EQ(cache.load("").error().kind, Error::Kind::NotFound);
    put(folder / "file", kDim);
    EXPECT_EQ(cache.load(folder / "file/a.ies").error().kind, Error::Kind::NotFound);
}

TEST_F(WebCaching, FolderIsRefused) {
    const Error error = cache.load(folder / "").error();

    EXPECT_EQ(error.kind, Error::Kind::Unreadable);
    EXPECT_EQ(error.systemError, EISDIR);
}

TEST_F(WebCaching, PipeIsRefusedWithoutWaiting) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);

    const Error error = cache.load(folder / "pipe").error();

    EXPECT_EQ(error.kind, Error::Kind::Unreadable);
    EXPECT_EQ(error.systemError, 0);
}

TEST_F(WebCaching, DeviceIsRefused) { EXPECT_EQ(cache.load("/dev/zero").error().kind, Error::Kind::Unreadable); }

TEST_F(WebCaching, FileOf16MegabytesIsReadAndOneByteMoreIsNot) {
    std::string large = kDim;
    large.resize(kMostBytes, ' ');
    put(folder / "a.ies", large);
    EXPECT_EQ(straightDown("a.ies"), 100);

    put(folder / "a.ies", large + " ");
    EXPECT_EQ(cache.load(folder / "a.ies").error().kind, Error::Kind::TooLarge);
}

TEST_F(WebCaching, LoadWebReadsAFileOnce) {
    put(folder / "a.ies", kDim);

    EXPECT_EQ(loadWeb(folder / "a.ies").value(), loadWeb(folder / "a.ies").value());
}

} // namespace
} // namespace quor::ies
