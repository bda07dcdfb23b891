#include "host/cm/palette.h"

#include <array>
#include <cassert>
#include <limits>

namespace quor::cm {
namespace {

constexpr std::uint32_t pack(int red, int green, int blue) {
    return static_cast<std::uint32_t>(red << 16 | green << 8 | blue);
}

// The numbers 10 to 249 are a grid: the tens are 24 hues, 15 degrees apart from red; the last digit is the shade, in
// pairs of falling brightness, the even one of full saturation and the odd one of half.
constexpr int shadeBrightness[] = {255, 204, 153, 127, 76};

constexpr std::uint32_t gridColor(int index) {
    const int hue = index / 10 - 1;
    const int shade = index % 10;
    const int high = shadeBrightness[shade / 2];
    const int low8 = shade % 2 == 0 ? 0 : high * 4; // eight times the lowest component, so that halves stay whole
    const int step8 = (high * 8 - low8) / 4;        // a quarter of the way up, four hues to a sixth of the circle
    const int up = (low8 + step8 * (hue % 4)) / 8;
    const int down = (low8 + step8 * (4 - hue % 4)) / 8;
    const int low = low8 / 8;
    switch (hue / 4) {
    case 0:
        return pack(high, up, low);
    case 1:
        return pack(down, high, low);
    case 2:
        return pack(low, high, up);
    case 3:
        return pack(low, down, high);
    case 4:
        return pack(up, low, high);
    default:
        return pack(high, low, down);
    }
}

constexpr std::array<std::uint32_t, 256> makePalette() {
    constexpr std::uint32_t named[] = {0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF, 0x0000FF,
                                       0xFF00FF, 0xFFFFFF, 0x808080, 0xC0C0C0};
    constexpr int greys[] = {51, 91, 132, 173, 214, 255};
    std::array<std::uint32_t, 256> palette{};
    for (std::size_t i = 1; i < palette.size(); ++i)
        palette[i] = i < 10    ? named[i - 1]
                     : i < 250 ? gridColor(static_cast<int>(i))
                               : pack(greys[i - 250], greys[i - 250], greys[i - 250]);
    return palette;
}

constexpr std::array<std::uint32_t, 256> palette = makePalette();

constexpr int difference(std::uint32_t a, std::uint32_t b, int shift) {
    return static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF);
}

constexpr int squaredDistance(std::uint32_t a, std::uint32_t b) {
    const int red = difference(a, b, 16);
    const int green = difference(a, b, 8);
    const int blue = difference(a, b, 0);
    return red * red + green * green + blue * blue;
}

} // namespace

std::uint32_t paletteRgb(int index) {
    assert(index >= 1 && index <= 255);
    return palette[static_cast<std::size_t>(index)];
}

int nearestPaletteIndex(std::uint32_t rgb) {
    int nearest = 0;
    int distance = std::numeric_limits<int>::max();
    for (int index = 1; index <= 255; ++index) {
        const int here = squaredDistance(rgb, palette[static_cast<std::size_t>(index)]);
        if (here < distance) {
            distance = here;
            nearest = index;
        }
    }
    return nearest;
}

} // namespace quor::cm
