#include "desktop/dialogs/web_preview.h"

#include "desktop/dialogs/facts_html.h"
#include "desktop/dialogs/polar_view.h"
#include "desktop/qt_text.h"
#include "host/commands/web_listing.h"
#include "host/ies/web_cache.h"
#include "host/sys/path_text.h"
#include "host/texts/dialogs.h"

#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QThreadPool>
#include <QVBoxLayout>

namespace quor::desktop {

namespace {

// A file up to this size is read faster than a person sees.
constexpr qint64 kSmall = 1 << 20;

std::filesystem::path filePath(const QString& path) { return path.toStdString(); }

} // namespace

WebPreview::WebPreview(QWidget* parent) : QWidget(parent), polar_(new PolarView(this)), facts_(new QLabel(this)) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(polar_, 1);
    facts_->setObjectName("facts");
    facts_->setTextFormat(Qt::RichText);
    facts_->setWordWrap(true);
    facts_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    facts_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    facts_->setContentsMargins(4, 4, 4, 4);
    auto* const scroll = new QScrollArea(this);
    scroll->setWidget(facts_);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    column->addWidget(scroll, 1);
}

QString WebPreview::text() const { return facts_->text(); }

void WebPreview::showFile(const QString& path) {
    ++asked_;
    if (QFileInfo(path).size() > kSmall) {
        readBeside(path);
        return;
    }
    const ies::LoadedWeb loaded = ies::loadWeb(filePath(path));
    if (loaded)
        showWeb(**loaded);
    else
        showError(loaded.error(), path);
}

void WebPreview::readBeside(const QString& path) {
    polar_->show({});
    showText(toQt(texts::kPreviewReading).toHtmlEscaped());
    QThreadPool::globalInstance()->start([self = QPointer(this), path, number = asked_] {
        // The program's cache of webs is for its own thread only.
        auto loaded = std::make_shared<ies::LoadedWeb>(ies::WebCache(1).load(filePath(path)));
        QMetaObject::invokeMethod(qApp, [self, path, number, loaded] {
            if (self == nullptr || self->asked_ != number)
                return;
            if (*loaded)
                self->showWeb(***loaded);
            else
                self->showError(loaded->error(), path);
        });
    });
}

void WebPreview::showWeb(const ies::WebFile& file) {
    polar_->show(ies::polarDiagram(file.web));
    commands::Listing listing;
    commands::listWebSummary(file, listing);
    std::vector<Fact> facts;
    for (const auto& [label, value] : listing.rows())
        facts.emplace_back(toQt(label), toQt(value));
    showText(factsHtml(facts));
}

void WebPreview::showError(const ies::Error& error, const QString& path) {
    polar_->show({});
    showText("<p>" + toQt(ies::describe(error, textOf(filePath(QFileInfo(path).fileName())))).toHtmlEscaped() + "</p>");
}

void WebPreview::showText(const QString& html) {
    facts_->setText(html);
    polar_->setVisible(!polar_->diagram().rings.empty());
}

} // namespace quor::desktop
