// The dialogs that wait for a person, over the program's window.
#pragma once

#include "desktop/front/parts.h"

class QWidget;

namespace quor {
class Session;
}

namespace quor::desktop {

class Dialogs final : public DialogPart {
public:
    // `owner`: over which they stand where no other window of the program is active.
    Dialogs(Session& session, QWidget& owner) : session_(session), owner_(owner) {}

    TaskDialogAnswer showTaskDialog(const CZrUiTaskDialog& dialog) override;
    FileAnswer chooseFile(const FileQuestion& question) override;
    SaveChoice askToSave(std::wstring_view drawing) override;
    void showProblem(std::wstring_view message) override;
    // Menus, too. One dialog may have opened another: all of them go. One that a person could not cancel answers that
    // there is no more input.
    void escape() override;

private:
    [[nodiscard]] QWidget* parent() const;

    Session& session_;
    QWidget& owner_;
};

} // namespace quor::desktop
