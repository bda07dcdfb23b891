// The names of the lights of a block: an index kept beside each block once somebody asked, and up to date from then on.
#pragma once

#include "host/db/structure.h"

namespace quor::db {

class LightNames {
public:
    // The names of the lights of the block that are not erased.
    [[nodiscard]] static LightNameIndex& of(Database& database, Block& block);

    // A light was appended, erased or came back.
    static void entityErased(ObjectEntry& entry, bool erased);

    // Brackets a change of a light's values: takes its name out of the count, and its new one in at the end.
    class Renaming {
    public:
        explicit Renaming(ObjectEntry& entry);
        ~Renaming();
        Renaming(const Renaming&) = delete;
        Renaming& operator=(const Renaming&) = delete;

    private:
        ObjectEntry& entry_;
    };

private:
    // The index of the light's block; null for what is no light, and while nobody has asked for it.
    [[nodiscard]] static LightNameIndex* indexOf(const ObjectEntry& entry);
};

} // namespace quor::db
