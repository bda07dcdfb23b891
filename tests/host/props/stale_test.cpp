// When the rows have to be read anew, and what reading costs.
#include "tests/host/props/selected.h"

#include "host/sys/system_variables.h"
#include "sdk/db/symbol_table.h"

namespace quor::props {
namespace {

class Stale : public Selected {
protected:
    Stale() {
        sheet.whenStale([this] { ++told; });
        select({light});
        readAnew();
    }
    void readAnew() {
        (void)sheet.rows();
        told = 0;
    }

    ZrDbObjectId light = addLight();
    int told = 0;
};

TEST_F(Stale, WhenTheSelectionChanges) {
    select({});
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(has("drawing.layer"));
}

TEST_F(Stale, WhenASelectedObjectChanges) {
    write(light)->setOn(false);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(text("light.on"), L"off");
}

TEST_F(Stale, ToldOnceUntilTheRowsAreRead) {
    write(light)->setOn(false);
    write(light)->setOn(true);
    host.session().variables().set(L"LUPREC", short{2});
    EXPECT_EQ(told, 1);

    (void)sheet.rows();
    write(light)->setOn(false);
    EXPECT_EQ(told, 2);
}

TEST_F(Stale, NotWhenAnotherObjectChanges) {
    const ZrDbObjectId other = addLight(L"B");
    readAnew();
    write(other)->setOn(false);
    addLine();
    EXPECT_EQ(told, 0);
}

TEST_F(Stale, WhenASelectedObjectIsErasedAndComesBack) {
    write(light)->erase();
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(has("drawing.layer"));
}

TEST_F(Stale, WhenASettingOfTheDrawingChanges) {
    host.session().variables().set(L"LIGHTINGUNITS", short{0});
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(has("photometric.candela"));
}

TEST_F(Stale, WhenALayerIsMadeOrChanges) {
    const ZrDbObjectId walls = host.document().drawing().makeLayer(L"Walls");
    EXPECT_EQ(told, 1);
    readAnew();
    write<ZrDbLayerTableRecord>(walls)->setIsOff(true);
    EXPECT_EQ(told, 1);
}

TEST_F(Stale, WhenAChangeIsUndone) {
    EXPECT_EQ(set("light.on", L"off"), std::nullopt);
    readAnew();
    journal().undo();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(text("light.on"), L"on");
}

TEST_F(Stale, WhenAnotherDrawingBecomesCurrent) {
    Document& first = host.document();
    host.session().documents().newDocument();
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(has("drawing.layer"));

    host.session().documents().setCurrent(&first);
    EXPECT_TRUE(has("light.on"));
}

TEST_F(Stale, NumberOfWhatIsShownChangesWithTheObjectsOnly) {
    const std::size_t before = sheet.showing();
    write(light)->setOn(false);
    EXPECT_EQ(sheet.showing(), before);

    select({});
    EXPECT_NE(sheet.showing(), before);
}

TEST_F(Stale, WhenTheDrawingIsClosed) {
    host.session().documents().close(host.document());
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(sheet.rows().empty());
}

TEST_F(Stale, RowsGoOnWithoutTheOneWhoListens) {
    { const Sheet other(host.session()); }
    write(light)->setOn(false);
    EXPECT_EQ(told, 1);
}

TEST_F(Stale, TenThousandLightsAreReadAtOnce) {
    constexpr int kMany = 10'000;
    ZrDbObjectIdArray lights;
    for (int i = 0; i < kMany; ++i)
        lights.push_back(addLight(L"Light" + std::to_wstring(i)));
    select(lights);

    EXPECT_EQ(text("light.name"), L"*VARIES*");
}

TEST_F(Stale, TenThousandLightsAreChangedInOneStep) {
    constexpr int kMany = 10'000;
    ZrDbObjectIdArray lights;
    for (int i = 0; i < kMany; ++i)
        lights.push_back(addLight(L"Light" + std::to_wstring(i)));
    select(lights);
    readAnew();
    const std::size_t depth = journal().undoDepth();

    EXPECT_EQ(set("light.intensity", L"3"), std::nullopt);

    EXPECT_EQ(read(lights.back())->intensity(), 3);
    EXPECT_EQ(journal().undoDepth(), depth + 1);
    EXPECT_EQ(told, 1);
}

} // namespace
} // namespace quor::props
