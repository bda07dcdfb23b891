#include "host/ui/palette_text.h"

#include "sdk/ui/image_list.h"
#include "sdk/ui/list_control.h"
#include "sdk/ui/palette_set.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quor::test {

namespace {

constexpr quor::ui::PictureResource kPictures[] = {{1, {0, L"点光源"}, {16, 16}, "<svg/>"},
                                                   {2, {0, L"聚光灯"}, {16, 16}, "<svg/>"}};
const ZwUiResources kResources{{}, {}, kPictures};

// A palette with one list inside a panel.
class ListPalette : public CZrRxPaletteSet {
public:
    explicit ListPalette(const ZrString& title) {
        SetName(title);
        Create({.rect = {0, 0, 200, 400}});
        panel.Create({.parent = this, .style = WS_VISIBLE, .rect = GetClientRect()});
        list.Create({.parent = &panel, .style = WS_VISIBLE | LVS_REPORT, .rect = GetClientRect()});
    }
    ~ListPalette() override { DestroyWindow(); }

    void addPictures() {
        const ZwResourceScope resources(&kResources);
        images.Create(16, 16, ILC_COLOR8, 0, 2);
        for (const unsigned id : {1U, 2U}) {
            CBitmap bitmap;
            bitmap.LoadBitmap(id);
            images.Add(bitmap);
        }
        list.SetImageList(&images, LVSIL_SMALL);
    }
    void addRow(int image, const ZrString& name) {
        const int row = list.InsertItem(list.GetItemCount(), L"", image);
        list.SetItemText(row, 1, name);
    }

    CImageList images;
    CListCtrl list;
    CWnd panel;
};

class ThePaletteAsText : public testing::Test {
protected:
    ThePaletteAsText() { addColumns(L"光源名称"); }
    explicit ThePaletteAsText(const ZrString& language) : test_({.language = language}) { addColumns(L"Light Name"); }

    void addColumns(const ZrString& name) {
        palette_.list.InsertColumn(0, L"", HDF_LEFT, 50);
        palette_.list.InsertColumn(1, name, HDF_LEFT, 120);
        palette_.addPictures();
    }
    [[nodiscard]] ZrString text(int columns = 80) const { return ui::paletteText(palette_, columns); }

    TestSession test_;
    ListPalette palette_{L"模型中的光源"};
};

class ThePaletteAsEnglishText : public ThePaletteAsText {
protected:
    ThePaletteAsEnglishText() : ThePaletteAsText(L"en") { palette_.SetName(L"Lights in Model"); }
};

TEST_F(ThePaletteAsText, SaysThatItsListIsEmpty) { EXPECT_EQ(text(), L"\n模型中的光源\n  (无)\n"); }

TEST_F(ThePaletteAsText, NamesThePictureOfItsRow) {
    palette_.addRow(0, L"吊灯");
    EXPECT_EQ(text(), L"\n"
                      L"模型中的光源\n"
                      L"  类型    光源名称\n"
                      L"  点光源  吊灯\n"
                      L"\n"
                      L"共 1 项。\n");
}

TEST_F(ThePaletteAsText, ListsItsRowsInTheirOrder) {
    palette_.addRow(1, L"Spot");
    palette_.addRow(0, L"吊灯");
    palette_.addRow(1, L"聚光灯12");
    EXPECT_EQ(text(), L"\n"
                      L"模型中的光源\n"
                      L"  类型    光源名称\n"
                      L"  聚光灯  Spot\n"
                      L"  点光源  吊灯\n"
                      L"  聚光灯  聚光灯12\n"
                      L"\n"
                      L"共 3 项。\n");
}

TEST_F(ThePaletteAsText, ShowsADashForAPictureThatDoesNotExist) {
    palette_.addRow(7, L"Spot");
    palette_.addRow(0, L"吊灯");
    EXPECT_NE(text().find(L"  -       Spot\n"), ZrString::npos);
}

TEST_F(ThePaletteAsText, CutsLongNamesToTheWidth) {
    palette_.addRow(0, ZrString(100, L'x'));
    EXPECT_NE(text(40).find(L"  点光源  " + ZrString(29, L'x') + L"…\n"), ZrString::npos);
}

TEST_F(ThePaletteAsText, CutsNothingWhereLinesMayBeOfAnyLength) {
    palette_.addRow(0, ZrString(255, L'x'));
    EXPECT_NE(text(FrontEnd::kAnyColumns).find(L"  点光源  " + ZrString(255, L'x') + L"\n"), ZrString::npos);
}

TEST_F(ThePaletteAsText, StaysReadableWhereItIsNarrow) {
    palette_.addRow(0, L"吊灯");
    EXPECT_EQ(text(20), text(80));
}

TEST_F(ThePaletteAsText, CutsNamesFurtherWhereItIsVeryNarrow) {
    palette_.addRow(0, ZrString(30, L'x'));
    EXPECT_NE(text(20).find(L"\n  类型    光源名称\n  点光源  xxxxxxxxx…\n"), ZrString::npos);
    EXPECT_NE(text(13).find(L"\n  类型    光…\n  点光源  xx…\n"), ZrString::npos);
}

TEST_F(ThePaletteAsText, ShowsAColumnWithAHeadingThoughAllItsTextsAreEmpty) {
    palette_.addRow(0, L"");
    palette_.addRow(1, L"");
    EXPECT_NE(text().find(L"\n  类型    光源名称\n  点光源  -\n  聚光灯  -\n"), ZrString::npos);
}

TEST_F(ThePaletteAsText, SpellsOutControlCharacters) {
    palette_.SetName(L"a\tb");
    palette_.addRow(0, L"c\nd");
    const auto isControl = [](wchar_t c) { return c < L' ' && c != L'\n'; };
    const ZrString shown = text();
    EXPECT_TRUE(std::none_of(shown.begin(), shown.end(), isControl));
    EXPECT_EQ(std::count(shown.begin(), shown.end(), L'\n'), 6);
}

TEST_F(ThePaletteAsText, KeepsTheHeadingThatItsPicturesHave) {
    palette_.list.GetHeaderCtrl()->SetItem(0, {.text = L"种类", .width = 50});
    palette_.addRow(0, L"吊灯");
    EXPECT_NE(text().find(L"  种类    光源名称\n"), ZrString::npos);
}

TEST_F(ThePaletteAsText, PutsATextBehindThePictureBesideIt) {
    palette_.list.InsertItem(0, L"亮", 0);
    EXPECT_NE(text().find(L"  点光源 亮  -\n"), ZrString::npos);
}

TEST_F(ThePaletteAsText, LeavesOutAColumnWithoutHeadingAndTexts) {
    palette_.list.SetImageList(nullptr, LVSIL_SMALL);
    palette_.addRow(-1, L"吊灯");
    EXPECT_NE(text().find(L"\n  光源名称\n  吊灯\n"), ZrString::npos);
}

TEST_F(ThePaletteAsText, ShowsNoListThatIsHidden) {
    palette_.list.ShowWindow(false);
    EXPECT_EQ(text(), L"\n模型中的光源\n");
}

TEST_F(ThePaletteAsText, ShowsEveryListWithItsOwnNumber) {
    CListCtrl second;
    second.Create({.parent = &palette_, .style = WS_VISIBLE, .rect = {0, 0, 100, 100}});
    palette_.addRow(0, L"吊灯");
    EXPECT_NE(text().find(L"共 1 项。\n\n  (无)\n"), ZrString::npos);
    second.DestroyWindow();
}

TEST_F(ThePaletteAsEnglishText, SaysThatItsListIsEmpty) { EXPECT_EQ(text(), L"\nLights in Model\n  (none)\n"); }

TEST_F(ThePaletteAsEnglishText, CountsOneRow) {
    palette_.addRow(0, L"Lamp");
    EXPECT_EQ(text(), L"\n"
                      L"Lights in Model\n"
                      L"  Kind    Light Name\n"
                      L"  点光源  Lamp\n"
                      L"\n"
                      L"1 item.\n");
}

TEST_F(ThePaletteAsEnglishText, CountsManyRows) {
    palette_.addRow(0, L"Lamp");
    palette_.addRow(0, L"Lamp");
    EXPECT_TRUE(text().ends_with(L"\n\n2 items.\n"));
}

} // namespace

} // namespace quor::test
