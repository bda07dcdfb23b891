#include "sdk/ui/window_ref.h"

#include "sdk/ui/window.h"

#include <gtest/gtest.h>
#include <optional>
#include <vector>

namespace quor {
namespace {

using ui::WindowRef;

class WindowReference : public testing::Test {
protected:
    WindowReference() { window.Create({.text = L"w"}); }

    CWnd window;
};

TEST_F(WindowReference, PointsToAWindow) {
    const WindowRef reference(&window);

    EXPECT_TRUE(reference);
    EXPECT_EQ(reference.get(), &window);
    EXPECT_EQ(reference->GetWindowText(), L"w");
    EXPECT_EQ(&*reference, &window);
}

TEST_F(WindowReference, IsNullByItselfAndForAnObjectWithoutAWindow) {
    CWnd none;

    EXPECT_FALSE(WindowRef());
    EXPECT_FALSE(WindowRef(&none));
}

TEST_F(WindowReference, BecomesNullWhenTheWindowIsDestroyed) {
    const WindowRef reference(&window);

    window.DestroyWindow();

    EXPECT_FALSE(reference);
}

TEST_F(WindowReference, StaysNullWhenTheWindowIsMadeAgain) {
    const WindowRef reference(&window);
    window.DestroyWindow();

    window.Create({});

    EXPECT_FALSE(reference);
}

TEST_F(WindowReference, BecomesNullWhenTheObjectGoes) {
    std::optional<CWnd> gone(std::in_place);
    gone->Create({});
    const WindowRef reference(&*gone);

    gone.reset();

    EXPECT_FALSE(reference);
}

TEST_F(WindowReference, BecomesNullWithTheWindowOfAParent) {
    CWnd child;
    child.Create({.parent = &window});
    const WindowRef reference(&child);

    window.DestroyWindow();

    EXPECT_FALSE(reference);
}

TEST_F(WindowReference, PointsToTheObjectThatTakesTheWindowOver) {
    CWnd other;
    const WindowRef reference(&window);

    other.SubclassWindow(window);

    EXPECT_EQ(reference.get(), &other);
}

TEST_F(WindowReference, CopiesBecomeNullToo) {
    const WindowRef reference(&window);
    const std::vector<WindowRef> copies(2, reference);
    WindowRef assigned;
    assigned = reference;

    window.DestroyWindow();

    EXPECT_FALSE(copies[0]);
    EXPECT_FALSE(copies[1]);
    EXPECT_FALSE(assigned);
}

TEST_F(WindowReference, OthersAreNotTouched) {
    CWnd other;
    other.Create({});
    const WindowRef reference(&other);
    const WindowRef first(&window);
    { const WindowRef inTheMiddle(&window); }

    window.DestroyWindow();

    EXPECT_EQ(reference.get(), &other);
    EXPECT_FALSE(first);
}

} // namespace
} // namespace quor
