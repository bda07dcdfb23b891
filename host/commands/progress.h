// How far a command has come that takes long, for as long as the object lives.
#pragma once

#include "host/front.h"

#include <cstddef>
#include <utility>

namespace quor::commands {

// Tells the front end now and then how many of the steps are done, and at last that it is over.
class Progress {
public:
    Progress(FrontEnd& front, ZrString what, std::size_t steps)
        : front_(front), what_(std::move(what)), steps_(steps) {}
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    // A display that cannot be taken away is no reason to end the program, nor to hide why the work broke off.
    ~Progress() {
        try {
            front_.progress(what_, 1);
        } catch (...) {
        }
    }

    void step() {
        constexpr std::size_t kBetween = 1024;
        if (++done_ % kBetween == 0 && done_ < steps_)
            front_.progress(what_, static_cast<double>(done_) / static_cast<double>(steps_));
    }

private:
    FrontEnd& front_;
    ZrString what_;
    std::size_t steps_;
    std::size_t done_ = 0;
};

} // namespace quor::commands
