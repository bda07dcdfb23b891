// Formatting of wide texts with %-placeholders, type-safe: a placeholder takes the argument that stands at its place,
// whatever its C type would have been, so that a text from a language pack cannot read beyond the arguments.
#pragma once

#include "sdk/sys/string.h"

#include <initializer_list>
#include <type_traits>
#include <variant>

// One argument of a formatted text: a whole number, a real number or a text (not owned).
class ZrFormatArg {
public:
    template <class T>
    requires std::is_integral_v<T> || std::is_enum_v<T> ZrFormatArg(T value) : value_(static_cast<long long>(value)) {}
    ZrFormatArg(double value) : value_(value) {}
    ZrFormatArg(const wchar_t* text) : value_(std::wstring_view(text ? text : L"")) {}
    ZrFormatArg(std::wstring_view text) : value_(text) {}
    ZrFormatArg(const ZrString& text) : value_(std::wstring_view(text)) {}

    using Value = std::variant<long long, double, std::wstring_view>;
    [[nodiscard]] const Value& value() const { return value_; }

private:
    Value value_;
};

// Replaces each %d, %i, %u, %x, %X, %c, %s, %S, %f, %e, %g (with flags, width and precision; "l", "ll" and "h" are
// skipped) by its argument; "%%" is a percent sign. An argument of another kind is shown as it naturally looks. A
// placeholder without an argument stays as it is; superfluous arguments are ignored. The decimal mark is always ".".
[[nodiscard]] ZrString zrFormat(std::wstring_view format, std::initializer_list<ZrFormatArg> arguments);
