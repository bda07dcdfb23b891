#include "host/ui/list_text.h"

#include "host/texts/text.h"
#include "sdk/ui/image_list.h"
#include "tests/host/ui/list_fixture.h"
#include "tests/support/test_session.h"

namespace quor::ui {
namespace {

constexpr PictureResource kPictures[] = {{1, {0, L"Lamp"}, {21, 21}, "<svg/>"}};
constexpr ZwUiResources kResources{.menus = {}, .dialogs = {}, .pictures = kPictures};

class ListText : public ListFixture {
protected:
    ListText() {
        list.SetItemText(0, 0, L"");
        const ZwResourceScope scope(&kResources);
        CBitmap bitmap;
        bitmap.LoadBitmap(1);
        images.Add(bitmap);
    }

    quor::test::TestSession session_;
};

TEST_F(ListText, NamesThePictureOfARowBeforeItsText) {
    list.SetItemImage(0, 0);

    EXPECT_EQ(cellText(list, 0, 0), L"Lamp");
    EXPECT_EQ(cellText(list, 0, 1), L"a");
    EXPECT_EQ(rowText(list, 0), L"Lamp a");
}

TEST_F(ListText, SaysNothingOfAPictureThatIsNotThere) { EXPECT_EQ(rowText(list, 0), L"a"); }

TEST_F(ListText, NamesTheColumnOfPicturesThatHasNoHeading) {
    EXPECT_EQ(headingText(list, 0), L"类型");
    EXPECT_EQ(headingText(list, 1), L"Name");
    EXPECT_EQ(headingText(list, 2), L"");

    list.SetImageList(nullptr, LVSIL_SMALL);

    EXPECT_EQ(headingText(list, 0), L"");
}

TEST_F(ListText, GoesByTheOrderOfTheColumns) {
    list.SetItemImage(0, 0);
    CHeaderCtrl::Item name = *list.GetHeaderCtrl()->GetItem(1);
    name.order = 0;
    list.GetHeaderCtrl()->SetItem(1, name);

    EXPECT_EQ(columnsInOrder(*list.GetHeaderCtrl()), (std::vector<int>{1, 0}));
    EXPECT_EQ(rowText(list, 0), L"a Lamp");
}

} // namespace
} // namespace quor::ui
