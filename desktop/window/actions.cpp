#include "desktop/window/actions.h"

#include "desktop/qt_text.h"
#include "desktop/window/icons.h"
#include "host/texts/window.h"

#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace quor::desktop {

namespace {

namespace words = texts::window;

struct ToolBarRow {
    ToolBarPlace place;
    const char* name;
    Text title;
};
constexpr ToolBarRow kToolBars[] = {
    {ToolBarPlace::File, "toolbar.file", words::kToolBarFile},
    {ToolBarPlace::View, "toolbar.view", words::kToolBarView},
    {ToolBarPlace::Light, "toolbar.light", words::kToolBarLight},
};

// "直线(&L)" and "&Line" without the mark of the letter, as tips show them.
QString plainText(const Text& text) {
    QString plain = toQt(text);
    const qsizetype mark = plain.indexOf("(&");
    if (mark >= 0)
        plain.remove(mark, 4);
    plain.remove('&');
    return plain.remove(QChar(0x2026));
}

QString tipOf(const ActionRow& row, const QAction& action) {
    QString tip = plainText(row.text);
    if (row.line != nullptr)
        tip += " - " + toQt(row.line).remove('_').remove('\'');
    if (!action.shortcut().isEmpty())
        tip += " (" + action.shortcut().toString(QKeySequence::NativeText) + ")";
    return tip;
}

} // namespace

Actions::Actions(QMainWindow& window, std::function<void(const ActionRow&)> type) : QObject(&window) {
    addMenus(window);
    addActions(window, type);
    addToolBars(window);
}

void Actions::addMenus(QMainWindow& window) {
    for (const MenuRow& row : menuRows())
        menus_[row.place] = row.parent == row.place ? window.menuBar()->addMenu(toQt(row.title))
                                                    : new QMenu(toQt(row.title), menus_[row.parent]);
}

void Actions::addActions(QMainWindow& window, const std::function<void(const ActionRow&)>& type) {
    for (const ActionRow& row : actionRows()) {
        auto* const action = new QAction(iconOf(row.name), toQt(row.text), &window);
        action->setObjectName(row.name);
        action->setShortcuts(QKeySequence::listFromString(row.shortcuts));
        action->setCheckable(row.isCheckable);
        action->setToolTip(tipOf(row, *action));
        action->setStatusTip(action->toolTip());
        if (row.line != nullptr)
            connect(action, &QAction::triggered, this, [type, &row] { type(row); });
        if (row.startsGroup && !menus_[row.menu]->isEmpty())
            menus_[row.menu]->addSeparator();
        menus_[row.menu]->addAction(action);
        entries_[row.name] = {&row, action, {}};
    }
    // Submenus stand behind the actions of their parent.
    for (const MenuRow& row : menuRows())
        if (row.parent != row.place) {
            menus_[row.parent]->addSeparator();
            menus_[row.parent]->addMenu(menus_[row.place]);
        }
}

void Actions::addToolBars(QMainWindow& window) {
    for (const ToolBarRow& row : kToolBars) {
        QToolBar* const bar = window.addToolBar(toQt(row.title));
        bar->setObjectName(row.name);
        bar->setIconSize(QSize(20, 20));
        for (const ActionRow& shown : actionRows()) {
            if (shown.toolBar != row.place)
                continue;
            if (shown.startsGroup && !bar->actions().isEmpty())
                bar->addSeparator();
            bar->addAction(&action(shown.name));
        }
        toolBars_.push_back(bar);
    }
}

void Actions::bind(std::string_view name, std::function<void()> action) {
    connect(entries_.at(name).action, &QAction::triggered, this, std::move(action));
}

// Choosing an action switches its mark, whatever comes of it.
void Actions::showState(std::string_view name, std::function<bool()> isChecked) {
    Entry& entry = entries_.at(name);
    entry.isChecked = std::move(isChecked);
    connect(entry.action, &QAction::triggered, this, [&entry] { entry.action->setChecked(entry.isChecked()); });
}

void Actions::refresh(bool hasDrawing) {
    for (auto& [name, entry] : entries_) {
        entry.action->setEnabled(hasDrawing || !entry.row->needsDrawing);
        if (entry.isChecked)
            entry.action->setChecked((hasDrawing || !entry.row->needsDrawing) && entry.isChecked());
    }
}

QAction& Actions::action(std::string_view name) const { return *entries_.at(name).action; }

QMenu& Actions::menu(MenuPlace place) const { return *menus_.at(place); }

void Actions::refreshIcons() {
    for (auto& [name, entry] : entries_)
        entry.action->setIcon(iconOf(entry.row->name));
}

} // namespace quor::desktop
