#include "host/ui/ui_service.h"

#include "host/session.h"
#include "host/ui/host_resources.h"
#include "host/ui/user_interface.h"
#include "sdk/sys/system.h"
#include "sdk/ui/palette_set_manager.h"

namespace quor::ui {

namespace {

class UiEvent final : public ZrRxUiEvent {
public:
    [[nodiscard]] ZwResourceInstance GetResourceModule(int kind) const override {
        constexpr int kUserInterface = 1;
        return kind == kUserInterface ? &hostResources() : nullptr;
    }
};

} // namespace

void UiService::dropPaletteSet(CControlBar* paletteSet, int /*reserved*/) {
    if (CZrRxPaletteSetManager* const palettes = Singleton<CZrRxPaletteSetManager>::instancePtr(false))
        palettes->drop(paletteSet);
}

} // namespace quor::ui

ZwUiService& CZwSystem::ui() const { return quor::Session::current().ui().service(); }

ZrRxUiEvent* zrrxUiEvent() {
    static quor::ui::UiEvent event;
    return quor::ui::UserInterface::existing() != nullptr ? &event : nullptr;
}
