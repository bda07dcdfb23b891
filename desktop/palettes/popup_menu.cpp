#include "desktop/palettes/popup_menu.h"

#include "desktop/qt_text.h"

#include <QMenu>

namespace quor::desktop {

void addEntries(QMenu& menu, const CMenu& from) {
    for (const CMenu::Entry& entry : from.entries()) {
        if (entry.isSeparator()) {
            menu.addSeparator();
        } else if (entry.submenu != nullptr) {
            addEntries(*menu.addMenu(toQt(entry.text)), *entry.submenu);
        } else {
            QAction* const action = menu.addAction(toQt(entry.text));
            action->setData(entry.command);
            action->setCheckable(entry.checked);
            action->setChecked(entry.checked);
        }
    }
}

unsigned popUp(const CMenu& menu, CPoint screen, QWidget& parent) {
    QMenu shown(&parent);
    addEntries(shown, menu);
    const QAction* const chosen = shown.exec(QPoint(screen.x, screen.y));
    return chosen != nullptr ? chosen->data().toUInt() : 0;
}

} // namespace quor::desktop
