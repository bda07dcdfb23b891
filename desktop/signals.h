// The system's wishes that the program ends (SIGTERM, SIGHUP, SIGINT), told in the program's own thread.
#pragma once

#include <QObject>

#include <functional>
#include <memory>

class QSocketNotifier;

namespace quor::desktop {

class Signals final : public QObject {
    Q_OBJECT

public:
    // One at a time. `wanted` is called from the event loop, with the signal's number.
    explicit Signals(std::function<void(int)> wanted);
    ~Signals() override;

private:
    void read();

    std::function<void(int)> wanted_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace quor::desktop
