#include "desktop/commandline/transcript_view.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>

#include <algorithm>

namespace quor::desktop {

namespace {

constexpr int kPauseMilliseconds = 30;
constexpr int kWheelStep = 120;
constexpr int kMargin = 6; // as far in as the prompt below

QColor colorOf(const LineColors& colors, Transcript::Voice voice) {
    switch (voice) {
    case Transcript::Voice::Prompt:
        return colors.dim;
    case Transcript::Voice::Answer:
        return colors.bright;
    case Transcript::Voice::Host:
        break;
    }
    return colors.text;
}

// What moves about in the text or selects and copies from it.
bool isForReading(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Copy) || event.matches(QKeySequence::SelectAll))
        return true;
    switch (event.key()) {
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    default:
        return false;
    }
}

} // namespace

TranscriptView::TranscriptView(const Transcript& transcript, QWidget* parent)
    : QPlainTextEdit(parent), transcript_(transcript), colors_(LineColors::current()) {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setMaximumBlockCount(static_cast<int>(Transcript::kMostLines) + 1);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(kMargin);
    pause_.setSingleShot(true);
    pause_.setInterval(kPauseMilliseconds);
    connect(&pause_, &QTimer::timeout, this, &TranscriptView::append);
    connect(&transcript, &Transcript::cleared, this, &TranscriptView::startAnew);
    connect(&transcript, &Transcript::changed, this, [this] {
        if (isVisible() && !pause_.isActive())
            pause_.start();
    });
}

void TranscriptView::catchUp() {
    pause_.stop();
    append();
}

void TranscriptView::applyColors(const LineColors& colors) {
    colors_ = colors;
    giveColors(*this, colors);
    startAnew();
    catchUp();
}

void TranscriptView::startAnew() {
    clear();
    shown_ = transcript_.first();
    lineEnded_ = false;
}

// Stays at the end when the end was seen.
void TranscriptView::append() {
    QScrollBar& bar = *verticalScrollBar();
    const bool follows = bar.value() >= bar.maximum();
    if (shown_ < transcript_.first())
        startAnew();
    setUpdatesEnabled(false);
    while (shown_ < transcript_.end()) {
        const Transcript::Voice voice = transcript_.piece(shown_).voice;
        QString together;
        while (shown_ < transcript_.end() && transcript_.piece(shown_).voice == voice)
            together += transcript_.piece(shown_++).text;
        insert(together, voice);
    }
    setUpdatesEnabled(true);
    if (follows)
        bar.setValue(bar.maximum());
}

void TranscriptView::insert(const QString& text, Transcript::Voice voice) {
    QTextCharFormat format;
    format.setForeground(colorOf(colors_, voice));
    QString whole = lineEnded_ ? "\n" + text : text;
    lineEnded_ = whole.endsWith('\n');
    if (lineEnded_)
        whole.chop(1);
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(whole, format);
}

bool TranscriptView::event(QEvent* event) {
    // Characters are for the input line, even where the window has a shortcut of one key.
    if (event->type() == QEvent::ShortcutOverride && isForReading(*static_cast<QKeyEvent*>(event)))
        event->accept();
    return QPlainTextEdit::event(event);
}

void TranscriptView::keyPressEvent(QKeyEvent* event) {
    const bool copiesNothing = event->matches(QKeySequence::Copy) && !textCursor().hasSelection();
    if (isForReading(*event) && !copiesNothing)
        QPlainTextEdit::keyPressEvent(event);
    else
        Q_EMIT keyTyped(event);
}

void TranscriptView::contextMenuEvent(QContextMenuEvent* event) { Q_EMIT menuWanted(event->globalPos()); }

void TranscriptView::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QPlainTextEdit::wheelEvent(event);
        return;
    }
    const int turned = event->angleDelta().y();
    Q_EMIT zoomWanted(turned / kWheelStep != 0 ? turned / kWheelStep : (turned > 0) - (turned < 0));
    event->accept();
}

void TranscriptView::showEvent(QShowEvent* event) {
    QPlainTextEdit::showEvent(event);
    catchUp();
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

} // namespace quor::desktop
