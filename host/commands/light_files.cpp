#include "host/commands/light_files.h"

#include "host/sys/utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace quor::commands {

namespace {

// What came from bytes that are no UTF-8 has no other form here than the replacement character.
std::string bytesOf(ZrString text) {
    std::replace_if(text.begin(), text.end(), isEscapedByte, wchar_t{0xFFFD});
    return toUtf8(text);
}

void appendNumber(std::string& out, std::int64_t value) { out += std::to_string(value); }

// As few digits as give the number back, without an exponent where people would not write one. No "-0".
void appendNumber(std::string& out, double value) {
    constexpr double kLeastInFull = 1e-5;
    constexpr double kMostInFull = 1e15;
    const double size = std::abs(value);
    const bool inFull = size == 0 || (size >= kLeastInFull && size < kMostInFull);
    const auto format = inFull ? std::chars_format::fixed : std::chars_format::scientific;
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), size == 0 ? 0 : value, format).ptr;
    out.append(digits.data(), end);
}

void appendCsvText(std::string& out, const ZrString& text) {
    const std::string bytes = bytesOf(text);
    const bool hasBlankEnd = !bytes.empty() && (bytes.front() == ' ' || bytes.back() == ' ');
    if (!hasBlankEnd && bytes.find_first_of(",\"\r\n") == std::string::npos) {
        out += bytes;
        return;
    }
    out += '"';
    for (const char c : bytes)
        out.append(c == '"' ? 2 : 1, c);
    out += '"';
}

void appendJsonText(std::string& out, const ZrString& text) {
    constexpr char kHex[] = "0123456789abcdef";
    out += '"';
    for (const char c : bytesOf(text)) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            (out += '\\') += c;
        else if (code < 0x20)
            ((out += "\\u00") += kHex[code >> 4]) += kHex[code & 0xF];
        else
            out += c;
    }
    out += '"';
}

// A value in one of the two formats, which differ in texts and in what stands for no value.
struct ValueWriter {
    std::string& out;
    void (*appendText)(std::string&, const ZrString&);
    const char* nothing;

    void operator()(std::monostate) const { out += nothing; }
    void operator()(bool value) const { out += value ? "true" : "false"; }
    void operator()(std::int64_t value) const { appendNumber(out, value); }
    void operator()(double value) const { appendNumber(out, value); }
    void operator()(const ZrString& value) const { appendText(out, value); }
};

std::string beginCsv(const DrawingFacts&) {
    std::string row;
    for (const LightField& field : lightFields())
        (row += row.empty() ? "" : ",") += field.name;
    return row + "\r\n";
}

void appendCsv(std::string& file, std::span<const FieldValue> light, bool) {
    const ValueWriter writer{file, appendCsvText, ""};
    const char* separator = "";
    for (const FieldValue& value : light) {
        file += separator;
        std::visit(writer, value);
        separator = ",";
    }
    file += "\r\n";
}

// A text, or null where there is none.
void appendJsonTextOrNull(std::string& out, const ZrString& text) {
    if (text.empty())
        out += "null";
    else
        appendJsonText(out, text);
}

std::string beginJson(const DrawingFacts& drawing) {
    std::string out = "{\n  \"drawing\": ";
    appendJsonText(out, drawing.name);
    out += ",\n  \"units\": {\"length\": ";
    appendJsonTextOrNull(out, drawing.lengthUnit);
    out += ", \"illuminance\": ";
    appendJsonTextOrNull(out, illuminanceUnit(drawing.lightingUnits));
    out += ", \"insunits\": ";
    appendNumber(out, std::int64_t{drawing.insertionUnits});
    out += ", \"lightingunits\": ";
    appendNumber(out, std::int64_t{drawing.lightingUnits});
    return out + "},\n  \"lights\": [";
}

void appendJson(std::string& file, std::span<const FieldValue> light, bool isFirst) {
    const ValueWriter writer{file, appendJsonText, "null"};
    file += isFirst ? "\n    {" : ",\n    {";
    const char* separator = "\"";
    const auto fields = lightFields();
    for (std::size_t field = 0; field < fields.size(); ++field) {
        ((file += separator) += fields[field].name) += "\": ";
        std::visit(writer, light[field]);
        separator = ", \"";
    }
    file += '}';
}

constexpr LightFileFormat kFormats[] = {
    {L"Csv", L"CSV", ".csv", beginCsv, appendCsv, "", true},
    {L"Json", L"JSON", ".json", beginJson, appendJson, "\n  ]\n}\n", false},
};

// What begins a formula, at once or behind what a spreadsheet skips.
bool beginsFormula(const FieldValue& value) {
    constexpr std::wstring_view kFormulas = L"=+-@\t\r";
    const auto* text = std::get_if<ZrString>(&value);
    return text != nullptr && !text->empty() && kFormulas.find(text->front()) != std::wstring_view::npos;
}

} // namespace

std::span<const LightFileFormat> lightFileFormats() { return kFormats; }

bool looksLikeFormula(std::span<const FieldValue> light) {
    return std::any_of(light.begin(), light.end(), beginsFormula);
}

} // namespace quor::commands
