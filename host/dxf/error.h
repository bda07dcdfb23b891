// What can be wrong with a drawing file, as data: the words for people are chosen by the caller.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quor::dxf {

struct Error {
    enum class Kind : std::uint8_t {
        CannotOpen,        // systemError says why
        Unreadable,        // opened, but reading failed; systemError says why
        Empty,             // 0 bytes
        NotDxf,            // does not begin as a drawing file does
        BadGroupCode,      // excerpt is the line (ASCII) or the code (binary) that is no group code
        MissingValue,      // the file breaks off behind a group code; excerpt is the code
        NoEnd,             // the file breaks off: there is no 0/EOF
        BinaryTruncated,   // binary form: the file breaks off inside a tag
        SectionWithoutEnd, // a SECTION or EOF comes while the section named by excerpt is open
        RecordTooLong,     // one record of 4 GB or more
        Incomplete,        // recovery left out what the file breaks off in; excerpt is the type or the $variable
        BadNumber,         // recovery found a value that is no number; excerpt is the value
    };

    Kind kind = Kind::NotDxf;
    bool binary = false;    // then there are no lines: name the offset
    std::size_t line = 0;   // 1 is the first; 0 in binary files and where no line is meant
    std::size_t offset = 0; // byte offset in the file
    int systemError = 0;    // errno, 0 if none
    std::wstring excerpt;   // at most 40 printable characters, other ones shown as '?'
};

// The first 40 characters of text, printable ASCII only: safe to show whatever the file holds.
[[nodiscard]] std::wstring excerptOf(std::string_view text);

} // namespace quor::dxf
