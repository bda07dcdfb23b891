// The keys of the list, and the macros that they and a double click run.
#include "host/ed/input_stack.h"
#include "tests/light/palette/palette_test.h"

namespace quor::test {
namespace {

class LightListKeys : public ShownPaletteTest {
protected:
    LightListKeys() {
        for (const wchar_t* const name : {L"A", L"B", L"C", L"D"})
            make(name);
    }
};

// Esc at the command prompt shows nothing: the macros are read instead of run.
TEST_F(LightListKeys, PropertiesAndDeleteCancelNothingFirst) {
    ed::InputStack& input = session_.session().input();

    doubleClick(0);
    ASSERT_TRUE(input.hasProgramInput());
    EXPECT_EQ(input.ask({}).text, L"_properties");
    input.clear();
    press(VK_DELETE);
    ASSERT_TRUE(input.hasProgramInput());
    EXPECT_EQ(input.ask({}).text, L"_.ERASE");
    input.clear();
}

TEST_F(LightListKeys, DeleteErasesWhatIsSelectedInTheDrawing) {
    click(0);
    click(2, MK_CONTROL);

    press(VK_DELETE);
    runWaiting();

    EXPECT_EQ(names(), (Names{L"B", L"D"}));
    EXPECT_TRUE(front().shows(L"_.ERASE"));
}

TEST_F(LightListKeys, DeleteGivesTheKeyboardBackToTheDrawing) {
    click(0);

    press(VK_DELETE);

    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

class SwallowedKey : public LightListKeys, public testing::WithParamInterface<unsigned> {};

TEST_P(SwallowedKey, NeitherMovesTheSelectionNorClosesThePalette) {
    click(1);

    press(GetParam());
    runWaiting();

    EXPECT_EQ(selectedNames(), Names{L"B"});
    EXPECT_EQ(list().GetNextItem(-1, LVNI_FOCUSED), 1);
    EXPECT_TRUE(palette().IsWindowVisibleEx());
    EXPECT_EQ(names().size(), 4U);
}

INSTANTIATE_TEST_SUITE_P(All, SwallowedKey, testing::Values(VK_ESCAPE, VK_RETURN, VK_UP, VK_DOWN));

class OwnKey : public LightListKeys, public testing::WithParamInterface<unsigned> {};

TEST_P(OwnKey, GoesNoFurtherThanTheDialog) {
    EXPECT_TRUE(
        dialog().dispatchPreTranslate({.kind = InputMessage::Kind::KeyDown, .window = &list(), .key = GetParam()}));
}

INSTANTIATE_TEST_SUITE_P(All, OwnKey, testing::Values(VK_DELETE, VK_ESCAPE, VK_RETURN, VK_UP, VK_DOWN));

TEST_F(LightListKeys, OtherKeysReachTheList) {
    EXPECT_FALSE(
        dialog().dispatchPreTranslate({.kind = InputMessage::Kind::KeyDown, .window = &list(), .key = VK_END}));
}

} // namespace
} // namespace quor::test
