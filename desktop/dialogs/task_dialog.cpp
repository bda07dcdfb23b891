#include "desktop/dialogs/task_dialog.h"

#include "desktop/dialogs/command_link.h"
#include "desktop/qt_text.h"
#include "host/texts/dialogs.h"
#include "sdk/ui/task_dialog.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace quor::desktop {

namespace {

constexpr qreal kInstructionScale = 1.25;
constexpr int kNarrowest = 240;

// A label breaks lines without blanks between words, as Chinese has none, wherever the language allows it.
QLabel* wrappedLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::NoTextInteraction);
    return label;
}

int fittingWidth(const QWidget& dialog, int wanted) {
    constexpr int kBesideTheEdges = 40;
    const int most = dialog.screen()->availableGeometry().width() - kBesideTheEdges;
    return std::max(kNarrowest, std::min(wanted, most));
}

} // namespace

TaskDialog::TaskDialog(const CZrUiTaskDialog& dialog, QWidget* parent)
    : QDialog(parent), cancellable_(dialog.isCancellable()) {
    setObjectName("task");
    setWindowTitle(toQt(dialog.title()));
    setModal(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 18, 20, 16);
    column->setSpacing(8);
    addInstruction(*column, toQt(dialog.instruction()));
    column->addSpacing(8);
    addLinks(*column, dialog);
    column->addSpacing(6);
    addLastRow(*column, dialog);
    setFixedWidth(fittingWidth(*this, dialog.width()));
    setFixedHeight(column->totalHeightForWidth(width()));
}

void TaskDialog::addInstruction(QVBoxLayout& column, const QString& text) {
    QLabel* const instruction = wrappedLabel(text, this);
    instruction->setObjectName("instruction");
    QFont large = instruction->font();
    large.setPointSizeF(large.pointSizeF() * kInstructionScale);
    instruction->setFont(large);
    column.addWidget(instruction);
    setAccessibleDescription(text);
}

void TaskDialog::addLinks(QVBoxLayout& column, const CZrUiTaskDialog& dialog) {
    for (const CZrUiTaskDialog::Command& command : dialog.commands()) {
        auto* const link = new CommandLink(toQt(command.text), toQt(command.explanation), this);
        link->setNumber(static_cast<int>(links_.size()) + 1);
        link->setRecommended(command.id == dialog.recommended());
        connect(link, &CommandLink::clicked, this, [this, id = command.id] { choose(id); });
        column.addWidget(link);
        links_.push_back(link);
        if (first_ == nullptr || link->isRecommended())
            first_ = link;
    }
    if (first_ != nullptr)
        first_->setFocus();
}

void TaskDialog::addLastRow(QVBoxLayout& column, const CZrUiTaskDialog& dialog) {
    auto* const row = new QHBoxLayout;
    if (!dialog.checkbox().empty()) {
        box_ = new QCheckBox(toQt(dialog.checkbox()), this);
        // The frame of a box is drawn a shade darker than this, which is too dark in a dark window.
        QPalette framed = palette();
        framed.setColor(QPalette::Window, framed.color(QPalette::PlaceholderText));
        box_->setPalette(framed);
        row->addWidget(box_);
    }
    row->addStretch();
    if ((dialog.buttons() & kTaskDialogCancelButton) != 0) {
        auto* const cancel = new QPushButton(toQt(texts::kButtonCancel), this);
        cancel->setObjectName("cancel");
        cancel->setAutoDefault(false); // Enter is the links'
        connect(cancel, &QPushButton::clicked, this, &TaskDialog::reject);
        row->addWidget(cancel);
    }
    column.addLayout(row);
}

TaskDialogAnswer TaskDialog::ask() {
    exec();
    return answer_;
}

void TaskDialog::choose(int command) {
    answer_ = {command, box_ != nullptr && box_->isChecked(), false};
    accept();
}

void TaskDialog::abandon() {
    answer_ = {std::nullopt, false, !cancellable_};
    QDialog::reject();
}

void TaskDialog::reject() {
    if (cancellable_)
        abandon();
}

bool TaskDialog::moveAmongLinks(int step) {
    const auto at =
        std::find_if(links_.begin(), links_.end(), [](const CommandLink* link) { return link->hasFocus(); });
    if (at == links_.end())
        return false;
    const auto index = static_cast<std::ptrdiff_t>(at - links_.begin()) + step;
    if (index < 0 || index >= static_cast<std::ptrdiff_t>(links_.size()))
        return false;
    links_[static_cast<std::size_t>(index)]->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void TaskDialog::keyPressEvent(QKeyEvent* event) {
    const int number = event->key() - Qt::Key_0;
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (isPlain && number >= 1 && number <= std::min<int>(9, static_cast<int>(links_.size())))
        links_[static_cast<std::size_t>(number) - 1]->click();
    else if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Right)
        moveAmongLinks(1);
    else if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Left)
        moveAmongLinks(-1);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        enter();
    else
        QDialog::keyPressEvent(event);
}

// Enter on the box takes what Enter took at first.
void TaskDialog::enter() {
    if (auto* const button = qobject_cast<QPushButton*>(focusWidget()))
        button->click();
    else if (first_ != nullptr)
        first_->click();
}

} // namespace quor::desktop
