#include "desktop/dialogs/save_question.h"

#include "desktop/qt_text.h"
#include "host/texts/dialogs.h"

#include <QMessageBox>
#include <QPushButton>

namespace quor::desktop {

SaveChoice askSaveChoice(std::wstring_view drawing, QWidget* parent) {
    QMessageBox box(parent);
    box.setObjectName("save");
    box.setIcon(QMessageBox::Warning);
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(toQt(texts::kSaveTitle));
    box.setText(toQt(fill(texts::kSaveQuestion, ZrString(drawing))));
    box.setInformativeText(toQt(texts::kSaveConsequence));
    QPushButton* const save = box.addButton(toQt(texts::kSaveButton), QMessageBox::AcceptRole);
    const QPushButton* const discard = box.addButton(toQt(texts::kDiscardButton), QMessageBox::DestructiveRole);
    QPushButton* const cancel = box.addButton(toQt(texts::kButtonCancel), QMessageBox::RejectRole);
    box.setDefaultButton(save);
    box.setEscapeButton(cancel);
    box.exec();
    if (box.clickedButton() == save)
        return SaveChoice::Save;
    return box.clickedButton() == discard ? SaveChoice::Discard : SaveChoice::Cancel;
}

} // namespace quor::desktop
