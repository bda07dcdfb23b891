// Handles are taken by what changes the drawing, never by a save.
#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

using namespace drawings;

const std::string kRoot = "0\nDICTIONARY\n5\nC\n330\n0\n100\nAcDbDictionary\n";
const std::string kBareLight = "0\nLIGHT\n5\n20\n" + kLightTags;

struct StableHandles : testing::TestWithParam<std::string> {
    std::unique_ptr<Database> database =
        parsed(drawing("AC1021", {"9\n$HANDSEED\n5\n30\n", "", "", kBareLight, GetParam()}));
};

TEST_P(StableHandles, LightTakenBackLeavesTheVariableAsItWasSaved) {
    database->setDictionaryVariable(L"LIGHTINGUNITS", L"2");
    const std::string saved = bytesOf(*database);
    group(*database, L"POINTLIGHT", [&] { addLight(*database); });
    database->journal().undo();
    EXPECT_EQ(bytesOf(*database), saved);
}

TEST_P(StableHandles, SavingBeforeAVariableIsFollowedChangesNothing) {
    database->setDictionaryVariable(L"LIGHTINGUNITS", L"2");
    group(*database, L"POINTLIGHT", [&] { addLight(*database); });
    database->journal().undo();
    const std::string saved = bytesOf(*database);
    const auto other = parsed(drawing("AC1021", {"9\n$HANDSEED\n5\n30\n", "", "", kBareLight, GetParam()}));
    other->setDictionaryVariable(L"LIGHTINGUNITS", L"2");
    EXPECT_EQ(bytesOf(*other), saved);
}

// Adds a light and a line to the light of the file with its new photometric data, saving between the steps or not.
std::string steps(Database& database, bool saving) {
    change(database.interface().objectId(ZrDbHandle(0x20)), [](ZrDbLight& light) { light.setPhysicalIntensity(42); });
    if (saving)
        (void)bytesOf(database);
    addLight(database);
    if (saving)
        (void)bytesOf(database);
    addLine(database);
    return bytesOf(database);
}

TEST_P(StableHandles, SavesBetweenStepsLeaveLaterHandlesAlone) {
    const auto other = parsed(drawing("AC1021", {"9\n$HANDSEED\n5\n30\n", "", "", kBareLight, GetParam()}));
    EXPECT_EQ(steps(*database, true), steps(*other, false));
}

INSTANTIATE_TEST_SUITE_P(Roots, StableHandles, testing::Values(kRoot, ""));

} // namespace
} // namespace quor::db
