#include "desktop/properties/value_editor.h"

#include "desktop/properties/choice_editors.h"
#include "desktop/properties/hint.h"
#include "desktop/properties/text_editors.h"
#include "desktop/qt_text.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

namespace quor::desktop {

namespace {

bool isPlain(const QKeyEvent& key) {
    const auto usual = key.key() == Qt::Key_Backtab ? Qt::ShiftModifier | Qt::KeypadModifier : Qt::KeypadModifier;
    return (key.modifiers() & ~Qt::KeyboardModifiers(usual)) == Qt::NoModifier;
}

bool isOwnKey(const QKeyEvent& key) {
    return isPlain(key) && (key.key() == Qt::Key_Escape || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
}

} // namespace

ValueEditor* ValueEditor::make(const props::Row& row, Session& session, QWidget* parent) {
    ValueEditor* editor = nullptr;
    switch (row.editor) {
    case props::Editor::Choice:
    case props::Editor::YesNo:
        editor = new ChoiceEditor(row, parent);
        break;
    case props::Editor::Color:
        editor = new ColorEditor(row, parent);
        break;
    case props::Editor::File:
        editor = new FileEditor(row, session, parent);
        break;
    default:
        editor = new LineEditor(row, parent);
    }
    editor->focusProxy()->setAccessibleName(toQt(row.label));
    return editor;
}

ValueEditor::ValueEditor(QWidget* parent) : QFrame(parent) {
    setObjectName("editor");
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
}

void ValueEditor::setInput(QWidget* input) {
    setFocusProxy(input);
    input->installEventFilter(this);
}

void ValueEditor::setWrong(bool wrong) {
    isWrong_ = wrong;
    update();
}

// With other modifiers a key may be a shortcut, such as Ctrl+Tab.
bool ValueEditor::takeKey(QKeyEvent& key) {
    if (!isPlain(key))
        return useKey(key);
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        apply();
        return true;
    case Qt::Key_Escape:
        Q_EMIT givenUp();
        return true;
    case Qt::Key_Tab:
        apply(1);
        return true;
    case Qt::Key_Backtab:
        apply(-1);
        return true;
    default:
        return useKey(key);
    }
}

// The keyboard went elsewhere: the input is taken as with Enter, but for windows that belong to the editor.
void ValueEditor::leave() {
    const QWidget* const focus = QApplication::focusWidget();
    const bool isInside = focus != nullptr && (focus == this || isAncestorOf(focus));
    const bool hasOpenList = QApplication::activePopupWidget() != nullptr;
    if (!isInside && !hasOpenList && !isAsking_ && !isWrong_)
        apply();
}

bool ValueEditor::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride: // keys of the editor are no shortcuts of the window
        if (isOwnKey(*static_cast<QKeyEvent*>(event)))
            event->accept();
        return false;
    case QEvent::KeyPress:
        return takeKey(*static_cast<QKeyEvent*>(event));
    case QEvent::FocusOut:
        switch (static_cast<QFocusEvent*>(event)->reason()) {
        case Qt::PopupFocusReason:
        case Qt::ActiveWindowFocusReason:
        case Qt::MenuBarFocusReason:
            break;
        default:
            leave();
        }
        return false;
    default:
        return QFrame::eventFilter(watched, event);
    }
}

void ValueEditor::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setPen(isWrong_ ? wrongColor(palette()) : palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace quor::desktop
