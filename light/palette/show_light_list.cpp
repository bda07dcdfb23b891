#include "light/palette/show_light_list.h"

#include "light/palette/light_list.h"
#include "light/res/load_text.h"
#include "sdk/sys/system.h"
#include "sdk/ui/main_frame.h"
#include "sdk/ui/palette_set_manager.h"
#include "sdk/ui/ui_service.h"

#include <utility>

namespace quor::light {

namespace {

constexpr const wchar_t* stateVariable = L"LIGHTLISTSTATE";

// The palette that failed while it was shown or hidden. It is out of use, but its code must not go before it.
CZrRxPaletteSet* failedPalette = nullptr;

short lightListState() { return lightListPalette != nullptr && lightListPalette->IsWindowVisibleEx() ? 1 : 0; }

} // namespace

void addLightList() {
    auto palette = std::make_unique<CZrLightList>();
    const LoadedText title(texts.paletteTitle);
    if (CZrRxPaletteSetManager* const manager = Singleton<CZrRxPaletteSetManager>::instancePtr(true))
        lightListPalette = static_cast<CZrLightList*>(manager->Append(std::move(palette), title.str()));
    CZwSystem::instance().systemVariables().registerVariable(stateVariable, lightListState);
}

void releaseLightList() {
    CZwSystem::instance().systemVariables().unregisterVariable(stateVariable);
    CZrRxPaletteSet* const failed = std::exchange(failedPalette, nullptr);
    CZrRxPaletteSet* const palette = failed != nullptr ? failed : lightListPalette;
    CZwSystem::instance().ui().dropPaletteSet(palette, 0);
    CZrRxPaletteSetManager* const manager = Singleton<CZrRxPaletteSetManager>::instancePtr(false);
    if (manager != nullptr && manager->ReleasePaletteSet(palette))
        lightListPalette = nullptr;
}

void showInFrame(CControlBar& bar, bool show) {
    if (CZrMainFrame* const frame = zredGetQuorFrame()) {
        frame->ShowControlBar(&bar, show, false);
        frame->RecalcLayout();
    }
}

void showLightList(bool show) {
    try {
        showInFrame(*lightListPalette, show);
    } catch (...) {
        failedPalette = std::exchange(lightListPalette, nullptr);
    }
}

} // namespace quor::light
