#include "sdk/ui/palette_set_manager.h"

#include "host/ui/user_interface.h"

#include <algorithm>

namespace {

void destroy(std::unique_ptr<CZrRxPaletteSet> palette) { palette->DestroyWindow(); }

} // namespace

CZrRxPaletteSetManager::CZrRxPaletteSetManager() = default;

CZrRxPaletteSetManager::~CZrRxPaletteSetManager() {
    while (!entries_.empty()) {
        std::unique_ptr<CZrRxPaletteSet> last = std::move(entries_.back().palette);
        entries_.pop_back();
        destroy(std::move(last));
    }
}

CZrRxPaletteSet* CZrRxPaletteSetManager::Append(std::unique_ptr<CZrRxPaletteSet> palette, const ZrString& name) {
    if (palette == nullptr)
        return nullptr;
    palette->SetName(name);
    return entries_.emplace_back(Entry{std::move(palette)}).palette.get();
}

bool CZrRxPaletteSetManager::ReleasePaletteSet(CZrRxPaletteSet* palette) {
    Entry* const entry = find(palette);
    if (entry == nullptr)
        return false;
    std::unique_ptr<CZrRxPaletteSet> released;
    {
        const Pass pass(*this);
        released = std::move(entry->palette);
    }
    destroy(std::move(released));
    return true;
}

bool CZrRxPaletteSetManager::drop(const CControlBar* palette) {
    Entry* const entry = find(palette);
    if (entry == nullptr)
        return false;
    entry->isDropped = true;
    entry->palette->DestroyWindow();
    return true;
}

std::vector<CZrRxPaletteSet*> CZrRxPaletteSetManager::palettes() const {
    std::vector<CZrRxPaletteSet*> all;
    for (const Entry& entry : entries_)
        if (entry.palette != nullptr)
            all.push_back(entry.palette.get());
    return all;
}

// Only compares: what is looked for may be gone.
CZrRxPaletteSetManager::Entry* CZrRxPaletteSetManager::find(const CControlBar* palette) {
    const auto at = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.palette != nullptr && entry.palette.get() == palette;
    });
    return at == entries_.end() ? nullptr : &*at;
}

template <>
CZrRxPaletteSetManager* Singleton<CZrRxPaletteSetManager>::instancePtr(bool create) {
    quor::ui::UserInterface* const ui = quor::ui::UserInterface::existing();
    return ui != nullptr ? ui->palettes(create) : nullptr;
}
