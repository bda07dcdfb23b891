#include "host/document.h"
#include "host/sys/path_text.h"
#include "host/sys/system_variables.h"
#include "sdk/db/light.h"
#include "sdk/rx/command.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace quor {

namespace {

class ListOfALight : public ::testing::Test {
protected:
    // Lists a light after `change` was made to it.
    template <class Change>
    void list(Change&& change) {
        auto light = std::make_unique<ZrDbLight>();
        light->setName(L"lamp");
        change(*light);
        ASSERT_FALSE(RxCommand::postToDb(*light, nullptr, nullptr, true).isNull());
        static_cast<void>(light.release()); // the drawing's now
        host.run({L"LIST", L"ALL", L""});
    }

    static void illuminance(ZrDbLight& light) {
        light.setPhysicalIntensityMethod(PhysicalIntensityMethod::kIlluminance);
        light.setPhysicalIntensity(40);
    }

    test::TestSession host{{.language = L"en"}};
};

TEST_F(ListOfALight, ShowsIlluminanceInLux) {
    list(illuminance);

    EXPECT_TRUE(host.front().shows(L"40 lx (illuminance)"));
}

TEST_F(ListOfALight, ShowsIlluminanceInFootCandlesWithAmericanUnits) {
    ASSERT_EQ(host.session().variables().set(L"LIGHTINGUNITS", short{1}), sys::SetResult::Ok);

    list(illuminance);

    EXPECT_TRUE(host.front().shows(L"40 fc (illuminance)"));
}

TEST_F(ListOfALight, ShowsIlluminanceWithoutAUnitInGenericLighting) {
    ASSERT_EQ(host.session().variables().set(L"LIGHTINGUNITS", short{0}), sys::SetResult::Ok);

    list(illuminance);

    EXPECT_TRUE(host.front().shows(L"  40 (illuminance)"));
}

TEST_F(ListOfALight, ShowsTheDirectionInPlainNumbersInEveryUnitFormat) {
    ASSERT_EQ(host.session().variables().set(L"LUNITS", short{4}), sys::SetResult::Ok);

    list([](ZrDbLight& light) { light.setTargetLocation({0, 0, -10}); });

    EXPECT_TRUE(host.front().shows(L"X=0.0000  Y=0.0000  Z=-1.0000"));
}

TEST_F(ListOfALight, ShowsLengthsInTheUnitOfTheDrawing) {
    ASSERT_EQ(host.session().variables().set(L"INSUNITS", short{6}), sys::SetResult::Ok);

    list([](ZrDbLight& light) { light.setIlluminanceDistance(2.5); });

    EXPECT_TRUE(host.front().shows(L"2.5000 m\n"));
}

TEST_F(ListOfALight, ShowsLengthsWithoutAUnitInAUnitlessDrawing) {
    ASSERT_EQ(host.session().variables().set(L"INSUNITS", short{0}), sys::SetResult::Ok);

    list([](ZrDbLight& light) { light.setIlluminanceDistance(2.5); });

    EXPECT_TRUE(host.front().shows(L"2.5000\n"));
}

TEST_F(ListOfALight, ShowsFeetAndInchesWithoutAnotherUnit) {
    ASSERT_EQ(host.session().variables().set(L"LUNITS", short{4}), sys::SetResult::Ok);

    list([](ZrDbLight& light) { light.setIlluminanceDistance(30); });

    EXPECT_TRUE(host.front().shows(L"2'-6\"\n"));
}

TEST_F(ListOfALight, ShowsTheComponentsOfABookColour) {
    list([](ZrDbLight& light) {
        ZrCmColor color = ZrCmColor::fromRGB(102, 51, 153);
        color.setNames(L"rebeccapurple", L"Web Colors");
        light.setLightColor(color);
    });

    EXPECT_TRUE(host.front().shows(L"Web Colors$rebeccapurple (102,51,153)"));
}

TEST_F(ListOfALight, ShowsFluxInLumen) {
    list([](ZrDbLight& light) { light.setPhysicalIntensityMethod(PhysicalIntensityMethod::kFlux); });

    EXPECT_TRUE(host.front().shows(L"1500 lm (flux)"));
}

TEST_F(ListOfALight, ShowsTheConeOfSpotLightsOnly) {
    list([](ZrDbLight& light) { light.setLightType(DrawableType::kPointLight); });

    EXPECT_TRUE(host.front().shows(L"point light"));
    EXPECT_FALSE(host.front().shows(L"Hotspot"));
}

const std::filesystem::path webs = std::filesystem::path(QUOR_TEST_DATA) / "ies";

TEST_F(ListOfALight, ShowsTheWebOfWebLights) {
    list([](ZrDbLight& light) {
        light.setLightType(DrawableType::kWebLight);
        light.setWebFile(textOf(webs / "gc_sterilray.ies"));
        light.setWebRotation({0, 90, 0});
    });

    EXPECT_TRUE(host.front().shows(L"web light"));
    EXPECT_TRUE(host.front().shows(L"gc_sterilray.ies"));
    EXPECT_TRUE(host.front().shows(L"Web symmetry           none"));
    EXPECT_TRUE(host.front().shows(L"vertical 0° to 90°, horizontal 0° to 360°"));
    EXPECT_TRUE(host.front().shows(L" lm\n"));
    EXPECT_TRUE(host.front().shows(L"X=0  Y=90  Z=0 (as given)"));
}

TEST_F(ListOfALight, SaysThatAWebLightHasNoWebYet) {
    list([](ZrDbLight& light) { light.setLightType(DrawableType::kWebLight); });

    EXPECT_TRUE(host.front().shows(L"Web file               none"));
    EXPECT_FALSE(host.front().shows(L"Web symmetry"));
}

TEST_F(ListOfALight, SaysWhyTheWebCannotBeReadAnyMore) {
    const std::filesystem::path file = host.folder() / "gone.ies";
    std::filesystem::copy_file(webs / "gc_sterilray.ies", file);

    list([&](ZrDbLight& light) {
        light.setLightType(DrawableType::kWebLight);
        light.setWebFile(textOf(file));
        std::filesystem::remove(file);
    });

    EXPECT_TRUE(host.front().shows(L"317.27 lm (saved in the drawing)"));
    EXPECT_TRUE(host.front().shows(L"gone.ies\" was not found"));
    EXPECT_FALSE(host.front().shows(L"File used"));
}

TEST_F(ListOfALight, FindsAWebWhoseFolderIsGoneByItsName) {
    const std::filesystem::path file = host.folder() / "moved.ies";
    std::filesystem::copy_file(webs / "gc_sterilray.ies", file);
    std::filesystem::create_directory(host.folder() / "lamps");
    host.session().variables().set(L"SUPPORTPATH", textOf(host.folder() / "lamps"));

    list([&](ZrDbLight& light) {
        light.setLightType(DrawableType::kWebLight);
        light.setWebFile(textOf(file));
        std::filesystem::rename(file, host.folder() / "lamps" / "moved.ies");
    });

    EXPECT_TRUE(host.front().shows(L"vertical 0° to 90°, horizontal 0° to 360°"));
    EXPECT_TRUE(host.front().shows(L"File used              " + textOf(host.folder() / "lamps" / "moved.ies")));
}

TEST_F(ListOfALight, ShowsNoSecondPathWhereTheFileIsTheOneThatTheDrawingNames) {
    list([](ZrDbLight& light) {
        light.setLightType(DrawableType::kWebLight);
        light.setWebFile(textOf(webs / "gc_sterilray.ies"));
    });

    EXPECT_FALSE(host.front().shows(L"File used"));
    EXPECT_FALSE(host.front().shows(L"kept in the drawing"));
}

// The drawing keeps "lamp.ies"; it was read in the working folder when it was set.
class ListOfARelativeWeb : public ListOfALight {
protected:
    ListOfARelativeWeb() : before_(std::filesystem::current_path()) {
        for (const char* folder : {"working", "drawing", "support"})
            std::filesystem::create_directories(host.folder() / folder);
        std::filesystem::current_path(host.folder() / "working");
        put("gc_sterilray.ies", "working");
        host.session().variables().set(L"SUPPORTPATH", textOf(host.folder() / "support"));
        host.session().documents().current()->setPath(host.folder() / "drawing" / "a.dxf");
    }
    ~ListOfARelativeWeb() override { std::filesystem::current_path(before_); }

    void put(const char* web, const char* folder) {
        std::filesystem::copy_file(webs / web, fileIn(folder), std::filesystem::copy_options::overwrite_existing);
    }
    [[nodiscard]] std::filesystem::path fileIn(const char* folder) { return host.folder() / folder / "lamp.ies"; }

    std::filesystem::path before_;
};

TEST_F(ListOfARelativeWeb, TakesTheFileThatIesInfoTakes) {
    list([&](ZrDbLight& light) {
        light.setLightType(DrawableType::kWebLight);
        light.setWebFile(L"lamp.ies");
        put("dl_point_opening.ies", "drawing");
        EXPECT_EQ(light.webSymmetry(), WebSymmetry::kAxial);
    });
    host.run({L"IESINFO", L"lamp.ies"});

    EXPECT_TRUE(host.front().shows(L"File used              " + textOf(fileIn("drawing"))));
    EXPECT_TRUE(host.front().shows(L"Web symmetry           axial"));
    EXPECT_TRUE(host.front().shows(L"\n" + textOf(fileIn("drawing")) + L"\n"));
}

TEST_F(ListOfARelativeWeb, FallsBackToTheSupportFolders) {
    list([&](ZrDbLight& light) {
        light.setLightType(DrawableType::kWebLight);
        light.setWebFile(L"lamp.ies");
        std::filesystem::remove(fileIn("working"));
        put("pp_LLIA001477-003.ies", "support");
        EXPECT_EQ(light.webSymmetry(), WebSymmetry::kMirror0_180);
    });

    EXPECT_TRUE(host.front().shows(L"File used              " + textOf(fileIn("support"))));
    EXPECT_TRUE(host.front().shows(L"about the 0-180 plane"));
}

TEST_F(ListOfALight, ShowsBothFluxesAfterTheFileChanged) {
    const std::filesystem::path file = host.folder() / "lamp.ies";
    std::filesystem::copy_file(webs / "gc_sterilray.ies", file);

    list([&](ZrDbLight& light) {
        light.setLightType(DrawableType::kWebLight);
        light.setWebFile(textOf(file));
        std::filesystem::copy_file(webs / "gc_nukit_torch.ies", file,
                                   std::filesystem::copy_options::overwrite_existing);
    });

    EXPECT_TRUE(host.front().shows(L"12.724 lm in the file, 317.27 lm saved in the drawing"));
}

TEST_F(ListOfALight, ShowsTheNoticesOfTheReaderAboutTheWeb) {
    list([](ZrDbLight& light) {
        light.setLightType(DrawableType::kWebLight);
        light.setWebFile(textOf(webs / "own" / "made_missing_360.ies"));
    });

    EXPECT_TRUE(host.front().shows(L"the plane that closes the circle is missing"));
}

TEST_F(ListOfALight, ShowsTheOnlyPlaneOfAWeb) {
    list([](ZrDbLight& light) {
        light.setLightType(DrawableType::kWebLight);
        light.setWebFile(textOf(webs / "dl_point_opening.ies"));
    });

    EXPECT_TRUE(host.front().shows(L"vertical 0° to 90°, horizontal 0°"));
}

TEST_F(ListOfALight, ShowsShadowsThatAreOffWithTheirKind) {
    list([](ZrDbLight& light) {
        ZrGiShadowParameters shadows;
        shadows.setShadowsOn(false);
        shadows.setShadowType(ZrGiShadowParameters::kShadowMaps);
        light.setShadowParameters(shadows);
    });

    EXPECT_TRUE(host.front().shows(L"off (soft mapped)"));
}

TEST_F(ListOfALight, ShowsLampTemperatureAndPresetBoth) {
    list([](ZrDbLight& light) {
        light.setLampColorType(LampColorType::kKelvin);
        light.setLampColorTemp(2700);
        light.setLampColorPreset(LampColorPreset::kHalogen);
    });

    EXPECT_TRUE(host.front().shows(L"by temperature"));
    EXPECT_TRUE(host.front().shows(L"halogen"));
    EXPECT_TRUE(host.front().shows(L"2700 K"));
}

TEST(ListOfALine, ShowsHugeLengthsWithAnExponentAndThoseThatOverflowAsADash) {
    test::TestSession host{{.language = L"en"}};

    host.run({L"LINE", L"-1e308,0", L"1e308,1e15", L"", L"LIST", L"ALL", L""});

    EXPECT_TRUE(host.front().shows(L"X=-1.0000E+308  Y=0.0000"));
    EXPECT_TRUE(host.front().shows(L"X=1.0000E+308  Y=1000000000000000.0000"));
    EXPECT_TRUE(host.front().shows(L"Length      —"));
}

} // namespace

} // namespace quor
