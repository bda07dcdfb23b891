#include "tests/desktop/window/at_the_window.h"

#include "desktop/commandline/command_line.h"
#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "desktop/viewport/viewport.h"
#include "desktop/window/actions.h"
#include "desktop/window/main_window.h"
#include "desktop/window/status_bar.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/ed/pick.h"
#include "host/sys/system_variables.h"

#include <QApplication>
#include <QMessageBox>
#include <QTabBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

namespace quor::desktop::test {

AtTheWindow::AtTheWindow(Person& person)
    : person_(person), tabs_(person.sees([&] { return person.program().window().findChild<QTabBar*>("tabs"); })) {}

Viewport& AtTheWindow::viewport() {
    return *person_.sees([&] { return &window().viewport(); });
}

void AtTheWindow::types(std::initializer_list<const char*> lines) {
    for (const char* const line : lines)
        person_.types(line);
}

void AtTheWindow::runs(const QString& line) {
    person_.does([=, this] { person_.program().front().run(fromQt(line)); });
}

void AtTheWindow::writes(const QString& text) {
    person_.does([=, this] { QTest::keyClicks(&window().commandLine().input(), text); });
}

void AtTheWindow::goesToTheDrawing() {
    person_.does([this] {
        window().viewport().setFocusPolicy(Qt::StrongFocus);
        window().viewport().setFocus();
    });
}

void AtTheWindow::chooses(const char* action) {
    person_.does([=, this] { window().actions().action(action).trigger(); });
}

void AtTheWindow::clicksOnToolBar(const char* action) {
    person_.does([=, this] {
        QAction& wanted = window().actions().action(action);
        for (QToolBar* const bar : window().actions().toolBars())
            if (QWidget* const button = bar->widgetForAction(&wanted))
                QTest::mouseClick(button, Qt::LeftButton);
    });
}

QAbstractButton& AtTheWindow::statusSwitch(const char* action) {
    return *person_.sees([=, this] {
        QAbstractButton* found = nullptr;
        for (auto* const button : window().findChild<StatusBar*>()->findChildren<QToolButton*>())
            if (button->defaultAction() == &window().actions().action(action))
                found = button;
        return found;
    });
}

void AtTheWindow::clicks(QWidget& widget) {
    person_.does([&widget] { QTest::mouseClick(&widget, Qt::LeftButton); });
}

void AtTheWindow::clicksTab(int index, Qt::MouseButton button) {
    person_.does([=, this] { QTest::mouseClick(tabs_, button, {}, tabs_->tabRect(index).center()); });
}

void AtTheWindow::closesTab(int index) {
    clicks(*person_.sees([=, this] { return tabs_->tabButton(index, QTabBar::RightSide); }));
}

QStringList AtTheWindow::tabTexts() {
    return person_.sees([this] {
        QStringList texts;
        for (int i = 0; i < tabs_->count(); ++i)
            texts.push_back(tabs_->tabText(i));
        return texts;
    });
}

int AtTheWindow::currentTab() {
    return person_.sees([this] { return tabs_->currentIndex(); });
}

void AtTheWindow::discards() {
    person_.does([] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        for (QAbstractButton* const button : box->buttons())
            if (box->buttonRole(button) == QMessageBox::DestructiveRole)
                return button->click();
    });
}

bool AtTheWindow::isChecked(const char* action) {
    return person_.sees([=, this] { return window().actions().action(action).isChecked(); });
}

bool AtTheWindow::isEnabled(const char* action) {
    return person_.sees([=, this] { return window().actions().action(action).isEnabled(); });
}

QStringList AtTheWindow::running() {
    return person_.sees([this] {
        QStringList names;
        for (const ZrString& name : person_.program().session().processor().running())
            names.push_back(toQt(name));
        return names;
    });
}

QString AtTheWindow::variable(const wchar_t* name) {
    return person_.sees([=, this] { return toQt(person_.program().session().variables().text(name).value_or(L"")); });
}

QString AtTheWindow::title() {
    return person_.sees([this] { return window().windowTitle(); });
}

QString AtTheWindow::inputText() {
    return person_.sees([this] { return window().commandLine().input().text(); });
}

std::size_t AtTheWindow::objects() {
    return person_.sees(
        [this] { return ed::entitiesOfCurrentSpace(*person_.program().session().documents().current()).size(); });
}

std::size_t AtTheWindow::selected() {
    return person_.sees([] { return zredImpliedSelection().size(); });
}

void atTheWindow(ProgramOptions options, const std::function<void(AtTheWindow&)>& story) {
    withProgram(std::move(options), [&](Person& person) {
        AtTheWindow window(person);
        story(window);
    });
}

void atTheWindow(const std::function<void(AtTheWindow&)>& story) { atTheWindow(usualOptions(), story); }

} // namespace quor::desktop::test
