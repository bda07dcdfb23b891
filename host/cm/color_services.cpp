#include "sdk/cm/color_services.h"

#include <algorithm>
#include <cmath>

#include "host/cm/color_books.h"
#include "host/cm/color_names.h"
#include "host/cm/rgb_text.h"

namespace {

bool isFraction(double v) { return v >= 0.0 && v <= 1.0; } // false for nan

double hueOf(double red, double green, double blue, double high, double spread) {
    if (high == red)
        return std::fmod((green - blue) / spread + 6.0, 6.0);
    if (high == green)
        return (blue - red) / spread + 2.0;
    return (red - green) / spread + 4.0;
}

// A component at `sector` (hue in sixths of the circle, moved so that 0 is where the component begins to rise).
double component(double sector, double low, double high) {
    const double at = std::fmod(sector + 12.0, 6.0);
    const double rise = std::clamp(std::min(at, 4.0 - at), 0.0, 1.0);
    return low + (high - low) * rise;
}

} // namespace

Quor::ErrorStatus zrcmGetColorFromRGBName(ZrCmColor& color, const wchar_t* name) {
    const auto rgb = name != nullptr ? quor::cm::parseRgb(name) : std::nullopt;
    if (!rgb)
        return Quor::eInvalidInput;
    color.setRGB(static_cast<std::uint8_t>(*rgb >> 16), static_cast<std::uint8_t>(*rgb >> 8 & 0xFF),
                 static_cast<std::uint8_t>(*rgb & 0xFF));
    return Quor::eOk;
}

Quor::ErrorStatus zrcmGetColorFromACIName(ZrCmColor& color, const wchar_t* name) {
    if (name == nullptr)
        return Quor::eInvalidInput;
    const int named = quor::cm::indexOfColorName(name);
    const int index = named != 0 ? named : quor::cm::parseWhole(name, 255).value_or(0);
    return index == 0 ? Quor::eInvalidInput : color.setColorIndex(index);
}

Quor::ErrorStatus zrcmGetColorFromColorBookName(ZrCmColor& color, const wchar_t* book, const wchar_t* name) {
    if (book == nullptr || name == nullptr)
        return Quor::eInvalidInput;
    const quor::cm::ColorBook* found = quor::cm::colorBooks().find(book);
    const quor::cm::BookColor* entry = found != nullptr ? found->find(name) : nullptr;
    if (entry == nullptr)
        return Quor::eInvalidInput;
    color.setRGB(entry->red, entry->green, entry->blue);
    return color.setNames(entry->name, found->name());
}

void EnumBookNames(std::vector<ZrString>& names, std::vector<ZrString>& displayNames) {
    names.clear();
    for (const quor::cm::ColorBook& book : quor::cm::colorBooks().books())
        names.push_back(book.name());
    displayNames = names;
}

// The usual double-cone model: lightness is the middle of the largest and smallest component, saturation the spread
// between them over the largest spread possible at that lightness.
Quor::ErrorStatus zrdbConvertRgbToHsl(const ZrGeVector3d& rgb, ZrGeVector3d& hsl) {
    if (!isFraction(rgb.x) || !isFraction(rgb.y) || !isFraction(rgb.z))
        return Quor::eInvalidInput;
    const double high = std::max({rgb.x, rgb.y, rgb.z});
    const double low = std::min({rgb.x, rgb.y, rgb.z});
    const double spread = high - low;
    const double lightness = (high + low) / 2.0;
    if (spread == 0.0) {
        hsl = ZrGeVector3d(0.0, 0.0, lightness);
        return Quor::eOk;
    }
    const double saturation = std::min(1.0, spread / (lightness <= 0.5 ? high + low : (1.0 - high) + (1.0 - low)));
    const double hue = 60.0 * hueOf(rgb.x, rgb.y, rgb.z, high, spread);
    hsl = ZrGeVector3d(hue < 360.0 ? hue : 0.0, saturation, lightness);
    return Quor::eOk;
}

Quor::ErrorStatus zrdbConvertHslToRgb(const ZrGeVector3d& hsl, ZrGeVector3d& rgb) {
    if (!std::isfinite(hsl.x) || !isFraction(hsl.y) || !isFraction(hsl.z))
        return Quor::eInvalidInput;
    const double lightness = hsl.z;
    const double reach = hsl.y * (lightness <= 0.5 ? lightness : 1.0 - lightness);
    const double low = lightness - reach;
    const double high = lightness + reach;
    const double sector = std::fmod(hsl.x, 360.0) / 60.0; // -6 to 6
    rgb = ZrGeVector3d(component(sector + 2.0, low, high), component(sector, low, high),
                       component(sector - 2.0, low, high));
    return Quor::eOk;
}
