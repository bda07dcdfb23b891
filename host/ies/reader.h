// Reads photometric web files: LM-63 of 1986, 1991, 1995, 2002 and 2019, whatever their line breaks and separators.
#pragma once

#include "host/ies/photometric_web.h"
#include "host/sys/result.h"

#include <filesystem>
#include <memory>
#include <string_view>

namespace quor::ies {

// Why a file is no web that can be used.
struct Error {
    enum class Kind : std::uint8_t {
        NotFound,            // there is no such file
        Unreadable,          // no regular file, or reading failed; systemError says why
        TooLarge,            // larger than any web
        Empty,               // nothing but blanks
        NoTilt,              // the line TILT= is missing
        TiltFile,            // TILT names another file; excerpt is the name
        MissingNumber,       // the text ends where another number is needed
        BadNumber,           // excerpt is no finite number
        BadCount,            // a count of angles that is none, or is beyond all reason; excerpt is the number
        BadType,             // no photometry of type 1, 2 or 3; excerpt is the number
        BadUnit,             // neither 1 (feet) nor 2 (metres); excerpt is the number
        AnglesNotIncreasing, // excerpt is the angle that is not larger than the one before
        AnglesOutOfRange,    // excerpt is the first angle beyond what the type of photometry has
        NegativeIntensity,   // excerpt is the number
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

// The web of a file. What was read lately is kept and used again as long as the file stays the same (size and time of
// change), so that a thousand lights with one web cost one reading.
[[nodiscard]] Result<std::shared_ptr<const WebFile>, Error> loadWeb(const std::filesystem::path& file);

// What is wrong, for people, in the language of the host: file, line, reason, what to do.
[[nodiscard]] std::wstring describe(const Error& error, const std::wstring& file);

} // namespace quor::ies
