#include "desktop/viewport/answer_menu.h"

#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "host/ed/prompt_options.h"
#include "host/texts/viewport.h"

#include <QMenu>

#include <vector>

namespace quor::desktop {

namespace {

// A menu shows "&" as the mark of a mnemonic.
QString inMenu(const ZrString& keyword) { return toQt(keyword).replace('&', "&&"); }

struct Choice {
    ZrString text;
    ZrString answer;
};

// What the prompt offers. Some questions take words that they do not offer: those are for who knows them. Others offer
// nothing and take all of their words.
std::vector<Choice> choicesOf(const Question& asked) {
    std::vector<Choice> choices;
    for (const ed::PromptPart& part : ed::promptParts(asked.prompt, asked.keywords))
        if (part.kind == ed::PromptPart::Kind::Option)
            choices.push_back({part.text, part.answer});
    if (choices.empty())
        for (const ZrString& keyword : asked.keywords)
            choices.push_back({keyword, keyword});
    return choices;
}

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
    for (const Choice& choice : choicesOf(*asked))
        add(inMenu(choice.text), [answer = choice.answer](DesktopFrontEnd& to) { to.giveText(answer); });
    return menu;
}

} // namespace quor::desktop
