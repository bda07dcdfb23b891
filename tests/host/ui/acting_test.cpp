#include "host/ui/acting.h"

#include "sdk/ui/window.h"

#include <gtest/gtest.h>
#include <memory>

namespace quor {
namespace {

using ui::ActingScope;
using ui::actingWindow;

TEST(ActingWindow, IsNullWhileNobodyDoesAnything) { EXPECT_EQ(actingWindow(), nullptr); }

TEST(ActingWindow, IsTheWindowAtTheTopUntilTheBlockEnds) {
    CWnd top;
    CWnd child;
    top.Create({});
    child.Create({.parent = &top});

    {
        const ActingScope scope(child);
        EXPECT_EQ(actingWindow(), &top);
    }

    EXPECT_EQ(actingWindow(), nullptr);
}

TEST(ActingWindow, IsTheOuterOneAgainAfterAnInnerBlock) {
    CWnd outer;
    CWnd inner;
    outer.Create({});
    inner.Create({});
    const ActingScope scope(outer);

    {
        const ActingScope innerScope(inner);
        EXPECT_EQ(actingWindow(), &inner);
    }

    EXPECT_EQ(actingWindow(), &outer);
}

TEST(ActingWindow, IsNullWhenItWasDestroyedMeanwhile) {
    CWnd window;
    window.Create({});
    const ActingScope scope(window);

    window.DestroyWindow();

    EXPECT_EQ(actingWindow(), nullptr);
}

TEST(ActingWindow, IsNullWhenTheOuterOneWasDestroyedByTheInner) {
    CWnd inner;
    inner.Create({});
    auto outer = std::make_unique<CWnd>();
    outer->Create({});
    const ActingScope scope(*outer);

    {
        const ActingScope innerScope(inner);
        outer.reset();
        EXPECT_EQ(actingWindow(), &inner);
    }

    EXPECT_EQ(actingWindow(), nullptr);
}

} // namespace
} // namespace quor
