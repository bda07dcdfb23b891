// The objects that belong to an entity in the file and go with it: its extension dictionary and whatever else names it,
// or one of these, as owner.
#pragma once

#include "host/db/database.h"

#include <optional>
#include <unordered_map>
#include <vector>

namespace quor::db {

class OwnedObjects {
public:
    explicit OwnedObjects(Database& database) : database_(database) {}

    // Each once. Objects that hold the drawing together never belong to an entity, whatever a faulty file says.
    [[nodiscard]] std::vector<const ObjectEntry*> of(const ObjectEntry& entity);

private:
    using ByOwner = std::unordered_multimap<std::uint64_t, const ObjectEntry*>;

    [[nodiscard]] ByOwner index() const;
    [[nodiscard]] bool holdsDrawing(const ObjectEntry& object) const;

    Database& database_;
    std::optional<ByOwner> byOwner_; // made when first needed
};

} // namespace quor::db
