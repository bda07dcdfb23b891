#include "host/ui/palette_notifier.h"

#include "host/sys/system_variables.h"
#include "host/ui/acting.h"
#include "sdk/db/line.h"
#include "sdk/ed/selection.h"
#include "sdk/ui/main_frame.h"
#include "tests/host/ui/palette_test.h"

#include <stdexcept>

namespace quor::test {

namespace {

class ThePalette : public PaletteTest {
protected:
    ThePalette() {
        test_.addCommand(L"MAKE", [this] {
            light_ = addLight();
            return RTNORM;
        });
        test_.addCommand(L"RENAME", [this] { return rename(L"Desk lamp"); });
        test_.addCommand(L"TAKE", [this] { return erase(true); });
        test_.addCommand(L"GIVE", [this] { return erase(false); });
        test_.addCommand(L"LAMPFAILS", []() -> int {
            addLight();
            throw std::runtime_error("no luck");
        });
        palette_ = &append();
    }

    int rename(const ZrString& name) const {
        const ZrDbObjectPointer<ZrDbLight> light(light_, ZrDb::kForWrite);
        light->setName(name);
        return RTNORM;
    }
    int erase(bool erasing) const {
        const ZrDbObjectPointer<ZrDbLight> light(light_, ZrDb::kForWrite, true);
        light->erase(erasing);
        return RTNORM;
    }
    // What the palette is told of while commands run.
    Log toldBy(std::initializer_list<ZrString> lines) {
        log_.clear();
        test_.run(lines);
        return std::exchange(log_, {});
    }
    static void sayThatABlockIsEdited(Document& document) {
        document.drawing().journal().settingChanged(L"REFEDITNAME", [] {});
    }
    sys::SystemVariables& variables() { return test_.session().variables(); }

    ZrDbObjectId light_;
    LoggingPalette* palette_ = nullptr;
};

TEST_F(ThePalette, IsToldOfALightThatIsAppendedWithinItsCommand) {
    EXPECT_EQ(toldBy({L"MAKE"}), (Log{"command starts", "appended Lamp", "command finished"}));
}

TEST_F(ThePalette, IsToldOfAChangeBeforeAndAfter) {
    test_.run({L"MAKE"});
    EXPECT_EQ(toldBy({L"RENAME"}), (Log{"command starts", "opened Lamp", "touched Desk lamp", "command finished"}));
}

TEST_F(ThePalette, IsToldThatALightGoesAndComesBack) {
    test_.run({L"MAKE"});
    EXPECT_EQ(toldBy({L"TAKE"}), (Log{"command starts", "gone Lamp", "command finished"}));
    EXPECT_EQ(toldBy({L"GIVE"}), (Log{"command starts", "back Lamp", "command finished"}));
}

TEST_F(ThePalette, IsToldWhatUndoAndRedoDoToAnAppend) {
    test_.run({L"MAKE"});
    EXPECT_EQ(toldBy({L"U"}), (Log{"command starts", "gone Lamp", "undone Lamp", "command finished"}));
    EXPECT_EQ(toldBy({L"REDO", L""}), (Log{"command starts", "back Lamp", "redone Lamp", "command finished"}));
}

TEST_F(ThePalette, IsToldWhatUndoAndRedoDoToAnErase) {
    test_.run({L"MAKE", L"TAKE"});
    EXPECT_EQ(toldBy({L"U"}), (Log{"command starts", "back Lamp", "command finished"}));
    EXPECT_EQ(toldBy({L"REDO", L""}), (Log{"command starts", "gone Lamp", "command finished"}));
}

TEST_F(ThePalette, IsToldWhatUndoDoesToAChange) {
    test_.run({L"MAKE", L"RENAME"});
    EXPECT_EQ(toldBy({L"U"}), (Log{"command starts", "opened Desk lamp", "touched Lamp", "command finished"}));
}

TEST_F(ThePalette, IsToldThatWhatABrokenCommandDidIsTakenBack) {
    EXPECT_EQ(toldBy({L"LAMPFAILS"}),
              (Log{"command starts", "appended Lamp", "gone Lamp", "undone Lamp", "command finished"}));
}

TEST_F(ThePalette, IsNotToldOfOtherEntitiesInTheSlotsForLights) {
    EXPECT_EQ(toldBy({L"LINE", L"0,0", L"1,0", L""}), (Log{"command starts", "command finished"}));
    EXPECT_EQ(toldBy({L"U"}), (Log{"command starts", "command finished"}));
}

TEST_F(ThePalette, IsToldThatAnyEntityIsOpenedForModification) {
    auto line = std::make_unique<ZrDbLine>(ZrGePoint3d(0, 0, 0), ZrGePoint3d(0, 1, 0));
    const ZrDbObjectId id = RxCommand::postToDb(*line, nullptr, nullptr, true);
    (void)line.release(); // the drawing owns it now
    log_.clear();
    ZrDbObjectPointer<ZrDbLine>(id, ZrDb::kForWrite)->setEndPoint({1, 1, 1});
    EXPECT_EQ(log_, (Log{"opened something else"}));
}

TEST_F(ThePalette, IsToldOfObjectsOfADrawingThatIsNotCurrent) {
    test_.run({L"MAKE"});
    test_.session().documents().newDocument();
    log_.clear();
    rename(L"Desk lamp");
    EXPECT_EQ(log_, (Log{"opened Lamp", "touched Desk lamp"}));
}

TEST_F(ThePalette, IsToldHowDrawingsAreOpenedSwitchedAndClosed) {
    Document& first = test_.document();
    Document& second = test_.session().documents().newDocument();
    EXPECT_EQ(std::exchange(log_, {}), (Log{"to be deactivated Drawing1", "current Drawing2"}));
    test_.session().documents().setCurrent(&first);
    EXPECT_EQ(std::exchange(log_, {}), (Log{"to be deactivated Drawing2", "current Drawing1"}));
    test_.session().documents().close(second);
    EXPECT_EQ(std::exchange(log_, {}), (Log{"to be destroyed Drawing2"}));
    test_.session().documents().close(first);
    EXPECT_EQ(log_, (Log{"to be deactivated Drawing1", "to be destroyed Drawing1", "current none"}));
}

TEST_F(ThePalette, IsToldOfADrawingThatACommandOpensWithinThatCommand) {
    EXPECT_EQ(toldBy({L"NEW"}),
              (Log{"command starts", "to be deactivated Drawing1", "current Drawing2", "command finished"}));
}

TEST_F(ThePalette, IsToldOfAVariableThatIsOfNoDrawing) {
    variables().set(L"CMDECHO", short{0});
    EXPECT_EQ(log_, (Log{"variable CMDECHO"}));
}

TEST_F(ThePalette, IsToldOnceOfAVariableOfTheDrawing) {
    variables().set(L"LUPREC", short{2});
    EXPECT_EQ(log_, (Log{"variable LUPREC"}));
}

TEST_F(ThePalette, IsToldOfAVariableThatIsSetToWhatItWas) {
    variables().set(L"LUPREC", short{2});
    log_.clear();
    variables().set(L"LUPREC", short{2});
    EXPECT_EQ(log_, (Log{"variable LUPREC"}));
}

TEST_F(ThePalette, IsToldOfAVariableThatUndoGivesBack) {
    test_.run({L"LUPREC", L"2"});
    EXPECT_EQ(toldBy({L"U"}), (Log{"command starts", "variable LUPREC", "command finished"}));
    EXPECT_EQ(toldBy({L"LUPREC", L"4"}), (Log{"command starts", "variable LUPREC", "command finished"}));
}

TEST_F(ThePalette, IsToldThatTheSelectionChanged) {
    zredSetImpliedSelection({addLight()});
    EXPECT_EQ(log_, (Log{"appended Lamp", "selection"}));
}

TEST_F(ThePalette, IsToldOfTheSelectionOfTheDrawingThatBecomesCurrent) {
    Document& first = test_.document();
    zredSetImpliedSelection({addLight()});
    log_.clear();
    test_.session().documents().newDocument();
    EXPECT_EQ(std::exchange(log_, {}), (Log{"to be deactivated Drawing1", "current Drawing2", "selection"}));
    test_.session().documents().setCurrent(&first);
    EXPECT_EQ(std::exchange(log_, {}), (Log{"to be deactivated Drawing2", "current Drawing1", "selection"}));
    test_.session().documents().close(first);
    EXPECT_EQ(log_, (Log{"to be deactivated Drawing1", "to be destroyed Drawing1", "current Drawing2", "selection"}));
}

// Editing a block in place: what is current is another set of objects.

TEST_F(ThePalette, IsToldThatOtherObjectsAreCurrentAtTheEndOfTheCommand) {
    test_.addCommand(L"EDIT", [this] {
        sayThatABlockIsEdited(test_.document());
        addLight();
        return RTNORM;
    });
    EXPECT_EQ(toldBy({L"EDIT"}),
              (Log{"command starts", "variable REFEDITNAME", "appended Lamp", "current Drawing1", "command finished"}));
    EXPECT_EQ(toldBy({L"U"}), (Log{"command starts", "gone Lamp", "undone Lamp", "variable REFEDITNAME",
                                   "current Drawing1", "command finished"}));
    EXPECT_EQ(toldBy({L"REDO", L""}), (Log{"command starts", "variable REFEDITNAME", "back Lamp", "redone Lamp",
                                           "current Drawing1", "command finished"}));
    EXPECT_EQ(toldBy({L"MAKE"}), (Log{"command starts", "appended Lamp", "command finished"}));
}

TEST_F(ThePalette, IsToldThatOtherObjectsAreCurrentAtOnceBetweenCommands) {
    sayThatABlockIsEdited(test_.document());
    EXPECT_EQ(log_, (Log{"variable REFEDITNAME", "current Drawing1"}));
}

TEST_F(ThePalette, IsToldOfTheSelectionAmongOtherObjectsToo) {
    zredSetImpliedSelection({addLight()});
    log_.clear();
    sayThatABlockIsEdited(test_.document());
    EXPECT_EQ(log_, (Log{"variable REFEDITNAME", "current Drawing1", "selection"}));
}

TEST_F(ThePalette, IsToldNothingOfOtherObjectsInADrawingThatIsNotCurrent) {
    Document& first = test_.document();
    test_.session().documents().newDocument();
    log_.clear();
    sayThatABlockIsEdited(first);
    EXPECT_EQ(log_, (Log{"variable REFEDITNAME"}));
}

TEST_F(ThePalette, IsNotToldOfTheSelectionThatThePersonMakesInIt) {
    frame().ShowControlBar(palette_, true, false);
    append(L"Others", "other");
    const ZrDbObjectId light = addLight();
    log_.clear();
    const ui::ActingScope acting(*palette_);
    zredSetImpliedSelection({light});
    EXPECT_EQ(log_, (Log{"other: selection"}));
}

TEST_F(ThePalette, GetsOnePairForACommandThatStartsOthers) {
    test_.addCommand(L"INNER", [] {
        addLight();
        return RTNORM;
    });
    test_.addCommand(L"OUTER", [this] {
        test_.session().processor().run(L"INNER", true);
        test_.session().processor().run(L"INNER", true);
        return RTNORM;
    });
    EXPECT_EQ(toldBy({L"OUTER"}), (Log{"command starts", "appended Lamp", "appended Lamp", "command finished"}));
}

TEST_F(ThePalette, GetsOnePairForACommandWithATransparentOneInside) {
    EXPECT_EQ(toldBy({L"LINE", L"'LUPREC", L"2", L"0,0", L"1,0", L""}),
              (Log{"command starts", "variable LUPREC", "command finished"}));
}

TEST_F(ThePalette, GetsAPairForEachCommandOfAScript) {
    test_.runScript("MAKE\nTAKE\n");
    EXPECT_EQ(log_, (Log{"command starts", "appended Lamp", "command finished", "command starts", "gone Lamp",
                         "command finished"}));
}

TEST_F(ThePalette, GetsAPairForACommandThatIsCancelled) {
    EXPECT_EQ(toldBy({L"LINE", L"^C"}), (Log{"command starts", "command finished"}));
}

TEST_F(ThePalette, GetsNoPairForAWordThatIsNoCommand) { EXPECT_EQ(toldBy({L"NOSUCHCOMMAND"}), Log{}); }

TEST_F(ThePalette, FindsNoCommandRunningWhenItIsToldThatOneFinished) {
    bool isRunning = true;
    palette_->whenTold = [&] { isRunning = test_.session().processor().isRunning(); };
    test_.run({L"MAKE"});
    EXPECT_FALSE(isRunning);
}

TEST_F(ThePalette, IsToldInTheOrderOfAppending) {
    append(L"Others", "second");
    append(L"More", "third");
    variables().set(L"CMDECHO", short{0});
    EXPECT_EQ(log_, (Log{"variable CMDECHO", "second: variable CMDECHO", "third: variable CMDECHO"}));
}

TEST_F(ThePalette, MayReleaseOthersWhileTheyAreAboutToBeTold) {
    LoggingPalette& second = append(L"Others", "second");
    append(L"More", "third");
    palette_->whenTold = [&] { palettes().ReleasePaletteSet(&second); };
    variables().set(L"CMDECHO", short{0});
    EXPECT_EQ(log_, (Log{"variable CMDECHO", "third: variable CMDECHO"}));
    EXPECT_EQ(palettes().palettes().size(), 2U);
}

TEST_F(ThePalette, MayReleaseItselfWhileItIsTold) {
    LoggingPalette& second = append(L"Others", "second");
    second.whenTold = [&] { palettes().ReleasePaletteSet(&second); };
    append(L"More", "third");
    variables().set(L"CMDECHO", short{0});
    EXPECT_EQ(log_, (Log{"variable CMDECHO", "second: variable CMDECHO", "third: variable CMDECHO"}));
    EXPECT_EQ(palettes().palettes().size(), 2U);
}

TEST_F(ThePalette, ThatIsAppendedMeanwhileIsToldOfTheNextEventFirst) {
    palette_->whenTold = [&] {
        palette_->whenTold = nullptr;
        append(L"More", "new");
    };
    variables().set(L"CMDECHO", short{0});
    variables().set(L"CMDECHO", short{1});
    EXPECT_EQ(log_, (Log{"variable CMDECHO", "variable CMDECHO", "new: variable CMDECHO"}));
}

TEST_F(ThePalette, LooksDifferentInAnotherTheme) {
    frame().ShowControlBar(palette_, true, false);
    CWnd child;
    child.Create({.parent = palette_, .style = WS_VISIBLE});
    log_.clear();
    const int redraws = front().redraws();
    variables().set(L"COLORTHEME", short{1});
    EXPECT_EQ(log_, (Log{"icon wanted", "variable COLORTHEME"}));
    EXPECT_TRUE(palette_->needsPaint());
    EXPECT_TRUE(child.needsPaint());
    EXPECT_EQ(front().redraws(), redraws + 1);
    child.DestroyWindow();
}

TEST_F(ThePalette, KeepsItsIconWhenTheThemeIsSetToWhatItWas) {
    frame().ShowControlBar(palette_, true, false);
    log_.clear();
    variables().set(L"COLORTHEME", short{0});
    EXPECT_EQ(log_, (Log{"variable COLORTHEME"}));
}

} // namespace

} // namespace quor::test
