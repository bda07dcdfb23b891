// The window in which a person is doing something right now.
#pragma once

#include "sdk/ui/window_ref.h"

namespace quor::ui {

// The window at the top in which what a person did is being handled: input, or a command. Null outside of that, and
// when that window was destroyed meanwhile.
[[nodiscard]] const CWnd* actingWindow();

// What a person did in a window, or in one below it, is handled in a block.
class ActingScope {
public:
    explicit ActingScope(CWnd& window);
    ~ActingScope();
    ActingScope(const ActingScope&) = delete;
    ActingScope& operator=(const ActingScope&) = delete;

private:
    WindowRef before_;
};

} // namespace quor::ui
