// The colour of an object: by layer, by block, from the 255 numbered colours, as true RGB, or from a colour book.
#pragma once

#include <cstdint>
#include <memory>

#include "sdk/rx/error_status.h"
#include "sdk/sys/string.h"

// A value: copy it freely. A default-constructed colour is by layer.
class ZrCmColor {
public:
    enum ColorMethod : std::uint8_t { kByLayer, kByBlock, kByACI, kByColor };

    ZrCmColor() = default;
    // The same as setRGB / setColorIndex on a new colour; a number that is no index leaves it by layer.
    [[nodiscard]] static ZrCmColor fromRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
    [[nodiscard]] static ZrCmColor fromIndex(int index);

    // Makes it a true colour; names of a colour book are dropped.
    void setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
    // 0 by block, 1 to 255 numbered colour, 256 by layer; other numbers give eInvalidInput and change nothing.
    Quor::ErrorStatus setColorIndex(int index);
    void setByLayer();
    void setByBlock();
    // Names a true colour after its place in a colour book, or, without a book, as some drawings do; two empty texts
    // take the names away. eInvalidInput, and nothing changes, for a book without a colour's name and for what is not a
    // true colour.
    Quor::ErrorStatus setNames(const ZrString& color, const ZrString& book);

    // Components 0 to 255; of a numbered colour from the palette, of by layer and by block those of white.
    [[nodiscard]] std::uint8_t red() const;
    [[nodiscard]] std::uint8_t green() const;
    [[nodiscard]] std::uint8_t blue() const;
    // The components as 0xRRGGBB.
    [[nodiscard]] std::uint32_t rgb() const;

    // 0 by block, 256 by layer, else the number, or for a true colour the number of the nearest palette colour.
    [[nodiscard]] int colorIndex() const;

    [[nodiscard]] ColorMethod colorMethod() const { return method_; }
    [[nodiscard]] bool isByLayer() const { return method_ == kByLayer; }
    [[nodiscard]] bool isByBlock() const { return method_ == kByBlock; }
    [[nodiscard]] bool isByACI() const { return method_ == kByACI; }
    // A true colour, from a colour book or not.
    [[nodiscard]] bool isByColor() const { return method_ == kByColor; }

    [[nodiscard]] bool hasColorName() const { return names_ != nullptr; }
    // Empty unless hasColorName().
    [[nodiscard]] ZrString bookName() const;
    [[nodiscard]] ZrString colorName() const;
    // What a person sees: "ByLayer", "ByBlock", the local name of 1 to 7, another number, "r,g,b", "book$colour" or a
    // name alone.
    [[nodiscard]] ZrString colorNameForDisplay() const;

    // The colour as one 32-bit word of a drawing file: method in the top byte (0xC0 by layer, 0xC1 by block,
    // 0xC2 true colour with 0xRRGGBB, 0xC3 index in the low byte). Names are not part of it.
    [[nodiscard]] std::uint32_t rawColor() const;
    // eInvalidInput, and nothing changes, for another top byte or an index that is none.
    Quor::ErrorStatus setRawColor(std::uint32_t raw);

    // Equal are the same method, the same value and the same names.
    friend bool operator==(const ZrCmColor& a, const ZrCmColor& b) { return a.isEqualTo(b); }

private:
    struct Names {
        ZrString color;
        ZrString book;
        bool operator==(const Names&) const = default;
    };

    void set(ColorMethod method, std::uint32_t value);
    [[nodiscard]] bool isEqualTo(const ZrCmColor& other) const;

    std::shared_ptr<const Names> names_; // few colours have names; most cost no text
    std::uint32_t value_ = 0;            // 0xRRGGBB of a true colour, the number of a numbered one, else 0
    ColorMethod method_ = kByLayer;
};
