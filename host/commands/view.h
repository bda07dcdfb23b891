// Commands that change how the drawing is seen. Each of them works on the picture of the program, where it has one.
#pragma once

#include "host/commands/ask.h"
#include "host/gs/view.h"
#include "host/session.h"

#include <optional>

namespace quor::commands {

// The picture; after the message that there is none, null.
[[nodiscard]] gs::View* viewFor(Session& session, const wchar_t* command);

// "2" or "2X" as a person types it.
struct ZoomScale {
    double value = 1;
    bool ofCurrent = false; // X: of what is seen now
};
[[nodiscard]] std::optional<ZoomScale> readZoomScale(std::wstring_view typed);

// What is shown by All: everything visible, with the limits of the drawing where they are seen flat.
[[nodiscard]] gs::Box wholeDrawing(Session& session, const gs::View& view);

} // namespace quor::commands
