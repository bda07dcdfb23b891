// The order of the slots in which a palette is told what happens: modules are compiled against it.
#include "sdk/ui/palette_set.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

namespace quor::test {
namespace {

using Palette = CZrRxPaletteSet;

// The compiler keeps the place of a virtual function in the first half of a pointer to it.
template <class Slot>
std::ptrdiff_t placeOf(Slot slot) {
    return std::bit_cast<std::array<std::ptrdiff_t, 2>>(slot)[0];
}

TEST(PaletteSlots, ComeOneAfterTheOther) {
    const std::vector<std::ptrdiff_t> places = {
        placeOf(&Palette::sysVarChanged),         placeOf(&Palette::impliedSelectionChanged),
        placeOf(&Palette::objectOpenedForModify), placeOf(&Palette::lightAppended),
        placeOf(&Palette::lightChangedNow),       placeOf(&Palette::lightTouched),
        placeOf(&Palette::lightTouchedByUndo),    placeOf(&Palette::lightTouchedByRedo),
        placeOf(&Palette::documentBecameCurrent), placeOf(&Palette::commandStarting),
        placeOf(&Palette::documentToBeDestroyed), placeOf(&Palette::documentToBeDeactivated),
        placeOf(&Palette::commandFinished),       placeOf(&Palette::paletteShownChanged),
        placeOf(&Palette::IsWindowVisibleEx),     placeOf(&Palette::GetMinSize)};

    std::vector<std::ptrdiff_t> oneAfterTheOther(places.size(), places.front());
    std::ptrdiff_t slots = 0;
    std::ranges::for_each(oneAfterTheOther, [&](std::ptrdiff_t& place) { place += slots++ * std::ptrdiff_t{8}; });
    EXPECT_EQ(places, oneAfterTheOther);
}

} // namespace
} // namespace quor::test
