// Fields: how the values of an object stand in its tags. A kind of object is a table of fields in file order; reading,
// writing anew and rewriting only what changed all follow from the table.
#pragma once

#include "host/db/drawing_file.h"
#include "sdk/db/object.h"

#include <optional>
#include <span>
#include <string>
#include <variant>

namespace quor::db {

class Database;

// A value on its way into a tag; nothing when the field is not written for these values.
using FieldValue = std::optional<std::variant<std::int64_t, double, std::wstring>>;

// What a field may need besides the object's values.
struct FieldContext {
    Database& database;
    int version; // 1032 for AC1032
};

struct Field {
    int code;
    // Takes the value of the tag over; a value that the object cannot hold is left alone.
    void (*read)(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext& context);
    FieldValue (*write)(const ZrDbObjectData& data, const FieldContext& context);
};

// The fields of one subclass of a record, in the order in which they are written. A code may occur more than once: the
// first tag belongs to the first field of that code, and so on.
struct FieldGroup {
    std::string_view subclass; // "AcDbLight"
    std::span<const Field> fields;
    // What stands behind the last field's tag is the writer's own, whatever its codes.
    bool endsWithLastField = false;
};

// Takes the values of a record's tags over.
void readFields(const DrawingFile& file, const dxf::Record& record, std::span<const FieldGroup> groups,
                ZrDbObjectData& data, const FieldContext& context);

// All fields of a group, without the subclass marker.
void writeFields(dxf::TagWriter& writer, const dxf::TextCodec& codec, std::span<const Field> fields,
                 const ZrDbObjectData& data, const FieldContext& context);

// The record with the tags whose values changed replaced; every other tag as it came. `original` holds the values as
// they were read from the record.
[[nodiscard]] std::string rewriteFields(const DrawingFile& file, const dxf::Record& record,
                                        std::span<const FieldGroup> groups, const ZrDbObjectData& original,
                                        const ZrDbObjectData& data, const FieldContext& context);

// Whether any field is written otherwise for `b` than for `a`.
[[nodiscard]] bool fieldsDiffer(std::span<const Field> fields, const ZrDbObjectData& a, const ZrDbObjectData& b,
                                const FieldContext& context);

// Ready-made fields over a member of a data type.
template <class Data>
const Data& as(const ZrDbObjectData& data) {
    return static_cast<const Data&>(data);
}
template <class Data>
Data& as(ZrDbObjectData& data) {
    return static_cast<Data&>(data);
}

template <class Data, double Data::*Member>
constexpr Field realField(int code) {
    return {code,
            [](ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
                if (const auto value = tag.asDouble())
                    as<Data>(data).*Member = *value;
            },
            [](const ZrDbObjectData& data, const FieldContext&) -> FieldValue { return as<Data>(data).*Member; }};
}

template <class Data, int Data::*Member>
constexpr Field intField(int code) {
    return {code,
            [](ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
                if (const auto value = tag.asInt())
                    as<Data>(data).*Member = static_cast<int>(*value);
            },
            [](const ZrDbObjectData& data, const FieldContext&) -> FieldValue {
                return std::int64_t{as<Data>(data).*Member};
            }};
}

template <class Data, bool Data::*Member>
constexpr Field boolField(int code) {
    return {code,
            [](ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
                if (const auto value = tag.asInt())
                    as<Data>(data).*Member = *value != 0;
            },
            [](const ZrDbObjectData& data, const FieldContext&) -> FieldValue {
                return std::int64_t{as<Data>(data).*Member ? 1 : 0};
            }};
}

// One coordinate of a point or vector.
template <class Data, auto Member, double std::remove_reference_t<decltype(std::declval<Data&>().*Member)>::*Coordinate>
constexpr Field coordinateField(int code) {
    return {code,
            [](ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext&) {
                if (const auto value = tag.asDouble())
                    (as<Data>(data).*Member).*Coordinate = *value;
            },
            [](const ZrDbObjectData& data, const FieldContext&) -> FieldValue {
                return (as<Data>(data).*Member).*Coordinate;
            }};
}

} // namespace quor::db
