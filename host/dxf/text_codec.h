// Text values of a drawing file between their bytes and wide strings: code page or UTF-8, escapes, control characters.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace quor::dxf {

// One codec serves one drawing, on one thread at a time.
//
// Decoding never fails: a byte that the code page does not know becomes a lone surrogate (escapedByte in
// host/sys/utf8.h) and is written back as that byte. `encode` writes what `decode` reads back as the same text
// (an edited text that puts a new character behind half a character may get a blank between them).
// Join the chunks of a long value before decoding it: an escape may be cut in two at the border.
class TextCodec {
public:
    // `version` as in $ACADVER ("AC1015"), `codePage` as in $DWGCODEPAGE ("ANSI_936"), in any case. From AC1021 on it
    // is UTF-8 whatever the code page says; before, an unknown or empty code page counts as ANSI_1252.
    TextCodec(std::string_view version, std::string_view codePage);
    ~TextCodec();
    TextCodec(TextCodec&&) noexcept;
    TextCodec& operator=(TextCodec&&) noexcept;

    [[nodiscard]] std::wstring decode(std::string_view bytes) const;
    // Characters outside the code page become \U+XXXX, line feed, return and tab ^J, ^M and ^I.
    [[nodiscard]] std::string encode(std::wstring_view text) const;

    [[nodiscard]] bool isUtf8() const;
    // The encoding in use, in the spelling of $DWGCODEPAGE: "UTF-8", "ANSI_1252", …
    [[nodiscard]] std::string_view name() const;
    // False when `codePage` was not known, or the system lacks its conversion: then bytes above 127 are only kept.
    [[nodiscard]] bool isKnown() const;

private:
    class Pages;
    struct Piece {
        wchar_t character;
        std::size_t length;
    };

    [[nodiscard]] std::wstring resolveEscapes(std::wstring text) const;
    [[nodiscard]] Piece pieceAt(std::wstring_view text) const;
    void appendBehindKept(std::string& out, std::wstring_view rest) const;
    void appendEncoded(std::string& out, std::wstring_view rest) const;
    static void appendControl(std::string& out, wchar_t c);
    void appendHigh(std::string& out, wchar_t c) const;

    std::unique_ptr<Pages> pages_;
    bool known_ = true;
};

} // namespace quor::dxf
