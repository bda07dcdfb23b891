#include "tests/host/db/drawings.h"

#include "sdk/db/symbol_table.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

using namespace drawings;
using Layer = ZrDbLayerTableRecord;

// A layer between two others, so that what stands around it is seen to stay.
std::string withLayer(const std::string& version, const std::string& tags) {
    const std::string other = "0\nLAYER\n2\nOther\n70\n0\n62\n 7\n6\nContinuous\n";
    const std::string layer = "0\nLAYER\n2\nWalls\n" + tags + "6\nContinuous\n";
    const std::string tables = "0\nTABLE\n2\nLAYER\n70\n3\n" + other + layer + "0\nENDTAB\n";
    return drawing(version, {"", "", tables, "", ""});
}

class ALayerOfAFile : public testing::Test {
protected:
    void open(const std::string& tags, const std::string& version = "AC1015") {
        database = parsed(withLayer(version, tags));
        id = ZrDbObjectId(database->layers().find(L"Walls"));
    }
    [[nodiscard]] ZrDbObjectPointer<Layer> read() const { return {id, ZrDb::kForRead}; }
    [[nodiscard]] ZrDbObjectPointer<Layer> write() const { return {id, ZrDb::kForWrite}; }

    std::unique_ptr<Database> database;
    ZrDbObjectId id;
};

struct Saved {
    const char* before;
    const char* after;
    Quor::ErrorStatus (Layer::*set)(bool);
    bool value;
};

class EachState : public ALayerOfAFile, public testing::WithParamInterface<Saved> {};

TEST_P(EachState, ChangesItsOwnTagOfTheFileAndNothingElse) {
    open(GetParam().before);

    EXPECT_EQ((write().object()->*GetParam().set)(GetParam().value), Quor::eOk);

    EXPECT_EQ(bytesOf(*database), withLayer("AC1015", GetParam().after));
}

TEST_P(EachState, ComesBackWithUndoSoThatTheFileIsTheSame) {
    open(GetParam().before);
    (write().object()->*GetParam().set)(GetParam().value);

    database->journal().undo();

    EXPECT_EQ(bytesOf(*database), withLayer("AC1015", GetParam().before));
}

INSTANTIATE_TEST_SUITE_P(
    Tags, EachState,
    testing::Values(Saved{"70\n0\n62\n3\n", "70\n0\n62\n-3\n", &Layer::setIsOff, true},
                    Saved{"70\n0\n62\n-3\n", "70\n0\n62\n3\n", &Layer::setIsOff, false},
                    Saved{"70\n64\n62\n3\n", "70\n65\n62\n3\n", &Layer::setIsFrozen, true},
                    Saved{"70\n65\n62\n3\n", "70\n64\n62\n3\n", &Layer::setIsFrozen, false},
                    Saved{"70\n1\n62\n3\n", "70\n5\n62\n3\n", &Layer::setIsLocked, true},
                    Saved{"70\n5\n62\n-3\n", "70\n1\n62\n-3\n", &Layer::setIsLocked, false},
                    // The number that older programs show in place of a true colour is the file's own.
                    Saved{"70\n0\n62\n13\n420\n255\n", "70\n0\n62\n-13\n420\n255\n", &Layer::setIsOff, true}));

TEST_F(ALayerOfAFile, KeepsTheNumberBesideATrueColourUntilItsColourIsSet) {
    open("70\n0\n62\n13\n420\n255\n", "AC1018");

    write()->setColor(ZrCmColor::fromRGB(255, 0, 0));

    EXPECT_EQ(bytesOf(*database), withLayer("AC1018", "70\n0\n62\n1\n420\n16711680\n"));
}

TEST_F(ALayerOfAFile, LosesTheNameOfItsColourWithTheColour) {
    open("70\n0\n62\n13\n420\n255\n430\nBOOK$Blue\n", "AC1018");
    EXPECT_EQ(read()->color().colorName(), L"Blue");

    write()->setColor(ZrCmColor::fromIndex(2));

    EXPECT_EQ(bytesOf(*database), withLayer("AC1018", "70\n0\n62\n2\n"));
}

TEST_F(ALayerOfAFile, TellsOfItsChange) {
    open("70\n0\n62\n3\n");
    struct Listener final : ZrDbDatabaseReactor {
        void objectModified(const ZrDbDatabase&, const ZrDbObject& object) override { told = object.objectId(); }
        ZrDbObjectId told;
    } listener;
    database->interface().addReactor(&listener);

    write()->setIsOff(true);

    EXPECT_EQ(listener.told, id);
    EXPECT_TRUE(read()->isOff());
    database->interface().removeReactor(&listener);
}

TEST_F(ALayerOfAFile, IsChangedOnlyWhenOpenForWrite) {
    open("70\n0\n62\n3\n");
    const ZrDbObjectPointer<Layer> layer(id, ZrDb::kForRead);

    EXPECT_EQ(layer->setIsOff(true), Quor::eNotOpenForWrite);
    EXPECT_EQ(layer->setIsFrozen(true), Quor::eNotOpenForWrite);
    EXPECT_EQ(layer->setIsLocked(true), Quor::eNotOpenForWrite);
    EXPECT_FALSE(layer->isOff());
}

TEST(CurrentLayer, CannotBeFrozenAndCanBeThawed) {
    const auto database = Database::makeNew();
    const ZrDbObjectPointer<Layer> zero(database->interface().layerZeroId(), ZrDb::kForWrite);

    EXPECT_EQ(zero->setIsFrozen(true), Quor::eNotAllowed);
    EXPECT_FALSE(zero->isFrozen());
    EXPECT_EQ(zero->setIsFrozen(false), Quor::eOk);
    EXPECT_EQ(zero->setIsOff(true), Quor::eOk);
    EXPECT_EQ(zero->setIsLocked(true), Quor::eOk);
}

TEST(Layers, ThatAreNewAreSavedWithTheirStates) {
    const auto database = Database::makeNew();
    {
        const ZrDbObjectPointer<Layer> layer(database->makeLayer(L"Walls"), ZrDb::kForWrite);
        layer->setIsOff(true);
        layer->setIsFrozen(true);
        layer->setIsLocked(true);
    }
    const auto again = reopened(*database);
    const ZrDbObjectPointer<Layer> layer(ZrDbObjectId(again->layers().find(L"Walls")), ZrDb::kForRead);

    EXPECT_TRUE(layer->isOff());
    EXPECT_TRUE(layer->isFrozen());
    EXPECT_TRUE(layer->isLocked());
}

} // namespace
} // namespace quor::db
