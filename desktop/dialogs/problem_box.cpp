#include "desktop/dialogs/problem_box.h"

#include "desktop/qt_text.h"
#include "host/texts/dialogs.h"

#include <QMessageBox>
#include <QPushButton>

namespace quor::desktop {

void showProblem(std::wstring_view message, QWidget* parent) {
    QMessageBox box(parent);
    box.setObjectName("problem");
    box.setIcon(QMessageBox::Warning);
    box.setTextFormat(Qt::PlainText); // names of files may look like marks
    box.setWindowTitle(toQt(texts::kProblemTitle));
    box.setText(toQt(ZrString(message)));
    QPushButton* const close = box.addButton(toQt(texts::kButtonClose), QMessageBox::RejectRole);
    box.setDefaultButton(close);
    box.setEscapeButton(close);
    box.exec();
}

} // namespace quor::desktop
