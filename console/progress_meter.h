// When progress is worth showing: nothing for what is over within a second, then a few times a second.
#pragma once

#include <chrono>
#include <functional>

namespace quor::console {

class ProgressMeter {
public:
    using Time = std::chrono::steady_clock::time_point;
    using Clock = std::function<Time()>;
    enum class Action { Nothing, Draw, Remove };

    static constexpr std::chrono::milliseconds kDelay{1000};
    static constexpr std::chrono::milliseconds kInterval{100};

    explicit ProgressMeter(Clock clock) : clock_(std::move(clock)) {}

    // The first call of a piece of work starts its time; 1 ends it.
    [[nodiscard]] Action update(double fraction);

private:
    Clock clock_;
    bool running_ = false;
    bool shown_ = false;
    Time started_;
    Time drawn_;
};

} // namespace quor::console
