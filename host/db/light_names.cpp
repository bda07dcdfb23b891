#include "host/db/light_names.h"

#include "host/db/data.h"
#include "host/db/database.h"

namespace quor::db {

namespace {

const ZrString& nameOf(const ObjectEntry& light) {
    return static_cast<const ZrDbLightData&>(*light.object->hostData()).name;
}

} // namespace

std::uint32_t LightNames::count(Database& database, Block& block, const ZrString& name) {
    if (block.lightNames == nullptr) {
        block.lightNames = std::make_unique<NameCounts>();
        for (ObjectEntry* light : database.structure().entitiesOf(block, database.file().typeNumber("LIGHT"))) {
            if (light->erased)
                continue;
            database.materialise(*light);
            add(*block.lightNames, *light);
        }
    }
    const auto found = block.lightNames->find(name);
    return found == block.lightNames->end() ? 0 : found->second;
}

NameCounts* LightNames::countsOf(const ObjectEntry& entry) {
    if (entry.kind != ObjectKind::Entity || entry.object == nullptr || !entry.object->isKindOf(ZrDbLight::desc()))
        return nullptr;
    Block* block = entry.database->structure().blockOf(entry.owner);
    return block == nullptr ? nullptr : block->lightNames.get();
}

void LightNames::add(NameCounts& counts, const ObjectEntry& entry) { ++counts[nameOf(entry)]; }

void LightNames::remove(NameCounts& counts, const ObjectEntry& entry) {
    const auto found = counts.find(nameOf(entry));
    if (found != counts.end() && --found->second == 0)
        counts.erase(found);
}

void LightNames::entityErased(ObjectEntry& entry, bool erased) {
    NameCounts* counts = countsOf(entry);
    if (counts == nullptr)
        return;
    if (erased)
        remove(*counts, entry);
    else
        add(*counts, entry);
}

LightNames::Renaming::Renaming(ObjectEntry& entry) : entry_(entry) {
    if (NameCounts* counts = entry.erased ? nullptr : countsOf(entry))
        remove(*counts, entry);
}

LightNames::Renaming::~Renaming() {
    if (NameCounts* counts = entry_.erased ? nullptr : countsOf(entry_))
        add(*counts, entry_);
}

} // namespace quor::db
