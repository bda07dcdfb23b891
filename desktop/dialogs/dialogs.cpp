#include "desktop/dialogs/dialogs.h"

#include "desktop/dialogs/file_dialog.h"
#include "desktop/dialogs/problem_box.h"
#include "desktop/dialogs/save_question.h"
#include "desktop/dialogs/task_dialog.h"
#include "desktop/qt_text.h"

#include <QApplication>

namespace quor::desktop {

namespace {

void leave(QWidget& window) {
    if (auto* const task = qobject_cast<TaskDialog*>(&window))
        task->abandon();
    else if (auto* const dialog = qobject_cast<QDialog*>(&window))
        dialog->reject();
    else
        window.close();
    window.hide();
}

} // namespace

// A dialog that is open is the parent of the next one.
QWidget* Dialogs::parent() const {
    QWidget* const modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : &owner_;
}

TaskDialogAnswer Dialogs::showTaskDialog(const CZrUiTaskDialog& dialog) { return TaskDialog(dialog, parent()).ask(); }

FileAnswer Dialogs::chooseFile(const FileQuestion& question) {
    FileDialog dialog(question, startFolder(session_, question), filePlaces(session_), parent());
    dialog.exec();
    const QString file = dialog.chosenFile();
    if (file.isEmpty())
        return {};
    rememberFolder(session_, question, file);
    return {fromQt(file), false, dialog.mayReplace()};
}

SaveChoice Dialogs::askToSave(std::wstring_view drawing) { return askSaveChoice(drawing, parent()); }

void Dialogs::showProblem(std::wstring_view message) { desktop::showProblem(message, parent()); }

void Dialogs::escape() {
    while (QWidget* const popup = QApplication::activePopupWidget())
        leave(*popup);
    while (QWidget* const modal = QApplication::activeModalWidget())
        leave(*modal);
}

} // namespace quor::desktop
