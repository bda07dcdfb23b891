// The system ends the program: nobody is asked, and changes are offered at the next start.
#include "desktop/front/desktop_front_end.h"
#include "desktop/viewport/viewport.h"
#include "desktop/window/main_window.h"
#include "host/autosave/recovery.h"
#include "host/document.h"
#include "tests/desktop/support/leaving.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <csignal>

namespace quor::desktop::test {
namespace {

using quor::test::TemporaryFolder;

class SignalsTest : public testing::Test {
protected:
    // The program's status when the signal comes behind these steps.
    int endedBy(int signal, const std::function<void(Person&)>& before) {
        ProgramOptions options = usualOptions();
        options.copies = folder_.path() / "copies";
        return withProgram(std::move(options), [&](Person& person) {
            before(person);
            person.doesAtLast([=] { std::raise(signal); });
            EXPECT_TRUE(person.sawItEnd());
            EXPECT_EQ(wrongWithDrawing(person), "");
        });
    }
    [[nodiscard]] std::size_t copies() const { return autosave::Recovery(folder_.path() / "copies").copies().size(); }

    TemporaryFolder folder_;
};

TEST_F(SignalsTest, NothingIsLeftWhereNothingWasChanged) {
    EXPECT_EQ(endedBy(SIGTERM, [](Person&) {}), 128 + SIGTERM);
    EXPECT_EQ(copies(), 0U);
}

TEST_F(SignalsTest, EachSignalHasItsStatus) {
    EXPECT_EQ(endedBy(SIGHUP, changesDrawing), 128 + SIGHUP);
    EXPECT_EQ(endedBy(SIGINT, [](Person& person) { chooses(person, Choice::Cancel); }), 128 + SIGINT);
}

TEST_F(SignalsTest, EveryDrawingWithChangesIsKept) {
    endedBy(SIGTERM, [](Person& person) {
        changesDrawing(person);
        gives(person, {L"NEW"});
        changesDrawing(person);
        gives(person, {L"NEW"});
    });
    EXPECT_EQ(copies(), 2U);
}

TEST_F(SignalsTest, TheCommandThatRunsIsGivenUp) {
    EXPECT_EQ(endedBy(SIGTERM,
                      [](Person& person) {
                          gives(person, {L"DEFAULTLIGHTING 0", L"POINTLIGHT", L"1,1", L"I"});
                      }),
              128 + SIGTERM);
}

TEST_F(SignalsTest, ADialogGoes) {
    endedBy(SIGTERM, [](Person& person) {
        changesDrawing(person);
        gives(person, {L"POINTLIGHT"});
        EXPECT_EQ(openDialog(person), "task");
    });
    EXPECT_EQ(copies(), 1U);
}

TEST_F(SignalsTest, TheQuestionAboutChangesGoes) {
    endedBy(SIGTERM, [](Person& person) {
        changesDrawing(person);
        closeWindowAndWait(person);
        EXPECT_EQ(openDialog(person), "save");
    });
    EXPECT_EQ(copies(), 1U);
}

TEST_F(SignalsTest, AMenuGoes) {
    endedBy(SIGTERM, [](Person& person) {
        changesDrawing(person);
        person.does([&] { Q_EMIT person.program().window().viewport().contextMenuRequested({10, 10}); });
        EXPECT_NE(openMenu(person), "");
    });
    EXPECT_EQ(copies(), 1U);
}

TEST_F(SignalsTest, ATransparentCommandAndTheOneBelowItGo) {
    endedBy(SIGTERM, [](Person& person) {
        changesDrawing(person);
        gives(person, {L"LINE", L"'ZOOM", L"W"});
    });
    EXPECT_EQ(copies(), 1U);
}

TEST_F(SignalsTest, WhatWasLeftIsOfferedAtTheNextStart) {
    endedBy(SIGTERM, changesDrawing);
    endedBy(SIGTERM, [](Person& person) {
        EXPECT_EQ(openDialog(person), "recovery");
        person.presses(Qt::Key_Return);
        EXPECT_EQ(entityCount(person), 1U);
        EXPECT_TRUE(person.sees([&] { return person.program().session().documents().current()->isModified(); }));
    });
    EXPECT_EQ(copies(), 1U);
}

TEST_F(SignalsTest, TheOfferItselfGoesAndTheCopyStays) {
    endedBy(SIGTERM, changesDrawing);
    endedBy(SIGTERM, [](Person& person) { EXPECT_EQ(openDialog(person), "recovery"); });
    EXPECT_EQ(copies(), 1U);
}

TEST_F(SignalsTest, WhoDiscardsChangesLeavesNoCopy) {
    ProgramOptions options = usualOptions();
    options.copies = folder_.path() / "copies";
    withProgram(options, [](Person& person) {
        changesDrawing(person);
        closeWindowAndWait(person);
        choosesAndLeaves(person, Choice::Discard);
        EXPECT_TRUE(person.sawItEnd());
    });
    EXPECT_EQ(copies(), 0U);
}

// The end of the desktop's session.
class LogOutTest : public SignalsTest {
protected:
    void run(const std::function<void(Person&)>& story) {
        ProgramOptions options = usualOptions();
        options.copies = folder_.path() / "copies";
        withProgram(std::move(options), [&](Person& person) {
            changesDrawing(person);
            story(person);
        });
    }
    // The desktop waits for the answer.
    void logsOut(Person& person, bool mayAsk) {
        person.does([&, mayAsk] { mayLogOut_ = person.program().mayLogOut(mayAsk); });
    }

    std::optional<bool> mayLogOut_;
};

TEST_F(LogOutTest, CopiesAreWrittenWhereNobodyMayBeAsked) {
    run([&](Person& person) {
        logsOut(person, false);
        EXPECT_EQ(mayLogOut_, true);
        EXPECT_TRUE(isAtCommandPrompt(person));
        EXPECT_FALSE(std::filesystem::is_empty(folder_.path() / "copies"));
    });
}

TEST_F(LogOutTest, ThePersonIsAskedAndMayStay) {
    run([&](Person& person) {
        logsOut(person, true);
        EXPECT_EQ(openDialog(person), "save");
        chooses(person, Choice::Cancel);
        EXPECT_EQ(mayLogOut_, false);
        EXPECT_TRUE(isAtCommandPrompt(person));
    });
}

TEST_F(LogOutTest, WhoDiscardsHasLeft) {
    run([&](Person& person) {
        logsOut(person, true);
        choosesAndLeaves(person, Choice::Discard);
        EXPECT_TRUE(person.sawItEnd());
    });
    EXPECT_EQ(mayLogOut_, true);
    EXPECT_EQ(copies(), 0U);
}

TEST_F(LogOutTest, InTheMiddleOfACommandCopiesAreWritten) {
    run([&](Person& person) {
        gives(person, {L"LINE"});
        logsOut(person, true);
        EXPECT_EQ(mayLogOut_, true);
        EXPECT_EQ(openDialog(person), "");
        EXPECT_FALSE(std::filesystem::is_empty(folder_.path() / "copies"));
    });
}

} // namespace
} // namespace quor::desktop::test
