// Reads photometric web files: LM-63 of 1986, 1991, 1995, 2002 and 2019, whatever their line breaks and separators.
#pragma once

#include "host/ies/photometric_web.h"
#include "host/sys/result.h"

#include <filesystem>
#include <memory>
#include <string_view>

namespace quor::ies {

// No web that exists comes near to any of these. The last keeps each sum over a web finite, also in single precision.
inline constexpr std::size_t kMostBytes = std::size_t{16} << 20U;
inline constexpr double kMostAngles = 10000;
inline constexpr double kMostCandela = 1e30;

// Why a file is no web that can be used.
struct Error {
    enum class Kind : std::uint8_t {
        NotFound,            // there is no such file
        Unreadable,          // reading failed, systemError says why; 0 for what is no regular file
        TooLarge,            // more than kMostBytes
        Empty,               // nothing but blanks
        NoTilt,              // the line TILT= is missing, or nothing stands behind the "="
        TiltFile,            // TILT names another file and no line TILT= is there for this one; excerpt is the name
        MissingNumber,       // the text ends where another number is needed
        BadNumber,           // excerpt is no decimal number, or an intensity beyond kMostCandela
        BadCount,            // a count of angles that is not whole or not from 1 to kMostAngles; excerpt is the number
        BadTilt,             // no position of the lamp (1, 2 or 3) behind TILT=INCLUDE; excerpt is the number
        BadType,             // no photometry of type 1, 2 or 3; excerpt is the number
        BadUnit,             // neither 1 (feet) nor 2 (metres); excerpt is the number
        AnglesNotIncreasing, // excerpt is the angle that is not larger than the one before
        AnglesOutOfRange,    // excerpt is the first angle beyond what the type of photometry has
        NegativeIntensity,   // excerpt is the number, or the factor that makes intensities negative
    };

    Kind kind = Kind::Empty;
    std::size_t line = 0; // from 1; 0 where no line is meant
    int systemError = 0;  // errno, 0 if none
    std::wstring excerpt; // at most 40 printable characters
};

// The web in the bytes of a file. Takes memory in proportion to the bytes, whatever the counts in them say.
[[nodiscard]] Result<PhotometricWeb, Error> readWeb(std::string_view bytes);

// A web together with what was worked out from it.
struct WebFile {
    PhotometricWeb web;
    double flux = 0; // lumen
};

using LoadedWeb = Result<std::shared_ptr<const WebFile>, Error>;

// The web of a file. What was read lately, or found wrong, is kept and used again as long as the file stays the same
// (size and time of change), so that a thousand lights with one web cost one reading.
[[nodiscard]] LoadedWeb loadWeb(const std::filesystem::path& file);

// What is wrong, for people, in the language of the host: file, line, reason, what to do.
[[nodiscard]] std::wstring describe(const Error& error, const std::wstring& file);

} // namespace quor::ies
