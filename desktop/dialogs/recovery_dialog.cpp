#include "desktop/dialogs/recovery_dialog.h"

#include "desktop/dialogs/facts_html.h"
#include "desktop/qt_text.h"
#include "host/autosave/autosave.h"
#include "host/document.h"
#include "host/session.h"
#include "host/sys/visible_text.h"
#include "host/texts/autosave.h"
#include "host/texts/dialogs.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace quor::desktop {

namespace {

QStringList wordsOf(const autosave::LeftCopy& copy) {
    const QString place = copy.info.path.empty() ? toQt(texts::kRecoverNeverSaved) : toQt(visibleText(copy.info.path));
    return {toQt(visibleText(copy.info.title)), place,
            QDateTime::fromSecsSinceEpoch(copy.info.time).toString("yyyy-MM-dd HH:mm"),
            fileSizeText(static_cast<qint64>(copy.size))};
}

void recoverOne(Session& session, autosave::Autosave& autosave, const autosave::Recovery& recovery,
                const autosave::LeftCopy& copy) {
    const auto recovered = recovery.recover(session, autosave, copy);
    if (recovered.ok())
        printText(fill(texts::kRecoveredCopy, visibleText(copy.info.title)));
    else
        printText(L"\n" + visibleText(recovered.error().message) + L"\n");
}

} // namespace

RecoveryDialog::RecoveryDialog(const std::vector<autosave::LeftCopy>& copies, QWidget* parent)
    : QDialog(parent), list_(new QTreeWidget(this)) {
    setObjectName("recovery");
    setWindowTitle(toQt(texts::kRecoverTitle));
    setModal(true);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(12);
    auto* const introduction = new QLabel(toQt(texts::kRecoverIntroduction), this);
    introduction->setWordWrap(true);
    column->addWidget(introduction);
    column->addWidget(list_);
    fillList(copies);
    addButtons();
    resize(760, 360);
}

void RecoveryDialog::fillList(const std::vector<autosave::LeftCopy>& copies) {
    list_->setAccessibleName(toQt(texts::kRecoverTitle));
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAlternatingRowColors(true);
    list_->setTextElideMode(Qt::ElideMiddle);
    list_->setHeaderLabels(
        {toQt(texts::kRecoverName), toQt(texts::kRecoverPath), toQt(texts::kRecoverTime), toQt(texts::kRecoverSize)});
    for (const autosave::LeftCopy& copy : copies) {
        auto* const row = new QTreeWidgetItem(list_, wordsOf(copy));
        row->setCheckState(0, Qt::Checked);
        row->setToolTip(1, asTip(row->text(1)));
        row->setTextAlignment(3, Qt::AlignRight | Qt::AlignVCenter);
    }
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list_->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    list_->setCurrentItem(list_->topLevelItem(0));
    connect(list_, &QTreeWidget::itemChanged, this, [this] { recover_->setEnabled(!ticked().empty()); });
}

void RecoveryDialog::addButtons() {
    auto* const row = new QHBoxLayout;
    const auto add = [&](const char* name, const Text& words) {
        auto* const button = new QPushButton(toQt(words), this);
        button->setObjectName(name);
        row->addWidget(button);
        return button;
    };
    QPushButton* const discard = add("discard", texts::kRecoverDiscard);
    row->addStretch();
    recover_ = add("recover", texts::kRecoverButton);
    QPushButton* const later = add("later", texts::kRecoverLater);
    recover_->setDefault(true);
    connect(recover_, &QPushButton::clicked, this, [this] {
        choice_ = Choice::Recover;
        accept();
    });
    connect(discard, &QPushButton::clicked, this, &RecoveryDialog::confirmDiscarding);
    connect(later, &QPushButton::clicked, this, &RecoveryDialog::reject);
    qobject_cast<QVBoxLayout*>(layout())->addLayout(row);
}

// What is lost here is lost for good: the safe answer is the usual one.
void RecoveryDialog::confirmDiscarding() {
    QMessageBox box(this);
    box.setObjectName("discarding");
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(windowTitle());
    box.setText(toQt(fill(texts::kRecoverDiscardQuestion, list_->topLevelItemCount())));
    box.setInformativeText(toQt(texts::kRecoverDiscardConsequence));
    const QPushButton* const yes = box.addButton(toQt(texts::kRecoverDelete), QMessageBox::DestructiveRole);
    QPushButton* const no = box.addButton(toQt(texts::kButtonCancel), QMessageBox::RejectRole);
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    if (box.clickedButton() != yes)
        return;
    choice_ = Choice::DiscardAll;
    accept();
}

RecoveryDialog::Choice RecoveryDialog::ask() {
    exec();
    return choice_;
}

std::vector<std::size_t> RecoveryDialog::ticked() const {
    std::vector<std::size_t> rows;
    for (int row = 0; row < list_->topLevelItemCount(); ++row)
        if (list_->topLevelItem(row)->checkState(0) == Qt::Checked)
            rows.push_back(static_cast<std::size_t>(row));
    return rows;
}

std::size_t offerRecovery(Session& session, autosave::Autosave& autosave, QWidget* parent,
                          const std::filesystem::path& folder) {
    const autosave::Recovery recovery(folder);
    if (recovery.copies().empty())
        return 0;
    const std::size_t before = session.documents().all().size();
    RecoveryDialog dialog(recovery.copies(), parent);
    switch (dialog.ask()) {
    case RecoveryDialog::Choice::Recover:
        for (const std::size_t row : dialog.ticked())
            recoverOne(session, autosave, recovery, recovery.copies()[row]);
        break;
    case RecoveryDialog::Choice::DiscardAll:
        for (const autosave::LeftCopy& copy : recovery.copies())
            autosave::Recovery::discard(copy);
        break;
    case RecoveryDialog::Choice::Later:
        break;
    }
    return session.documents().all().size() - before;
}

} // namespace quor::desktop
