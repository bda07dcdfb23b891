#include "tests/support/test_session.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

// A program with a text window, or without one.
class Screens final : public FrontEnd {
public:
    bool hasTextWindow = true;
    std::vector<bool> shown;
    ZrString screen;

    void print(std::wstring_view text) override { screen += text; }
    Answer ask(const Question&) override { return {}; }
    void echo(const Question&, std::wstring_view) override {}
    Answer drag(const Question&, const std::function<void(const ZrGePoint3d&)>&) override { return {}; }
    TaskDialogAnswer showTaskDialog(const CZrUiTaskDialog&) override { return {}; }
    FileAnswer chooseFile(const FileQuestion&) override { return {}; }
    bool showTextWindow(bool show) override {
        shown.push_back(show);
        return hasTextWindow;
    }
};

class ScreensTest : public testing::Test {
protected:
    SessionOptions options() const {
        SessionOptions options;
        options.settingsFile = folder_.path() / "settings.ini";
        options.language = L"zh";
        return options;
    }

    test::TemporaryFolder folder_;
    Screens screens_;
    Session session_{screens_, options()};
};

TEST_F(ScreensTest, TextscrShowsTheTextWindowAndGraphscrHidesIt) {
    session_.processor().run(L"TEXTSCR", false);
    session_.processor().run(L"GRAPHSCR", false);
    EXPECT_EQ(screens_.shown, (std::vector<bool>{true, false}));
    EXPECT_EQ(screens_.screen, L"");
}

TEST_F(ScreensTest, WithoutATextWindowItIsSaidThatThereIsOneScreen) {
    screens_.hasTextWindow = false;
    session_.processor().run(L"TEXTSCR", false);
    EXPECT_EQ(screens_.screen, L"\n这里只有一个屏幕，文字和图形不能切换。\n");
}

TEST(ScreensCommandTest, RunsInTheMiddleOfAnotherCommandAndLeavesNothingToUndo) {
    test::TestSession host;
    host.runScript("LINE 0,0 'TEXTSCR 1,1 \nU\n");
    EXPECT_FALSE(host.document().isModified());
}

} // namespace
} // namespace quor
