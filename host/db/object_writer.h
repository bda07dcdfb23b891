// Writes objects as the tags of a drawing file: whole new ones, and old ones with what changed in them.
#pragma once

#include "host/db/data.h"
#include "host/db/database.h"
#include "host/db/fields.h"

#include <string>

namespace quor::db {

class ObjectWriter {
public:
    explicit ObjectWriter(Database& database);

    // The entity with its fields rewritten, without the records that belong to it.
    [[nodiscard]] std::string changedEntity(const ObjectEntry& entry) const;
    [[nodiscard]] std::string newEntity(const ObjectEntry& entry) const;
    [[nodiscard]] std::string changedLayer(const ObjectEntry& entry) const;
    // A layer or a named view.
    [[nodiscard]] std::string newTableRecord(const ObjectEntry& entry) const;

    // The extension dictionary of a light with its one record, and that record.
    [[nodiscard]] std::string photometryDictionary(const ZrDbLightData& light, std::uint64_t lightHandle) const;
    [[nodiscard]] std::string photometryRecord(const ZrDbLightData& light) const;
    // The photometric record of the file with what changed in it.
    [[nodiscard]] std::string changedPhotometry(const ObjectEntry& record, const ZrDbObjectData& original,
                                                const ZrDbLightData& light) const;

private:
    [[nodiscard]] std::string newLayer(const ObjectEntry& entry) const;
    [[nodiscard]] std::string newView(const ObjectEntry& entry) const;
    // Whether the entity stands in the paper space of a layout.
    [[nodiscard]] bool isOnSheet(const ObjectEntry& entry) const;
    void commonHead(dxf::TagWriter& writer, const ObjectEntry& entry, std::string_view type,
                    std::uint64_t dictionary) const;

    Database& database_;
    DrawingFile& file_;
    FieldContext context_;
    bool hasSubclasses_; // markers, owners and so on, from AC1012 on
};

} // namespace quor::db
