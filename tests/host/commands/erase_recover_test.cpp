#include "host/sys/utf8.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

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
    ZrString write(std::initializer_list<const char*> parts) {
        const std::filesystem::path path = host.folder() / "a.dxf";
        std::ofstream file(path, std::ios::binary);
        for (const char* part : parts)
            file << part;
        return fromUtf8(path.native());
    }

    test::TestSession host;
};

TEST_F(WithFile, EraseLeavesObjectsOnLockedLayersAndSaysHowMany) {
    const ZrString path = write({kLockedLayer, kEntities, kEnd});

    const ed::Verdict verdict = host.run({L"OPEN", path, L"ERASE", L"ALL", L""});

    EXPECT_EQ(verdict.kind, Kind::Done);
    EXPECT_TRUE(host.front().shows(L"已删除 1 个对象"));
    EXPECT_TRUE(host.front().shows(L"1 个对象在锁定的图层上"));
}

TEST_F(WithFile, EraseOfNothingButLockedObjectsFails) {
    const ZrString path = write({kLockedLayer, kEntities, kEnd});

    const ed::Verdict verdict = host.run({L"OPEN", path, L"ERASE", L"#2A", L""});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_FALSE(host.document().isModified());
}

TEST_F(WithFile, OpenRefusesADrawingThatBreaksOff) {
    const ZrString path = write({kEntities});

    const ed::Verdict verdict = host.run({L"OPEN", path});

    EXPECT_EQ(verdict.kind, Kind::Failed);
    EXPECT_TRUE(host.front().shows(L"RECOVER"));
}

// The file ends between two tags, and nothing says that its last object was longer.
TEST_F(WithFile, RecoverOpensWhatIsWholeAndListsWhatWasWrong) {
    const ZrString path = write({kEntities});

    const ed::Verdict verdict = host.run({L"RECOVER", path});

    EXPECT_EQ(verdict.kind, Kind::Done);
    EXPECT_TRUE(host.front().shows(L"2 个图元"));
    EXPECT_TRUE(host.front().shows(L"处问题"));
    EXPECT_FALSE(host.front().shows(L"未发现错误"));
}

TEST_F(WithFile, SavingARecoveredDrawingThatBreaksOffWritesItsEnd) {
    const ZrString path = write({kEntities});

    host.run({L"RECOVER", path, L"SAVE", L"CLOSE", L"OPEN", path});

    EXPECT_TRUE(host.front().shows(L"已打开"));
    EXPECT_FALSE(host.document().path().empty());
}

TEST_F(WithFile, SavingARecoveredDrawingUnderAnotherNameWritesItsEndToo) {
    const ZrString other = fromUtf8((host.folder() / "b.dxf").native());
    const ZrString path = write({kEntities});

    host.run({L"RECOVER", path, L"SAVEAS", other, L"CLOSE"});
    const ed::Verdict verdict = host.run({L"OPEN", other});

    EXPECT_EQ(verdict.kind, Kind::Done);
}

TEST_F(WithFile, SavingARecoveredDrawingThatLacksOnlyItsEndMarkerAddsJustThat) {
    const ZrString path = write({kEntities, "  0\nENDSEC\n"});

    host.run({L"RECOVER", path, L"SAVE"});

    std::ifstream in(host.folder() / "a.dxf", std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(in), {}};
    EXPECT_EQ(content.compare(0, content.npos, std::string(kEntities).append(kEnd)), 0) << content;
}

// The console saves a recovered drawing in this way: without a change it stays as it came.
TEST_F(WithFile, ARecoveredDrawingIsSavedAsItCameUnlessItIsToBeMended) {
    const auto drawing = db::Database::fromBytes(kEntities, {.recover = true, .progress = {}});
    ASSERT_TRUE(drawing.ok());

    EXPECT_EQ(drawing.value()->toBytes().value(), kEntities);
}

TEST_F(WithFile, OpenSaysThatAnOldDrawingCannotHoldLights) {
    const ZrString path = write({kEntities, kEnd});

    host.run({L"OPEN", path});

    EXPECT_TRUE(host.front().shows(L"AC1009 版本的图形不能包含光源"));
}

TEST_F(WithFile, OpenOfADrawingThatCanHoldLightsSaysNothingOfThem) {
    const ZrString path = write({"  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  0\nENDSEC\n", "  0\nEOF\n"});

    host.run({L"OPEN", path});

    EXPECT_TRUE(host.front().shows(L"已打开"));
    EXPECT_FALSE(host.front().shows(L"不能包含光源"));
}

TEST_F(WithFile, ControlCharactersInTextsOfADrawingAreSpelledOutInList) {
    const ZrString path =
        write({"  0\nSECTION\n  2\nENTITIES\n  0\nTEXT\n  5\n2A\n  8\n0\n  1\na\x1B]0;b\x07\n", kEnd});

    host.run({L"OPEN", path, L"LIST", L"#2A", L""});

    EXPECT_TRUE(host.front().shows(L"a^[]0;b^G"));
    EXPECT_FALSE(host.front().shows(L"\x1B"));
}

} // namespace

} // namespace quor
