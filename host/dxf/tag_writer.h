// Appends tags to a buffer in any of the three forms.
#pragma once

#include "host/dxf/tag.h"
#include "host/dxf/text_style.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quor::dxf {

class TagWriter {
public:
    explicit TagWriter(Form form, TextStyle style = {}) : form_(form), style_(style) {}

    // Bytes are encoded already. Line ends and NUL would break the file and become blanks.
    void text(int code, std::string_view bytes);
    // Shortest text that reads back as the same number. The value must be finite.
    void real(int code, double value);
    void int16(int code, std::int16_t value);
    void int32(int code, std::int32_t value);
    void int64(int code, std::int64_t value);
    void boolean(int code, bool value);
    // An integer stored as the code's kind demands (int16, int32, int64 or bool). It must fit.
    void integer(int code, std::int64_t value);
    void handle(int code, std::uint64_t value); // hexadecimal, upper case
    // Binary data, cut into groups of at most 127 bytes; an empty value writes one empty group.
    void bytes(int code, std::string_view data);
    // Three reals: code, code + 10, code + 20.
    void point(int code, double x, double y, double z);
    // Bytes of whole tags of the same form, as they are.
    void raw(std::string_view tags) { out_ += tags; }

    [[nodiscard]] const std::string& str() const { return out_; }
    [[nodiscard]] std::string take() { return std::move(out_); }
    [[nodiscard]] bool empty() const { return out_.empty(); }
    void clear() { out_.clear(); }
    [[nodiscard]] Form form() const { return form_; }
    [[nodiscard]] const TextStyle& style() const { return style_; }

private:
    [[nodiscard]] bool ascii() const { return form_ == Form::Ascii; }
    void code(int value);
    void line(std::string_view value);
    void padded(std::string_view value, std::size_t width);
    void integerLine(std::int64_t value, std::size_t width);
    void littleEndian(std::uint64_t value, std::size_t bytes);

    Form form_;
    TextStyle style_;
    std::string out_;
};

// The text that TagWriter::real writes: "1.0", "0.1", "1.0E+20".
[[nodiscard]] std::string realText(double value);

} // namespace quor::dxf
