// The list of what may be typed, beside the input line; the keyboard stays in the line.
#pragma once

#include "desktop/commandline/line_colors.h"

#include <QTreeWidget>

#include <optional>
#include <vector>

namespace quor::desktop {

class CandidateList final : public QTreeWidget {
    Q_OBJECT

public:
    struct Row {
        QString text;   // what is shown
        QString detail; // dimmed behind it
        QString answer; // what it stands for in the line
    };

    explicit CandidateList(QWidget* parent);

    // Shows the rows above the rectangle of the screen, or below it where there is no room; nothing is chosen yet.
    void offer(std::vector<Row> rows, const QRect& beside);
    void dismiss();
    [[nodiscard]] bool isOpen() const { return isVisible(); }
    [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }
    // Goes to the next row, or from none to the first one; round the ends.
    void move(int direction);
    [[nodiscard]] std::optional<QString> chosen() const;
    void applyColors(const LineColors& colors);

Q_SIGNALS:
    // A row was clicked.
    void picked(const QString& answer);

private:
    void place(const QRect& beside);

    std::vector<Row> rows_;
    LineColors colors_;
};

} // namespace quor::desktop
