// What the test modules share: the messages they heard are kept as a whole-number system variable, so that a test sees
// them without touching the module's memory.
#pragma once

#include "sdk/rx/application.h"
#include "sdk/sys/system.h"

// Remembers the last messages as decimal digits in the variable of that name: 1, 3, 4 give 134.
class MessageRecorder {
public:
    explicit MessageRecorder(const wchar_t* variable) : variable_(variable) {}

    void start() {
        heard_ = 0;
        CZwSystem::instance().systemVariables().registerVariable(variable_, [this] { return heard_; });
    }
    void stop() { CZwSystem::instance().systemVariables().unregisterVariable(variable_); }
    void hear(unsigned message) { heard_ = static_cast<short>(heard_ * 10 + static_cast<short>(message)); }

private:
    const wchar_t* variable_;
    short heard_ = 0;
};
