// The palettes of a session, which modules add and take away.
#pragma once

#include "sdk/ui/palette_set.h"

#include <memory>
#include <span>

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

private:
    std::vector<std::unique_ptr<CZrRxPaletteSet>> palettes_;
};

template <>
CZrRxPaletteSetManager* Singleton<CZrRxPaletteSetManager>::instancePtr(bool create);
