#include "host/dxf/file_saver.h"

#include "host/dxf/image.h"
#include "tests/host/dxf/scratch_folder.h"

#include <algorithm>
#include <cerrno>
#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/stat.h>
#include <vector>

namespace quor::dxf {
namespace {

namespace fs = std::filesystem;

// No file may grow beyond a few bytes while this lives: stands for a full disk.
class TinyDisk {
public:
    explicit TinyDisk(rlim_t size) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{size, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    TinyDisk(const TinyDisk&) = delete;
    TinyDisk& operator=(const TinyDisk&) = delete;
    ~TinyDisk() { ::setrlimit(RLIMIT_FSIZE, &before_); }

private:
    rlimit before_{};
};

mode_t modeOf(const fs::path& path) {
    struct stat status {};
    ::stat(path.c_str(), &status);
    return status.st_mode & 07777;
}

TEST(SaveAtomically, MakesANewFileAndNothingElse) {
    const ScratchFolder folder;
    EXPECT_TRUE(saveAtomically(folder / "plan.dxf", {"ab", "", "c"}).ok());
    EXPECT_EQ(contentOf(folder / "plan.dxf"), "abc");
    EXPECT_EQ(folder.fileCount(), 1U);
}

TEST(SaveAtomically, MayWriteNothing) {
    const ScratchFolder folder;
    EXPECT_TRUE(saveAtomically(folder / "plan.dxf", {}).ok());
    EXPECT_EQ(contentOf(folder / "plan.dxf"), "");
}

TEST(SaveAtomically, KeepsThePreviousVersionEachTime) {
    const ScratchFolder folder;
    put(folder / "plan.dxf", "one");
    EXPECT_TRUE(saveAtomically(folder / "plan.dxf", {"two"}).ok());
    EXPECT_EQ(contentOf(folder / "plan.bak"), "one");
    EXPECT_TRUE(saveAtomically(folder / "plan.dxf", {"three"}).ok());
    EXPECT_EQ(contentOf(folder / "plan.dxf"), "three");
    EXPECT_EQ(contentOf(folder / "plan.bak"), "two");
    EXPECT_EQ(folder.fileCount(), 2U);
}

TEST(SaveAtomically, KeepsNoPreviousVersionWhenNotAsked) {
    const ScratchFolder folder;
    put(folder / "plan.dxf", "one");
    EXPECT_TRUE(saveAtomically(folder / "plan.dxf", {"two"}, {false}).ok());
    EXPECT_EQ(contentOf(folder / "plan.dxf"), "two");
    EXPECT_EQ(folder.fileCount(), 1U);
}

TEST(SaveAtomically, WritesThousandsOfSegmentsInOrder) {
    const ScratchFolder folder;
    const std::string pieces = std::string(5000, 'a') + std::string(5000, 'b');
    Segments segments;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        segments.push_back(std::string_view(pieces).substr(i, 1));
    }
    EXPECT_TRUE(saveAtomically(folder / "plan.dxf", segments).ok());
    EXPECT_EQ(contentOf(folder / "plan.dxf"), pieces);
}

TEST(SaveAtomically, TheFileThatWasReadMayBeTheTarget) {
    const ScratchFolder folder;
    put(folder / "plan.dxf", "0123456789");
    const auto image = Image::read(folder / "plan.dxf");
    ASSERT_TRUE(image.ok());
    PatchList patches;
    patches.insert(5, "x");
    EXPECT_TRUE(saveAtomically(folder / "plan.dxf", patches.segments(image->bytes())).ok());
    EXPECT_EQ(contentOf(folder / "plan.dxf"), "01234x56789");
}

TEST(SaveAtomically, TellsHowFarALongFileHasCome) {
    const ScratchFolder folder;
    const std::string large(std::size_t{40} << 20, 'x');
    std::vector<double> told;
    const SaveOptions options{.progress = [&](double share) { told.push_back(share); }};
    EXPECT_TRUE(saveAtomically(folder / "plan.dxf", {"a", large, "b"}, options).ok());
    EXPECT_EQ(fs::file_size(folder / "plan.dxf"), large.size() + 2);
    EXPECT_GE(told.size(), 3U);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_EQ(told.back(), 1);
}

TEST(SaveAtomically, KeepsPermissions) {
    const ScratchFolder folder;
    put(folder / "plan.dxf", "one");
    fs::permissions(folder / "plan.dxf", static_cast<fs::perms>(0640));
    EXPECT_TRUE(saveAtomically(folder / "plan.dxf", {"two"}).ok());
    EXPECT_EQ(modeOf(folder / "plan.dxf"), 0640U);
    EXPECT_EQ(modeOf(folder / "plan.bak"), 0640U);
}

TEST(SaveAtomically, FollowsLinksToTheFileTheyEndAt) {
    const ScratchFolder folder;
    fs::create_directory(folder / "real");
    put(folder / "real/plan.dxf", "one");
    fs::create_symlink("real/plan.dxf", folder / "first.dxf");
    fs::create_symlink(folder / "first.dxf", folder / "second.dxf");
    EXPECT_TRUE(saveAtomically(folder / "second.dxf", {"two"}).ok());
    EXPECT_TRUE(fs::is_symlink(folder / "second.dxf"));
    EXPECT_EQ(contentOf(folder / "real/plan.dxf"), "two");
    EXPECT_EQ(contentOf(folder / "real/plan.bak"), "one");
}

TEST(SaveAtomically, ALinkToNothingMakesTheFile) {
    const ScratchFolder folder;
    fs::create_symlink("plan.dxf", folder / "link.dxf");
    EXPECT_TRUE(saveAtomically(folder / "link.dxf", {"one"}).ok());
    EXPECT_EQ(contentOf(folder / "plan.dxf"), "one");
}

TEST(SaveAtomically, ALoopOfLinksIsRefused) {
    const ScratchFolder folder;
    fs::create_symlink("b.dxf", folder / "a.dxf");
    fs::create_symlink("a.dxf", folder / "b.dxf");
    const auto result = saveAtomically(folder / "a.dxf", {"one"});
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().step, SaveStep::Target);
    EXPECT_EQ(result.error().systemError, ELOOP);
}

TEST(SaveAtomically, AFolderIsNoTarget) {
    const ScratchFolder folder;
    fs::create_directory(folder / "plan.dxf");
    const auto result = saveAtomically(folder / "plan.dxf", {"one"});
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().step, SaveStep::Target);
    EXPECT_EQ(result.error().systemError, EISDIR);
    EXPECT_EQ(folder.fileCount(), 1U);
}

TEST(SaveAtomically, APathBelowAFileIsRefused) {
    const ScratchFolder folder;
    put(folder / "file", "x");
    const auto result = saveAtomically(folder / "file/plan.dxf", {"one"});
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().systemError, ENOTDIR);
}

TEST(SaveAtomically, AMissingFolderIsRefused) {
    const ScratchFolder folder;
    const auto result = saveAtomically(folder / "nowhere/plan.dxf", {"one"});
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().step, SaveStep::CreateTemp);
    EXPECT_EQ(result.error().systemError, ENOENT);
}

TEST(SaveAtomically, AFullDiskLeavesEverythingAsItWas) {
    const ScratchFolder folder;
    put(folder / "plan.dxf", "one");
    put(folder / "plan.bak", "zero");
    const std::string large(100'000, 'x');
    const TinyDisk disk(50'000);
    const auto result = saveAtomically(folder / "plan.dxf", {large});
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().step, SaveStep::Write);
    EXPECT_EQ(result.error().systemError, EFBIG);
    EXPECT_EQ(contentOf(folder / "plan.dxf"), "one");
    EXPECT_EQ(contentOf(folder / "plan.bak"), "zero");
    EXPECT_EQ(folder.fileCount(), 2U);
}

TEST(SaveAtomically, ABackupThatCannotBeKeptLeavesEverythingAsItWas) {
    const ScratchFolder folder;
    put(folder / "plan.dxf", "one");
    fs::create_directory(folder / "plan.bak");
    const auto result = saveAtomically(folder / "plan.dxf", {"two"});
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().step, SaveStep::Backup);
    EXPECT_EQ(contentOf(folder / "plan.dxf"), "one");
    EXPECT_EQ(folder.fileCount(), 2U);
}

TEST(SaveAtomically, NamesOfGreatestLengthWork) {
    const ScratchFolder folder;
    const std::string name = std::string(251, 'n') + ".dxf";
    put(folder / name, "one");
    EXPECT_TRUE(saveAtomically(folder / name, {"two"}).ok());
    EXPECT_EQ(contentOf(folder / name), "two");
}

TEST(BackupPath, TakesThePlaceOfTheExtension) {
    EXPECT_EQ(backupPath("a/plan.dxf"), "a/plan.bak");
    EXPECT_EQ(backupPath("a.b/plan"), "a.b/plan.bak");
    EXPECT_EQ(backupPath("plan.v2.dxf"), "plan.v2.bak");
    EXPECT_EQ(backupPath("plan.bak"), "plan.bak.bak");
}

// Gives the pieces one after the other, then the end.
std::function<std::string_view()> source(std::vector<std::string_view> pieces) {
    return [pieces = std::move(pieces), next = std::size_t{0}]() mutable {
        return next < pieces.size() ? pieces[next++] : std::string_view();
    };
}

TEST(SavePiecesAtomically, WritesThemInOrder) {
    const ScratchFolder folder;
    EXPECT_TRUE(savePiecesAtomically(folder / "lights.csv", source({"ab", "c", "def"})).ok());
    EXPECT_EQ(contentOf(folder / "lights.csv"), "abcdef");
    EXPECT_EQ(folder.fileCount(), 1U);
}

TEST(SavePiecesAtomically, LeavesTheOldFileOnAFullDisk) {
    const ScratchFolder folder;
    put(folder / "lights.csv", "old");
    const std::string large(5000, 'x');
    const TinyDisk disk(8000);
    const auto result = savePiecesAtomically(folder / "lights.csv", source({large, large}), {.keepBackup = false});
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().step, SaveStep::Write);
    EXPECT_EQ(contentOf(folder / "lights.csv"), "old");
    EXPECT_EQ(folder.fileCount(), 1U);
}

TEST(SavePiecesAtomically, LeavesTheOldFileWhenTheSourceThrows) {
    const ScratchFolder folder;
    put(folder / "lights.csv", "old");
    const auto broken = []() -> std::string_view { throw std::runtime_error("no more"); };
    EXPECT_THROW(static_cast<void>(savePiecesAtomically(folder / "lights.csv", broken)), std::runtime_error);
    EXPECT_EQ(contentOf(folder / "lights.csv"), "old");
    EXPECT_EQ(folder.fileCount(), 1U);
}

} // namespace
} // namespace quor::dxf
