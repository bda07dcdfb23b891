// Pictures of the palette, to be looked at; each shows what it should.
#include "desktop/window/theme.h"
#include "tests/desktop/properties/panel_on_screen.h"

#include "host/sys/system_variables.h"
#include "host/ui/user_interface.h"

namespace quor::desktop {
namespace {

struct Look {
    const char* name;
    const wchar_t* language;
    bool isDark;
};

class PicturesOfProperties : public PanelOnScreen, public testing::WithParamInterface<Look> {
protected:
    PicturesOfProperties() : PanelOnScreen(GetParam().language), before_(QApplication::palette()) {
        panel = nullptr;
        host.session().variables().set(L"COLORTHEME", static_cast<short>(GetParam().isDark ? 0 : 1));
        applyTheme(host.session().ui().service().theme());
        panel = std::make_unique<PropertiesPanel>(host.session(), nullptr);
        panel->resize(330, 860);
        panel->show();
        panel->activateWindow();
    }
    ~PicturesOfProperties() override {
        panel = nullptr;
        QApplication::setPalette(before_);
        qApp->setStyleSheet({});
    }
    static QString name(const char* what) { return QString("properties_%1_%2").arg(what, GetParam().name); }

private:
    QPalette before_;
};

TEST_P(PicturesOfProperties, OfALight) {
    const ZrDbObjectId spot = addLight(L"Desk lamp", DrawableType::kSpotLight);
    {
        const ZrDbObjectPointer<ZrDbLight> light(spot, ZrDb::kForWrite);
        ZrGiShadowParameters shadows;
        shadows.setShadowType(ZrGiShadowParameters::kAreaSampled);
        light->setShadowParameters(shadows);
        light->setLightColor(ZrCmColor::fromRGB(255, 200, 120));
        light->setLampColorType(LampColorType::kKelvin);
    }
    select({spot});
    takePicture(name("light"));
    EXPECT_EQ(shown("light.name"), "Desk lamp");
}

TEST_P(PicturesOfProperties, OfSeveralLightsWithAnEditor) {
    ZrDbObjectPointer<ZrDbLight>(lights[0], ZrDb::kForWrite)->setIntensity(2);
    select(lights);
    open("photometric.candela");
    takePicture(name("editor"));
    EXPECT_NE(editor(), nullptr);
}

TEST_P(PicturesOfProperties, OfAWrongInput) {
    select(lights);
    open("photometric.distance");
    type("abc");
    press(Qt::Key_Return);
    takePicture(name("wrong"));
    EXPECT_TRUE(hint().isVisible());
}

TEST_P(PicturesOfProperties, OfAColour) {
    select(lights);
    open("light.color");
    takePicture(name("colour"));
    EXPECT_NE(editor(), nullptr);
}

TEST_P(PicturesOfProperties, OfTheDrawing) {
    select({});
    takePicture(name("drawing"));
    EXPECT_TRUE(has("drawing.layer"));
}

INSTANTIATE_TEST_SUITE_P(Looks, PicturesOfProperties,
                         testing::Values(Look{"dark_zh", L"zh", true}, Look{"light_zh", L"zh", false},
                                         Look{"dark_en", L"en", true}, Look{"light_en", L"en", false}),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace quor::desktop
