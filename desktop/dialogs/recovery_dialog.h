// Offers the drawings that a program left behind when it ended unexpectedly.
#pragma once

#include "host/autosave/recovery.h"

#include <QDialog>

class QPushButton;
class QTreeWidget;

namespace quor::desktop {

class RecoveryDialog final : public QDialog {
    Q_OBJECT

public:
    enum class Choice { Recover, DiscardAll, Later };

    RecoveryDialog(const std::vector<autosave::LeftCopy>& copies, QWidget* parent);

    // Shows it and waits; Esc leaves everything for later.
    [[nodiscard]] Choice ask();
    // The copies that are ticked, all of them at first.
    [[nodiscard]] std::vector<std::size_t> ticked() const;

private:
    void fillList(const std::vector<autosave::LeftCopy>& copies);
    void addButtons();
    void confirmDiscarding();

    QTreeWidget* list_;
    QPushButton* recover_ = nullptr;
    Choice choice_ = Choice::Later;
};

// Asks when there is something to recover, and does what the person wants. How many drawings were recovered.
std::size_t offerRecovery(Session& session, autosave::Autosave& autosave, QWidget* parent,
                          const std::filesystem::path& folder = autosave::copiesFolder());

} // namespace quor::desktop
