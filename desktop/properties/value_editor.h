// The widget with which the value of one row is changed, in the place where it stands: a line with its unit, a list, a
// colour, a file. Enter and Tab apply, Esc gives up; what an input means, and whether it is taken, others know.
#pragma once

#include "host/props/row.h"

#include <QFrame>

class QComboBox;
class QLineEdit;

namespace quor {
class Session;
}

namespace quor::desktop {

class ValueEditor : public QFrame {
    Q_OBJECT

public:
    // For an editable row; the editor belongs to its parent.
    [[nodiscard]] static ValueEditor* make(const props::Row& row, Session& session, QWidget* parent);

    [[nodiscard]] virtual QString text() const = 0;
    // What a person does first with it: marks a text, opens a list when it was clicked.
    virtual void begin(bool byMouse) = 0;
    // Shows that the input is wrong, with a frame.
    void setWrong(bool wrong);
    [[nodiscard]] bool isWrong() const { return isWrong_; }

Q_SIGNALS:
    // The input is to be taken; `step`: what comes then, 1 the next row, -1 the one before, 0 none.
    void applied(const QString& text, int step);
    void givenUp();

protected:
    explicit ValueEditor(QWidget* parent);
    // The part that gets the keys.
    void setInput(QWidget* input);
    // Of a key that the editor does not know itself; true when it was used.
    virtual bool useKey(QKeyEvent&) { return false; }
    // The input as it is, for instance because it was chosen with the mouse.
    void apply(int step = 0) { Q_EMIT applied(text(), step); }
    // While a window of the editor's own is open, the keyboard may be elsewhere.
    void setAsking(bool asking) { isAsking_ = asking; }

    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool takeKey(QKeyEvent& key);
    void leave();

    bool isWrong_ = false;
    bool isAsking_ = false;
};

} // namespace quor::desktop
