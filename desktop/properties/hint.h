// A message beside the widget that it is about: what is wrong with an input, until it is mended.
#pragma once

#include <QLabel>
#include <QPointer>

namespace quor::desktop {

class Hint final : public QLabel {
    Q_OBJECT

public:
    // Lies over `area`, which it never leaves.
    explicit Hint(QWidget* area);

    // Below the widget, or above it where there is no room; at the bottom of the area for one that holds the area. The
    // widget says it to those who do not see it.
    void say(const QString& message, QWidget* about);
    void clearMessage();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place();

    QWidget* area_;
    QPointer<QWidget> about_;
};

// The colour of what is wrong, to be seen on the ground that the palette has.
[[nodiscard]] QColor wrongColor(const QPalette& palette);

} // namespace quor::desktop
