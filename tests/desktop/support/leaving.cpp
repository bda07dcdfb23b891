#include "tests/desktop/support/leaving.h"

#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "desktop/window/main_window.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/ed/pick.h"
#include "sdk/db/entity.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace quor::desktop::test {

namespace {

QString nameOf(const QWidget* widget) {
    if (widget == nullptr)
        return {};
    return widget->objectName().isEmpty() ? QString(widget->metaObject()->className()) : widget->objectName();
}

// The buttons in the order in which they were made.
void press(Choice choice) {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr)
        return;
    constexpr QMessageBox::ButtonRole kRoles[] = {QMessageBox::AcceptRole, QMessageBox::DestructiveRole,
                                                  QMessageBox::RejectRole};
    for (QAbstractButton* const button : box->buttons())
        if (box->buttonRole(button) == kRoles[static_cast<int>(choice)])
            return button->click();
}

bool isInvisible(const ZrDbObjectId& id) {
    const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForRead);
    return entity && entity->visibility() == ZrDb::kInvisible;
}

} // namespace

void closeWindow(Person& person) {
    person.doesAtLast([&] { person.program().window().close(); });
}

void closeWindowAndWait(Person& person) {
    person.does([&] { person.program().window().close(); });
}

QString openDialog(Person& person) {
    return person.sees([] { return nameOf(QApplication::activeModalWidget()); });
}

QString openMenu(Person& person) {
    return person.sees([] { return nameOf(QApplication::activePopupWidget()); });
}

bool isAtCommandPrompt(Person& person) {
    return person.sees([&] {
        const Question* const open = person.program().front().question();
        return open != nullptr && open->kind == Question::Kind::Command &&
               !person.program().session().processor().isRunning() && QApplication::activeModalWidget() == nullptr &&
               QApplication::activePopupWidget() == nullptr;
    });
}

QString openPrompt(Person& person) {
    return person.sees([&] {
        const Question* const open = person.program().front().question();
        return open != nullptr ? toQt(open->prompt) : QString();
    });
}

void gives(Person& person, std::initializer_list<const wchar_t*> lines) {
    for (const wchar_t* const line : lines)
        person.does([&] { person.program().front().giveText(line); });
}

void changesDrawing(Person& person) { gives(person, {L"LINE 0,0 5,5 "}); }

void chooses(Person& person, Choice choice) {
    person.does([=] { press(choice); });
}

void choosesAndLeaves(Person& person, Choice choice) {
    person.doesAtLast([=] { press(choice); });
}

std::string wrongWithDrawing(Person& person) {
    return person.sees([&]() -> std::string {
        const Document* const document = person.program().session().documents().current();
        if (document == nullptr)
            return {};
        if (document->drawing().journal().isOpen())
            return "an undo group is open";
        for (const ZrDbObjectId& id : ed::entitiesOfCurrentSpace(*document))
            if (isInvisible(id))
                return "an entity is invisible";
        return {};
    });
}

std::size_t entityCount(Person& person) {
    return person.sees(
        [&] { return ed::entitiesOfCurrentSpace(*person.program().session().documents().current()).size(); });
}

} // namespace quor::desktop::test
