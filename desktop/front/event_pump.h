// Keeps the windows of the program alive while the host works: they paint and timers run, but what the person does has
// to wait. Keys are kept for the next question; Esc among them is known at once.
#pragma once

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QObject>

#include <memory>
#include <vector>

namespace quor::desktop {

class EventPump final : public QObject {
public:
    static constexpr int kMilliseconds = 100;

    EventPump() { clock_.start(); }

    // Handles what waits, unless it has done so less than kMilliseconds ago; after a long breath the pause is longer,
    // so that painting takes a small share of the time.
    void breathe();
    // Whether Esc was pressed while the host worked; that and what was typed before it are forgotten.
    [[nodiscard]] bool takeEscape();
    // The person is asked: the keys that were kept go to the widget that has the keyboard.
    void giveBack();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void keep(const QKeyEvent& event);

    QElapsedTimer clock_;
    qint64 pause_ = kMilliseconds;
    bool isPumping_ = false;
    std::vector<std::unique_ptr<QKeyEvent>> keys_;
};

} // namespace quor::desktop
