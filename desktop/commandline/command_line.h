// The command line: history, prompt with clickable options, input line with completion.
#pragma once

#include "desktop/commandline/input_line.h"
#include "desktop/commandline/transcript.h"
#include "host/ed/recall.h"
#include "host/ed/recent_commands.h"

#include <QTimer>
#include <QWidget>

#include <deque>

class QAction;
class QGridLayout;
class QKeyEvent;
class QMenu;

namespace quor {
class Session;
}
namespace quor::ed {
struct PromptPart;
}

namespace quor::desktop {

class Completer;
class DesktopFrontEnd;
class PromptView;
class TextWindow;
class TranscriptView;

class CommandLine final : public QWidget {
    Q_OBJECT

public:
    CommandLine(Session& session, DesktopFrontEnd& front, QWidget* parent = nullptr);
    ~CommandLine() override;

    // A key that was pressed elsewhere in the window. A character takes the keyboard along into the input line.
    void takeKey(QKeyEvent* event);
    // Several lines are answered one after the other; what stands behind the last line break stays in the line.
    void paste(const QString& text);
    // A menu with the commands that the person ran last, read each time it opens; for the menus of others.
    [[nodiscard]] QMenu* recentCommandsMenu(QWidget* parent);
    // The window with the whole history.
    void showTextWindow(bool show);
    [[nodiscard]] bool isTextWindowShown() const;
    // Shows it and hides it (F2), with a check mark; for the menus of the main window.
    [[nodiscard]] QAction* textWindowAction() { return textWindowAction_; }
    // Larger text for positive steps; kept for the next session.
    void zoom(int steps);

    // The parts, for whoever looks at them.
    [[nodiscard]] InputLine& input() { return *input_; }
    [[nodiscard]] PromptView& prompt() { return *prompt_; }
    [[nodiscard]] TranscriptView& history() { return *history_; }
    [[nodiscard]] Completer& completer() { return *completer_; }
    [[nodiscard]] TextWindow& textWindow() { return *textWindow_; }
    [[nodiscard]] const Transcript& transcript() const { return transcript_; }
    void clearHistory() { transcript_.clear(); }

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    // Esc in an empty line: what else the person has begun is taken back too.
    void escaped();
    // Something is typed, and it cannot be seen.
    void neededWhileHidden();

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildParts();
    void connectFront();
    void connectParts();
    void connectView(TranscriptView& view);

    // Questions.
    void showQuestion();
    void showThatItWorks();
    void noteCommand(const QString& line);

    // Answers.
    void act(InputLine::Act act);
    void answer();
    void answerWith(const QString& typed);
    void answerNext();
    void choose(const ed::PromptPart& part);
    void cancel();
    void copyOrCancel();
    void recallLine(int direction);

    // Looks.
    void applyColors();
    void applyFont();
    void arrange();
    void openMenu(const QPoint& screen);
    void fillRecentCommands(QMenu& menu);

    Session& session_;
    DesktopFrontEnd& front_;
    Transcript transcript_;
    ed::History lines_;
    ed::Recall recall_;
    ed::RecentCommands recent_;
    std::deque<QString> ahead_; // lines that were pasted or typed before their questions
    QTimer colorTimer_;         // a change of style gives widgets the palettes that they had, afterwards
    QTimer workTimer_;          // until it is worth saying that a command works
    QString working_;
    int listener_ = 0;
    int fontSteps_ = 0;
    bool isStacked_ = false;
    bool wasShown_ = false;
    // Owned by their parents.
    TranscriptView* history_ = nullptr;
    QWidget* bar_ = nullptr; // prompt and input
    QGridLayout* barLayout_ = nullptr;
    PromptView* prompt_ = nullptr;
    InputLine* input_ = nullptr;
    Completer* completer_ = nullptr;
    TextWindow* textWindow_ = nullptr;
    QAction* textWindowAction_ = nullptr;
};

} // namespace quor::desktop
