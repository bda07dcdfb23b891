#include "desktop/dialogs/preview_pane.h"

#include "desktop/dialogs/drawing_preview.h"
#include "desktop/dialogs/web_preview.h"
#include "desktop/qt_text.h"
#include "host/texts/dialogs.h"

#include <QFileInfo>
#include <QLabel>
#include <QStackedLayout>

namespace quor::desktop {

namespace {
constexpr int kRest = 60; // milliseconds; holding an arrow key down runs past files without reading them
} // namespace

PreviewPane::PreviewPane(QWidget* parent)
    : QWidget(parent), pages_(new QStackedLayout(this)), words_(new QLabel(this)), web_(new WebPreview(this)) {
    setObjectName("preview");
    setAccessibleName(toQt(texts::kPreview));
    words_->setTextFormat(Qt::RichText);
    words_->setWordWrap(true);
    words_->setAlignment(Qt::AlignCenter);
    words_->setMargin(12);
    pages_->addWidget(words_);
    pages_->addWidget(web_);
    setMinimumWidth(220);
    rest_.setSingleShot(true);
    rest_.setInterval(kRest);
    connect(&rest_, &QTimer::timeout, this, &PreviewPane::showNow);
    showNow();
}

void PreviewPane::showFile(const QString& path) {
    path_ = path;
    rest_.start();
}

void PreviewPane::showNow() {
    rest_.stop();
    const QFileInfo file(path_);
    const QString kind = file.suffix().toLower();
    const bool isFile = file.isFile();
    if (isFile && kind == "ies") {
        web_->showFile(path_);
        pages_->setCurrentWidget(web_);
        return;
    }
    words_->setText(isFile && kind == "dxf" ? drawingFacts(path_) : toQt(texts::kPreviewNothing).toHtmlEscaped());
    pages_->setCurrentWidget(words_);
}

QString PreviewPane::text() const { return pages_->currentWidget() == web_ ? web_->text() : words_->text(); }

} // namespace quor::desktop
