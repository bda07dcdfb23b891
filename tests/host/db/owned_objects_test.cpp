// What belongs to an entity is removed from the file with it.
#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

using namespace drawings;

std::string object(const std::string& type, const std::string& handle, const std::string& owner,
                   const std::string& more = "") {
    return "0\n" + type + "\n5\n" + handle + "\n" + (owner.empty() ? "" : "330\n" + owner + "\n") + more;
}

const std::string kLine = object("LINE", "20", "", "102\n{ACAD_XDICTIONARY\n360\n40\n102\n}\n100\nAcDbLine\n");
const std::string kRoot = object("DICTIONARY", "C", "0", "100\nAcDbDictionary\n");

// The drawing with the objects, saved after its line was erased.
std::string withoutLine(const std::string& objects, const std::string& line = kLine) {
    const auto database = parsed(drawing("AC1021", {"9\n$HANDSEED\n5\n90\n", "", "", line, kRoot + objects}));
    erase(database->interface().objectId(ZrDbHandle(0x20)));
    return bytesOf(*database);
}

TEST(OwnedObjects, GoWithTheirEntityHoweverDeepTheyLie) {
    const std::string saved = withoutLine(object("DICTIONARY", "40", "20", "100\nAcDbDictionary\n3\nA\n360\n41\n") +
                                          object("DICTIONARY", "41", "40", "100\nAcDbDictionary\n3\nB\n360\n42\n") +
                                          object("XRECORD", "42", "41") + object("IMAGEDEF_REACTOR", "43", "20"));
    EXPECT_EQ(saved, withoutLine(""));
}

TEST(OwnedObjects, OfSomethingElseStay) {
    const std::string others = object("XRECORD", "42", "C") + object("XRECORD", "43", "41");
    EXPECT_TRUE(withoutLine(object("DICTIONARY", "40", "20", "3\nA\n360\n42\n") + others)
                    .ends_with(others + "0\nENDSEC\n0\nEOF\n"));
}

TEST(OwnedObjects, DictionaryThatNamesNoOwnerGoesToo) {
    EXPECT_FALSE(holds(withoutLine(object("DICTIONARY", "40", "")), "5|40"));
}

TEST(OwnedObjects, DictionaryOfAnotherOwnerStays) {
    EXPECT_TRUE(holds(withoutLine(object("DICTIONARY", "40", "C")), "5|40"));
}

TEST(OwnedObjects, TheOnesThatOwnEachOtherEndTheSearch) {
    EXPECT_FALSE(holds(
        withoutLine(object("DICTIONARY", "40", "20") + object("XRECORD", "41", "40") + object("XRECORD", "40", "41")),
        "5|41"));
}

TEST(OwnedObjects, OfAVertexGoWithThePolyline) {
    const std::string polyline = "0\nPOLYLINE\n5\n20\n0\nVERTEX\n5\n21\n0\nSEQEND\n5\n22\n";
    EXPECT_FALSE(holds(withoutLine(object("DICTIONARY", "40", "21"), polyline), "5|40"));
}

TEST(OwnedObjects, WhatHoldsTheDrawingTogetherStaysWhateverItsOwner) {
    const auto database = parsed(drawing(
        "AC1021", {"9\n$HANDSEED\n5\n90\n", "", "", kLine, object("DICTIONARY", "40", "20", "100\nAcDbDictionary\n")}));
    erase(database->interface().objectId(ZrDbHandle(0x20)));
    EXPECT_TRUE(holds(bytesOf(*database), "5|40"));
}

TEST(OwnedObjects, ComeBackWithAnEntityThatIsNotErasedAnyMore) {
    const std::string before = drawing("AC1021", {"", "", "", kLine, kRoot + object("DICTIONARY", "40", "20")});
    const auto database = parsed(before);
    group(*database, L"ERASE", [&] { erase(database->interface().objectId(ZrDbHandle(0x20))); });
    database->journal().undo();
    EXPECT_EQ(bytesOf(*database), before);
}

} // namespace
} // namespace quor::db
