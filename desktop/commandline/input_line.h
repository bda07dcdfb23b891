// The line in which answers are typed: turns keys into what a command line does with them.
#pragma once

#include <QLineEdit>

namespace quor::desktop {

class InputLine final : public QLineEdit {
    Q_OBJECT

public:
    // What a key means where the line does not edit itself.
    enum class Act { Answer, Complete, Older, Newer, List, Cancel, CopyOrCancel, Paste };

    explicit InputLine(QWidget* parent = nullptr);

    // Whether a blank is an answer's end; else it is a character.
    void setBlankAnswers(bool answers) { blankAnswers_ = answers; }
    // Empties the line for good: Ctrl+Z does not bring the text back.
    void empty() { setText({}); }
    // Puts a text where the caret is; line breaks become blanks.
    void insertText(const QString& text);

Q_SIGNALS:
    void acted(quor::desktop::InputLine::Act act);
    void menuWanted(const QPoint& screen);
    void zoomWanted(int steps);
    // The keyboard went elsewhere.
    void left();

protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] bool actsOn(const QKeyEvent& event, Act& act) const;
    // Whether an empty line leaves a key to the window: undoing, selecting and erasing are about the drawing then.
    [[nodiscard]] bool leavesToWindow(const QKeyEvent& event) const;

    bool blankAnswers_ = true;
};

} // namespace quor::desktop
