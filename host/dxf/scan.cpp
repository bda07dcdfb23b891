#include "host/dxf/binary_tags.h"
#include "host/dxf/code_line.h"
#include "host/dxf/layout_builder.h"
#include "host/dxf/line_ends.h"
#include "host/dxf/resync.h"
#include "host/dxf/tag_reader.h"

#include <algorithm>
#include <string>

namespace quor::dxf {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

using Step = LayoutBuilder::Step;

Failure<Error> refuse(Error::Kind kind, bool binary, std::string_view excerpt) {
    return fail(Error{kind, binary, binary ? std::size_t{0} : std::size_t{1}, 0, 0, excerptOf(excerpt)});
}

std::string_view lineAt(std::string_view file, std::size_t at) {
    constexpr std::size_t kEnough = 64;
    const std::string_view line = file.substr(at, kEnough);
    return trimmed(line.substr(0, line.find('\n')));
}

// A drawing begins, behind comments, with a section (or is empty).
bool beginsAsDrawing(std::string_view file, std::size_t at) {
    TagReader reader(file, Form::Ascii, at, file.size());
    Tag tag;
    while (reader.next(tag)) {
        if (kindOf(tag.code) != ValueKind::Comment) {
            return tag.is(0, "SECTION") || tag.is(0, "EOF");
        }
    }
    return false;
}

bool isInteger(ValueKind kind) {
    return kind == ValueKind::Int16 || kind == ValueKind::Int32 || kind == ValueKind::Int64 || kind == ValueKind::Bool;
}

// The first tags tell: codes below 100 how codes are written, integers how those are.
TextStyle styleOf(std::string_view file, std::size_t at) {
    constexpr std::size_t kSample = 16384;
    TextStyle style;
    const std::size_t lineFeed = std::min(file.find('\n', at), file.size());
    style.lineEnd = lineFeed > at && file[lineFeed - 1] == '\r' ? LineEnd::CrLf : LineEnd::Lf;
    TagReader reader(file, Form::Ascii, at, std::min(file.size(), at + kSample));
    Tag tag;
    bool codeSeen = false;
    while (reader.next(tag)) {
        if (!codeSeen && tag.code < 100) {
            style.padCodes = style.padIntegers = file[tag.begin] == ' ';
            codeSeen = true;
        }
        if (isInteger(kindOf(tag.code)) && !tag.raw.empty()) {
            style.padIntegers = tag.raw.front() == ' ';
            break;
        }
    }
    return style;
}

bool isBlankFrom(std::string_view file, std::size_t at) {
    constexpr std::string_view kBlanks = " \t\r\n\x1A\0";
    return file.find_first_not_of(kBlanks, at) == std::string_view::npos;
}

bool isEnd(int code, std::string_view value) { return code == 0 && trimmed(value) == "EOF"; }

// The file is at its end without 0/EOF: between two tags, inside one of a record, or inside one that begins the next.
bool breakOff(LayoutBuilder& builder, const Error& error, std::size_t lastWhole, bool recordWhole) {
    if (!builder.problem(error.kind, error.offset, error.excerpt)) {
        return false;
    }
    builder.breakOff(lastWhole, recordWhole);
    return true;
}

Error errorAt(Error::Kind kind, std::size_t offset, std::wstring excerpt = {}) {
    Error error;
    error.kind = kind;
    error.offset = offset;
    error.excerpt = std::move(excerpt);
    return error;
}

// False when the file is refused.
bool scanAscii(std::string_view file, std::size_t at, LayoutBuilder& builder) {
    const char* text = file.data();
    LineEnds ends(file, at);
    Tag tag;
    while (at < file.size()) {
        const std::size_t codeEnd = ends.next();
        tag.code = readCodeLine(text + at, codeEnd - at);
        if (tag.code == kBadCode) [[unlikely]] {
            if (isBlankFrom(file, at)) {
                break;
            }
            if (!builder.problem(Error::Kind::BadGroupCode, at, excerptOf(lineAt(file, at)))) {
                return false;
            }
            builder.markDamaged();
            const std::size_t next = findPlausibleTag(file, at, builder.inHeader());
            if (next >= file.size()) {
                return breakOff(builder, errorAt(Error::Kind::NoEnd, file.size() - 1), at, false);
            }
            at = next;
            ends.seek(at);
            continue;
        }
        const std::size_t valueBegin = codeEnd + 1;
        if (valueBegin >= file.size()) [[unlikely]] {
            return breakOff(builder, errorAt(Error::Kind::MissingValue, at, excerptOf(lineAt(file, at))), at,
                            tag.code == 0);
        }
        const std::size_t valueEnd = ends.next();
        tag.end = std::min(valueEnd + 1, file.size());
        if (valueEnd >= file.size() && !isEnd(tag.code, file.substr(valueBegin))) [[unlikely]] {
            // The value may be cut short.
            return breakOff(builder, errorAt(Error::Kind::NoEnd, file.size() - 1), at, tag.code == 0);
        }
        if (builder.wants(tag.code)) {
            tag.begin = at;
            tag.raw = {text + valueBegin, valueEnd - valueBegin};
            if (const Step step = builder.tag(tag); step != Step::Go) {
                return step == Step::End;
            }
        }
        at = tag.end;
    }
    return breakOff(builder, errorAt(Error::Kind::NoEnd, file.size() - 1), at, true);
}

bool scanBinary(std::string_view file, Form form, std::size_t at, LayoutBuilder& builder) {
    Tag tag;
    while (true) {
        tag.code = -1; // while it is not known
        const BinaryStep found = readBinaryTag(file, form, at, file.size(), tag);
        if (found == BinaryStep::Ok) {
            if (const Step step = builder.tag(tag); step != Step::Go) {
                return step == Step::End;
            }
            at = tag.end;
            continue;
        }
        if (found == BinaryStep::AtEnd) {
            return breakOff(builder, errorAt(Error::Kind::NoEnd, file.size()), at, true);
        }
        const bool badCode = found == BinaryStep::BadCode;
        if (!builder.problem(badCode ? Error::Kind::BadGroupCode : Error::Kind::BinaryTruncated, at,
                             badCode ? std::to_wstring(tag.code) : std::wstring())) {
            return false;
        }
        const std::size_t next = findPlausibleBinaryTag(file, form, at + 1);
        if (next >= file.size()) {
            return breakOff(builder, errorAt(Error::Kind::NoEnd, file.size()), at, !badCode && tag.code == 0);
        }
        builder.markDamaged();
        at = next;
    }
}

} // namespace

Result<Layout, Error> scan(const Image& image, const ScanOptions& options) {
    const std::string_view file = image.bytes();
    if (file.empty()) {
        return refuse(Error::Kind::Empty, true, {});
    }
    Layout layout;
    const bool binary = file.starts_with(binarySentinel());
    if (binary) {
        layout.firstTag = binarySentinel().size();
        if (file.size() < layout.firstTag + 2) {
            return refuse(Error::Kind::BinaryTruncated, true, {});
        }
        layout.form = file[layout.firstTag + 1] == 0 ? Form::Binary16 : Form::Binary8;
    } else {
        layout.byteOrderMark = file.starts_with(kByteOrderMark);
        layout.firstTag = layout.byteOrderMark ? kByteOrderMark.size() : 0;
        if (!beginsAsDrawing(file, layout.firstTag)) {
            return refuse(Error::Kind::NotDxf, false, lineAt(file, layout.firstTag));
        }
        layout.style = styleOf(file, layout.firstTag);
    }
    LayoutBuilder builder(layout, file, options);
    const bool read =
        binary ? scanBinary(file, layout.form, layout.firstTag, builder) : scanAscii(file, layout.firstTag, builder);
    if (!read) {
        return fail(builder.refusal());
    }
    if (options.progress) {
        options.progress(1.0);
    }
    return layout;
}

} // namespace quor::dxf
