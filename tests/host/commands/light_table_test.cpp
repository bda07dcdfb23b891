#include "host/commands/light_tables.h"
#include "host/document.h"
#include "host/sys/system_variables.h"
#include "host/texts/text.h"
#include "sdk/db/light.h"
#include "sdk/rx/command.h"
#include "sdk/sys/format.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

namespace quor {

using commands::LightTables;

namespace {

std::string contentsOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class LightTable : public testing::Test {
protected:
    template <class Entity>
    ZrDbObjectId post(std::unique_ptr<Entity> entity) {
        const ZrDbObjectId id = RxCommand::postToDb(*entity, nullptr, nullptr, true);
        if (!id.isNull())
            static_cast<void>(entity.release()); // the drawing's now
        return id;
    }
    template <class Change>
    ZrDbObjectId add(const ZrString& name, Change&& change) {
        auto light = std::make_unique<ZrDbLight>();
        light->setName(name);
        change(*light);
        return post(std::move(light));
    }
    ZrDbObjectId add(const ZrString& name) {
        return add(name, [](ZrDbLight&) {});
    }
    // Where a text stands on the screen, to compare the order of two.
    std::size_t place(const ZrString& text) { return host.front().screen().find(text); }

    test::TestSession host{{.language = L"en"}};
};

TEST_F(LightTable, HasLightsInTheOrderOfTheDrawing) {
    const ZrDbObjectId first = add(L"first");
    const ZrDbObjectId second = add(L"second");
    zredSetImpliedSelection({second, first});

    host.run({L"LIGHTTABLE"});

    EXPECT_LT(place(L"first"), place(L"second"));
    EXPECT_TRUE(host.front().shows(L"Lights: 2 (point 2)."));
}

TEST_F(LightTable, HasNoLightThatIsErased) {
    add(L"there");
    const ZrDbObjectId gone = add(L"gone");
    ZrDbObjectPointer<ZrDbLight>(gone, ZrDb::kForWrite)->erase();

    host.run({L"LIGHTTABLE", L""});

    EXPECT_TRUE(host.front().shows(L"Lights: 1 (point 1)."));
    EXPECT_FALSE(host.front().shows(L"gone"));
}

TEST_F(LightTable, TellsTheSheetOfALightThatIsOnOne) {
    add(L"in the model");
    host.run({L"PAPER"});
    add(L"on a sheet");
    host.run({L"MODEL"});
    host.front().clearScreen();

    host.run({L"LIGHTTABLE", L""});

    EXPECT_TRUE(host.front().shows(L"  Handle  Name          Kind   Status  Space    Layer\n"));
    EXPECT_TRUE(host.front().shows(L"  in the model  point  on      -        0\n"));
    EXPECT_TRUE(host.front().shows(L"  on a sheet    point  on      Layout1  0\n"));
}

TEST_F(LightTable, CutsALongNameAndHasItInFullInAFile) {
    const ZrString name(255, L'x');
    add(name);

    host.run({L"-LIGHTTABLE", L"C", (host.folder() / "long.csv").wstring(), L""});
    host.run({L"LIGHTTABLE", L""});

    EXPECT_TRUE(host.front().shows(L"      " + ZrString(47, L'x') + L"…  point  on      0\n"));
    EXPECT_NE(contentsOf(host.folder() / "long.csv").find("," + std::string(255, 'x') + ",point,"), std::string::npos);
}

TEST_F(LightTable, IsAsWideAsItsTerminal) {
    LightFacts light;
    light.name = ZrString(100, L'x');
    LightTables tables(lux, 200);

    tables.add(light);
    tables.print([] {});

    EXPECT_TRUE(host.front().shows(light.name + L"  point"));
    EXPECT_EQ(tables.lines(), 4); // a line in each table
}

TEST_F(LightTable, TellsLightsOfTheSameNameApartByTheirHandles) {
    const ZrDbObjectId first = add(L"a");
    const ZrDbObjectId second = add(L"a");

    host.run({L"LIGHTTABLE", L""});

    for (const ZrDbObjectId id : {first, second}) {
        const ZrString handle = zrFormat(L"  %X      a     ", {id.handle().value()});
        EXPECT_TRUE(host.front().shows(handle + L"point"));
        EXPECT_TRUE(host.front().shows(handle + L"0.0000"));
        EXPECT_TRUE(host.front().shows(handle + L"     1"));
        EXPECT_TRUE(host.front().shows(handle + L"D65 white"));
    }
}

TEST_F(LightTable, RoundsLengthsOnlyToThePrecisionOfTheDrawing) {
    host.session().variables().set(L"LUPREC", std::int16_t{0});
    add(L"a", [](ZrDbLight& light) {
        light.setLightType(DrawableType::kSpotLight);
        light.setHasTarget(false);
        light.setPosition({0.4, 0, 0});
        light.setTargetLocation({0.4, 3, -4});
        light.setHotspotAndFalloff(0.5, 1);
        light.setIntensity(0.2);
        light.setPhysicalIntensity(0.4);
    });

    host.run({L"LIGHTTABLE", L""});

    EXPECT_TRUE(host.front().shows(L"a     0 0 0        (0      0.6    -0.8)  28.64789° 57.29578°\n"));
    EXPECT_TRUE(host.front().shows(L"a        0.2  0.4*  0.158959  400000        1\n"));
}

TEST_F(LightTable, MarksTheIntensityThatTheDrawingHolds) {
    add(L"a", [](ZrDbLight& light) {
        light.setPhysicalIntensityMethod(PhysicalIntensityMethod::kFlux);
        light.setPhysicalIntensity(1200);
        light.setIlluminanceDistance(1000);
    });

    host.run({L"LIGHTTABLE", L""});

    EXPECT_TRUE(host.front().shows(L"a          1  95.493  1200*  95.493 1000.0000\n"));
}

TEST_F(LightTable, TakesTheNameOfTheDrawingForAnExtensionAlone) {
    add(L"a");

    host.run({L"-LIGHTTABLE", L"J", (host.folder() / ".JSON").wstring(), L""});

    EXPECT_TRUE(std::filesystem::exists(host.folder() / "Drawing1.JSON"));
}

TEST_F(LightTable, SaysThatAFileHasTheExtensionOfAnotherFormat) {
    add(L"a");
    const std::filesystem::path file = host.folder() / "b.csv";

    host.run({L"-LIGHTTABLE", L"J", file.wstring(), L""});

    EXPECT_TRUE(host.front().shows(L"Note: " + file.wstring() + L" gets JSON, unlike what its extension says."));
    EXPECT_TRUE(contentsOf(file).starts_with("{"));
}

TEST_F(LightTable, TellsOfAPlaceThatCannotBeWrittenBeforeItAsksForLights) {
    add(L"a");
    std::filesystem::create_symlink("loop.csv", host.folder() / "loop.csv");

    const ed::Verdict verdict = host.run({L"-LIGHTTABLE", L"C", (host.folder() / "loop.csv").wstring()});

    EXPECT_EQ(verdict.kind, ed::Verdict::Kind::Failed);
    EXPECT_FALSE(host.front().shows(L"Select lights"));
}

TEST_F(LightTable, ShowsADashForAnIlluminanceThatThereIsNot) {
    add(L"a", [](ZrDbLight& light) { light.setIlluminanceDistance(0); });
    add(L"b");

    host.run({L"LIGHTTABLE", L""});

    EXPECT_TRUE(host.front().shows(L"  a          1  1500*  18849.6        -   0.0000\n"));
    EXPECT_TRUE(host.front().shows(L"  b          1  1500*  18849.6  1.5e+09   1.0000\n"));
}

TEST_F(LightTable, LeavesOutAColumnThatIsEmptyForEveryLight) {
    add(L"a", [](ZrDbLight& light) { light.setIlluminanceDistance(0); });

    host.run({L"LIGHTTABLE", L""});

    EXPECT_TRUE(host.front().shows(L"  Handle  Name  Factor     cd       lm Distance\n"));
}

TEST_F(LightTable, TellsOfEachShapeTheSizesThatItHas) {
    const auto sampled = [](ZrGiShadowParameters::ExtendedLightShape shape) {
        return [shape](ZrDbLight& light) {
            ZrGiShadowParameters shadows;
            shadows.setShadowType(ZrGiShadowParameters::kAreaSampled);
            shadows.setExtendedLightShape(shape);
            shadows.setExtendedLightLength(1);
            shadows.setExtendedLightWidth(2);
            shadows.setExtendedLightRadius(3);
            light.setShadowParameters(shadows);
        };
    };
    add(L"a", sampled(ZrGiShadowParameters::kLinear));
    add(L"b", sampled(ZrGiShadowParameters::kRect));
    add(L"c", sampled(ZrGiShadowParameters::kDisk));
    add(L"d", sampled(ZrGiShadowParameters::kCylinder));
    add(L"e", sampled(ZrGiShadowParameters::kSphere));

    host.run({L"LIGHTTABLE", L""});

    EXPECT_TRUE(host.front().shows(L"samples 16, linear 1.0000\n"));
    EXPECT_TRUE(host.front().shows(L"samples 16, rectangle 1.0000 x 2.0000\n"));
    EXPECT_TRUE(host.front().shows(L"samples 16, disk R3.0000\n"));
    EXPECT_TRUE(host.front().shows(L"samples 16, cylinder R3.0000 x 1.0000\n"));
    EXPECT_TRUE(host.front().shows(L"samples 16, sphere R3.0000\n"));
}

TEST_F(LightTable, ShowsTheFileOfAWebWithoutItsFolder) {
    const std::filesystem::path web = host.folder() / "lamp.ies";
    std::filesystem::copy_file(std::filesystem::path(QUOR_TEST_DATA) / "../../resources/webs/street.ies", web);
    add(L"a", [&](ZrDbLight& light) {
        light.setLightType(DrawableType::kWebLight);
        ASSERT_EQ(light.setWebFile(web.wstring()), Quor::eOk);
    });

    host.run({L"LIGHTTABLE", L""});

    EXPECT_TRUE(host.front().shows(L"  Handle  Name  Kind      Status  Layer  Web file\n"));
    EXPECT_TRUE(host.front().shows(L"  a     free web  on      0      lamp.ies\n"));
}

TEST_F(LightTable, LeavesTheDrawingUnchanged) {
    add(L"a");
    const std::size_t before = host.document().drawing().journal().undoDepth();

    host.run({L"LIGHTTABLE", L""});
    host.run({L"-LIGHTTABLE", L"J", (host.folder() / "a.json").wstring(), L""});

    EXPECT_EQ(host.document().drawing().journal().undoDepth(), before);
}

TEST_F(LightTable, KeepsTheOldFileWhenItIsNotToBeReplaced) {
    const std::filesystem::path file = host.folder() / "old.csv";
    std::ofstream(file) << "old";

    host.run({L"-LIGHTTABLE", L"C", file.wstring(), L""});

    EXPECT_EQ(contentsOf(file), "old");
}

TEST_F(LightTable, ReplacesAFileAndKeepsNoBackup) {
    add(L"a");
    const std::filesystem::path file = host.folder() / "old.json";
    std::ofstream(file) << "old";

    host.run({L"-LIGHTTABLE", L"J", file.wstring(), L"Y", L""});

    EXPECT_TRUE(contentsOf(file).starts_with("{\n  \"drawing\": \"Drawing1\""));
    EXPECT_FALSE(std::filesystem::exists(host.folder() / "old.bak"));
}

TEST_F(LightTable, AsAFileIsTheSameInEveryLanguage) {
    add(L"a");
    host.run({L"-LIGHTTABLE", L"C", (host.folder() / "en.csv").wstring(), L""});
    setLanguage(Language::Chinese);

    host.run({L"-LIGHTTABLE", L"C", (host.folder() / "zh.csv").wstring(), L""});

    EXPECT_EQ(contentsOf(host.folder() / "en.csv"), contentsOf(host.folder() / "zh.csv"));
}

TEST_F(LightTable, HasTheExtensionOfItsFormatBehindANameWithADotAtItsEnd) {
    add(L"a");

    host.run({L"-LIGHTTABLE", L"C", (host.folder() / "lamps.").wstring(), L""});

    EXPECT_TRUE(std::filesystem::exists(host.folder() / "lamps.csv"));
    EXPECT_FALSE(std::filesystem::exists(host.folder() / "lamps."));
}

TEST_F(LightTable, OfADrawingWithoutLightsIsNotWritten) {
    const std::filesystem::path file = host.folder() / "old.csv";
    std::ofstream(file) << "old";

    const ed::Verdict verdict = host.run({L"-LIGHTTABLE", L"C", file.wstring(), L"Y", L""});

    EXPECT_EQ(verdict.kind, ed::Verdict::Kind::Failed);
    EXPECT_EQ(contentsOf(file), "old");
    EXPECT_TRUE(host.front().shows(L"There are no lights in the drawing."));
    EXPECT_TRUE(host.front().shows(L"Nothing was written to " + file.wstring() + L"."));
}

TEST_F(LightTable, IsNotWrittenAfterEscAtTheSelection) {
    add(L"a");
    const std::filesystem::path file = host.folder() / "a.csv";

    host.run({L"-LIGHTTABLE", L"C", file.wstring(), L"^C"});

    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(LightTable, OfLightsBeyondAPieceOfAFileIsWhole) {
    constexpr int kLights = 2000; // about 1.6 MB of JSON
    for (int i = 0; i < kLights; ++i)
        add(L"lamp " + std::to_wstring(i));

    host.run({L"-LIGHTTABLE", L"J", (host.folder() / "many.json").wstring(), L""});

    const std::string file = contentsOf(host.folder() / "many.json");
    EXPECT_GT(file.size(), std::size_t{1} << 20);
    EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 6 + kLights);
    EXPECT_TRUE(file.ends_with("}\n  ]\n}\n"));
}

} // namespace

} // namespace quor
