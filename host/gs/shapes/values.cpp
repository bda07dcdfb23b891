#include "host/gs/shapes/values.h"

namespace quor::gs {

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
