#include "sdk/cm/color.h"

#include <string>

#include "host/cm/color_names.h"
#include "host/cm/palette.h"

namespace {

// Numbers and top bytes of drawing files.
constexpr int indexByBlock = 0;
constexpr int indexByLayer = 256;
constexpr std::uint32_t rawByLayer = 0xC0;
constexpr std::uint32_t rawByBlock = 0xC1;
constexpr std::uint32_t rawTrueColor = 0xC2;
constexpr std::uint32_t rawIndex = 0xC3;
constexpr std::uint32_t whiteRgb = 0xFFFFFF;

} // namespace

ZrCmColor ZrCmColor::fromRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    ZrCmColor color;
    color.setRGB(red, green, blue);
    return color;
}

ZrCmColor ZrCmColor::fromIndex(int index) {
    ZrCmColor color;
    color.setColorIndex(index);
    return color;
}

void ZrCmColor::set(ColorMethod method, std::uint32_t value) {
    names_.reset();
    method_ = method;
    value_ = value;
}

void ZrCmColor::setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    set(kByColor, static_cast<std::uint32_t>(red << 16 | green << 8 | blue));
}

Quor::ErrorStatus ZrCmColor::setColorIndex(int index) {
    if (index < indexByBlock || index > indexByLayer)
        return Quor::eInvalidInput;
    if (index == indexByBlock)
        setByBlock();
    else if (index == indexByLayer)
        setByLayer();
    else
        set(kByACI, static_cast<std::uint32_t>(index));
    return Quor::eOk;
}

void ZrCmColor::setByLayer() { set(kByLayer, 0); }

void ZrCmColor::setByBlock() { set(kByBlock, 0); }

Quor::ErrorStatus ZrCmColor::setNames(const ZrString& color, const ZrString& book) {
    if ((color.empty() && !book.empty()) || !isByColor())
        return Quor::eInvalidInput;
    names_ = color.empty() ? nullptr : std::make_shared<const Names>(Names{color, book});
    return Quor::eOk;
}

std::uint32_t ZrCmColor::rgb() const {
    if (isByColor())
        return value_;
    return isByACI() ? quor::cm::paletteRgb(static_cast<int>(value_)) : whiteRgb;
}

std::uint8_t ZrCmColor::red() const { return static_cast<std::uint8_t>(rgb() >> 16 & 0xFF); }
std::uint8_t ZrCmColor::green() const { return static_cast<std::uint8_t>(rgb() >> 8 & 0xFF); }
std::uint8_t ZrCmColor::blue() const { return static_cast<std::uint8_t>(rgb() & 0xFF); }

int ZrCmColor::colorIndex() const {
    switch (method_) {
    case kByLayer:
        return indexByLayer;
    case kByBlock:
        return indexByBlock;
    case kByACI:
        return static_cast<int>(value_);
    case kByColor:
        break;
    }
    return quor::cm::nearestPaletteIndex(value_);
}

ZrString ZrCmColor::bookName() const { return names_ ? names_->book : ZrString(); }
ZrString ZrCmColor::colorName() const { return names_ ? names_->color : ZrString(); }

ZrString ZrCmColor::colorNameForDisplay() const {
    if (isByLayer())
        return L"ByLayer";
    if (isByBlock())
        return L"ByBlock";
    if (isByACI()) {
        ZrString name = quor::cm::localColorName(static_cast<int>(value_));
        return name.empty() ? std::to_wstring(value_) : name;
    }
    if (names_)
        return names_->book.empty() ? names_->color : names_->book + L"$" + names_->color;
    return std::to_wstring(red()) + L"," + std::to_wstring(green()) + L"," + std::to_wstring(blue());
}

std::uint32_t ZrCmColor::rawColor() const {
    switch (method_) {
    case kByLayer:
        return rawByLayer << 24;
    case kByBlock:
        return rawByBlock << 24;
    case kByACI:
        return rawIndex << 24 | value_;
    case kByColor:
        break;
    }
    return rawTrueColor << 24 | value_;
}

Quor::ErrorStatus ZrCmColor::setRawColor(std::uint32_t raw) {
    const std::uint32_t value = raw & 0xFFFFFF;
    switch (raw >> 24) {
    case rawByLayer:
        setByLayer();
        return Quor::eOk;
    case rawByBlock:
        setByBlock();
        return Quor::eOk;
    case rawTrueColor:
        set(kByColor, value);
        return Quor::eOk;
    case rawIndex:
        return setColorIndex(static_cast<int>(value));
    default:
        return Quor::eInvalidInput;
    }
}

bool ZrCmColor::isEqualTo(const ZrCmColor& other) const {
    if (method_ != other.method_ || value_ != other.value_ || hasColorName() != other.hasColorName())
        return false;
    return names_ == other.names_ || *names_ == *other.names_;
}
