#include "host/db/file_messages.h"

#include "host/sys/utf8.h"
#include "host/texts/drawing_files.h"

#include <system_error>

namespace quor::db {

namespace {

using Kind = dxf::Error::Kind;

ZrString place(const dxf::Error& error) {
    return error.binary || error.line == 0 ? fill(texts::atOffset, error.offset) : fill(texts::atLine, error.line);
}

} // namespace

ZrString pathText(const std::filesystem::path& path) { return fromUtf8(path.native()); }

ZrString systemMessage(int number) { return fromUtf8(std::generic_category().message(number)); }

ZrString describe(const dxf::Error& error, const ZrString& file) {
    switch (error.kind) {
    case Kind::CannotOpen:
        return fill(texts::cannotOpenDrawing, file, systemMessage(error.systemError));
    case Kind::Unreadable:
        return fill(texts::cannotReadDrawing, file, systemMessage(error.systemError));
    case Kind::Empty:
        return fill(texts::emptyDrawing, file);
    case Kind::NotDxf:
        return fill(texts::notADrawing, file, place(error));
    case Kind::BadGroupCode:
        return fill(texts::badGroupCode, file, place(error), error.excerpt);
    case Kind::MissingValue:
        return fill(texts::missingValue, file, place(error), error.excerpt);
    case Kind::SectionWithoutEnd:
        return fill(texts::sectionWithoutEnd, file, place(error), error.excerpt);
    case Kind::RecordTooLong:
        return fill(texts::recordTooLong, file, place(error));
    case Kind::NoEnd:
    case Kind::BinaryTruncated:
        break;
    }
    return fill(texts::noEndOfFile, file, place(error));
}

ZrString describeProblem(const dxf::Error& error) {
    switch (error.kind) {
    case Kind::BadGroupCode:
        return fill(texts::problemBadGroupCode, place(error), error.excerpt);
    case Kind::MissingValue:
        return fill(texts::problemMissingValue, place(error), error.excerpt);
    case Kind::NoEnd:
    case Kind::BinaryTruncated:
        return fill(texts::problemNoEnd, place(error));
    case Kind::SectionWithoutEnd:
        return fill(texts::problemSectionWithoutEnd, place(error), error.excerpt);
    default:
        return fill(texts::problemOther, place(error));
    }
}

ZrString describe(const dxf::SaveError& error, const ZrString& file) {
    const ZrString why = systemMessage(error.systemError);
    switch (error.step) {
    case dxf::SaveStep::Target:
        return fill(texts::cannotSaveTarget, file, why);
    case dxf::SaveStep::CreateTemp:
        return fill(texts::cannotSaveTemp, file, why);
    case dxf::SaveStep::Backup:
        return fill(texts::cannotSaveBackup, file, why);
    case dxf::SaveStep::Replace:
        return fill(texts::cannotSaveReplace, file, why);
    case dxf::SaveStep::Write:
    case dxf::SaveStep::Sync:
        break;
    }
    return fill(texts::cannotSaveWrite, file, why);
}

} // namespace quor::db
