#include "desktop/properties/choice_editors.h"

#include "desktop/properties/swatch.h"
#include "desktop/qt_text.h"
#include "host/props/value_input.h"
#include "host/texts/properties.h"

#include <QColorDialog>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

namespace quor::desktop {

ChoiceEditor::ChoiceEditor(const props::Row& row, QWidget* parent) : ValueEditor(parent), list_(new QComboBox(this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(list_);
    list_->setFrame(false);
    list_->setFocusPolicy(Qt::StrongFocus);
    list_->setMinimumContentsLength(1);
    list_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    for (const ZrString& choice : row.choices)
        list_->addItem(toQt(choice));
    list_->setPlaceholderText(toQt(row.text));
    list_->setCurrentIndex(list_->findText(toQt(row.input)));
    setInput(list_);
    connect(list_, &QComboBox::activated, this, [this](int place) { choose(place); });
}

QString ChoiceEditor::text() const { return list_->currentText(); }

void ChoiceEditor::begin(bool byMouse) {
    list_->setFocus();
    if (byMouse)
        list_->showPopup();
}

void ChoiceEditor::choose(int) { apply(); }

bool ChoiceEditor::useKey(QKeyEvent& key) {
    const bool opens = key.key() == Qt::Key_F4 || key.modifiers().testFlag(Qt::AltModifier);
    if (opens || (key.key() != Qt::Key_Up && key.key() != Qt::Key_Down))
        return false;
    const int step = key.key() == Qt::Key_Up ? -1 : 1;
    list_->setCurrentIndex(std::clamp(list_->currentIndex() + step, 0, list_->count() - 1));
    return true;
}

ColorEditor::ColorEditor(const props::Row& row, QWidget* parent)
    : ChoiceEditor(row, parent), current_(row.color ? toQt(*row.color) : QColor(Qt::white)), before_(toQt(row.input)) {
    for (int place = 0; place < list().count(); ++place)
        if (const auto color = props::parseColor(fromQt(list().itemText(place)), false))
            list().setItemIcon(place, swatch(toQt(*color), *this));
    list().addItem(toQt(texts::kMoreColors));
    list().setEditable(true);
    list().setInsertPolicy(QComboBox::NoInsert);
    list().setCompleter(nullptr);
    list().lineEdit()->setPlaceholderText(row.varies ? toQt(row.text) : QString());
    list().lineEdit()->setText(before_);
    setInput(list().lineEdit());
    list().lineEdit()->selectAll();
    connect(list().lineEdit(), &QLineEdit::textEdited, this, [this] { setWrong(false); });
}

void ColorEditor::choose(int place) {
    if (place == list().count() - 1)
        askForColor();
    else
        apply();
}

// The list is walked through as far as its colours go; the last entry is a question.
bool ColorEditor::useKey(QKeyEvent& key) {
    const bool isArrow = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
    if (key.modifiers().testFlag(Qt::AltModifier) && isArrow) {
        list().showPopup();
        return true;
    }
    if (!isArrow)
        return false;
    const int step = key.key() == Qt::Key_Up ? -1 : 1;
    list().setCurrentIndex(std::clamp(list().currentIndex() + step, 0, list().count() - 2));
    return true;
}

void ColorEditor::askForColor() {
    list().lineEdit()->setText(before_);
    setAsking(true);
    auto* const dialog = new QColorDialog(current_, this);
    dialog->setObjectName("colors");
    dialog->setWindowTitle(toQt(texts::kChooseColor));
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QColorDialog::colorSelected, this, [this](const QColor& color) {
        list().lineEdit()->setText(QString("%1,%2,%3").arg(color.red()).arg(color.green()).arg(color.blue()));
        apply();
    });
    connect(dialog, &QDialog::finished, this, [this] {
        setAsking(false);
        list().setFocus();
    });
    dialog->open();
}

} // namespace quor::desktop
