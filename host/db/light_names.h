// How many lights of a block have a name: kept beside each block once somebody asked, so that finding a free name costs
// the same however many lights there are.
#pragma once

#include "host/db/structure.h"

namespace quor::db {

class LightNames {
public:
    // How many lights of the block that are not erased have the name, without regard to case.
    [[nodiscard]] static std::uint32_t count(Database& database, Block& block, const ZrString& name);

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
    // The counts of the light's block; null for what is no light, and while nobody has asked for them.
    [[nodiscard]] static NameCounts* countsOf(const ObjectEntry& entry);
    static void add(NameCounts& counts, const ObjectEntry& entry);
    static void remove(NameCounts& counts, const ObjectEntry& entry);
};

} // namespace quor::db
