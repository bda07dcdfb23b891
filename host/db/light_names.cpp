#include "host/db/light_names.h"

#include "host/db/data.h"
#include "host/db/database.h"

namespace quor::db {

namespace {

const ZrString& nameOf(const ObjectEntry& light) {
    return static_cast<const ZrDbLightData&>(*light.object->hostData()).name;
}

} // namespace

LightNameIndex& LightNames::of(Database& database, Block& block) {
    if (block.lightNames == nullptr) {
        block.lightNames = std::make_unique<LightNameIndex>();
        for (ObjectEntry* light : database.structure().entitiesOf(block, database.file().typeNumber("LIGHT"))) {
            if (light->erased)
                continue;
            database.materialise(*light);
            block.lightNames->add(nameOf(*light));
        }
    }
    return *block.lightNames;
}

LightNameIndex* LightNames::indexOf(const ObjectEntry& entry) {
    if (entry.kind != ObjectKind::Entity || entry.object == nullptr || !entry.object->isKindOf(ZrDbLight::desc()))
        return nullptr;
    Block* block = entry.database->structure().blockOf(entry.owner);
    return block == nullptr ? nullptr : block->lightNames.get();
}

void LightNames::entityErased(ObjectEntry& entry, bool erased) {
    LightNameIndex* index = indexOf(entry);
    if (index == nullptr)
        return;
    if (erased)
        index->remove(nameOf(entry));
    else
        index->add(nameOf(entry));
}

LightNames::Renaming::Renaming(ObjectEntry& entry) : entry_(entry) {
    if (LightNameIndex* index = entry.erased ? nullptr : indexOf(entry))
        index->remove(nameOf(entry));
}

LightNames::Renaming::~Renaming() {
    if (LightNameIndex* index = entry_.erased ? nullptr : indexOf(entry_))
        index->add(nameOf(entry_));
}

} // namespace quor::db
