// The actions of the menus and tool bars, made from the table; they show the state of the program.
#pragma once

#include "desktop/window/action_table.h"

#include <QAction>
#include <QMainWindow>
#include <QObject>

#include <functional>
#include <map>
#include <string_view>
#include <vector>

class QMenu;
class QToolBar;

namespace quor::desktop {

class Actions final : public QObject {
    Q_OBJECT

public:
    // Builds menus and tool bars into the window. `type` types a line at the command prompt.
    Actions(QMainWindow& window, std::function<void(const ActionRow&)> type);

    // What the window does by itself under a name, and how it stands; nothing for those that have no state.
    void bind(std::string_view name, std::function<void()> action);
    void showState(std::string_view name, std::function<bool()> isChecked);
    // Looks at all states again; without a drawing, what needs one cannot be chosen.
    void refresh(bool hasDrawing);

    [[nodiscard]] QAction& action(std::string_view name) const;
    [[nodiscard]] QMenu& menu(MenuPlace place) const;
    [[nodiscard]] const std::vector<QToolBar*>& toolBars() const { return toolBars_; }
    // Icons anew: the theme has changed.
    void refreshIcons();

private:
    struct Entry {
        const ActionRow* row;
        QAction* action;
        std::function<bool()> isChecked;
    };

    void addMenus(QMainWindow& window);
    void addActions(QMainWindow& window, const std::function<void(const ActionRow&)>& type);
    void addToolBars(QMainWindow& window);

    std::map<std::string_view, Entry> entries_;
    std::map<MenuPlace, QMenu*> menus_;
    std::vector<QToolBar*> toolBars_;
};

} // namespace quor::desktop
