// The numbers of an entity by their group codes.
#pragma once

#include "host/gs/shapes/source.h"
#include "sdk/ge/matrix3d.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quor::gs {

// What a tag says, so much of it as can be drawn: nobody reads a text that is longer than this many bytes.
inline constexpr std::size_t kLongestText = 1'000'000;
[[nodiscard]] ZrString drawableText(const Source& source, dxf::Tag tag);

// Begins the tags of an object inside of an entity, with codes like its own.
inline constexpr int kEmbeddedObject = 101;

// Walks the tags of a record with wanted codes, up to its extended data or an embedded object, where that is wanted.
class BodyTags {
public:
    BodyTags(const Source& source, const dxf::CodeSet& wanted)
        : BodyTags(source.file().tags(source.bodyBegin, source.record().end()), wanted) {}
    // Of a record that belongs to an entity.
    BodyTags(const db::DrawingFile& file, const dxf::Record& record, const dxf::CodeSet& wanted)
        : BodyTags(file.tags(record), wanted) {}

    [[nodiscard]] bool next();
    [[nodiscard]] int code() const { return tag_.code; }
    [[nodiscard]] const dxf::Tag& tag() const { return tag_; }
    // The number of the tag; 0 when it holds none, and the record is broken then.
    [[nodiscard]] double real();
    [[nodiscard]] std::int64_t whole();
    // A number was no number.
    [[nodiscard]] bool isBroken() const { return broken_; }

private:
    BodyTags(const dxf::TagReader& reader, const dxf::CodeSet& wanted) : reader_(reader), wanted_(wanted) {}

    dxf::TagReader reader_;
    const dxf::CodeSet& wanted_;
    dxf::Tag tag_;
    bool broken_ = false;
};

// The numbers with these codes, of a code that occurs again the first.
template <int... Codes>
class Values {
public:
    static constexpr dxf::CodeSet kWanted{Codes..., kEmbeddedObject};

    explicit Values(const Source& source) : Values(BodyTags(source, kWanted)) {}
    explicit Values(BodyTags tags) {
        while (tags.next()) {
            const std::size_t at = placeOf(tags.code());
            const double value = tags.real();
            if (!has_[at])
                values_[at] = value;
            has_[at] = true;
        }
        broken_ = tags.isBroken();
    }

    [[nodiscard]] bool isBroken() const { return broken_; }
    template <int Code>
    [[nodiscard]] bool has() const {
        return has_[placeOf(Code)];
    }
    template <int Code>
    [[nodiscard]] double real(double otherwise = 0) const {
        return has<Code>() ? values_[placeOf(Code)] : otherwise;
    }
    // Numbers that are too large for it count as 0.
    template <int Code>
    [[nodiscard]] int whole(int otherwise = 0) const {
        constexpr double most = 1'000'000'000;
        const double value = real<Code>(otherwise);
        return value >= -most && value <= most ? static_cast<int>(value) : 0;
    }
    // The three numbers of a point, 10 apart.
    template <int Code>
    [[nodiscard]] ZrGePoint3d point() const {
        return {real<Code>(), real<Code + 10>(), real<Code + 20>()};
    }
    // From the plane in which the entity stands to the world.
    [[nodiscard]] ZrGeMatrix3d plane() const {
        return ZrGeMatrix3d().setToPlaneToWorld({real<210>(), real<220>(), real<230>(1)});
    }

private:
    [[nodiscard]] static constexpr std::size_t placeOf(int code) {
        constexpr std::array codes{Codes...};
        return static_cast<std::size_t>(std::find(codes.begin(), codes.end(), code) - codes.begin());
    }

    std::array<double, sizeof...(Codes)> values_{};
    std::array<bool, sizeof...(Codes)> has_{};
    bool broken_ = false;
};

} // namespace quor::gs
