// A task dialog on the screen: a question, a command link for each answer, a box to tick, Cancel.
#pragma once

#include "host/front.h"

#include <QDialog>

#include <vector>

class QCheckBox;
class QVBoxLayout;

namespace quor::desktop {

class CommandLink;

class TaskDialog final : public QDialog {
    Q_OBJECT

public:
    TaskDialog(const CZrUiTaskDialog& dialog, QWidget* parent);

    // Shows it and waits. A dialog that cannot be cancelled is left by abandon() only.
    [[nodiscard]] TaskDialogAnswer ask();
    // The program ends: the dialog goes, whatever it allows a person to do.
    void abandon();

    // Esc, Cancel and the window's own button: nothing happens where the dialog cannot be cancelled.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addInstruction(QVBoxLayout& column, const QString& text);
    void addLinks(QVBoxLayout& column, const CZrUiTaskDialog& dialog);
    void addLastRow(QVBoxLayout& column, const CZrUiTaskDialog& dialog);
    void choose(int command);
    // Moves the focus from the link that has it; false when none has it, or there is none in that direction.
    bool moveAmongLinks(int step);
    void enter();

    std::vector<CommandLink*> links_;
    CommandLink* first_ = nullptr; // the recommended one, else the first
    QCheckBox* box_ = nullptr;
    TaskDialogAnswer answer_;
    bool cancellable_;
};

} // namespace quor::desktop
