// A read-only view of a transcript: scrolled, selected, copied; whatever else is typed goes to the input line.
#pragma once

#include "desktop/commandline/line_colors.h"
#include "desktop/commandline/transcript.h"

#include <QPlainTextEdit>
#include <QTimer>

namespace quor::desktop {

class TranscriptView final : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit TranscriptView(const Transcript& transcript, QWidget* parent = nullptr);

    // Shows what there is at once, without waiting for the pause.
    void catchUp();
    // All anew in the colours of the theme in use.
    void applyColors(const LineColors& colors);

Q_SIGNALS:
    // A key that a read-only text has no use for.
    void keyTyped(QKeyEvent* event);
    void menuWanted(const QPoint& screen);
    void zoomWanted(int steps);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

private:
    void append();
    void startAnew();
    void insert(const QString& text, Transcript::Voice voice);

    const Transcript& transcript_;
    LineColors colors_;
    QTimer pause_;
    std::uint64_t shown_ = 0;
    bool lineEnded_ = false; // the break is written when something follows, so that no empty line is seen below
};

} // namespace quor::desktop
