#include "sdk/ui/header_control.h"

#include "host/ui/input.h"
#include "host/ui/painting.h"
#include "host/ui/recording_device.h"
#include "host/ui/theme.h"
#include "sdk/ui/image_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quor::ui {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class ColumnParent : public CWnd {
public:
    std::vector<int> clicked;

protected:
    std::intptr_t OnNotify(unsigned /*id*/, const Notification& notification) override {
        clicked.push_back(notification.column);
        return 0;
    }
};

class Header : public testing::Test {
protected:
    Header() {
        parent.Create({.style = WS_VISIBLE, .rect = {0, 0, 300, 300}});
        header.Create({.parent = &parent, .style = WS_VISIBLE, .rect = {0, 0, 200, 24}});
        header.InsertItem(0, {.text = L"a", .width = 50});
        header.InsertItem(1, {.text = L"b", .width = 70});
    }
    void setOrder(int index, int order) {
        CHeaderCtrl::Item item = *header.GetItem(index);
        item.order = order;
        header.SetItem(index, item);
    }
    [[nodiscard]] std::vector<int> orders() const {
        std::vector<int> result;
        result.reserve(static_cast<std::size_t>(header.GetItemCount()));
        for (int i = 0; i < header.GetItemCount(); ++i)
            result.push_back(header.GetItem(i)->order);
        return result;
    }

    ColumnParent parent;
    CHeaderCtrl header;
};

TEST_F(Header, HasItsItemsFromTheLeftInTheirOrder) {
    EXPECT_EQ(header.GetItemRect(0), (CRect{0, 0, 50, 24}));
    EXPECT_EQ(header.GetItemRect(1), (CRect{50, 0, 120, 24}));

    setOrder(1, 0);

    EXPECT_EQ(header.GetItemRect(1), (CRect{0, 0, 70, 24}));
    EXPECT_EQ(header.GetItemRect(0), (CRect{70, 0, 120, 24}));
    EXPECT_THAT(orders(), ElementsAre(1, 0));
}

TEST_F(Header, KeepsTheOrderUpToDate) {
    header.InsertItem(1, {.text = L"c", .width = 10});
    EXPECT_THAT(orders(), ElementsAre(0, 1, 2));

    setOrder(0, 2);
    EXPECT_THAT(orders(), ElementsAre(2, 0, 1));

    setOrder(2, 0);
    EXPECT_THAT(orders(), ElementsAre(2, 1, 0));

    header.DeleteItem(2);
    EXPECT_THAT(orders(), ElementsAre(1, 0));
}

TEST_F(Header, RefusesWhatIsBadAndChangesNothing) {
    EXPECT_EQ(header.InsertItem(3, {}), -1);
    EXPECT_EQ(header.InsertItem(-1, {}), -1);
    EXPECT_EQ(header.InsertItem(0, {.width = -1}), -1);
    EXPECT_FALSE(header.DeleteItem(2));
    EXPECT_FALSE(header.SetItem(2, {}));
    EXPECT_FALSE(header.SetItem(0, {.width = -1}));
    EXPECT_FALSE(header.SetItem(0, {.order = 2}));
    EXPECT_FALSE(header.SetItem(0, {.order = -1}));
    EXPECT_EQ(header.GetItem(2), nullptr);
    EXPECT_EQ(header.GetItem(-1), nullptr);
    EXPECT_EQ(header.GetItemRect(2), CRect());

    EXPECT_EQ(header.GetItemCount(), 2);
    EXPECT_EQ(header.GetItem(0)->text, L"a");
}

TEST_F(Header, TellsWhichItemWasClicked) {
    click(header, {60, 5});
    click(header, {0, 23});

    EXPECT_THAT(parent.clicked, ElementsAre(1, 0));
}

TEST_F(Header, TellsNothingOfAClickBehindTheLastItem) {
    click(header, {120, 5});

    EXPECT_THAT(parent.clicked, IsEmpty());
    EXPECT_EQ(header.HitTest({120, 5}), -1);
    EXPECT_EQ(header.HitTest({119, 5}), 1);
}

TEST_F(Header, DrawsItselfInTheColoursOfTheTheme) {
    RecordingDevice device;
    header.SetItem(1, {.text = L"b", .width = 70, .order = 1});

    paint(header, device);

    const Theme theme;
    const COLORREF separator = theme.color(kThemeHeaderSeparator);
    ASSERT_EQ(device.calls().size(), 5U);
    EXPECT_EQ(device.calls()[0].color, theme.color(kThemeHeaderBackground));
    EXPECT_EQ(device.calls()[1].rect, (CRect{49, 0, 50, 24}));
    EXPECT_EQ(device.calls()[1].color, separator);
    EXPECT_EQ(device.calls()[2].text, L"a");
    EXPECT_EQ(device.calls()[2].color, theme.color(kThemeHeaderText));
    EXPECT_EQ(device.calls()[4].rect, (CRect{55, 0, 120, 24}));
}

TEST_F(Header, DrawsTheImageOfAnItemThatHasOne) {
    const PictureResource pictures[] = {{.id = 9, .name = {0, L"lamp"}, .size = {16, 16}, .svg = ""}};
    const ZwUiResources resources{{}, {}, pictures};
    const ZwResourceScope scope(&resources);
    CBitmap bitmap;
    bitmap.LoadBitmap(9);
    CImageList images;
    images.Create(16, 16, ILC_COLOR8, 1, 1);
    images.Add(bitmap);
    header.SetImageList(&images);
    header.SetItem(0, {.text = L"a", .width = 50, .format = HDF_IMAGE, .image = 0});
    RecordingDevice device;

    paint(header, device);

    EXPECT_THAT(device.lines(), Contains(L"picture 9 5,4,21,20 transparent"));
}

TEST_F(Header, GivesItsItemsToTheObjectThatTakesItOver) {
    CImageList images;
    header.SetImageList(&images);
    CHeaderCtrl other;

    EXPECT_TRUE(other.SubclassWindow(header));

    EXPECT_EQ(other.GetItemCount(), 2);
    EXPECT_EQ(other.GetItem(1)->text, L"b");
    EXPECT_EQ(other.GetImageList(), &images);
    EXPECT_EQ(header.GetItemCount(), 0);
}

} // namespace
} // namespace quor::ui
