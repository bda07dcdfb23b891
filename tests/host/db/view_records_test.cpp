#include "host/db/view_records.h"

#include "tests/host/db/drawings.h"

#include <gmock/gmock.h>

namespace quor::db {
namespace {

using namespace drawings;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::IsSupersetOf;

ViewData sample(const ZrString& name) {
    ViewData view;
    view.name = name;
    view.center = {1, 2, 0};
    view.target = {3, 4, 5};
    view.direction = {6, 7, 8};
    view.height = 9;
    view.width = 10;
    view.twistDegrees = 30;
    view.mode = 1;
    return view;
}

std::string savedBytes(Database& database) { return bytesOf(database); }

TEST(Views, ANewDrawingHasNone) { EXPECT_THAT(viewsOf(*Database::makeNew()), IsEmpty()); }

TEST(Views, AreFoundWithoutRegardToCase) {
    const auto database = Database::makeNew();
    setView(*database, sample(L"Door"));
    EXPECT_TRUE(findView(*database, L"dOOR"));
    EXPECT_FALSE(findView(*database, L"Window"));
}

TEST(Views, AreSavedWithAllTheirValues) {
    const auto database = Database::makeNew();
    setView(*database, sample(L"Door"));
    const ViewData read = findView(*reopened(*database), L"Door").value();
    EXPECT_EQ(read.name, L"Door");
    EXPECT_EQ(read.center, ZrGePoint3d(1, 2, 0));
    EXPECT_EQ(read.target, ZrGePoint3d(3, 4, 5));
    EXPECT_EQ(read.direction, ZrGeVector3d(6, 7, 8));
    EXPECT_EQ(read.height, 9);
    EXPECT_EQ(read.width, 10);
    EXPECT_EQ(read.twistDegrees, 30);
    EXPECT_EQ(read.mode, 1);
}

TEST(Views, StandAsTheFormatWantsThem) {
    const auto database = Database::makeNew();
    setView(*database, sample(L"Door"));
    EXPECT_THAT(recordOf(savedBytes(*database), "VIEW", "2|Door"),
                IsSupersetOf({"100|AcDbSymbolTableRecord", "100|AcDbViewTableRecord", "70|0", "40|9.0", "10|1.0",
                              "20|2.0", "41|10.0", "11|6.0", "12|3.0", "50|30.0", "71|1", "281|0", "72|0"}));
}

TEST(Views, ADrawingWithoutATableOfThemGetsOne) {
    const auto database = parsed(drawing("AC1009", {{}, {}, {}, "0\nLINE\n8\n0\n10\n1\n20\n2\n11\n3\n21\n4\n", {}}));
    setView(*database, sample(L"A"));
    setView(*database, sample(L"B"));
    EXPECT_THAT(viewsOf(*reopened(*database)), ElementsAre(Field(&ViewData::name, L"A"), Field(&ViewData::name, L"B")));
    EXPECT_FALSE(holds(savedBytes(*database), "281|0"));
}

TEST(Views, ATableIsMadeBesideOneOfLayers) {
    const auto database = parsed(drawing("AC1032", {}));
    setView(*database, sample(L"A"));
    database->makeLayer(L"Walls");
    const auto again = reopened(*database);
    EXPECT_TRUE(findView(*again, L"A"));
    EXPECT_NE(again->layers().find(L"Walls"), nullptr);
}

TEST(Views, OneOfTheFileIsReplaced) {
    const auto first = Database::makeNew();
    setView(*first, sample(L"Door"));
    const auto database = reopened(*first);
    ViewData nearer = sample(L"DOOR");
    nearer.height = 4;
    setView(*database, nearer);
    EXPECT_THAT(viewsOf(*reopened(*database)), ElementsAre(Field(&ViewData::height, 4)));
}

TEST(Views, OneOfTheFileIsErasedAndComesBackByUndo) {
    const auto first = Database::makeNew();
    setView(*first, sample(L"Door"));
    const std::string bytes = savedBytes(*first);
    const auto database = parsed(bytes);
    EXPECT_TRUE(eraseView(*database, L"Door"));
    EXPECT_FALSE(eraseView(*database, L"Door"));
    EXPECT_THAT(viewsOf(*reopened(*database)), IsEmpty());
    database->journal().undo();
    EXPECT_EQ(savedBytes(*database), bytes);
}

TEST(Views, MakingOneIsUndoneAndRestored) {
    const auto database = Database::makeNew();
    const std::string before = savedBytes(*database);
    setView(*database, sample(L"Door"));
    database->journal().undo();
    EXPECT_THAT(viewsOf(*database), IsEmpty());
    EXPECT_EQ(savedBytes(*database), before);
    database->journal().redo();
    EXPECT_THAT(viewsOf(*database), ElementsAre(Field(&ViewData::name, L"Door")));
}

} // namespace
} // namespace quor::db
