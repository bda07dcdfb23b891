#include "console/progress_meter.h"

namespace quor::console {

ProgressMeter::Action ProgressMeter::update(double fraction) {
    if (fraction >= 1) {
        const bool wasShown = shown_;
        running_ = false;
        shown_ = false;
        return wasShown ? Action::Remove : Action::Nothing;
    }
    const Time now = clock_();
    if (!running_) {
        running_ = true;
        started_ = now;
    }
    if (now - started_ < kDelay || (shown_ && now - drawn_ < kInterval))
        return Action::Nothing;
    shown_ = true;
    drawn_ = now;
    return Action::Draw;
}

} // namespace quor::console
