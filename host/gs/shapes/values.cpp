#include "host/gs/shapes/values.h"

namespace quor::gs {

ZrString drawableText(const Source& source, dxf::Tag tag) {
    tag.raw = tag.raw.substr(0, kLongestText);
    return source.file().text(tag);
}

// Codes below 0 are in every set of codes.
bool BodyTags::next() {
    do {
        if (!reader_.next(tag_, wanted_))
            return false;
    } while (tag_.code < 0);
    return tag_.code < dxf::CodeSet::kFirstExtendedData && tag_.code != kEmbeddedObject;
}

double BodyTags::real() {
    const auto value = dxf::kindOf(tag_.code) == dxf::ValueKind::Double ? tag_.asDouble() : std::optional<double>();
    if (value)
        return *value;
    return static_cast<double>(whole());
}

std::int64_t BodyTags::whole() {
    const auto value = tag_.asInt();
    broken_ = broken_ || !value;
    return value.value_or(0);
}

} // namespace quor::gs
