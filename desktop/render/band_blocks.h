// What is to be drawn, in blocks that threads fill each by itself, sorted by the bands in which it is seen. Bands walk
// through the blocks in their order, so the picture does not depend on who filled them.
#pragma once

#include "desktop/render/frame.h"
#include "desktop/render/vector3.h"

namespace quor::desktop {

template <class T>
class BandBlock {
public:
    // Empties it; what it held before keeps its memory.
    void start(int height) {
        height_ = height;
        things_.clear();
        ofBand_.resize(static_cast<std::size_t>((height + kBandHeight - 1) / kBandHeight));
        for (std::vector<std::uint32_t>& numbers : ofBand_)
            numbers.clear();
    }

    // Of something that is seen in these rows.
    void add(const T& thing, float top, float bottom) {
        if (!(bottom >= 0) || !(top < static_cast<float>(height_)))
            return;
        const int first = toWhole(top, 0, height_ - 1) / kBandHeight;
        const int last = toWhole(bottom, 0, height_ - 1) / kBandHeight;
        const auto number = static_cast<std::uint32_t>(things_.size());
        things_.push_back(thing);
        for (int band = first; band <= last; ++band)
            ofBand_[static_cast<std::size_t>(band)].push_back(number);
    }

    template <class Draw>
    void forEach(std::size_t band, const Draw& draw) const {
        for (const std::uint32_t number : ofBand_[band])
            draw(things_[number]);
    }

private:
    int height_ = 0;
    std::vector<T> things_;
    std::vector<std::vector<std::uint32_t>> ofBand_;
};

} // namespace quor::desktop
