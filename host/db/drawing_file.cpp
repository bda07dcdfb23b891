#include "host/db/drawing_file.h"

#include "host/db/versions.h"
#include "host/sys/utf8.h"

namespace quor::db {

namespace {

constexpr int kFirstExtendedData = 1000;

int versionNumber(std::string_view name) {
    if (name.size() != 6 || !name.starts_with("AC"))
        return versions::kOldest;
    return static_cast<int>(dxf::parseInt(name.substr(2)).value_or(versions::kOldest));
}

} // namespace

DrawingFile::DrawingFile(dxf::Image image, dxf::Layout layout)
    : image_(std::move(image)), layout_(std::move(layout)), codec_(layout_.version, layout_.codePage),
      versionName_(layout_.version.empty() ? L"AC1009" : fromUtf8(layout_.version)),
      version_(versionNumber(layout_.version)) {}

dxf::TagReader DrawingFile::tags(const dxf::Record& record) const { return tags(record.begin, record.end()); }

dxf::TagReader DrawingFile::tags(std::uint64_t begin, std::uint64_t end) const {
    return {bytes(), layout_.form, begin, end};
}

bool DrawingFile::findTag(const dxf::Record& record, int code, dxf::Tag& tag) const {
    dxf::TagReader reader = tags(record);
    bool inGroup = false;
    while (reader.next(tag)) {
        if (tag.code >= kFirstExtendedData)
            return false;
        if (tag.code == 102)
            inGroup = tag.asTrimmed().starts_with('{');
        else if (tag.code == code && !inGroup)
            return true;
    }
    return false;
}

} // namespace quor::db
