// The host's port to the desktop: questions wait in an event loop of their own until a widget answers them. Widgets
// hear of questions and texts through signals, and answer with give().
#pragma once

#include "desktop/front/event_pump.h"
#include "desktop/front/parts.h"

#include <QObject>
#include <QString>

#include <optional>
#include <vector>

class QEventLoop;

namespace quor::desktop {

class DesktopFrontEnd final : public QObject, public FrontEnd {
    Q_OBJECT

public:
    explicit DesktopFrontEnd(QObject* parent = nullptr);
    ~DesktopFrontEnd() override;

    // Not owned; null takes one away.
    void setDialogs(DialogPart* dialogs) { dialogs_ = dialogs; }
    void setWindows(WindowPart* windows) { windows_ = windows; }
    void setPanels(PanelPart* panels) { panels_ = panels; }
    void setView(gs::View* view) { view_ = view; }
    void setDesktopIsDark(bool dark) { desktopIsDark_ = dark; }

    // For the widgets. The question that waits, the innermost one; null while a command works.
    [[nodiscard]] const Question* question() const;
    // Whether it is a drag, whose points under the cursor somebody wants to know.
    [[nodiscard]] bool isDragging() const;
    // A point under the cursor during a drag, in world coordinates.
    void sample(const ZrGePoint3d& world);
    // Answers the question that waits; nothing happens when none does.
    void give(Answer answer);
    void giveText(const ZrString& typed);
    void givePoint(const ZrGePoint3d& world);
    void giveEnter() { give({Answer::Kind::Enter, {}, {}}); }
    // Esc.
    void escape() { give({Answer::Kind::Cancel, {}, {}}); }
    // What a button or a menu does: Esc until no command runs, then the line as if the person had typed it.
    void run(const ZrString& line);
    // The person closes the program: as run(QUIT), with Esc to an open dialog first.
    void quit();
    // The program ends, whatever is going on: all that is asked now or later has no answer any more.
    void end();

    // Whether the windows are kept alive while the host works: from when they are shown until the program ends.
    void setAlive(bool alive) { isAlive_ = alive; }
    // Asked after each command of a script: lets the windows breathe, and says whether to go on. Not after Esc, nor
    // when somebody wants another line to run.
    [[nodiscard]] bool goesOn();

    void print(std::wstring_view text) override;
    Answer ask(const Question& question) override;
    void echo(const Question& question, std::wstring_view answer) override;
    Answer drag(const Question& question, const std::function<void(const ZrGePoint3d&)>& sample) override;
    TaskDialogAnswer showTaskDialog(const CZrUiTaskDialog& dialog) override;
    FileAnswer chooseFile(const FileQuestion& question) override;
    [[nodiscard]] bool hasDialogs() const override { return dialogs_ != nullptr; }
    [[nodiscard]] bool desktopIsDark() const override { return desktopIsDark_; }
    std::optional<SaveChoice> askToSave(std::wstring_view drawing) override;
    void showProblem(std::wstring_view message) override;
    void realise(CWnd& window) override;
    void paletteShown(const CZkUiPaletteSet& palette) override;
    unsigned trackMenu(const CMenu& menu, CPoint screen) override;
    void macroQueued(bool cancelsFirst) override;
    bool showProperties() override;
    bool showLayers() override;
    bool showTextWindow(bool show) override;
    gs::View* view() override { return view_; }
    void redraw() override { Q_EMIT redrawNeeded(); }
    void progress(std::wstring_view what, double fraction) override;

Q_SIGNALS:
    void printed(const QString& text);
    // A question waits: question() tells which. Also when an inner one was answered and the outer one waits again.
    void questionOpened();
    // It was answered, by a person or a script; as a command line shows it. Esc at the command prompt shows nothing.
    void questionAnswered(const QString& prompt, const QString& answer);
    // The person took back what they had begun, or begins something else: lines that wait for its questions are no
    // longer meant.
    void brokenOff();
    // The person gave a line at the command prompt, typed or by a button.
    void commandGiven(const QString& line);
    // How far something long has come; 1 ends it.
    void progressed(const QString& what, double fraction);
    void redrawNeeded();

private:
    using Sample = std::function<void(const ZrGePoint3d&)>;
    struct Waiting {
        const Question& question;
        const Sample* sample;
        QEventLoop& loop;
        std::optional<Answer> answer;
    };

    Answer wait(const Question& question, const Sample* sample);
    // While the host works: events are handled every now and then, but for what the person does.
    void breathe();
    // What is known before anybody is asked: Esc and the line, while a line of run() waits for the command prompt; that
    // there are no more answers, when the program ends.
    [[nodiscard]] std::optional<Answer> readyAnswer(const Question& question);
    // Whether a dialog of what runs is cancelled before anybody sees it.
    [[nodiscard]] bool isLeaving() const { return isEnding_ || line_.has_value(); }

    DialogPart* dialogs_ = nullptr;
    WindowPart* windows_ = nullptr;
    PanelPart* panels_ = nullptr;
    gs::View* view_ = nullptr;
    bool desktopIsDark_ = true;
    std::vector<Waiting*> waiting_; // the innermost one last
    std::optional<ZrString> line_;  // of run()
    EventPump pump_;
    bool isAlive_ = false;
    bool isEnding_ = false;
};

} // namespace quor::desktop
