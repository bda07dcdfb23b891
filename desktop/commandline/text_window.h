// The text window: all that the command line has said, large.
#pragma once

#include "desktop/commandline/transcript_view.h"

#include <QWidget>

namespace quor::desktop {

class TextWindow final : public QWidget {
    Q_OBJECT

public:
    explicit TextWindow(const Transcript& transcript, QWidget* parent);

    [[nodiscard]] TranscriptView& view() { return *view_; }

Q_SIGNALS:
    // It was shown or hidden, also by its own close button.
    void shownChanged(bool shown);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    TranscriptView* view_; // owned by the window
};

} // namespace quor::desktop
