// The list for people who do not see it.
#include "tests/desktop/palettes/shown_palette.h"

#include <QAccessible>

namespace quor::desktop::test {
namespace {

class AccessibleList : public ShownPalette {
protected:
    AccessibleList() {
        addLight(L"a");
        addLight(L"b", DrawableType::kSpotLight);
        show();
        settle();
    }
    QAccessibleInterface& accessible() { return *QAccessible::queryAccessibleInterface(&view()); }
};

TEST_F(AccessibleList, IsAListWithTheNameOfItsLabel) {
    EXPECT_EQ(accessible().role(), QAccessible::List);
    EXPECT_EQ(accessible().text(QAccessible::Name), QString::fromUtf8("模型空间中的光源"));
}

TEST_F(AccessibleList, HasItsRowsWithTheNameOfTheirKindAndItsHeadings) {
    ASSERT_EQ(accessible().childCount(), 4);
    EXPECT_EQ(accessible().child(0)->role(), QAccessible::ListItem);
    EXPECT_EQ(accessible().child(0)->text(QAccessible::Name), QString::fromUtf8("点光源 a"));
    EXPECT_EQ(accessible().child(1)->text(QAccessible::Name), QString::fromUtf8("聚光灯 b"));
    EXPECT_EQ(accessible().child(2)->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(accessible().child(2)->text(QAccessible::Name), QString::fromUtf8("类型"));
    EXPECT_EQ(accessible().child(3)->text(QAccessible::Name), QString::fromUtf8("光源名称"));
    EXPECT_EQ(accessible().indexOfChild(accessible().child(3)), 3);
}

TEST_F(AccessibleList, KnowsWhichRowsAreSelected) {
    click(1);

    EXPECT_FALSE(accessible().child(0)->state().selected);
    EXPECT_TRUE(accessible().child(1)->state().selected);
    ASSERT_NE(accessible().focusChild(), nullptr);
    EXPECT_EQ(accessible().focusChild()->text(QAccessible::Name), QString::fromUtf8("聚光灯 b"));
}

TEST_F(AccessibleList, KnowsWhereARowIs) {
    const QPoint middle = view().viewport()->mapToGlobal(middleOf(1));

    EXPECT_TRUE(accessible().child(1)->rect().contains(middle));
    EXPECT_EQ(accessible().childAt(middle.x(), middle.y()), accessible().child(1));
}

TEST_F(AccessibleList, HasNoRowThatIsGone) {
    QAccessibleInterface* const last = accessible().child(1);
    list().DeleteItem(1);

    EXPECT_FALSE(last->isValid());
    EXPECT_EQ(last->text(QAccessible::Name), QString());
    EXPECT_EQ(accessible().childCount(), 3);
}

TEST_F(AccessibleList, TheLabelIsAText) {
    QWidget* const label = widgetOf(*palette().children().front()->GetDlgItem(7506));
    const QAccessibleInterface* const text = QAccessible::queryAccessibleInterface(label);

    EXPECT_EQ(text->role(), QAccessible::StaticText);
    EXPECT_EQ(text->text(QAccessible::Name), QString::fromUtf8("模型空间中的光源"));
}

} // namespace
} // namespace quor::desktop::test
