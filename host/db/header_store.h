// The header variables of a drawing: as they stand in the file, and as they were set since.
#pragma once

#include "host/db/drawing_file.h"
#include "sdk/ge/point3d.h"

#include <map>
#include <optional>
#include <variant>

namespace quor::db {

// The value of a header variable.
using HeaderValue = std::variant<long long, double, ZrString, ZrGePoint3d>;

class HeaderStore {
public:
    struct Variable {
        int code; // of the value, or of the first coordinate
        HeaderValue value;
        bool flat = false; // a point without a third coordinate, as the limits of a drawing
        bool operator==(const Variable&) const = default;
    };

    // What is known of one variable, there or not.
    struct Place {
        std::optional<Variable> inFile;
        std::optional<Variable> set;
        // Null when the drawing has no such variable.
        [[nodiscard]] const HeaderValue* value() const { return set ? &set->value : inFile ? &inFile->value : nullptr; }
    };

    explicit HeaderStore(const DrawingFile& file) : file_(file) {}

    // Where a variable is kept: found once by those who ask for it often, there as long as the store.
    [[nodiscard]] const Place& place(std::wstring_view name) const { return placeOf(name); }
    // Sets a variable (nothing: as the file has it) and answers what was set before.
    std::optional<Variable> set(const ZrString& name, std::optional<Variable> variable);

    // What differs from the file.
    [[nodiscard]] std::map<ZrString, Variable> changed() const;
    // A variable as its tags, the 9-group first.
    static void write(dxf::TagWriter& writer, const dxf::TextCodec& codec, const ZrString& name,
                      const Variable& variable);

private:
    [[nodiscard]] Place& placeOf(std::wstring_view name) const;

    const DrawingFile& file_;
    mutable std::map<ZrString, Place, std::less<>> places_; // of the variables that somebody asked for
};

} // namespace quor::db
