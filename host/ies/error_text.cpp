// The words for what is wrong with a web file.
#include "host/ies/reader.h"
#include "host/sys/system_error.h"
#include "host/sys/visible_text.h"
#include "host/texts/web_files.h"

#include <algorithm>
#include <array>

namespace quor::ies {

namespace {

using Kind = Error::Kind;

struct KindText {
    Kind kind;
    const Text* text;
};

// Those that name the file, the line and, most of them, what stands there.
constexpr std::array kInTheText{
    KindText{Kind::TiltFile, &texts::kWebTiltFile},
    KindText{Kind::MissingNumber, &texts::kWebMissingNumber},
    KindText{Kind::BadNumber, &texts::kWebBadNumber},
    KindText{Kind::BadCount, &texts::kWebBadCount},
    KindText{Kind::BadTilt, &texts::kWebBadTilt},
    KindText{Kind::BadType, &texts::kWebBadType},
    KindText{Kind::BadUnit, &texts::kWebBadUnit},
    KindText{Kind::AnglesNotIncreasing, &texts::kWebAnglesNotIncreasing},
    KindText{Kind::AnglesOutOfRange, &texts::kWebAnglesOutOfRange},
    KindText{Kind::NegativeIntensity, &texts::kWebNegativeIntensity},
};

} // namespace

std::wstring describe(const Error& error, const std::wstring& file) {
    const std::wstring name = visibleText(file);
    switch (error.kind) {
    case Kind::NotFound:
        return fill(texts::kWebNotFound, name);
    case Kind::Unreadable:
        return error.systemError == 0 ? fill(texts::kWebNoRegularFile, name)
                                      : fill(texts::kWebUnreadable, name, systemErrorText(error.systemError));
    case Kind::TooLarge:
        return fill(texts::kWebTooLarge, name);
    case Kind::Empty:
        return fill(texts::kWebEmpty, name);
    case Kind::NoTilt:
        return error.line == 0 ? fill(texts::kWebNoTilt, name) : fill(texts::kWebTiltIsEmpty, name, error.line);
    default:
        break;
    }
    const auto* entry = std::find_if(kInTheText.begin(), kInTheText.end(),
                                     [&](const KindText& known) { return known.kind == error.kind; });
    return fill(*entry->text, name, error.line, error.excerpt);
}

} // namespace quor::ies
