// The port of the desktop program: who answers a question, and what is shown of it.
#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "host/ed/script_run.h"
#include "host/ed/script_source.h"
#include "host/session.h"
#include "sdk/ui/task_dialog.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTimer>

namespace quor::desktop {
namespace {

using Kind = Answer::Kind;

Question questionOf(Question::Kind kind, std::wstring_view prompt = L"\n问题: ") {
    Question question;
    question.kind = kind;
    question.prompt = prompt;
    return question;
}

// Once events are handled, which is when a question waits.
void later(const std::function<void()>& action) { QTimer::singleShot(0, qApp, action); }

class DesktopFrontEndTest : public testing::Test {
protected:
    // Asks, and shows what a command line would.
    Answer ask(const Question& question, const std::function<void()>& person) {
        later(person);
        return front_.ask(question);
    }
    QString echoOf(Answer answer) {
        QString shown;
        const auto link = QObject::connect(&front_, &DesktopFrontEnd::questionAnswered,
                                           [&](const QString&, const QString& text) { shown = text; });
        ask(point_, [&] { front_.give(answer); });
        QObject::disconnect(link);
        return shown;
    }

    test::TemporaryFolder folder_;
    DesktopFrontEnd front_;
    Question command_ = questionOf(Question::Kind::Command);
    Question point_ = questionOf(Question::Kind::Point);
};

// A session, for what needs one: units, dialogs that are typed.
class DesktopFrontEndSessionTest : public DesktopFrontEndTest {
protected:
    SessionOptions options() const {
        SessionOptions options;
        options.settingsFile = folder_.path() / "settings.ini";
        options.language = L"zh";
        return options;
    }
    DesktopFrontEndSessionTest() { session_.documents().newDocument(); }

    Session session_{front_, options()};
};

TEST_F(DesktopFrontEndTest, QuestionWaitsUntilSomebodyAnswers) {
    const Question* seen = nullptr;
    const Answer answer = ask(point_, [&] {
        seen = front_.question();
        front_.giveText(L"1,2");
    });
    EXPECT_EQ(seen, &point_);
    EXPECT_EQ(answer.kind, Kind::Text);
    EXPECT_EQ(answer.text, L"1,2");
    EXPECT_EQ(front_.question(), nullptr);
}

TEST_F(DesktopFrontEndTest, NothingTypedIsEnter) {
    EXPECT_EQ(ask(point_, [&] { front_.giveText(L""); }).kind, Kind::Enter);
}

TEST_F(DesktopFrontEndTest, AnswerMayComeWhileTheQuestionIsOpened) {
    QObject::connect(&front_, &DesktopFrontEnd::questionOpened, [&] { front_.givePoint({1, 2, 3}); });
    const Answer answer = front_.ask(point_);
    EXPECT_EQ(answer.kind, Kind::Point);
    EXPECT_EQ(answer.point.z, 3);
}

TEST_F(DesktopFrontEndTest, FirstAnswerCounts) {
    const Answer answer = ask(point_, [&] {
        front_.giveText(L"first");
        front_.giveText(L"second");
    });
    EXPECT_EQ(answer.text, L"first");
}

TEST_F(DesktopFrontEndTest, AnswerWithoutAQuestionIsNotKept) {
    front_.giveText(L"early");
    EXPECT_EQ(ask(point_, [&] { front_.giveText(L"late"); }).text, L"late");
}

TEST_F(DesktopFrontEndTest, QuestionInsideAQuestionIsAnsweredFirst) {
    QSignalSpy opened(&front_, &DesktopFrontEnd::questionOpened);
    Answer inner;
    const Answer outer = ask(command_, [&] {
        inner = ask(point_, [&] { front_.giveText(L"inner"); });
        front_.giveText(L"outer");
    });
    EXPECT_EQ(inner.text, L"inner");
    EXPECT_EQ(outer.text, L"outer");
    EXPECT_EQ(opened.count(), 3); // the outer one is told twice
}

TEST_F(DesktopFrontEndSessionTest, CommandLineShowsEveryKindOfAnswer) {
    EXPECT_EQ(echoOf({Kind::Text, L"LIST", {}}), "LIST");
    EXPECT_EQ(echoOf({Kind::Enter, {}, {}}), "");
    EXPECT_EQ(echoOf({Kind::Cancel, {}, {}}), "^C");
    EXPECT_EQ(echoOf({Kind::End, {}, {}}), "^C");
    EXPECT_EQ(echoOf({Kind::Broken, {}, {}}), "");
    EXPECT_EQ(echoOf({Kind::Objects, {}, {}, {{}}}), "");
    EXPECT_EQ(echoOf({Kind::Point, {}, {1, 2.5, -3}}), "1.0000,2.5000,-3.0000");
}

TEST_F(DesktopFrontEndSessionTest, PickedPointIsShownInTheUcs) {
    session_.input().push(std::make_unique<ed::ScriptSource>("UCS O 1,0,0\n"));
    ed::runSources(session_, false);
    EXPECT_EQ(echoOf({Kind::Point, {}, {3, 0, 0}}), "2.0000,0.0000,0.0000");
}

TEST_F(DesktopFrontEndTest, RunCancelsTheQuestionAndTypesItsLineAtTheCommandPrompt) {
    EXPECT_EQ(ask(point_, [&] { front_.run(L"_LIST"); }).kind, Kind::Cancel);
    EXPECT_EQ(front_.ask(questionOf(Question::Kind::Keyword)).kind, Kind::Cancel);
    EXPECT_EQ(front_.ask(command_).text, L"_LIST");
}

TEST_F(DesktopFrontEndTest, RunAtTheCommandPromptAnswersIt) {
    const Answer answer = ask(command_, [&] { front_.run(L"_LIST"); });
    EXPECT_EQ(answer.kind, Kind::Text);
    EXPECT_EQ(answer.text, L"_LIST");
}

TEST_F(DesktopFrontEndTest, RunWhileACommandWorksWaitsForTheCommandPrompt) {
    front_.run(L"_LIST");
    EXPECT_EQ(front_.ask(command_).text, L"_LIST");
    EXPECT_EQ(ask(command_, [&] { front_.giveEnter(); }).kind, Kind::Enter);
}

TEST_F(DesktopFrontEndTest, LastLineThatIsToRunCounts) {
    front_.run(L"_LIST");
    front_.run(L"_ERASE");
    EXPECT_EQ(front_.ask(command_).text, L"_ERASE");
}

TEST_F(DesktopFrontEndTest, LinesOfThePersonAtTheCommandPromptAreToldApart) {
    QSignalSpy given(&front_, &DesktopFrontEnd::commandGiven);
    ask(point_, [&] { front_.giveText(L"1,2"); });
    ask(command_, [&] { front_.giveText(L"LIST"); });
    front_.echo(command_, L"ERASE");
    ASSERT_EQ(given.count(), 1);
    EXPECT_EQ(given.front().front().toString(), "LIST");
}

// A dialog that hears Esc.
class Dialog final : public DialogPart {
public:
    int escapes = 0;
    ZrString problems;

    TaskDialogAnswer showTaskDialog(const CZrUiTaskDialog&) override { return {7, false, false}; }
    FileAnswer chooseFile(const FileQuestion&) override { return {L"/lamp.ies", false}; }
    SaveChoice askToSave(std::wstring_view) override { return SaveChoice::Discard; }
    void showProblem(std::wstring_view message) override { problems += message; }
    void escape() override { ++escapes; }
};

TEST_F(DesktopFrontEndTest, QuitIsEscToTheDialogThenTheCommandQuit) {
    Dialog dialog;
    front_.setDialogs(&dialog);
    front_.quit();
    EXPECT_EQ(dialog.escapes, 1);
    EXPECT_EQ(front_.ask(point_).kind, Kind::Cancel);
    EXPECT_EQ(front_.ask(command_).text, L"._QUIT");
}

TEST_F(DesktopFrontEndTest, DialogsAreThoseOfTheWindow) {
    Dialog dialog;
    front_.setDialogs(&dialog);
    EXPECT_EQ(front_.showTaskDialog(CZrUiTaskDialog()).command, 7);
    EXPECT_EQ(front_.chooseFile({}).file, L"/lamp.ies");
    EXPECT_EQ(front_.askToSave(L"plan"), SaveChoice::Discard);
    front_.showProblem(L"no such file");
    EXPECT_EQ(dialog.problems, L"no such file");
}

TEST_F(DesktopFrontEndTest, NobodyIsShownAProblemWhileTheProgramEnds) {
    Dialog dialog;
    front_.setDialogs(&dialog);
    front_.end();
    front_.showProblem(L"no such file");
    EXPECT_EQ(dialog.problems, L"");
}

TEST_F(DesktopFrontEndTest, WithoutPartsItAnswersAsAProgramWithoutWindows) {
    EXPECT_EQ(front_.askToSave(L"plan"), std::nullopt);
    EXPECT_FALSE(front_.showProperties());
    EXPECT_FALSE(front_.showLayers());
    EXPECT_FALSE(front_.showTextWindow(true));
    EXPECT_EQ(front_.view(), nullptr);
}

TEST_F(DesktopFrontEndSessionTest, WithoutDialogsAFileIsTyped) {
    FileQuestion file;
    file.caption = L"选择文件";
    later([&] { front_.escape(); });
    EXPECT_EQ(front_.chooseFile(file).file, std::nullopt);
}

TEST_F(DesktopFrontEndSessionTest, WithoutDialogsATaskDialogIsTyped) {
    CZrUiTaskDialog dialog;
    dialog.AddCommandControl(5, L"关闭");
    dialog.AddCommandControl(6, L"保持");
    later([&] { front_.giveText(L"2"); });
    EXPECT_EQ(front_.showTaskDialog(dialog).command, 6);
}

TEST_F(DesktopFrontEndTest, MacroComesUpAtOnceAtTheCommandPrompt) {
    EXPECT_EQ(ask(command_, [&] { front_.macroQueued(false); }).kind, Kind::Cancel);
}

TEST_F(DesktopFrontEndTest, MacroWaitsForTheCommandThatRunsUnlessItCancels) {
    const Answer left = ask(point_, [&] {
        front_.macroQueued(false);
        front_.giveText(L"1,2");
    });
    EXPECT_EQ(left.text, L"1,2");
    EXPECT_EQ(ask(point_, [&] { front_.macroQueued(true); }).kind, Kind::Cancel);
}

TEST_F(DesktopFrontEndTest, EndOfTheProgramIsTheEndOfInput) {
    Answer outer{Kind::Enter, {}, {}};
    Answer inner{Kind::Enter, {}, {}};
    later([&] { outer = ask(command_, [&] { inner = ask(point_, [] { QApplication::quit(); }); }); });
    QApplication::exec();
    EXPECT_EQ(inner.kind, Kind::End);
    EXPECT_EQ(outer.kind, Kind::End);
}

TEST_F(DesktopFrontEndTest, DragTellsThePointsUnderTheCursor) {
    std::vector<double> seen;
    later([&] {
        EXPECT_TRUE(front_.isDragging());
        front_.sample({1, 0, 0});
        front_.sample({2, 0, 0});
        front_.givePoint({3, 0, 0});
    });
    const Answer answer = front_.drag(point_, [&](const ZrGePoint3d& point) { seen.push_back(point.x); });
    EXPECT_EQ(seen, (std::vector<double>{1, 2}));
    EXPECT_EQ(answer.point.x, 3);
    EXPECT_FALSE(front_.isDragging());
}

TEST_F(DesktopFrontEndTest, QuestionInsideADragHearsNoSamples) {
    int samples = 0;
    later([&] {
        ask(point_, [&] {
            front_.sample({1, 0, 0});
            front_.giveEnter();
        });
        front_.giveEnter();
    });
    front_.drag(point_, [&](const ZrGePoint3d&) { ++samples; });
    EXPECT_EQ(samples, 0);
}

TEST_F(DesktopFrontEndTest, PointsUnderTheCursorWithoutADragAreNobodysBusiness) {
    const Answer answer = ask(point_, [&] {
        front_.sample({1, 0, 0});
        front_.giveEnter();
    });
    EXPECT_EQ(answer.kind, Kind::Enter);
}

} // namespace
} // namespace quor::desktop
