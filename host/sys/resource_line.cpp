#include "host/sys/resource_line.h"

#include "host/sys/utf8.h"
#include "host/texts/resources.h"

#include <algorithm>
#include <limits>

namespace quor::sys {
namespace {

using Problem = std::optional<ZrString>;

// Takes the parts of a line off its front.
class LineReader {
public:
    explicit LineReader(std::wstring_view line) : rest_(line) {}

    void skipBlanks() {
        const std::size_t at = rest_.find_first_not_of(L" \t\r");
        rest_.remove_prefix(at == std::wstring_view::npos ? rest_.size() : at);
    }
    bool take(wchar_t c) {
        if (rest_.empty() || rest_.front() != c)
            return false;
        rest_.remove_prefix(1);
        return true;
    }
    [[nodiscard]] bool atEndOrComment() const { return rest_.empty() || rest_.front() == L'#'; }
    [[nodiscard]] std::wstring_view rest() const { return rest_; }

    std::optional<unsigned> takeNumber();
    // The text up to its closing quotes, which are taken too.
    Problem takeText(ZrString& text);

private:
    Problem takeEscape(ZrString& text);

    std::wstring_view rest_;
};

std::optional<unsigned> LineReader::takeNumber() {
    unsigned long long number = 0;
    bool any = false;
    for (; !rest_.empty() && rest_.front() >= L'0' && rest_.front() <= L'9'; rest_.remove_prefix(1)) {
        number = number * 10 + static_cast<unsigned>(rest_.front() - L'0');
        any = true;
        if (number > std::numeric_limits<unsigned>::max())
            return std::nullopt;
    }
    return any ? std::optional(static_cast<unsigned>(number)) : std::nullopt;
}

int hexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9')
        return c - L'0';
    const wchar_t lower = c | 0x20;
    return lower >= L'a' && lower <= L'f' ? lower - L'a' + 10 : -1;
}

// The number that the first `count` characters give in hexadecimal; a surrogate is no character.
std::optional<wchar_t> hexCharacter(std::wstring_view digits, std::size_t count) {
    if (digits.size() < count)
        return std::nullopt;
    int value = 0;
    for (const wchar_t c : digits.substr(0, count)) {
        const int digit = hexDigit(c);
        if (digit < 0)
            return std::nullopt;
        value = value * 16 + digit;
    }
    const bool usable = value != 0 && (value < 0xD800 || value > 0xDFFF);
    return usable ? std::optional(static_cast<wchar_t>(value)) : std::nullopt;
}

// A backslash is in front of `rest_`.
Problem LineReader::takeEscape(ZrString& text) {
    static constexpr std::pair<wchar_t, wchar_t> simple[] = {
        {L'n', L'\n'}, {L't', L'\t'}, {L'"', L'"'}, {L'\\', L'\\'}};
    static constexpr std::pair<wchar_t, std::size_t> hexadecimal[] = {{L'x', 2}, {L'u', 4}};
    const wchar_t letter = rest_.size() > 1 ? rest_[1] : L'\0';
    for (const auto& [name, character] : simple)
        if (letter == name) {
            text += character;
            rest_.remove_prefix(2);
            return std::nullopt;
        }
    for (const auto& [name, count] : hexadecimal)
        if (letter == name)
            if (const auto character = hexCharacter(rest_.substr(2), count)) {
                text += *character;
                rest_.remove_prefix(2 + count);
                return std::nullopt;
            }
    return fill(texts::resourceBadEscape, rest_.substr(0, letter == L'u' ? 6 : letter == L'x' ? 4 : 2));
}

Problem LineReader::takeText(ZrString& text) {
    if (!take(L'"'))
        return texts::resourceNoQuotes.get();
    while (!take(L'"')) {
        const std::size_t plain = rest_.find_first_of(L"\"\\");
        if (plain == std::wstring_view::npos)
            return texts::resourceNoQuotes.get();
        text.append(rest_.substr(0, plain));
        rest_.remove_prefix(plain);
        if (rest_.front() == L'\\')
            if (Problem problem = takeEscape(text))
                return problem;
    }
    return std::nullopt;
}

} // namespace

Result<std::optional<ResourceLine>, ZrString> parseResourceLine(std::wstring_view line) {
    using Line = std::optional<ResourceLine>;
    LineReader reader(line);
    reader.skipBlanks();
    if (reader.atEndOrComment())
        return Line();
    if (std::any_of(line.begin(), line.end(), isEscapedByte))
        return fail(ZrString(texts::resourceNotUtf8.get()));
    const auto number = reader.takeNumber();
    if (!number)
        return fail(ZrString(texts::resourceNoNumber.get()));
    reader.skipBlanks();
    if (!reader.take(L'='))
        return fail(ZrString(texts::resourceNoEquals.get()));
    reader.skipBlanks();
    ResourceLine found{*number, {}};
    if (Problem problem = reader.takeText(found.text))
        return fail(*problem);
    reader.skipBlanks();
    if (!reader.atEndOrComment())
        return fail(fill(texts::resourceRest, reader.rest()));
    return Line(std::move(found));
}

} // namespace quor::sys
