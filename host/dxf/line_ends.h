// Finds line feeds one after the other, 64 bytes at a time.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace quor::dxf {

class LineEnds {
public:
    LineEnds(std::string_view text, std::size_t from) : text_(text) { seek(from); }

    // Offset of the first line feed not yet handed out. The text counts as followed by line feeds without end.
    [[nodiscard]] std::size_t next() {
        while (mask_ == 0) {
            block_ += kBlock;
            mask_ = lineFeedsFrom(block_);
        }
        const std::size_t at = block_ + static_cast<unsigned>(std::countr_zero(mask_));
        mask_ &= mask_ - 1;
        return at;
    }

    void seek(std::size_t from) {
        block_ = from;
        mask_ = lineFeedsFrom(block_);
    }

private:
    static constexpr std::size_t kBlock = 64;

    // Bit n is set when byte n of the block is a line feed.
    [[nodiscard]] std::uint64_t lineFeedsFrom(std::size_t block) const {
        if (block + kBlock <= text_.size()) [[likely]]
            return lineFeedsIn(text_.data() + block);
        std::uint64_t mask = ~std::uint64_t{0};
        for (std::size_t at = text_.size(); at-- > block;)
            mask = mask << 1 | std::uint64_t{text_[at] == '\n'};
        return mask;
    }

    static std::uint64_t lineFeedsIn(const char* block) {
#if defined(__SSE2__)
        return lineFeedsInPart(block) | lineFeedsInPart(block + 16) << 16 | lineFeedsInPart(block + 32) << 32 |
               lineFeedsInPart(block + 48) << 48;
#else
        std::uint64_t mask = 0;
        for (unsigned byte = 0; byte < kBlock; ++byte) {
            mask |= std::uint64_t{block[byte] == '\n'} << byte;
        }
        return mask;
#endif
    }

#if defined(__SSE2__)
    static std::uint64_t lineFeedsInPart(const char* part) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(part));
        return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n'))));
    }
#endif

    std::string_view text_;
    std::size_t block_ = 0;
    std::uint64_t mask_ = 0;
};

} // namespace quor::dxf
