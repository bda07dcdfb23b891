#include "host/dxf/number_check.h"

#include "host/dxf/tag_reader.h"

#include <algorithm>

namespace quor::dxf {
namespace {

constexpr int kFirstExtendedData = 1000;

bool isSound(const Tag& tag) {
    switch (kindOf(tag.code)) {
    case ValueKind::Double:
        return tag.asDouble().has_value();
    case ValueKind::Int16:
    case ValueKind::Int32:
    case ValueKind::Int64:
    case ValueKind::Bool:
        return tag.asInt().has_value();
    default:
        return true;
    }
}

class Checker {
public:
    Checker(const Image& image, Layout& layout) : file_(image.bytes()), layout_(layout) {}

    void check(std::uint64_t begin, std::uint64_t end) {
        TagReader reader(file_, layout_.form, begin, end);
        Tag tag;
        while (reader.next(tag) && tag.code < kFirstExtendedData) {
            if (!isSound(tag)) {
                report(tag);
            }
        }
    }

private:
    void report(const Tag& tag) {
        ++layout_.problemCount;
        if (layout_.problems.size() >= Layout::kMaxProblems) {
            return;
        }
        const bool binary = layout_.form != Form::Ascii;
        Error error;
        error.kind = Error::Kind::BadNumber;
        error.binary = binary;
        error.offset = tag.begin;
        if (!binary) {
            constexpr std::size_t kValueLine = 1; // behind that of the group code
            // A header may stand behind other sections.
            if (tag.begin < countedTo_) {
                countedTo_ = 0;
                lines_ = 1;
            }
            lines_ += lineOf(file_.substr(countedTo_), tag.begin - countedTo_) - 1;
            countedTo_ = tag.begin;
            error.line = lines_ + kValueLine;
        }
        // In binary form, any eight bytes are a number or one of these.
        error.excerpt = binary ? L"NaN/Inf" : excerptOf(tag.asTrimmed());
        layout_.problems.push_back(std::move(error));
    }

    std::string_view file_;
    Layout& layout_;
    std::size_t countedTo_ = 0;
    std::size_t lines_ = 1;
};

} // namespace

void checkNumbers(const Image& image, Layout& layout, std::span<const std::string_view> types) {
    Checker checker(image, layout);
    for (const HeaderVar& variable : layout.headerVars) {
        checker.check(variable.valueBegin, variable.end);
    }
    for (const Record& record : layout.records) {
        if (std::find(types.begin(), types.end(), layout.typeName(image, record)) != types.end()) {
            checker.check(record.begin, record.end());
        }
    }
}

} // namespace quor::dxf
