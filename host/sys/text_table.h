// A table of texts for a terminal: every column as wide as its widest text. A column without any text is left out
// unless it is to be kept; a dash stands for a text that a row does not have.
#pragma once

#include "sdk/sys/string.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace quor {

enum class Align { Left, Right };

// A text that may be cut ends with "…" where its row would not fit.
enum class Fit { Whole, MayBeCut };

class TextTable {
public:
    // `leads`: how many columns at the beginning tell the rows apart, and so begin every block.
    explicit TextTable(std::size_t leads = 1) : leads_(leads) {}

    void addColumn(const ZrString& heading, Align align, Fit fit = Fit::Whole);
    // The column added last is shown even where no row has a text in it.
    void keepLast() { columns_.back().isUsed = true; }
    // A column that belongs to the one before it: always in the same block, only one blank away.
    void addBesideLast(const ZrString& heading, Align align);
    // Rows are filled cell by cell. Control characters in a text are spelled out.
    void addCell(const ZrString& text);

    [[nodiscard]] std::size_t rows() const { return columns_.empty() ? 0 : cells_ / columns_.size(); }
    // A column in a block, with the width that it has there.
    struct Place {
        std::size_t column = 0;
        int width = 0;
    };
    using Block = std::vector<Place>;
    // As few as make every line fit into `width`, unless columns that may not be cut are too wide for it. Texts are cut
    // no more than their block needs; they keep some width, unless even the first columns alone would not fit then.
    [[nodiscard]] std::vector<Block> blocks(int width) const;
    // A line each, its end included.
    [[nodiscard]] ZrString heading(const Block& block) const;
    void forEachRow(const Block& block, const std::function<void(const ZrString&)>& take) const;

private:
    struct Column {
        ZrString heading;
        Align align = Align::Left;
        int gap = 2; // blanks before it
        int width = 0;
        bool isUsed = false;
        Fit fit = Fit::Whole;
    };

    // One text for each column of the block.
    [[nodiscard]] ZrString line(const Block& block, const std::vector<ZrString>& texts) const;
    // The columns that are used, as narrow as they may be, those that belong together in one group.
    [[nodiscard]] std::vector<Block> groups() const;
    [[nodiscard]] int widthOf(const Block& block) const;
    // As wide as their texts, and no wider than `width` where cutting can do it.
    void fit(Block& block, int width) const;

    std::size_t leads_;
    std::vector<Column> columns_;
    // Row by row in UTF-8, a zero behind each: tables are long, their texts too short to be worth memory of their own.
    std::string texts_;
    std::size_t cells_ = 0;
};

// The beginning of a long text, "…" behind it, together no wider than `columns`.
[[nodiscard]] ZrString cutToColumns(const ZrString& text, int columns);

} // namespace quor
