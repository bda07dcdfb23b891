#include "desktop/window/document_tabs.h"

#include "desktop/qt_text.h"
#include "desktop/window/icons.h"
#include "host/commands/drawing_files.h"
#include "host/document.h"
#include "host/sys/utf8.h"
#include "host/texts/window.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QToolButton>

namespace quor::desktop {

namespace {

namespace words = texts::window;

constexpr int kCloseIcon = 12;

} // namespace

DocumentTabs::DocumentTabs(DocumentManager& documents, QWidget* parent) : QTabBar(parent), documents_(documents) {
    setObjectName("tabs");
    setAccessibleName(toQt(words::kDrawings));
    setDocumentMode(true);
    setExpanding(false);
    setElideMode(Qt::ElideMiddle);
    setDrawBase(false);
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QTabBar::currentChanged, this, [this](int index) {
        if (index >= 0)
            Q_EMIT chosen(index);
    });
}

void DocumentTabs::addDrawing() {
    auto* const close = new QToolButton(this);
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::NoFocus);
    close->setIcon(iconOf("close"));
    close->setIconSize({kCloseIcon, kCloseIcon});
    close->setToolTip(toQt(words::kCloseDrawing));
    close->setAccessibleName(close->toolTip());
    const int index = addTab(QString());
    setTabButton(index, RightSide, close);
    connect(close, &QToolButton::clicked, this, [this, close] { Q_EMIT closeWanted(tabWith(close)); });
}

int DocumentTabs::tabWith(const QWidget* button) const {
    int index = 0;
    while (index < count() && tabButton(index, RightSide) != button)
        ++index;
    return index;
}

void DocumentTabs::refresh() {
    const QSignalBlocker refreshing(this);
    const auto& all = documents_.all();
    while (count() > static_cast<int>(all.size()))
        removeTab(count() - 1);
    while (count() < static_cast<int>(all.size()))
        addDrawing();
    for (int i = 0; i < count(); ++i) {
        const Document& document = *all[static_cast<std::size_t>(i)];
        const QString name = toQt(commands::shortName(document));
        setTabText(i, QString(name).replace('&', "&&") + (document.isModified() ? "*" : ""));
        setTabToolTip(i, asTip(document.path().empty() ? name : toQt(fromUtf8(document.path().native()))));
        if (&document == documents_.current())
            setCurrentIndex(i);
    }
    setVisible(count() > 0);
}

void DocumentTabs::step(int places) {
    if (count() > 1)
        Q_EMIT chosen((currentIndex() + places + count()) % count());
}

void DocumentTabs::mouseReleaseEvent(QMouseEvent* event) {
    const int index = tabAt(event->pos());
    if (event->button() == Qt::MiddleButton && index >= 0)
        Q_EMIT closeWanted(index);
    else
        QTabBar::mouseReleaseEvent(event);
}

} // namespace quor::desktop
