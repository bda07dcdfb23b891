#include "desktop/commandline/text_window.h"

#include "desktop/qt_text.h"
#include "host/texts/command_line.h"

#include <QVBoxLayout>

namespace quor::desktop {

TextWindow::TextWindow(const Transcript& transcript, QWidget* parent)
    : QWidget(parent, Qt::Window), view_(new TranscriptView(transcript, this)) {
    setObjectName("textWindow");
    setWindowTitle(toQt(texts::line::kTextWindow));
    view_->setAccessibleName(toQt(texts::line::kHistoryName));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    setFocusProxy(view_);
    resize(fontMetrics().averageCharWidth() * 110, fontMetrics().height() * 34);
}

void TextWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    view_->setFocus();
    Q_EMIT shownChanged(true);
}

void TextWindow::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    Q_EMIT shownChanged(false);
}

} // namespace quor::desktop
