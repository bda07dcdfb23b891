#include "host/db/file_messages.h"

#include "host/sys/system_error.h"
#include "host/sys/utf8.h"
#include "host/texts/drawing_files.h"

namespace quor::db {

namespace {

using Kind = dxf::Error::Kind;

ZrString place(const dxf::Error& error) {
    return error.binary || error.line == 0 ? fill(texts::kAtOffset, error.offset) : fill(texts::kAtLine, error.line);
}

} // namespace

ZrString pathText(const std::filesystem::path& path) { return fromUtf8(path.native()); }

ZrString describe(const dxf::Error& error, const ZrString& file) {
    switch (error.kind) {
    case Kind::CannotOpen:
        return fill(texts::kCannotOpenDrawing, file, systemErrorText(error.systemError));
    case Kind::Unreadable:
        return fill(texts::kCannotReadDrawing, file, systemErrorText(error.systemError));
    case Kind::Empty:
        return fill(texts::kEmptyDrawing, file);
    case Kind::NotDxf:
        return fill(texts::kNotADrawing, file, place(error));
    case Kind::BadGroupCode:
        return fill(texts::kBadGroupCode, file, place(error), error.excerpt);
    case Kind::MissingValue:
        return fill(texts::kMissingValue, file, place(error), error.excerpt);
    case Kind::SectionWithoutEnd:
        return fill(texts::kSectionWithoutEnd, file, place(error), error.excerpt);
    case Kind::RecordTooLong:
        return fill(texts::kRecordTooLong, file, place(error));
    default:
        break;
    }
    return fill(texts::kNoEndOfFile, file, place(error));
}

ZrString describeProblem(const dxf::Error& error) {
    switch (error.kind) {
    case Kind::BadGroupCode:
        return fill(texts::kProblemBadGroupCode, place(error), error.excerpt);
    case Kind::MissingValue:
        return fill(texts::kProblemMissingValue, place(error), error.excerpt);
    case Kind::NoEnd:
        return fill(texts::kProblemNoEnd, place(error));
    case Kind::BinaryTruncated:
        return fill(texts::kProblemCutValue, place(error));
    case Kind::Incomplete:
        return fill(error.excerpt.starts_with(L'$') ? texts::kProblemIncompleteVariable : texts::kProblemIncomplete,
                    place(error), error.excerpt);
    case Kind::BadNumber:
        return fill(texts::kProblemBadNumber, place(error), error.excerpt);
    case Kind::SectionWithoutEnd:
        return fill(texts::kProblemSectionWithoutEnd, place(error), error.excerpt);
    default:
        return fill(texts::kProblemOther, place(error));
    }
}

ZrString describe(const dxf::SaveError& error, const ZrString& file) {
    const ZrString why = systemErrorText(error.systemError);
    switch (error.step) {
    case dxf::SaveStep::Target:
        return fill(texts::kCannotSaveTarget, file, why);
    case dxf::SaveStep::CreateTemp:
        return fill(texts::kCannotSaveTemp, file, why);
    case dxf::SaveStep::Backup:
        return fill(texts::kCannotSaveBackup, file, why);
    case dxf::SaveStep::Replace:
        return fill(texts::kCannotSaveReplace, file, why);
    case dxf::SaveStep::Write:
    case dxf::SaveStep::Sync:
        break;
    }
    return fill(texts::kCannotSaveWrite, file, why);
}

} // namespace quor::db
