// One line on standard error that shows how far something long has come.
#pragma once

#include "console/output.h"
#include "console/progress_meter.h"

namespace quor::console {

// Where it shares its screen with the output it is drawn only while the cursor stands at the start of a line, and is
// taken away before anything else is written.
class ProgressLine {
public:
    // `sink` empty: nothing is ever shown. `shared`: the output on the same screen, or null.
    ProgressLine(ByteSink sink, Output* shared, ProgressMeter::Clock clock);
    ~ProgressLine() { remove(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void update(std::wstring_view what, double fraction);
    void remove();

private:
    void draw(std::wstring_view what, double fraction);

    ByteSink sink_;
    Output* shared_;
    ProgressMeter meter_;
    bool drawn_ = false;
};

} // namespace quor::console
