// Editors of what is typed: texts and numbers, and files, which can be looked for.
#pragma once

#include "desktop/properties/value_editor.h"

#include <QToolButton>

namespace quor::desktop {

class LineEditor : public ValueEditor {
    Q_OBJECT

public:
    LineEditor(const props::Row& row, QWidget* parent);

    [[nodiscard]] QString text() const override;
    void begin(bool byMouse) override;

protected:
    [[nodiscard]] QLineEdit& line() { return *line_; }

private:
    QLineEdit* line_;
};

class FileEditor final : public LineEditor {
    Q_OBJECT

public:
    FileEditor(const props::Row& row, Session& session, QWidget* parent);

protected:
    // Tab goes to the button, and from there to the next row.
    bool useKey(QKeyEvent& key) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void browse();

    Session& session_;
    QToolButton* button_;
};

} // namespace quor::desktop
