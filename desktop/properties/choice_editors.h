// Editors of what is chosen: words of a list, colours.
#pragma once

#include "desktop/properties/value_editor.h"

namespace quor::desktop {

class ChoiceEditor : public ValueEditor {
    Q_OBJECT

public:
    ChoiceEditor(const props::Row& row, QWidget* parent);

    [[nodiscard]] QString text() const override;
    // A click opens the list at once.
    void begin(bool byMouse) override;

protected:
    // Up and Down go through the list without applying.
    bool useKey(QKeyEvent& key) override;
    // The person took an entry out of the open list.
    virtual void choose(int place);
    [[nodiscard]] QComboBox& list() { return *list_; }

private:
    QComboBox* list_;
};

// The colours that have a name, and all others in a dialog; a number or "r,g,b" can be typed.
class ColorEditor final : public ChoiceEditor {
    Q_OBJECT

public:
    ColorEditor(const props::Row& row, QWidget* parent);

protected:
    void choose(int place) override;
    bool useKey(QKeyEvent& key) override;

private:
    void askForColor();

    QColor current_;
    QString before_;
};

} // namespace quor::desktop
