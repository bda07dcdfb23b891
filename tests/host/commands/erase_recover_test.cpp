#include "host/sys/utf8.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <fstream>

namespace quor {

namespace {

using Kind = ed::Verdict::Kind;

constexpr const char* kLockedLayer = "  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nLAYER\n 70\n     1\n"
                                     "  0\nLAYER\n  2\nWalls\n 70\n     4\n 62\n     7\n  6\nCONTINUOUS\n"
                                     "  0\nENDTAB\n  0\nENDSEC\n";
constexpr const char* kEntities = "  0\nSECTION\n  2\nENTITIES\n"
                                  "  0\nPOINT\n  5\n2A\n  8\nWalls\n 10\n1.0\n 20\n2.0\n 30\n0.0\n"
                                  "  0\nPOINT\n  5\n2B\n  8\n0\n 10\n1.0\n 20\n2.0\n 30\n0.0\n";
constexpr const char* kEnd = "  0\nENDSEC\n  0\nEOF\n";

class WithFile : public ::testing::Test {
protected:
    ZrString write(const std::string& content) {
        const std::filesystem::path path = host.folder() / "a.dxf";
        std::ofstream(path, std::ios::binary) << content;
        return fromUtf8(path.native());
    }

    test::TestSession host;
};

TEST_F(WithFile, EraseLeavesObjectsOnLockedLayersAndSaysHowMany) {
    const ZrString path = write(std::string(kLockedLayer) + kEntities + kEnd);

    const ed::Verdict verdict = host.run({L"OPEN", path, L"ERASE", L"ALL", L""});

    EXPECT_EQ(verdict.kind, Kind::Done);
    EXPECT_TRUE(host.front().shows(L"已删除 1 个对象"));
    EXPECT_TRUE(host.front().shows(L"1 个对象在锁定的图层上"));
}

TEST_F(WithFile, EraseOfNothingButLockedObjectsFails) {
    const ZrString path = write(std::string(kLockedLayer) + kEntities + kEnd);

    const ed::Verdict verdict = host.run({L"OPEN", path, L"ERASE", L"#2A", L""});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_FALSE(host.document().isModified());
}

TEST_F(WithFile, OpenRefusesADrawingThatBreaksOff) {
    const ZrString path = write(kEntities);

    const ed::Verdict verdict = host.run({L"OPEN", path});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_TRUE(host.front().shows(L"RECOVER"));
}

// The last object may have been longer, so it is not whole.
TEST_F(WithFile, RecoverOpensWhatIsWholeAndListsWhatWasWrong) {
    const ZrString path = write(kEntities);

    const ed::Verdict verdict = host.run({L"RECOVER", path});

    EXPECT_EQ(verdict.kind, Kind::Done);
    EXPECT_TRUE(host.front().shows(L"1 个图元"));
    EXPECT_TRUE(host.front().shows(L"处问题"));
    EXPECT_FALSE(host.front().shows(L"未发现错误"));
}

} // namespace

} // namespace quor
