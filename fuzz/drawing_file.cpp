// Any bytes as a drawing file: opening must end, saving without a change must give the same bytes back, and looking at
// every object must not fail.
#include "host/db/database.h"
#include "sdk/db/entity.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void lookAtEverything(quor::db::Database& drawing) {
    for (const ZrDbObjectId id : drawing.entities(drawing.interface().modelSpaceId())) {
        const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForRead);
        if (!entity)
            std::abort();
        (void)entity->layer();
        (void)drawing.tags(id);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    for (const bool recover : {false, true}) {
        auto opened = quor::db::Database::fromBytes(bytes, {recover, {}});
        if (!opened.ok())
            continue;
        quor::db::Database& drawing = *opened.value();
        if (drawing.toBytes().value() != bytes)
            std::abort();
        lookAtEverything(drawing);
        drawing.setDefaultLighting(!drawing.defaultLighting());
        drawing.setDictionaryVariable(L"LIGHTINGUNITS", L"1");
        (void)drawing.toBytes();
        while (drawing.journal().undo()) {
        }
        if (drawing.toBytes().value() != bytes)
            std::abort();
    }
    return 0;
}
