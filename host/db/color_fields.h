// How colours stand in tags, the same for entities, layers and lights.
#pragma once

#include "host/db/fields.h"
#include "sdk/cm/color.h"

namespace quor::db {

// A true colour: 0xRRGGBB. What is no number is left alone.
void takeTrueColor(ZrCmColor& color, const dxf::Tag& tag);
// The names of a colour-book colour as one text: the colour behind the book and the last dollar sign. A text that is
// not so is kept whole as the name of a colour without a book, so that it goes when the colour does.
void takeBookColor(ZrCmColor& color, const dxf::Tag& tag, const DrawingFile& file);
[[nodiscard]] FieldValue bookColorText(const ZrCmColor& color);

} // namespace quor::db
