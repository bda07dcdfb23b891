// How colours stand in tags, the same for entities, layers and lights.
#pragma once

#include "host/db/fields.h"
#include "sdk/cm/color.h"

namespace quor::db {

// A true colour: 0xRRGGBB. What is no number is left alone.
void takeTrueColor(ZrCmColor& color, const dxf::Tag& tag);
// The names of a colour-book colour as one text: the colour behind the book and the last dollar sign.
void takeBookColor(ZrCmColor& color, const dxf::Tag& tag, const DrawingFile& file);
[[nodiscard]] FieldValue bookColorText(const ZrCmColor& color);

} // namespace quor::db
