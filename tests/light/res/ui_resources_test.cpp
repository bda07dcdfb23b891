// The palette's menus, dialog and pictures, as the host finds them.
#include "light/res/ui_resources.h"

#include "host/texts/text.h"
#include "host/ui/resource_lookup.h"
#include "light/res/text_table.h"
#include "sdk/ui/list_control.h"
#include "sdk/ui/menu.h"
#include "tests/support/test_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quor::light {
namespace {

using testing::ElementsAre;

class Menus : public testing::Test {
protected:
    ~Menus() override { setLanguage(Language::Chinese); }
    // The menu that pops up.
    const CMenu& popup(unsigned id) {
        menu_.LoadMenu(id);
        return *menu_.GetSubMenu(0);
    }
    static std::vector<ZrString> textsOf(const CMenu& menu) {
        std::vector<ZrString> found;
        for (const CMenu::Entry& entry : menu.entries())
            found.push_back(entry.text);
        return found;
    }
    static std::vector<unsigned> commandsOf(const CMenu& menu) {
        std::vector<unsigned> found;
        for (const CMenu::Entry& entry : menu.entries())
            found.push_back(entry.command);
        return found;
    }

private:
    ZwResourceScope scope_{&uiResources()};
    CMenu menu_;
};

TEST_F(Menus, OfARowDeletesShowsPropertiesAndHasTheGlyphDisplayAsItsThirdEntry) {
    const CMenu& menu = popup(7524);

    EXPECT_THAT(commandsOf(menu), ElementsAre(7507, 7508, 0));
    EXPECT_THAT(textsOf(menu), ElementsAre(L"删除", L"特性", L"轮廓显示"));
    ASSERT_NE(menu.GetSubMenu(kGlyphMenuPosition), nullptr);
    EXPECT_THAT(commandsOf(*menu.GetSubMenu(kGlyphMenuPosition)), ElementsAre(7509, 7510, 7511));
    EXPECT_THAT(textsOf(*menu.GetSubMenu(kGlyphMenuPosition)), ElementsAre(L"自动", L"开", L"关"));
}

TEST_F(Menus, OfTheListShowsTips) {
    const CMenu& menu = popup(7525);

    EXPECT_THAT(commandsOf(menu), ElementsAre(7512));
    EXPECT_THAT(textsOf(menu), ElementsAre(L"显示提示"));
}

TEST_F(Menus, OfThePaletteShowsTipsAndClosesIt) {
    const CMenu& menu = popup(7526);

    EXPECT_THAT(commandsOf(menu), ElementsAre(7502, 0, 7501));
    EXPECT_THAT(textsOf(menu), ElementsAre(L"显示提示", L"", L"关闭"));
    EXPECT_TRUE(menu.entries()[1].isSeparator());
}

TEST_F(Menus, SpeakTheLanguageInUse) {
    test::TestSession english({.language = L"en", .newDrawing = false});

    EXPECT_THAT(textsOf(popup(7524)), ElementsAre(L"Delete", L"Properties", L"Glyph Display"));
    EXPECT_THAT(textsOf(popup(7526)), ElementsAre(L"Show Tips", L"", L"Close"));
}

class ListDialog : public testing::Test {
protected:
    static const ui::ControlTemplate& control(unsigned id) {
        return *std::ranges::find(dialog().controls, id, &ui::ControlTemplate::id);
    }
    static const ui::DialogTemplate& dialog() { return uiResources().dialogs.front(); }
};

TEST_F(ListDialog, IsFoundUnderItsNumber) {
    const ZwResourceScope scope(&uiResources());

    EXPECT_EQ(ui::findDialog(7503), &dialog());
    EXPECT_EQ(dialog().size, (CSize{208, 400}));
}

TEST_F(ListDialog, HasALabelTheListAndThePanelOfTheTips) {
    EXPECT_EQ(control(7506).kind, ui::ControlKind::Static);
    EXPECT_STREQ(control(7506).text.builtIn, L"模型空间中的光源");
    EXPECT_EQ(control(7504).kind, ui::ControlKind::List);
    EXPECT_EQ(control(7504).style, LVS_REPORT);
    EXPECT_EQ(control(7505).kind, ui::ControlKind::Button);
    EXPECT_EQ(dialog().controls.size(), 3U);
}

TEST_F(ListDialog, HasThemOneBelowTheOtherWithARimOfTenPixels) {
    EXPECT_EQ(control(7506).rect, (CRect{10, 4, 198, 24}));
    EXPECT_EQ(control(7504).rect, (CRect{10, 25, 198, 282}));
    EXPECT_EQ(control(7505).rect, (CRect{10, 290, 198, 390}));
}

struct TypePicture {
    unsigned number;
    const wchar_t* name;
};

class PictureOfAType : public testing::TestWithParam<TypePicture> {
protected:
    static const ui::PictureResource* picture() { return ui::findPicture(&uiResources(), GetParam().number); }
};

TEST_P(PictureOfAType, IsADocumentOf21Pixels) {
    ASSERT_NE(picture(), nullptr);
    EXPECT_EQ(picture()->size, (CSize{21, 21}));
    EXPECT_TRUE(picture()->svg.starts_with("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"21\" height=\"21\""));
    EXPECT_TRUE(picture()->svg.ends_with("</svg>\n"));
}

TEST_P(PictureOfAType, RefersToNothingOutside) { EXPECT_EQ(picture()->svg.find("href"), std::string_view::npos); }

TEST_P(PictureOfAType, SaysWhatItShows) { EXPECT_EQ(zwResourceText(picture()->name), GetParam().name); }

INSTANTIATE_TEST_SUITE_P(All, PictureOfAType,
                         testing::Values(TypePicture{7513, L"点光源"}, TypePicture{7514, L"平行光"},
                                         TypePicture{7515, L"聚光灯"}, TypePicture{7516, L"光域灯光"}),
                         [](const auto& info) { return "Picture" + std::to_string(info.param.number); });

} // namespace
} // namespace quor::light
