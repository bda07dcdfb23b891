// Points as people type them.
#include "host/db/point_parse.h"

#include <array>
#include <cmath>

#include "host/db/units_parse.h"

namespace quor::units {

namespace {

bool takePrefix(std::wstring_view& text, wchar_t mark) {
    if (text.empty() || text.front() != mark)
        return false;
    text.remove_prefix(1);
    return true;
}

// The parts of a text between separators, empty ones included. Stops after four: no form has as many.
class Parts {
public:
    Parts(std::wstring_view text, wchar_t separator) {
        std::size_t begin = 0;
        while (size_ < parts_.size()) {
            const std::size_t end = text.find(separator, begin);
            parts_[size_++] = text.substr(begin, end - begin);
            if (end == std::wstring_view::npos)
                break;
            begin = end + 1;
        }
    }

    [[nodiscard]] std::size_t size() const { return size_; }
    std::wstring_view operator[](std::size_t i) const { return parts_[i]; }

private:
    std::array<std::wstring_view, 4> parts_;
    std::size_t size_ = 0;
};

std::optional<double> length(std::wstring_view text, const PointContext& context) {
    return parseLength(text, -1, context.settings);
}

// x,y or x,y,z
std::optional<ZrGeVector3d> cartesian(const Parts& parts, const PointContext& context) {
    const auto x = length(parts[0], context);
    const auto y = length(parts[1], context);
    const auto z = parts.size() == 3 ? length(parts[2], context) : 0.0;
    if (!x || !y || !z)
        return std::nullopt;
    return ZrGeVector3d(*x, *y, *z);
}

// d<a, with z when it is given
std::optional<ZrGeVector3d> cylindrical(const Parts& polar, std::optional<double> z, const PointContext& context) {
    const auto distance = length(polar[0], context);
    const auto angle = parseAngle(polar[1], -1, context.settings);
    if (!distance || !angle || !z)
        return std::nullopt;
    return ZrGeVector3d(*distance * std::cos(*angle), *distance * std::sin(*angle), *z);
}

// d<a<b. The angle up from the plane has no base and no direction, only a unit.
std::optional<ZrGeVector3d> spherical(const Parts& polar, const PointContext& context) {
    UnitSettings upward = context.settings;
    upward.angleBase = 0;
    upward.clockwise = false;
    const auto distance = length(polar[0], context);
    const auto angle = parseAngle(polar[1], -1, context.settings);
    const auto elevation = parseAngle(polar[2], -1, upward);
    if (!distance || !angle || !elevation)
        return std::nullopt;
    const double flat = *distance * std::cos(*elevation);
    return ZrGeVector3d(flat * std::cos(*angle), flat * std::sin(*angle), *distance * std::sin(*elevation));
}

std::optional<ZrGeVector3d> coordinates(std::wstring_view text, const PointContext& context) {
    const Parts parts(text, L',');
    const Parts polar(parts[0], L'<');
    if (polar.size() == 1) {
        const bool known = parts.size() == 2 || (parts.size() == 3 && context.allowZ);
        return known ? cartesian(parts, context) : std::nullopt;
    }
    if (polar.size() == 2 && parts.size() == 1)
        return cylindrical(polar, 0.0, context);
    if (polar.size() == 2 && parts.size() == 2 && context.allowZ)
        return cylindrical(polar, length(parts[1], context), context);
    if (polar.size() == 3 && parts.size() == 1 && context.allowZ)
        return spherical(polar, context);
    return std::nullopt;
}

std::optional<ZrGePoint3d> startPoint(bool relative, bool world, const PointContext& context) {
    if (!relative)
        return ZrGePoint3d::kOrigin;
    return world && context.lastPointWorld ? context.lastPointWorld : context.lastPoint;
}

bool isFinite(const ZrGePoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

} // namespace

std::optional<ParsedPoint> parsePoint(std::wstring_view text, const PointContext& context) {
    if (text.find_first_of(L" \t\r\n") != std::wstring_view::npos)
        return std::nullopt;
    const bool relative = takePrefix(text, L'@');
    const bool world = takePrefix(text, L'*');
    const auto start = startPoint(relative, world, context);
    if (!start)
        return std::nullopt;
    if (relative && !world && text.empty())
        return ParsedPoint{*start, false};
    const auto offset = coordinates(text, context);
    if (!offset || !isFinite(*start + *offset))
        return std::nullopt;
    return ParsedPoint{*start + *offset, world};
}

} // namespace quor::units
