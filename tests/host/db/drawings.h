// Drawings and small steps that the tests of this folder share.
#pragma once

#include "host/db/database.h"
#include "sdk/db/light.h"
#include "sdk/db/line.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quor::db::drawings {

inline std::string fileBytes(const std::string& name) {
    std::ifstream file(std::filesystem::path(QUOR_TEST_DATA) / "dxf" / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline std::unique_ptr<Database> parsed(std::string_view bytes, bool recover = false) {
    return std::move(Database::fromBytes(bytes, {recover, {}})).value();
}

inline std::unique_ptr<Database> opened(const std::string& name) { return parsed(fileBytes(name)); }

inline std::string bytesOf(Database& database) { return std::move(database.toBytes()).value(); }

// The drawing as another program finds it after a save.
inline std::unique_ptr<Database> reopened(Database& database) { return parsed(bytesOf(database)); }

// Appends an entity to a block and closes it.
inline ZrDbObjectId append(ZrDbObjectId block, std::unique_ptr<ZrDbEntity> entity) {
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(block, ZrDb::kForWrite);
    ZrDbObjectId id;
    ZrDbEntity* appended = entity.release();
    space->appendZrDbEntity(id, appended);
    appended->close();
    return id;
}

inline ZrDbObjectId addLine(Database& database) {
    return append(database.interface().modelSpaceId(),
                  std::make_unique<ZrDbLine>(ZrGePoint3d(1, 2, 3), ZrGePoint3d(4, 5, 6)));
}

inline ZrDbObjectId addLight(Database& database, const ZrString& name = L"Light") {
    auto light = std::make_unique<ZrDbLight>();
    light->setName(name);
    return append(database.interface().modelSpaceId(), std::move(light));
}

inline void erase(ZrDbObjectId id, bool erasing = true) {
    const ZrDbObjectPointer<ZrDbObject> object(id, ZrDb::kForWrite, true);
    object->erase(erasing);
}

// Changes a light and closes it.
template <class Change>
void change(ZrDbObjectId id, Change&& act) {
    const ZrDbObjectPointer<ZrDbLight> light(id, ZrDb::kForWrite);
    act(*light);
}

// The first light of model space, or null.
inline ZrDbObjectId lightOf(Database& database) {
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(database.interface().modelSpaceId(), ZrDb::kForRead);
    return space->newIterator(ZrDbLight::desc())->entityId();
}

// What a step did, as one undo group.
template <class Step>
void group(Database& database, const ZrString& name, Step&& step) {
    database.journal().begin(name);
    step();
    database.journal().end();
}

// The tags of an ASCII drawing as "code|value", blanks around both left out.
inline std::vector<std::string> tagsOf(std::string_view bytes) {
    const auto trimmed = [](std::string_view line) {
        const auto first = line.find_first_not_of(" \r");
        return first == std::string_view::npos
                   ? std::string()
                   : std::string(line.substr(first, line.find_last_not_of(" \r") - first + 1));
    };
    std::vector<std::string> lines;
    while (!bytes.empty()) {
        const auto end = std::min(bytes.find('\n'), bytes.size() - 1);
        lines.push_back(trimmed(bytes.substr(0, std::min(end + (bytes[end] == '\n' ? 0 : 1), bytes.size()))));
        bytes.remove_prefix(end + 1);
    }
    std::vector<std::string> tags;
    for (std::size_t i = 0; i + 1 < lines.size(); i += 2)
        tags.push_back(lines[i] + "|" + lines[i + 1]);
    return tags;
}

struct Difference {
    std::vector<std::string> gone;
    std::vector<std::string> come;
};

// The tags between the first and the last that differ.
inline Difference difference(std::string_view before, std::string_view after) {
    std::vector<std::string> a = tagsOf(before);
    std::vector<std::string> b = tagsOf(after);
    while (!a.empty() && !b.empty() && a.back() == b.back()) {
        a.pop_back();
        b.pop_back();
    }
    const auto [x, y] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return {{x, a.end()}, {y, b.end()}};
}

// The tags of the first record of a type, up to the next record.
inline std::vector<std::string> recordOf(std::string_view bytes, const std::string& type, const std::string& holding) {
    const std::vector<std::string> tags = tagsOf(bytes);
    for (auto begin = tags.begin(); begin != tags.end();) {
        const auto end = std::find_if(begin + 1, tags.end(), [](const auto& tag) { return tag.starts_with("0|"); });
        if (*begin == "0|" + type && std::find(begin, end, holding) != end)
            return {begin, end};
        begin = end;
    }
    return {};
}

inline bool holds(std::string_view bytes, const std::string& tag) {
    const std::vector<std::string> tags = tagsOf(bytes);
    return std::find(tags.begin(), tags.end(), tag) != tags.end();
}

// A drawing of a version with the given section bodies; sections without a body are left out.
struct Sections {
    std::string header;
    std::string classes;
    std::string tables;
    std::string entities;
    std::string objects;
};

inline std::string drawing(const std::string& version, const Sections& sections) {
    const auto section = [](const std::string& name, const std::string& body) {
        return body.empty() ? std::string() : "0\nSECTION\n2\n" + name + "\n" + body + "0\nENDSEC\n";
    };
    return section("HEADER", "9\n$ACADVER\n1\n" + version + "\n" + sections.header) +
           section("CLASSES", sections.classes) + section("TABLES", sections.tables) +
           section("ENTITIES", sections.entities) + section("OBJECTS", sections.objects) + "0\nEOF\n";
}

inline const std::string kLightTags =
    "100\nAcDbEntity\n8\n0\n100\nAcDbLight\n90\n1\n1\nLamp\n70\n2\n290\n1\n63\n7\n291\n0\n40\n1.0\n10\n1.0\n20\n2.0\n"
    "30\n3.0\n11\n1.0\n21\n2.0\n31\n-7.0\n72\n0\n292\n0\n41\n1.0\n42\n10.0\n50\n45.0\n51\n50."
    "0\n293\n1\n73\n0\n91\n256\n"
    "280\n1\n";

} // namespace quor::db::drawings
