// Finds line feeds one after the other, 64 bytes at a time.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace quor::dxf {

// The text must be followed by 64 readable bytes of line feeds (Image::kPadding): then next() always finds one.
class LineEnds {
public:
    LineEnds(const char* text, std::size_t from) : text_(text) { seek(from); }

    // Offset of the first line feed not yet handed out. Not to be called again once it lies behind the text.
    [[nodiscard]] std::size_t next() {
        while (mask_ == 0) {
            block_ += kBlock;
            mask_ = lineFeedsIn(text_ + block_);
        }
        const std::size_t at = block_ + static_cast<std::size_t>(std::countr_zero(mask_));
        mask_ &= mask_ - 1;
        return at;
    }

    void seek(std::size_t from) {
        block_ = from / kBlock * kBlock;
        mask_ = lineFeedsIn(text_ + block_) & (~std::uint64_t{0} << (from % kBlock));
    }

private:
    static constexpr std::size_t kBlock = 64;

    // Bit n is set when byte n is a line feed.
    static std::uint64_t lineFeedsIn(const char* block) {
        std::uint64_t mask = 0;
#if defined(__SSE2__)
        const __m128i lineFeed = _mm_set1_epi8('\n');
        for (std::size_t part = 0; part < 4; ++part) {
            const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block + 16 * part));
            const auto found = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, lineFeed)));
            mask |= std::uint64_t{found} << (16 * part);
        }
#else
        for (unsigned byte = 0; byte < kBlock; ++byte) {
            mask |= std::uint64_t{block[byte] == '\n'} << byte;
        }
#endif
        return mask;
    }

    const char* text_;
    std::size_t block_ = 0;
    std::uint64_t mask_ = 0;
};

} // namespace quor::dxf
