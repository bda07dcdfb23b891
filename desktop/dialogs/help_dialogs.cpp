#include "desktop/dialogs/help_dialogs.h"

#include "desktop/qt_text.h"
#include "host/sys/version.h"
#include "host/texts/dialogs.h"
#include "host/texts/shortcuts.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace quor::desktop {

namespace {

constexpr int kIcon = 64;

void addCloseButton(QDialog& dialog, QVBoxLayout& column) {
    auto* const buttons = new QDialogButtonBox(&dialog);
    QPushButton* const close = buttons->addButton(toQt(texts::kButtonClose), QDialogButtonBox::RejectRole);
    close->setDefault(true);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    column.addWidget(buttons);
}

QString aboutHtml() {
    const auto line = [](const QString& text) { return "<p>" + text.toHtmlEscaped() + "</p>"; };
    return "<h2>Quor</h2>" + line(toQt(fill(texts::kAboutVersion, ZrString(sys::kVersion)))) +
           line(toQt(texts::kAboutWhat)) + line(toQt(fill(texts::kAboutBuilt, fromQt(qVersion()))));
}

QTreeWidgetItem* addHeading(QTreeWidget& list, const Text& words) {
    auto* const heading = new QTreeWidgetItem(&list, {toQt(words)});
    QFont bold = list.font();
    bold.setBold(true);
    heading->setFont(0, bold);
    heading->setFirstColumnSpanned(true);
    heading->setExpanded(true);
    return heading;
}

void fillShortcuts(QTreeWidget& list) {
    QTreeWidgetItem* heading = nullptr;
    for (const texts::Shortcut& row : texts::kShortcuts)
        if (row.isHeading())
            heading = addHeading(list, row.keys);
        else
            new QTreeWidgetItem(heading, {toQt(row.keys), toQt(row.effect)});
    list.setCurrentItem(list.topLevelItem(0));
}

} // namespace

void showAbout(QWidget& owner) {
    QDialog dialog(&owner);
    dialog.setObjectName("about");
    dialog.setWindowTitle(toQt(texts::kAboutTitle));
    auto* const column = new QVBoxLayout(&dialog);
    auto* const row = new QHBoxLayout;
    auto* const icon = new QLabel(&dialog);
    icon->setPixmap(owner.window()->windowIcon().pixmap(kIcon, kIcon));
    icon->setAlignment(Qt::AlignTop);
    auto* const words = new QLabel(aboutHtml(), &dialog);
    words->setWordWrap(true);
    words->setMinimumWidth(320);
    words->setTextInteractionFlags(Qt::TextSelectableByMouse);
    row->addWidget(icon);
    row->addSpacing(12);
    row->addWidget(words, 1);
    column->setContentsMargins(20, 16, 20, 16);
    column->addLayout(row);
    addCloseButton(dialog, *column);
    dialog.exec();
}

void showShortcuts(QWidget& owner) {
    QDialog dialog(&owner);
    dialog.setObjectName("shortcuts");
    dialog.setWindowTitle(toQt(texts::kShortcutsTitle));
    auto* const column = new QVBoxLayout(&dialog);
    auto* const list = new QTreeWidget(&dialog);
    list->setAccessibleName(dialog.windowTitle());
    list->setHeaderLabels({toQt(texts::kShortcutsDo), toQt(texts::kShortcutsEffect)});
    list->setRootIsDecorated(false);
    list->setItemsExpandable(false);
    list->setIndentation(14);
    list->setAlternatingRowColors(true);
    fillShortcuts(*list);
    list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    column->addWidget(list);
    addCloseButton(dialog, *column);
    dialog.resize(640, 620);
    list->setFocus();
    dialog.exec();
}

} // namespace quor::desktop
