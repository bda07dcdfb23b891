// The colours and the visibility of the layers of a drawing, by a small number for each.
#pragma once

#include "host/db/object_entry.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace quor::gs {

struct LayerLook {
    std::uint32_t rgb = 0xFFFFFF;
    bool visible = true; // on and thawed; hidden layers are only left out of lists
};

class LayerLooks {
public:
    explicit LayerLooks(db::Database& drawing) : drawing_(drawing) {}

    // The number of a layer; null: layer 0, or what a drawing without one has.
    [[nodiscard]] std::uint32_t numberOf(const db::ObjectEntry* layer);
    [[nodiscard]] const LayerLook& at(std::uint32_t number) const { return looks_[number]; }
    // Reads all that have a number again.
    void refresh();

private:
    [[nodiscard]] LayerLook lookOf(const db::ObjectEntry* layer) const;

    db::Database& drawing_;
    std::vector<const db::ObjectEntry*> layers_;
    std::vector<LayerLook> looks_;
    std::unordered_map<const db::ObjectEntry*, std::uint32_t> numbers_;
    const db::ObjectEntry* lastLayer_ = nullptr; // entities of one layer stand together
    std::uint32_t lastNumber_ = 0;
};

} // namespace quor::gs
