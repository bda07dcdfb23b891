// The windows of a running host: its frame, the palettes of its modules, its theme.
#pragma once

#include "host/ui/ui_service.h"
#include "sdk/ui/main_frame.h"

#include <memory>

class CZrRxPaletteSetManager;

namespace quor {
class Session;
}

namespace quor::ui {

class PaletteNotifier;

class UserInterface {
public:
    explicit UserInterface(Session& session);
    // Palettes that are left go too.
    ~UserInterface();
    UserInterface(const UserInterface&) = delete;
    UserInterface& operator=(const UserInterface&) = delete;

    // That of the session, or null while there is none.
    [[nodiscard]] static UserInterface* existing();

    [[nodiscard]] CZrMainFrame& frame() { return frame_; }
    [[nodiscard]] ZwUiService& service() { return service_; }
    // Null when there are none yet and `create` is false.
    [[nodiscard]] CZrRxPaletteSetManager* palettes(bool create);
    // The palettes and what holds them; modules may still ask for it.
    void destroyPalettes();
    // Shows the person the palettes that were brought to view since the last time. Called where what they hold is up to
    // date: after a command, and after what happens between commands.
    void settle();

private:
    Session& session_;
    UiService service_;
    CZrMainFrame frame_;
    std::unique_ptr<CZrRxPaletteSetManager> palettes_;
    std::unique_ptr<PaletteNotifier> notifier_;
};

} // namespace quor::ui
