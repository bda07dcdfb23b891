#include "host/ui/painting.h"
#include "host/ui/recording_device.h"
#include "host/ui/theme.h"
#include "tests/host/ui/list_fixture.h"

namespace quor::ui {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

// Writes down what it is asked to draw.
class OwnerDrawnList : public CListCtrl {
public:
    struct Drawn {
        int index;
        CRect rect;
        bool selected;
        bool focused;
        bool operator==(const Drawn&) const = default;
    };
    std::vector<Drawn> drawn;

protected:
    void DrawItem(const quor::ui::DrawItem& item) override {
        drawn.push_back({item.index, item.rect, item.selected, item.focused});
    }
};

class ListPaint : public ListFixture {
protected:
    [[nodiscard]] std::vector<ZrString> lines() {
        RecordingDevice device;
        CDC dc(device);
        list.dispatchPaint(dc);
        return device.lines();
    }
    static DrawingCall fill(const CRect& rect, COLORREF color) {
        return {.kind = DrawingCall::Kind::Fill, .rect = rect, .color = color};
    }

    RecordingDevice device;
};

TEST_F(ListPaint, DrawsItsBackgroundAndTheRowsInView) {
    list.SetBkColor(RGB(1, 2, 3));
    list.SetTextColor(RGB(4, 5, 6));
    list.SetRows(rowsNamed({L"a", L"b"}));

    EXPECT_THAT(lines(), ElementsAre(L"fill 0,0,200,124 #010203",
                                     L"text \"\" 28,24,50,46 singleline vcenter endellipsis #040506 Window",
                                     L"text \"a\" 53,24,170,46 singleline vcenter endellipsis #040506 Window",
                                     L"text \"\" 28,46,50,68 singleline vcenter endellipsis #040506 Window",
                                     L"text \"b\" 53,46,170,68 singleline vcenter endellipsis #040506 Window"));
}

TEST_F(ListPaint, DrawsASelectedRowInTheColoursOfTheKeyboard) {
    list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    list.SetFocus();
    paint(list, device);

    EXPECT_THAT(device.calls(), Contains(fill({0, 46, 170, 68}, GetSysColor(COLOR_HIGHLIGHT))));
    EXPECT_THAT(device.lines(), Contains(L"focus 0,46,170,68"));
}

TEST_F(ListPaint, DrawsASelectedRowFaintlyWithoutTheKeyboard) {
    list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    paint(list, device);

    EXPECT_THAT(device.calls(), Contains(fill({0, 46, 170, 68}, Theme().color(kThemeUnfocusedSelection))));
    EXPECT_THAT(device.lines(), Not(Contains(L"focus 0,46,170,68")));
}

TEST_F(ListPaint, HighlightsTheLabelOnlyWithoutFullRows) {
    list.SetExtendedStyle(0);
    list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    paint(list, device);

    EXPECT_THAT(device.calls(), Contains(fill({25, 24, 50, 46}, Theme().color(kThemeUnfocusedSelection))));
}

TEST_F(ListPaint, DrawsTheImageOfARow) {
    const PictureResource picture{.id = 7514, .name = {0, L"lamp"}, .size = {21, 21}, .svg = ""};
    const PictureResource pictures[] = {picture};
    const ZwUiResources resources{{}, {}, pictures};
    const ZwResourceScope scope(&resources);
    CBitmap bitmap;
    bitmap.LoadBitmap(7514);
    images.Add(bitmap);
    list.SetItemImage(1, 0);

    EXPECT_THAT(lines(), Contains(L"picture 7514 4,46,25,67 transparent"));
}

TEST_F(ListPaint, IsDueAfterTheKeyboardCameOrWent) {
    paint(list, device);
    list.SetFocus();
    EXPECT_TRUE(list.needsPaint());

    paint(list, device);
    parent.SetFocus();
    EXPECT_TRUE(list.needsPaint());
}

TEST_F(ListPaint, IsDueAfterANewColourOnly) {
    list.SetBkColor(RGB(1, 2, 3));
    list.SetTextColor(RGB(1, 2, 3));
    paint(list, device);
    list.SetBkColor(RGB(1, 2, 3));
    list.SetTextColor(RGB(1, 2, 3));
    EXPECT_FALSE(list.needsPaint());

    list.SetBkColor(RGB(3, 2, 1));
    EXPECT_TRUE(list.needsPaint());
}

TEST_F(ListPaint, IsDueWhenAColumnHasAnotherWidth) {
    paint(list, device);

    list.SetColumnWidth(1, 100);

    EXPECT_TRUE(list.needsPaint());
}

TEST_F(ListPaint, OfAnOwnerDrawnListAsksForTheRowsInView) {
    OwnerDrawnList own;
    own.SubclassWindow(list);
    own.ModifyStyle(0, LVS_OWNERDRAWFIXED);
    own.SetTopIndex(3);
    own.SetItemState(4, LVIS_SELECTED, LVIS_SELECTED);
    own.SetItemState(5, LVIS_FOCUSED, LVIS_FOCUSED);

    paint(own, device);

    EXPECT_THAT(own.drawn, ElementsAre(OwnerDrawnList::Drawn{3, {0, 24, 170, 46}, false, false},
                                       OwnerDrawnList::Drawn{4, {0, 46, 170, 68}, true, false},
                                       OwnerDrawnList::Drawn{5, {0, 68, 170, 90}, false, true},
                                       OwnerDrawnList::Drawn{6, {0, 90, 170, 112}, false, false},
                                       OwnerDrawnList::Drawn{7, {0, 112, 170, 134}, false, false}));
}

TEST_F(ListPaint, WithoutTheStyleAsksForNothing) {
    OwnerDrawnList own;
    own.SubclassWindow(list);

    paint(own, device);

    EXPECT_THAT(own.drawn, IsEmpty());
}

TEST_F(ListPaint, EndsWithItsHeader) {
    paint(list, device);

    EXPECT_THAT(device.lines(), Contains(L"enter 0,0,200,24"));
    EXPECT_EQ(device.lines().back(), L"leave");
}

} // namespace
} // namespace quor::ui
