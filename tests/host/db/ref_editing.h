// Editing the block LAMP of luminaires.dxf in place: it has the lights 43 (Pendant) and 46 (Spot), the line 49, the
// face 4A and the circle 4B.
#pragma once

#include "host/db/ref_edit.h"
#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

namespace quor::db {

inline constexpr std::uint64_t kPlain = 0x60;
inline constexpr std::uint64_t kTurned = 0x61;
inline constexpr std::uint64_t kMirrored = 0x62;
inline constexpr std::uint64_t kStretched = 0x63;
inline constexpr std::uint64_t kTurnedOver = 0x64;
inline constexpr std::uint64_t kAslant = 0x6C;

// The drawing with a text replaced that stands in it once.
inline std::unique_ptr<Database> with(std::string bytes, const std::string& text, const std::string& other) {
    bytes.replace(bytes.find(text), text.size(), other);
    return drawings::parsed(bytes);
}

struct RefEditing : testing::Test {
    ObjectEntry& entry(std::uint64_t handle) { return *database->objects().find(handle); }
    ZrDbObjectId id(std::uint64_t handle) { return ZrDbObjectId(&entry(handle)); }
    RefEdit& editing() { return database->refEdit(); }

    RefEditStart begin(std::uint64_t reference) {
        RefEditStart start;
        drawings::group(*database, L"REFEDIT", [&] { start = editing().begin(entry(reference)).value(); });
        return start;
    }
    RefEditResult save() {
        RefEditResult result;
        drawings::group(*database, L"REFCLOSE", [&] { result = editing().save().value(); });
        return result;
    }
    void discard() {
        drawings::group(*database, L"REFCLOSE", [&] { EXPECT_TRUE(editing().discard().ok()); });
    }
    std::vector<ZrDbObjectId> workset() {
        std::vector<ZrDbObjectId> ids = database->entities(database->interface().modelSpaceId());
        std::erase_if(ids, [&](ZrDbObjectId each) { return !editing().holds(*each.entry()); });
        return ids;
    }
    template <class T>
    ZrDbObjectId copyOf(std::size_t index = 0) {
        std::vector<ZrDbObjectId> ids = workset();
        std::erase_if(ids, [](ZrDbObjectId each) { return !ZrDbObjectPointer<T>(each, ZrDb::kForRead); });
        return ids.at(index);
    }
    ZrDbObjectId pendant() { return copyOf<ZrDbLight>(0); }
    ZrDbObjectId spot() { return copyOf<ZrDbLight>(1); }
    bool isVisible(std::uint64_t handle) {
        return ZrDbObjectPointer<ZrDbEntity>(id(handle), ZrDb::kForRead)->visibility() == ZrDb::kVisible;
    }
    // What a save would change in the file.
    drawings::Difference changes() { return drawings::difference(original, drawings::bytesOf(*database)); }

    const std::string original = drawings::fileBytes("own/luminaires.dxf");
    std::unique_ptr<Database> database = drawings::parsed(original);
};

} // namespace quor::db
