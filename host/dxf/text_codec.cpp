#include "host/dxf/text_codec.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>

#include "host/dxf/text_escapes.h"
#include "host/sys/code_page.h"
#include "host/sys/utf8.h"

namespace quor::dxf {
namespace {

constexpr std::string_view defaultPage = "ANSI_1252";

// "AC1021" and later; anything that is not AC and four digits is older.
bool isUtf8Version(std::string_view version) {
    const bool isNumber = version.size() == 6 && version.substr(0, 2) == "AC" &&
                          version.find_first_not_of("0123456789", 2) == std::string_view::npos;
    return isNumber && version >= "AC1021";
}

// Neither a byte above 127, an escape nor a caret code: every byte is its own character.
bool isPlain(std::string_view bytes) {
    return std::none_of(bytes.begin(), bytes.end(),
                        [](char c) { return static_cast<signed char>(c) < 0 || c == '\\' || c == '^'; });
}

bool isPlain(std::wstring_view text) {
    return std::none_of(text.begin(), text.end(),
                        [](wchar_t c) { return c < 0x20 || c > 0x7E || c == L'\\' || c == L'^'; });
}

const CaretCode* caretCodeOfLetter(wchar_t letter) {
    const auto* it = std::find_if(std::begin(caretCodes), std::end(caretCodes),
                                  [letter](const CaretCode& code) { return code.letter == letter; });
    return it == std::end(caretCodes) ? nullptr : it;
}

const CaretCode* caretCodeOfCharacter(wchar_t character) {
    const auto* it = std::find_if(std::begin(caretCodes), std::end(caretCodes),
                                  [character](const CaretCode& code) { return code.character == character; });
    return it == std::end(caretCodes) ? nullptr : it;
}

} // namespace

// The code page of the drawing, and those that multibyte escapes ask for, each opened at its first use.
class TextCodec::Pages {
public:
    explicit Pages(const CodePageName* own) {
        if (own != nullptr)
            own_.emplace(*own);
    }

    [[nodiscard]] const CodePage* own() const { return own_ ? &*own_ : nullptr; }

    [[nodiscard]] std::optional<wchar_t> decode(const MultibyteEscape& escape) {
        const CodePageName& name = *findCodePage(escape.codePage);
        const CodePage& page = others_.try_emplace(name.drawingName, name).first->second;
        std::size_t at = 0;
        const wchar_t c = page.next({escape.bytes, sizeof escape.bytes}, at);
        return at == sizeof escape.bytes ? std::optional(c) : std::nullopt;
    }

private:
    std::optional<CodePage> own_; // none for UTF-8
    std::map<std::string_view, CodePage> others_;
};

TextCodec::TextCodec(std::string_view version, std::string_view codePage) {
    if (isUtf8Version(version)) {
        pages_ = std::make_unique<Pages>(nullptr);
        return;
    }
    const CodePageName* name = findCodePage(codePage);
    pages_ = std::make_unique<Pages>(name != nullptr ? name : findCodePage(defaultPage));
    known_ = (name != nullptr || codePage.empty()) && pages_->own()->isUsable();
}

TextCodec::~TextCodec() = default;
TextCodec::TextCodec(TextCodec&&) noexcept = default;
TextCodec& TextCodec::operator=(TextCodec&&) noexcept = default;

bool TextCodec::isUtf8() const { return pages_->own() == nullptr; }
std::string_view TextCodec::name() const { return isUtf8() ? "UTF-8" : pages_->own()->drawingName(); }
bool TextCodec::isKnown() const { return known_; }

std::wstring TextCodec::decode(std::string_view bytes) const {
    if (isPlain(bytes))
        return {bytes.begin(), bytes.end()};
    // Characters first: the second byte of one may look like a backslash.
    std::wstring text;
    text.reserve(bytes.size());
    const CodePage* page = pages_->own();
    for (std::size_t at = 0; at < bytes.size();)
        text.push_back(page != nullptr ? page->next(bytes, at) : nextUtf8(bytes, at));
    return resolveEscapes(std::move(text));
}

std::wstring TextCodec::resolveEscapes(std::wstring text) const {
    if (std::none_of(text.begin(), text.end(), [](wchar_t c) { return c == L'\\' || c == L'^'; }))
        return text;
    const std::wstring_view source = text;
    std::wstring out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < source.size();) {
        const Piece piece = pieceAt(source.substr(at));
        out.push_back(piece.character);
        at += piece.length;
    }
    return out;
}

// The character at the start of the text, or the one that an escape there stands for.
TextCodec::Piece TextCodec::pieceAt(std::wstring_view text) const {
    const wchar_t first = text.front();
    if (first == L'^' && text.size() > 1) {
        if (const CaretCode* code = caretCodeOfLetter(text[1]))
            return {code->character, 2};
    }
    if (first == L'\\') {
        const UnicodeEscape unicode = parseUnicodeEscape(text);
        if (unicode.length != 0)
            return {unicode.character, unicode.length};
        const MultibyteEscape multibyte = parseMultibyteEscape(text);
        const auto character = multibyte.length != 0 ? pages_->decode(multibyte) : std::nullopt;
        if (character)
            return {*character, multibyte.length};
    }
    return {first, 1};
}

std::string TextCodec::encode(std::wstring_view text) const {
    if (isPlain(text))
        return {text.begin(), text.end()};
    std::string out;
    out.reserve(text.size() * 2);
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (at > 0 && isEscapedByte(text[at - 1]) && !isEscapedByte(text[at]))
            appendBehindKept(out, text.substr(at));
        else
            appendEncoded(out, text.substr(at));
    }
    return out;
}

// Behind a kept byte that may be the first half of a character: takes the first form that does not become the other
// half. Where every form would, a blank keeps them apart, which loses less than the character.
void TextCodec::appendBehindKept(std::string& out, std::wstring_view rest) const {
    const CodePage* page = pages_->own();
    const char kept = out.back();
    const auto isSafe = [&](const std::string& form) { return page == nullptr || !page->joins(kept, form.front()); };
    const wchar_t c = rest.front();
    std::string form;
    appendEncoded(form, rest);
    std::string escape;
    appendUnicodeEscape(escape, c);
    const bool mayStandRaw = c >= 0 && c < 0x20 && c != L'\n' && c != L'\r';
    if (isSafe(form))
        out += form;
    else if (isSafe(escape))
        out += escape;
    else if (mayStandRaw)
        out.push_back(static_cast<char>(c));
    else
        out += ' ' + form;
}

// Writes the first character of `rest`; what follows decides whether a caret or backslash would be misread.
void TextCodec::appendEncoded(std::string& out, std::wstring_view rest) const {
    const wchar_t c = rest.front();
    if (c == L'^' || c == L'\\') {
        const bool misread = pieceAt(rest).length > 1;
        if (!misread)
            out.push_back(static_cast<char>(c));
        else if (c == L'^')
            out += "^ ";
        else
            appendUnicodeEscape(out, c);
    } else if (c >= 0 && c < 0x20) {
        appendControl(out, c);
    } else if (c >= 0 && c < 0x80) {
        out.push_back(static_cast<char>(c));
    } else if (isEscapedByte(c)) {
        out.push_back(static_cast<char>(c - 0xDC00));
    } else {
        appendHigh(out, c);
    }
}

void TextCodec::appendControl(std::string& out, wchar_t c) {
    if (const CaretCode* code = caretCodeOfCharacter(c)) {
        out.push_back('^');
        out.push_back(static_cast<char>(code->letter));
    } else {
        appendUnicodeEscape(out, c);
    }
}

void TextCodec::appendHigh(std::string& out, wchar_t c) const {
    const bool isLoneSurrogate = c >= 0xD800 && c <= 0xDFFF;
    const CodePage* page = pages_->own();
    if (page == nullptr && !isLoneSurrogate)
        return appendUtf8(out, c);
    if (page == nullptr || isLoneSurrogate || !page->append(out, c))
        appendUnicodeEscape(out, c);
}

} // namespace quor::dxf
