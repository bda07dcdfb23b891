#include "host/sys/code_page.h"

#include <algorithm>
#include <cstring>
#include <tuple>

#include <iconv.h>

#include "host/sys/utf8.h"

namespace quor {
namespace {

constexpr std::string_view wideEncoding = "WCHAR_T";

const iconv_t noConversion = reinterpret_cast<iconv_t>(-1); // NOLINT: iconv's own mark of failure

char lowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool equalAscii(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowerAscii(x) == lowerAscii(y); });
}

bool isAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

} // namespace

const std::vector<CodePageName>& codePageNames() {
    static const std::vector<CodePageName> names = {
        {"ANSI_1252", "CP1252"},     {"ANSI_874", "CP874"},       {"ANSI_932", "CP932", true},
        {"ANSI_936", "GBK", true},   {"ANSI_949", "CP949", true}, {"ANSI_950", "CP950", true},
        {"ANSI_1250", "CP1250"},     {"ANSI_1251", "CP1251"},     {"ANSI_1253", "CP1253"},
        {"ANSI_1254", "CP1254"},     {"ANSI_1255", "CP1255"},     {"ANSI_1256", "CP1256"},
        {"ANSI_1257", "CP1257"},     {"ANSI_1258", "CP1258"},     {"ANSI_1361", "JOHAB", true},
        {"johab", "JOHAB", true},    {"big5", "BIG5", true},      {"gb2312", "GBK", true},
        {"ksc5601", "CP949", true},  {"dos437", "CP437"},         {"dos850", "CP850"},
        {"dos852", "CP852"},         {"dos855", "CP855"},         {"dos857", "CP857"},
        {"dos860", "CP860"},         {"dos861", "CP861"},         {"dos862", "CP862"},
        {"dos863", "CP863"},         {"dos864", "CP864"},         {"dos865", "CP865"},
        {"dos866", "CP866"},         {"dos869", "CP869"},         {"dos932", "CP932", true},
        {"dos936", "GBK", true},     {"dos949", "CP949", true},   {"dos950", "CP950", true},
        {"iso8859-1", "ISO-8859-1"}, {"iso8859-2", "ISO-8859-2"}, {"iso8859-3", "ISO-8859-3"},
        {"iso8859-4", "ISO-8859-4"}, {"iso8859-5", "ISO-8859-5"}, {"iso8859-6", "ISO-8859-6"},
        {"iso8859-7", "ISO-8859-7"}, {"iso8859-8", "ISO-8859-8"}, {"iso8859-9", "ISO-8859-9"},
        {"mac-roman", "MACINTOSH"},  {"macintosh", "MACINTOSH"},  {"ASCII", ""},
        {"UNDEFINED", "CP1252"},
    };
    return names;
}

const CodePageName* findCodePage(std::string_view drawingName) {
    const auto& names = codePageNames();
    const auto it = std::find_if(names.begin(), names.end(), [drawingName](const CodePageName& row) {
        return equalAscii(row.drawingName, drawingName);
    });
    return it == names.end() ? nullptr : &*it;
}

Conversion::Conversion(std::string_view to, std::string_view from)
    : handle_(iconv_open(std::string(to).c_str(), std::string(from).c_str())) {}

Conversion::~Conversion() {
    if (isOpen())
        iconv_close(handle_);
}

bool Conversion::isOpen() const { return handle_ != noConversion; }

std::string Conversion::convert(std::string_view in) const {
    if (!isOpen())
        return {};
    char source[8];
    char target[8];
    if (in.size() > sizeof source)
        return {};
    std::memcpy(source, in.data(), in.size());
    char* from = source;
    char* to = target;
    std::size_t left = in.size();
    std::size_t room = sizeof target;
    iconv(handle_, nullptr, nullptr, nullptr, nullptr); // back to the initial state
    const std::size_t inexact = iconv(handle_, &from, &left, &to, &room);
    // Some conversions hold a character back until they know that no combining one follows.
    const std::size_t flushed = iconv(handle_, nullptr, nullptr, &to, &room);
    if (inexact != 0 || flushed == static_cast<std::size_t>(-1) || left != 0)
        return {};
    return {target, sizeof target - room};
}

CodePage::CodePage(const CodePageName& name) : name_(name) {
    if (name.systemName.empty())
        return;
    toWide_.emplace(wideEncoding, name.systemName);
    fromWide_.emplace(name.systemName, wideEncoding);
    usable_ = toWide_->isOpen() && fromWide_->isOpen();
    if (usable_)
        buildSingleBytes();
}

void CodePage::buildSingleBytes() {
    for (std::size_t i = 0; i < high_.size(); ++i) {
        const auto byte = static_cast<unsigned char>(128 + i);
        const char text = static_cast<char>(byte);
        high_[i] = decodeOne({&text, 1});
        if (high_[i] != 0)
            singles_.push_back({high_[i], byte});
    }
    std::sort(singles_.begin(), singles_.end(), [](const SingleByte& a, const SingleByte& b) {
        return std::tie(a.character, a.byte) < std::tie(b.character, b.byte);
    });
}

// 0 when the bytes are not exactly one character above 127.
wchar_t CodePage::decodeOne(std::string_view bytes) const {
    const std::string wide = toWide_->convert(bytes);
    wchar_t c = 0;
    if (wide.size() != sizeof c)
        return 0;
    std::memcpy(&c, wide.data(), sizeof c);
    return c < 0x80 ? 0 : c;
}

wchar_t CodePage::next(std::string_view bytes, std::size_t& at) const {
    const char first = bytes[at];
    if (isAscii(first)) {
        ++at;
        return first;
    }
    const auto byte = static_cast<unsigned char>(first);
    const wchar_t single = high_[byte - 128U];
    if (single == 0 && at + 1 < bytes.size()) {
        const wchar_t pair = decodePair(bytes.substr(at, 2));
        if (pair != 0) {
            at += 2;
            return pair;
        }
    }
    ++at;
    return single != 0 ? single : escapedByte(byte);
}

wchar_t CodePage::decodePair(std::string_view bytes) const {
    return name_.isDoubleByte && usable_ ? decodeOne(bytes) : 0;
}

bool CodePage::joins(char first, char second) const {
    const char pair[] = {first, second};
    return !isAscii(first) && high_[static_cast<unsigned char>(first) - 128U] == 0 && decodePair({pair, 2}) != 0;
}

bool CodePage::append(std::string& out, wchar_t c) const {
    const auto it = std::lower_bound(singles_.begin(), singles_.end(), c,
                                     [](const SingleByte& row, wchar_t value) { return row.character < value; });
    if (it != singles_.end() && it->character == c) {
        out.push_back(static_cast<char>(it->byte));
        return true;
    }
    if (!name_.isDoubleByte || !usable_)
        return false;
    const std::string bytes = fromWide_->convert({reinterpret_cast<const char*>(&c), sizeof c});
    // What does not come back as this character is only a likeness of it.
    if (bytes.size() != 2 || decodeOne(bytes) != c)
        return false;
    out += bytes;
    return true;
}

} // namespace quor
