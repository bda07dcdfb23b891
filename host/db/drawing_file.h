// The file a drawing came from, as it came, with the means to read and write single tags in its manner.
#pragma once

#include "host/db/object_entry.h"
#include "host/dxf/image.h"
#include "host/dxf/layout.h"
#include "host/dxf/tag_reader.h"
#include "host/dxf/tag_writer.h"
#include "host/dxf/text_codec.h"

#include <string_view>

namespace quor::db {

class DrawingFile {
public:
    DrawingFile(dxf::Image image, dxf::Layout layout);

    [[nodiscard]] const dxf::Layout& layout() const { return layout_; }
    [[nodiscard]] const dxf::Image& image() const { return image_; }
    [[nodiscard]] std::string_view bytes() const { return image_.bytes(); }
    [[nodiscard]] const dxf::TextCodec& codec() const { return codec_; }
    // The version as a number, 1032 for "AC1032"; a file that names none counts as 1009.
    [[nodiscard]] int version() const { return version_; }
    [[nodiscard]] const ZrString& versionName() const { return versionName_; }

    [[nodiscard]] const dxf::Record& record(std::size_t index) const { return layout_.records[index]; }
    [[nodiscard]] dxf::TagReader tags(const dxf::Record& record) const;
    [[nodiscard]] dxf::TagReader tags(std::uint64_t begin, std::uint64_t end) const;
    // The first tag of a record with this code, outside 102 groups and before extended data.
    [[nodiscard]] bool findTag(const dxf::Record& record, int code, dxf::Tag& tag) const;
    [[nodiscard]] std::wstring text(const dxf::Tag& tag) const { return codec_.decode(tag.asTrimmed()); }
    // A writer in the form and style of the file.
    [[nodiscard]] dxf::TagWriter writer() const { return dxf::TagWriter(layout_.form, layout_.style); }

    // The number of a type name; made when the file has none of that name.
    [[nodiscard]] dxf::NameId typeNumber(std::string_view name) { return layout_.names.intern(name); }
    [[nodiscard]] std::string_view typeName(dxf::NameId number) const { return layout_.names.name(number); }

private:
    dxf::Image image_;
    dxf::Layout layout_;
    dxf::TextCodec codec_;
    ZrString versionName_;
    int version_;
};

} // namespace quor::db
