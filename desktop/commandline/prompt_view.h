// The prompt of the question that waits, its options and its default clickable and reachable by arrow keys.
#pragma once

#include "desktop/commandline/line_colors.h"
#include "host/ed/prompt_options.h"

#include <QTextLayout>
#include <QWidget>

#include <optional>
#include <vector>

namespace quor::desktop {

class PromptView final : public QWidget {
    Q_OBJECT

public:
    explicit PromptView(QWidget* parent = nullptr);

    void showParts(std::vector<ed::PromptPart> parts);
    // A line without options.
    void showText(const QString& text);
    void applyColors(const LineColors& colors);

    [[nodiscard]] const std::vector<ed::PromptPart>& parts() const { return parts_; }
    [[nodiscard]] QString text() const { return layout_.text(); }
    // How wide it is on one line.
    [[nodiscard]] int naturalWidth() const;
    // Where a part stands, the first line of it; empty for one that is not seen.
    [[nodiscard]] QRect rectOf(std::size_t part) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

Q_SIGNALS:
    // An option or the default was chosen.
    void chosen(const ed::PromptPart& part);
    // Esc, or a key that is for the input line.
    void keyTyped(QKeyEvent* event);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    using Place = std::optional<std::size_t>;

    void layOut(QTextLayout& layout, int width) const;
    void refresh();
    void highlight(Place part);
    [[nodiscard]] Place partAt(const QPoint& point) const;
    // The next part that can be chosen, in a direction; the same one at the end.
    [[nodiscard]] Place nextFrom(Place part, int direction) const;
    [[nodiscard]] bool isLink(std::size_t part) const;
    [[nodiscard]] int startOf(std::size_t part) const;

    LineColors colors_;
    std::vector<ed::PromptPart> parts_;
    QTextLayout layout_;
    Place lit_;     // under the cursor, or where the arrow keys are
    Place pressed_; // where the button went down
};

} // namespace quor::desktop
