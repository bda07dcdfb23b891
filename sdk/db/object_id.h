// Object ids and handles: two small, distinct ways to name an object of a drawing.
#pragma once

#include <compare>
#include <cstdint>
#include <functional>

class ZrDbDatabase;
namespace quor::db {
struct ObjectEntry;
}

// The number under which an object is known in the drawing file; unique in a drawing, 0 is none.
class ZrDbHandle {
public:
    constexpr ZrDbHandle() = default;
    constexpr explicit ZrDbHandle(std::uint64_t value) : value_(value) {}
    [[nodiscard]] constexpr std::uint64_t value() const { return value_; }
    [[nodiscard]] constexpr bool isNull() const { return value_ == 0; }
    constexpr auto operator<=>(const ZrDbHandle&) const = default;

private:
    std::uint64_t value_ = 0;
};

// The id of an object of an open drawing: valid as long as the drawing is open, also while the object is erased.
class ZrDbObjectId {
public:
    constexpr ZrDbObjectId() = default;
    constexpr explicit ZrDbObjectId(quor::db::ObjectEntry* entry) : entry_(entry) {}

    [[nodiscard]] constexpr bool isNull() const { return entry_ == nullptr; }
    // Whether it names an object, erased or not.
    [[nodiscard]] constexpr bool isValid() const { return entry_ != nullptr; }
    [[nodiscard]] bool isErased() const;
    [[nodiscard]] ZrDbHandle handle() const;
    // The drawing of the object, or null.
    [[nodiscard]] ZrDbDatabase* database() const;
    [[nodiscard]] constexpr quor::db::ObjectEntry* entry() const { return entry_; }

    constexpr auto operator<=>(const ZrDbObjectId&) const = default;

private:
    quor::db::ObjectEntry* entry_ = nullptr;
};

template <>
struct std::hash<ZrDbObjectId> {
    std::size_t operator()(const ZrDbObjectId& id) const noexcept {
        return std::hash<const void*>()(static_cast<const void*>(id.entry()));
    }
};
