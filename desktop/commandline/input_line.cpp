#include "desktop/commandline/input_line.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>

namespace quor::desktop {

namespace {

constexpr int kWheelStep = 120;

struct KeyAct {
    int key;
    Qt::KeyboardModifiers modifiers;
    InputLine::Act act;
};

const KeyAct kKeyActs[] = {
    {Qt::Key_Return, Qt::NoModifier, InputLine::Act::Answer}, {Qt::Key_Enter, Qt::NoModifier, InputLine::Act::Answer},
    {Qt::Key_Tab, Qt::NoModifier, InputLine::Act::Complete},  {Qt::Key_Up, Qt::NoModifier, InputLine::Act::Older},
    {Qt::Key_Down, Qt::NoModifier, InputLine::Act::Newer},    {Qt::Key_Down, Qt::AltModifier, InputLine::Act::List},
    {Qt::Key_Escape, Qt::NoModifier, InputLine::Act::Cancel},
};

} // namespace

InputLine::InputLine(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    setDragEnabled(true);
}

void InputLine::insertText(const QString& text) {
    QString line = text;
    line.replace('\r', "").replace('\n', ' ');
    insert(line);
}

bool InputLine::actsOn(const QKeyEvent& event, Act& act) const {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (event.matches(QKeySequence::Copy)) {
        act = Act::CopyOrCancel;
        return true;
    }
    if (event.matches(QKeySequence::Paste)) {
        act = Act::Paste;
        return true;
    }
    if (event.key() == Qt::Key_Space && blankAnswers_ && modifiers == Qt::NoModifier) {
        act = Act::Answer;
        return true;
    }
    for (const KeyAct& row : kKeyActs)
        if (row.key == event.key() && row.modifiers == modifiers) {
            act = row.act;
            return true;
        }
    return false;
}

bool InputLine::leavesToWindow(const QKeyEvent& event) const {
    constexpr QKeySequence::StandardKey kOfTheDrawing[] = {QKeySequence::Undo, QKeySequence::Redo,
                                                           QKeySequence::SelectAll, QKeySequence::Delete};
    return text().isEmpty() && std::ranges::any_of(kOfTheDrawing, [&](auto key) { return event.matches(key); });
}

// Tab would leave the line, and shortcuts of the window would take other keys, before they are key presses.
bool InputLine::event(QEvent* event) {
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!isPress && event->type() != QEvent::ShortcutOverride)
        return QLineEdit::event(event);
    auto& key = *static_cast<QKeyEvent*>(event);
    if (leavesToWindow(key)) {
        event->ignore();
        return true;
    }
    Act act{};
    if (!actsOn(key, act))
        return QLineEdit::event(event);
    if (isPress)
        Q_EMIT acted(act);
    event->accept();
    return true;
}

void InputLine::contextMenuEvent(QContextMenuEvent* event) { Q_EMIT menuWanted(event->globalPos()); }

void InputLine::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y();
    if ((event->modifiers() & Qt::ControlModifier) != 0 && turned != 0)
        Q_EMIT zoomWanted(turned / kWheelStep != 0 ? turned / kWheelStep : (turned > 0 ? 1 : -1));
    event->accept();
}

void InputLine::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    Q_EMIT left();
}

} // namespace quor::desktop
