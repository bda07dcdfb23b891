#include "desktop/window/document_tabs.h"

#include "desktop/qt_text.h"
#include "host/commands/drawing_files.h"
#include "host/document.h"
#include "host/sys/utf8.h"
#include "host/texts/window.h"

#include <QMouseEvent>

namespace quor::desktop {

DocumentTabs::DocumentTabs(DocumentManager& documents, QWidget* parent) : QTabBar(parent), documents_(documents) {
    setObjectName("tabs");
    setAccessibleName(toQt(texts::window::kDrawings));
    setDocumentMode(true);
    setTabsClosable(true);
    setExpanding(false);
    setElideMode(Qt::ElideMiddle);
    setDrawBase(false);
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QTabBar::currentChanged, this, [this](int index) {
        if (!isRefreshing_ && index >= 0)
            Q_EMIT chosen(index);
    });
    connect(this, &QTabBar::tabCloseRequested, this, &DocumentTabs::closeWanted);
}

void DocumentTabs::refresh() {
    isRefreshing_ = true;
    const auto& all = documents_.all();
    while (count() > static_cast<int>(all.size()))
        removeTab(count() - 1);
    while (count() < static_cast<int>(all.size()))
        addTab(QString());
    for (int i = 0; i < count(); ++i) {
        const Document& document = *all[static_cast<std::size_t>(i)];
        const QString name = toQt(commands::shortName(document));
        setTabText(i, QString(name).replace('&', "&&") + (document.isModified() ? "*" : ""));
        setTabToolTip(i, document.path().empty() ? name : toQt(fromUtf8(document.path().native())));
        if (&document == documents_.current())
            setCurrentIndex(i);
    }
    setVisible(count() > 0);
    isRefreshing_ = false;
}

void DocumentTabs::mouseReleaseEvent(QMouseEvent* event) {
    const int index = tabAt(event->pos());
    if (event->button() == Qt::MiddleButton && index >= 0)
        Q_EMIT closeWanted(index);
    else
        QTabBar::mouseReleaseEvent(event);
}

} // namespace quor::desktop
