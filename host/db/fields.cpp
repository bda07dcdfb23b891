#include "host/db/fields.h"

#include "host/db/database.h"

#include <algorithm>
#include <vector>

namespace quor::db {

namespace {

constexpr int kSubclassMarker = 100;
constexpr int kGroupMarker = 102;
constexpr int kFirstExtendedData = 1000;
constexpr std::size_t kNone = static_cast<std::size_t>(-1);

// Follows the tags of a record and tells for each one which field it is.
class FieldMatcher {
public:
    FieldMatcher(std::span<const FieldGroup> groups, bool hasMarkers) : groups_(groups), hasMarkers_(hasMarkers) {
        if (!hasMarkers_)
            for (std::size_t i = 0; i < groups_.size(); ++i)
                active_.push_back(i);
        next_.resize(groups_.size());
        seen_.resize(groups_.size());
        for (std::size_t i = 0; i < groups_.size(); ++i)
            seen_[i].assign(groups_[i].fields.size(), false);
    }

    struct Match {
        std::size_t group = kNone;
        std::size_t field = kNone;
        explicit operator bool() const { return group != kNone; }
    };

    Match match(const dxf::Tag& tag) {
        if (tag.code >= kFirstExtendedData)
            extended_ = true;
        if (extended_)
            return {};
        if (tag.code == kGroupMarker) {
            inBraces_ = tag.asTrimmed().starts_with('{');
            return {};
        }
        if (tag.code == kSubclassMarker && hasMarkers_) {
            enter(tag.asTrimmed());
            return {};
        }
        if (inBraces_)
            return {};
        for (const std::size_t group : active_)
            if (const Match found = matchIn(group, tag.code))
                return found;
        return {};
    }

    // The group whose tags are being read, for the place of fields that are missing; kNone outside all of them.
    [[nodiscard]] std::size_t current() const {
        if (extended_ || active_.empty())
            return kNone;
        return hasMarkers_ ? active_.front() : groups_.size() - 1;
    }
    [[nodiscard]] bool wasSeen(std::size_t group, std::size_t field) const { return seen_[group][field]; }

private:
    void enter(std::string_view subclass) {
        active_.clear();
        for (std::size_t i = 0; i < groups_.size(); ++i)
            if (groups_[i].subclass == subclass)
                active_.push_back(i);
    }

    Match matchIn(std::size_t group, int code) {
        const auto& fields = groups_[group].fields;
        if (groups_[group].endsWithLastField && next_[group] == fields.size() && hasMarkers_)
            return {};
        for (std::size_t i = 0; i < fields.size(); ++i)
            if (fields[i].code == code && !seen_[group][i]) {
                seen_[group][i] = true;
                next_[group] = std::max(next_[group], i + 1);
                return {group, i};
            }
        return {};
    }

    std::span<const FieldGroup> groups_;
    std::vector<std::size_t> active_;
    std::vector<std::size_t> next_;
    std::vector<std::vector<bool>> seen_;
    bool hasMarkers_;
    bool inBraces_ = false;
    bool extended_ = false;
};

bool hasSubclassMarkers(const DrawingFile& file, const dxf::Record& record) {
    dxf::Tag tag;
    return file.findTag(record, kSubclassMarker, tag);
}

void writeValue(dxf::TagWriter& writer, const dxf::TextCodec& codec, int code, const FieldValue& value) {
    if (!value)
        return;
    if (const auto* number = std::get_if<std::int64_t>(&*value))
        writer.integer(code, *number);
    else if (const auto* real = std::get_if<double>(&*value))
        writer.real(code, *real);
    else
        writer.text(code, codec.encode(std::get<std::wstring>(*value)));
}

// Rewrites one record; see rewriteFields.
class Rewriter {
public:
    Rewriter(const DrawingFile& file, const dxf::Record& record, std::span<const FieldGroup> groups,
             const ZrDbObjectData& original, const ZrDbObjectData& data, const FieldContext& context)
        : file_(file), record_(record), groups_(groups), original_(original), data_(data), context_(context),
          hasMarkers_(hasSubclassMarkers(file, record)), present_(groups, hasMarkers_), writer_(file.writer()) {
        dxf::TagReader reader = file_.tags(record_);
        dxf::Tag tag;
        while (reader.next(tag))
            (void)present_.match(tag);
    }

    std::string run() {
        FieldMatcher matcher(groups_, hasMarkers_);
        std::vector<std::size_t> written(groups_.size(), 0);
        dxf::TagReader reader = file_.tags(record_);
        dxf::Tag tag;
        std::size_t end = record_.begin;
        std::size_t group = kNone;
        while (reader.next(tag)) {
            const FieldMatcher::Match match = matcher.match(tag);
            if (matcher.current() != group) {
                finish(group, written);
                group = matcher.current();
            }
            if (match) {
                missingBefore(match.group, match.field, written);
                replace(groups_[match.group].fields[match.field], tag);
                written[match.group] = std::max(written[match.group], match.field + 1);
            } else {
                writer_.raw(file_.bytes().substr(tag.begin, tag.end - tag.begin));
            }
            end = tag.end;
        }
        finish(group, written);
        writer_.raw(file_.bytes().substr(end, record_.end() - end));
        return writer_.take();
    }

private:
    void replace(const Field& field, const dxf::Tag& tag) {
        const FieldValue value = field.write(data_, context_);
        if (field.write(original_, context_) == value)
            writer_.raw(file_.bytes().substr(tag.begin, tag.end - tag.begin));
        else
            writeValue(writer_, file_.codec(), field.code, value);
    }

    // Fields that the file leaves out and that have another value now than that implied.
    void missingBefore(std::size_t group, std::size_t field, std::vector<std::size_t>& written) {
        const auto& fields = groups_[group].fields;
        for (std::size_t i = written[group]; i < field; ++i)
            if (!present_.wasSeen(group, i)) {
                const FieldValue value = fields[i].write(data_, context_);
                if (value != fields[i].write(original_, context_))
                    writeValue(writer_, file_.codec(), fields[i].code, value);
            }
        written[group] = std::max(written[group], field);
    }

    void finish(std::size_t group, std::vector<std::size_t>& written) {
        if (group == kNone)
            return;
        // Without subclass markers all groups end together.
        for (std::size_t i = hasMarkers_ ? group : 0; i <= group; ++i)
            missingBefore(i, groups_[i].fields.size(), written);
    }

    const DrawingFile& file_;
    const dxf::Record& record_;
    std::span<const FieldGroup> groups_;
    const ZrDbObjectData& original_;
    const ZrDbObjectData& data_;
    const FieldContext& context_;
    bool hasMarkers_;
    FieldMatcher present_;
    dxf::TagWriter writer_;
};

} // namespace

void readFields(const DrawingFile& file, const dxf::Record& record, std::span<const FieldGroup> groups,
                ZrDbObjectData& data, const FieldContext& context) {
    FieldMatcher matcher(groups, hasSubclassMarkers(file, record));
    dxf::TagReader reader = file.tags(record);
    dxf::Tag tag;
    while (reader.next(tag))
        if (const FieldMatcher::Match match = matcher.match(tag))
            groups[match.group].fields[match.field].read(data, tag, context);
}

void writeFields(dxf::TagWriter& writer, const dxf::TextCodec& codec, std::span<const Field> fields,
                 const ZrDbObjectData& data, const FieldContext& context) {
    for (const Field& field : fields)
        writeValue(writer, codec, field.code, field.write(data, context));
}

std::string rewriteFields(const DrawingFile& file, const dxf::Record& record, std::span<const FieldGroup> groups,
                          const ZrDbObjectData& original, const ZrDbObjectData& data, const FieldContext& context) {
    return Rewriter(file, record, groups, original, data, context).run();
}

bool fieldsDiffer(std::span<const Field> fields, const ZrDbObjectData& a, const ZrDbObjectData& b,
                  const FieldContext& context) {
    return std::any_of(fields.begin(), fields.end(),
                       [&](const Field& field) { return field.write(a, context) != field.write(b, context); });
}

} // namespace quor::db
