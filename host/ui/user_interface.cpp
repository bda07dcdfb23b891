#include "host/ui/user_interface.h"

#include "host/session.h"
#include "host/ui/palette_notifier.h"
#include "sdk/ui/palette_set_manager.h"

#include <cassert>

namespace quor::ui {

namespace {

UserInterface* running = nullptr;

constexpr const wchar_t* kFrameTitle = L"Quor";

} // namespace

UserInterface::UserInterface(Session& session) : session_(session) {
    assert(running == nullptr && "one user interface at a time");
    frame_.Create({.style = WS_VISIBLE, .text = kFrameTitle});
    notifier_ = std::make_unique<PaletteNotifier>(session, *this);
    running = this;
}

UserInterface::~UserInterface() {
    notifier_.reset();
    destroyPalettes();
    frame_.DestroyWindow();
    running = nullptr;
}

UserInterface* UserInterface::existing() { return running; }

CZrRxPaletteSetManager* UserInterface::palettes(bool create) {
    if (palettes_ == nullptr && create)
        palettes_ = std::make_unique<CZrRxPaletteSetManager>();
    return palettes_.get();
}

// Whoever asks while they go is told that there are none.
void UserInterface::destroyPalettes() { const std::unique_ptr<CZrRxPaletteSetManager> gone = std::move(palettes_); }

void UserInterface::settle() {
    while (const CControlBar* const bar = frame_.takeBroughtToView())
        if (const auto* const palette = dynamic_cast<const CZkUiPaletteSet*>(bar))
            session_.front().paletteShown(*palette);
}

} // namespace quor::ui
