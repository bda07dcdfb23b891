#include "desktop/viewport/answer_menu.h"

#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "host/texts/viewport.h"

#include <QMenu>

namespace quor::desktop {

namespace {

// A menu shows "&" as the mark of a mnemonic.
QString inMenu(const ZrString& keyword) { return toQt(keyword).replace('&', "&&"); }

} // namespace

QMenu* makeAnswerMenu(DesktopFrontEnd& front, QWidget* parent) {
    auto* const menu = new QMenu(parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName("answers");
    // A question that was answered otherwise takes its menu along.
    QObject::connect(&front, &DesktopFrontEnd::questionAnswered, menu, &QMenu::close);
    const Question* const asked = front.question();
    const auto add = [&](const QString& text, auto answer) {
        QObject::connect(menu->addAction(text), &QAction::triggered, &front, [&front, asked, answer] {
            if (front.question() == asked)
                answer(front);
        });
    };
    add(toQt(texts::kViewportEnter), [](DesktopFrontEnd& to) { to.giveEnter(); });
    add(toQt(texts::kViewportCancel), [](DesktopFrontEnd& to) { to.escape(); });
    menu->addSeparator();
    for (const ZrString& keyword : asked->keywords)
        add(inMenu(keyword), [keyword](DesktopFrontEnd& to) { to.giveText(keyword); });
    return menu;
}

} // namespace quor::desktop
