// The menu of the right button.
#include "desktop/commandline/command_line.h"
#include "desktop/commandline/transcript_view.h"
#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "host/ed/command_table.h"
#include "host/session.h"
#include "host/texts/command_line.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>

namespace quor::desktop {

namespace words = texts::line;

QMenu* CommandLine::recentCommandsMenu(QWidget* parent) {
    auto* const menu = new QMenu(toQt(words::kLastCommands), parent);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fillRecentCommands(*menu); });
    return menu;
}

void CommandLine::fillRecentCommands(QMenu& menu) {
    menu.clear();
    for (const ZrString& name : recent_.names()) {
        const ed::Command* const command = session_.commands().find({name});
        const ZrString shown = command != nullptr ? command->localName : name;
        menu.addAction(toQt(shown), this, [this, name] { front_.run(L"_" + name); });
    }
    if (menu.isEmpty())
        menu.addAction(toQt(words::kNoLastCommands))->setEnabled(false);
}

void CommandLine::openMenu(const QPoint& screen) {
    QClipboard& clipboard = *QApplication::clipboard();
    const bool hasSelection = input_->hasSelectedText() || history_->textCursor().hasSelection();
    const bool hasText = !clipboard.text().isEmpty();
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addMenu(recentCommandsMenu(menu));
    menu->addSeparator();
    menu->addAction(toQt(words::kCopy), this,
                    [this] {
                        if (input_->hasSelectedText())
                            input_->copy();
                        else
                            history_->copy();
                    })
        ->setEnabled(hasSelection);
    menu->addAction(toQt(words::kCopyHistory), this,
                    [this] { QApplication::clipboard()->setText(transcript_.text()); });
    menu->addAction(toQt(words::kPaste), this, [this] { paste(QApplication::clipboard()->text()); })
        ->setEnabled(hasText);
    menu->addAction(toQt(words::kPasteToLine), this, [this] { input_->insertText(QApplication::clipboard()->text()); })
        ->setEnabled(hasText);
    menu->addSeparator();
    menu->addAction(toQt(words::kClearHistory), this, &CommandLine::clearHistory);
    menu->addSeparator();
    menu->addAction(toQt(words::kZoomIn), this, [this] { zoom(1); });
    menu->addAction(toQt(words::kZoomOut), this, [this] { zoom(-1); });
    menu->addAction(textWindowAction_);
    menu->popup(screen);
}

} // namespace quor::desktop
