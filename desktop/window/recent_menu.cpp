#include "desktop/window/recent_menu.h"

#include "desktop/qt_text.h"
#include "desktop/window/recent_files.h"
#include "host/texts/window.h"

namespace quor::desktop {

namespace {

namespace words = texts::window;

// Longer paths lose their middle, in average characters.
constexpr int kWidestPath = 70;

} // namespace

RecentMenu::RecentMenu(RecentFiles& files, QWidget* parent) : QMenu(toQt(words::kSubRecent), parent), files_(files) {
    setObjectName("recent");
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::fill);
    fill();
}

void RecentMenu::fill() {
    clear();
    const int widest = fontMetrics().averageCharWidth() * kWidestPath;
    int number = 0;
    for (const ZrString& file : files_.all()) {
        const QString shown = fontMetrics().elidedText(toQt(file), Qt::ElideMiddle, widest).replace('&', "&&");
        QAction* const action =
            addAction("&" + QString::number(++number) + "  " + shown, this, [this, file] { Q_EMIT chosen(file); });
        action->setToolTip(asTip(toQt(file)));
        action->setData(toQt(file));
    }
    const bool isEmpty = number == 0;
    if (isEmpty)
        addAction(toQt(words::kNoRecent))->setEnabled(false);
    addSeparator();
    addAction(toQt(words::kClearRecent), this, [this] { files_.clear(); })->setEnabled(!isEmpty);
}

} // namespace quor::desktop
