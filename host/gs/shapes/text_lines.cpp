#include "host/gs/shapes/text_lines.h"

#include <algorithm>
#include <string_view>

namespace quor::gs {

namespace {

constexpr wchar_t kDegrees = 0xB0;
constexpr wchar_t kPlusMinus = 0xB1;
constexpr wchar_t kDiameter = 0xD8;

// Takes codes off the front of a text.
class Coded {
public:
    explicit Coded(std::wstring_view text) : left_(text) {}

    [[nodiscard]] bool isAtEnd() const { return left_.empty(); }
    [[nodiscard]] wchar_t take() {
        const wchar_t c = left_.front();
        left_.remove_prefix(1);
        return c;
    }
    // What stands before the next semicolon, which is taken too.
    [[nodiscard]] std::wstring_view takeValue() {
        const std::size_t end = left_.find(L';');
        const std::wstring_view value = left_.substr(0, end);
        left_.remove_prefix(end == std::wstring_view::npos ? left_.size() : end + 1);
        return value;
    }
    // Behind one percent sign: whether this was a code; its character, if it has one, is added.
    bool takePercentCode(ZrString& text) {
        if (left_.size() < 2 || left_[0] != L'%')
            return false;
        if (takeNumber(text))
            return true;
        static constexpr std::wstring_view kCodes = L"dDpPcCuUoOkK%";
        static constexpr wchar_t kMeanings[] = {kDegrees, kDegrees, kPlusMinus, kPlusMinus, kDiameter, kDiameter, 0,
                                                0,        0,        0,          0,          0,         L'%'};
        const std::size_t code = kCodes.find(left_[1]);
        if (code == std::wstring_view::npos)
            return false;
        if (kMeanings[code] != 0)
            text += kMeanings[code];
        left_.remove_prefix(2);
        return true;
    }

private:
    // A character by its number of three digits.
    bool takeNumber(ZrString& text) {
        constexpr std::size_t kDigits = 3;
        if (left_.size() < kDigits + 1)
            return false;
        int number = 0;
        for (const wchar_t digit : left_.substr(1, kDigits)) {
            if (digit < L'0' || digit > L'9')
                return false;
            number = number * 10 + (digit - L'0');
        }
        text += static_cast<wchar_t>(number);
        left_.remove_prefix(kDigits + 1);
        return true;
    }

    std::wstring_view left_;
};

// Behind a backslash.
void takeCode(Coded& coded, std::vector<ZrString>& lines) {
    static constexpr std::wstring_view kSwitches = L"LlOoKk";
    static constexpr std::wstring_view kWithValue = L"fFHWQCcATp";
    const wchar_t code = coded.take();
    if (code == L'P') {
        lines.emplace_back();
    } else if (code == L'~') {
        lines.back() += L' ';
    } else if (code == L'S') {
        ZrString fraction(coded.takeValue());
        std::ranges::replace_if(
            fraction, [](wchar_t c) { return c == L'^' || c == L'#'; }, L'/');
        lines.back() += fraction;
    } else if (kWithValue.find(code) != std::wstring_view::npos) {
        (void)coded.takeValue();
    } else if (kSwitches.find(code) == std::wstring_view::npos) {
        lines.back() += code;
    }
}

} // namespace

ZrString plainText(const ZrString& text) {
    ZrString plain;
    Coded coded(text);
    while (!coded.isAtEnd()) {
        const wchar_t c = coded.take();
        if (c != L'%' || !coded.takePercentCode(plain))
            plain += c;
    }
    return plain;
}

std::vector<ZrString> plainLines(const ZrString& text) {
    std::vector<ZrString> lines(1);
    Coded coded(text);
    while (!coded.isAtEnd()) {
        const wchar_t c = coded.take();
        if (c == L'\\' && !coded.isAtEnd())
            takeCode(coded, lines);
        else if (c == L'\n')
            lines.emplace_back();
        else if (c == L'%' && coded.takePercentCode(lines.back()))
            continue;
        else if (c != L'{' && c != L'}' && c != L'\r')
            lines.back() += c;
    }
    return lines;
}

} // namespace quor::gs
