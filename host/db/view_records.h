// The named views of a drawing: records of its VIEW table.
#pragma once

#include "host/db/data.h"
#include "host/db/fields.h"
#include "sdk/db/symbol_table.h"

#include <optional>
#include <string_view>
#include <vector>

namespace quor::db {

// The middle of the picture is told along two axes at right angles to the direction, from the target. Units of the
// drawing; a height of 0 is none.
struct ViewData : Cloned<ViewData, ZrDbObjectData> {
    ZrString name;
    ZrGePoint3d center;
    ZrGePoint3d target;
    ZrGeVector3d direction = ZrGeVector3d::kZAxis; // from the target to the eye
    double height = 0;
    double width = 0;
    double lensLength = 50; // millimetres
    double frontClip = 0;
    double backClip = 0;
    double twistDegrees = 0; // by which what is seen is turned counterclockwise
    int flags = 0;           // 1: of a layout
    int mode = 0;            // 1: in perspective
};

class ViewRecord final : public ZrDbSymbolTableRecord {
public:
    explicit ViewRecord(const ViewData& view) : ZrDbSymbolTableRecord(std::make_unique<ViewData>(view)) {}
    [[nodiscard]] ZrString getName() const override { return view().name; }
    [[nodiscard]] const ViewData& view() const { return static_cast<const ViewData&>(*hostData()); }
};

// Fields of a view.
[[nodiscard]] std::span<const FieldGroup> viewGroups();

// In the order of the table.
[[nodiscard]] std::vector<ViewData> viewsOf(Database& drawing);
// Without regard to case.
[[nodiscard]] std::optional<ViewData> findView(Database& drawing, std::wstring_view name);
// Adds a view, in the place of one of the same name. Undoable, as is the next.
void setView(Database& drawing, const ViewData& view);
// False when there is none of that name.
bool eraseView(Database& drawing, std::wstring_view name);

} // namespace quor::db
