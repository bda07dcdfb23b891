#include "host/db/color_fields.h"

namespace quor::db {

void takeTrueColor(ZrCmColor& color, const dxf::Tag& tag) {
    if (const auto rgb = tag.asInt())
        color.setRGB(static_cast<std::uint8_t>(*rgb >> 16), static_cast<std::uint8_t>(*rgb >> 8),
                     static_cast<std::uint8_t>(*rgb));
}

void takeBookColor(ZrCmColor& color, const dxf::Tag& tag, const DrawingFile& file) {
    const ZrString text = file.text(tag);
    const std::size_t dollar = text.rfind(L'$');
    const bool hasBook = dollar != ZrString::npos && dollar > 0 && dollar + 1 < text.size();
    (void)(hasBook ? color.setNames(text.substr(dollar + 1), text.substr(0, dollar)) : color.setNames(text, L""));
}

FieldValue bookColorText(const ZrCmColor& color) {
    if (!color.hasColorName())
        return std::nullopt;
    return color.bookName().empty() ? color.colorName() : color.bookName() + L"$" + color.colorName();
}

} // namespace quor::db
