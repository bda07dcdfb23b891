// The palettes of a session, which modules add and take away.
#pragma once

#include "sdk/ui/palette_set.h"

#include <memory>
#include <vector>

// The one object of its class, while there is one.
template <class T>
class Singleton {
public:
    // Null when there is none and `create` is false, or while no host is running.
    [[nodiscard]] static T* instancePtr(bool create);
};

class CZrRxPaletteSetManager {
public:
    CZrRxPaletteSetManager();
    // The palettes go too.
    ~CZrRxPaletteSetManager();
    CZrRxPaletteSetManager(const CZrRxPaletteSetManager&) = delete;
    CZrRxPaletteSetManager& operator=(const CZrRxPaletteSetManager&) = delete;

    // Takes a palette over under its title; from now on it is told what happens. The palette as the caller can reach
    // it.
    CZrRxPaletteSet* Append(std::unique_ptr<CZrRxPaletteSet> palette, const ZrString& name);
    // Destroys a palette. False when it has none such.
    bool ReleasePaletteSet(CZrRxPaletteSet* palette);
    [[nodiscard]] std::vector<CZrRxPaletteSet*> palettes() const;

    // For the host: does something to each palette, in the order of appending. Palettes may come and go meanwhile.
    template <class Action>
    void forEach(Action&& action) {
        const Pass pass(*this);
        const std::size_t count = entries_.size();
        for (std::size_t i = 0; i < count; ++i)
            if (entries_[i].palette != nullptr && !entries_[i].isDropped)
                action(*entries_[i].palette);
    }
    // For the host: takes the window of a palette away and leaves it alone from then on, until it is released. False
    // when it has none such.
    bool drop(const CControlBar* palette);

private:
    struct Entry {
        std::unique_ptr<CZrRxPaletteSet> palette; // null: released while others were being told
        bool isDropped = false;
    };
    // While it lasts, nothing moves in entries_.
    class Pass {
    public:
        explicit Pass(CZrRxPaletteSetManager& manager) : manager_(manager) { ++manager_.passes_; }
        ~Pass() {
            if (--manager_.passes_ == 0)
                std::erase_if(manager_.entries_, [](const Entry& entry) { return entry.palette == nullptr; });
        }
        Pass(const Pass&) = delete;
        Pass& operator=(const Pass&) = delete;

    private:
        CZrRxPaletteSetManager& manager_;
    };

    [[nodiscard]] Entry* find(const CControlBar* palette);

    std::vector<Entry> entries_;
    int passes_ = 0;
};

template <>
CZrRxPaletteSetManager* Singleton<CZrRxPaletteSetManager>::instancePtr(bool create);
