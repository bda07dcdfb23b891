#include "host/db/header_store.h"

#include "host/sys/utf8.h"

#include <utility>

namespace quor::db {

namespace {

std::optional<HeaderStore::Variable> readValue(const DrawingFile& file, const dxf::HeaderVar& variable) {
    dxf::TagReader reader = file.tags(variable.valueBegin, variable.end);
    dxf::Tag tag;
    if (!reader.next(tag))
        return std::nullopt;
    const int code = tag.code;
    switch (dxf::kindOf(code)) {
    case dxf::ValueKind::Double: {
        const double first = tag.asDouble().value_or(0);
        if (code < 10 || code >= 40)
            return HeaderStore::Variable{code, first};
        ZrGePoint3d point{first, 0, 0};
        if (reader.next(tag))
            point.y = tag.asDouble().value_or(0);
        const bool flat = !reader.next(tag);
        if (!flat)
            point.z = tag.asDouble().value_or(0);
        return HeaderStore::Variable{code, point, flat};
    }
    case dxf::ValueKind::Int16:
    case dxf::ValueKind::Int32:
    case dxf::ValueKind::Int64:
    case dxf::ValueKind::Bool:
        return HeaderStore::Variable{code, static_cast<long long>(tag.asInt().value_or(0))};
    default:
        return HeaderStore::Variable{code, file.text(tag)};
    }
}

void writePoint(dxf::TagWriter& writer, const HeaderStore::Variable& variable, const ZrGePoint3d& point) {
    constexpr int kNextCoordinate = 10;
    if (!variable.flat) {
        writer.point(variable.code, point.x, point.y, point.z);
        return;
    }
    writer.real(variable.code, point.x);
    writer.real(variable.code + kNextCoordinate, point.y);
}

} // namespace

HeaderStore::Place& HeaderStore::placeOf(std::wstring_view name) const {
    if (const auto known = places_.find(name); known != places_.end())
        return known->second;
    Place& place = places_[ZrString(name)];
    if (const dxf::HeaderVar* variable = file_.layout().findVar(toUtf8(name)))
        place.inFile = readValue(file_, *variable);
    return place;
}

std::optional<HeaderStore::Variable> HeaderStore::set(const ZrString& name, std::optional<Variable> variable) {
    return std::exchange(placeOf(name).set, std::move(variable));
}

std::map<ZrString, HeaderStore::Variable> HeaderStore::changed() const {
    std::map<ZrString, Variable> different;
    for (const auto& [name, place] : places_) {
        const std::optional<Variable>& original = place.inFile;
        if (place.set && (!original || original->value != place.set->value))
            different.emplace(name, original ? Variable{original->code, place.set->value, original->flat} : *place.set);
    }
    return different;
}

void HeaderStore::write(dxf::TagWriter& writer, const dxf::TextCodec& codec, const ZrString& name,
                        const Variable& variable) {
    writer.text(9, toUtf8(name));
    if (const auto* number = std::get_if<long long>(&variable.value))
        writer.integer(variable.code, *number);
    else if (const auto* real = std::get_if<double>(&variable.value))
        writer.real(variable.code, *real);
    else if (const auto* text = std::get_if<ZrString>(&variable.value))
        writer.text(variable.code, codec.encode(*text));
    else
        writePoint(writer, variable, std::get<ZrGePoint3d>(variable.value));
}

} // namespace quor::db
