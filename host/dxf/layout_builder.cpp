#include "host/dxf/layout_builder.h"

#include <algorithm>
#include <limits>

namespace quor::dxf {
namespace {

constexpr std::size_t kBytesPerReport = std::size_t{4} << 20;
constexpr std::size_t kUsualRecordSize = 320;

} // namespace

LayoutBuilder::LayoutBuilder(Layout& layout, std::string_view file, const ScanOptions& options)
    : layout_(layout), file_(file), options_(options) {
    layout_.records.reserve(file.size() / kUsualRecordSize + 16);
}

LayoutBuilder::Step LayoutBuilder::tag(const Tag& tag) {
    if (tag.code == 0) {
        return zeroGroup(tag);
    }
    if (nameless_) {
        nameSection(tag);
    } else if (recordOpen_) {
        recordTag(tag);
    } else if (inHeader_) {
        headerTag(tag);
    }
    return Step::Go;
}

LayoutBuilder::Step LayoutBuilder::zeroGroup(const Tag& tag) {
    if (closeRecord(tag.begin) == Step::Refuse) {
        return Step::Refuse;
    }
    closeVar(tag.begin);
    report(tag.begin);
    const std::string_view name = tag.asTrimmed();
    if (name == "SECTION") {
        return openSection(tag);
    }
    if (name == "ENDSEC") {
        closeSection(tag.begin, tag.end, true);
        return Step::Go;
    }
    if (name == "EOF") {
        if (sectionOpen_ &&
            !problem(Error::Kind::SectionWithoutEnd, tag.begin, excerptOf(layout_.sections.back().name))) {
            return Step::Refuse;
        }
        closeSection(tag.begin, tag.begin, false);
        layout_.hasEnd = true;
        layout_.endTag = {tag.begin, tag.end};
        return Step::End;
    }
    if (sectionOpen_) {
        openRecord(tag, name);
    }
    return Step::Go;
}

LayoutBuilder::Step LayoutBuilder::openSection(const Tag& tag) {
    if (sectionOpen_ && !problem(Error::Kind::SectionWithoutEnd, tag.begin, excerptOf(layout_.sections.back().name))) {
        return Step::Refuse;
    }
    closeSection(tag.begin, tag.begin, false);
    Section& section = layout_.sections.emplace_back();
    section.begin = tag.begin;
    section.bodyBegin = tag.end;
    section.firstRecord = layout_.records.size();
    sectionOpen_ = true;
    nameless_ = true;
    wantsAll_ = true;
    return Step::Go;
}

void LayoutBuilder::nameSection(const Tag& tag) {
    constexpr int kComment = 999;
    if (tag.code == kComment) {
        return;
    }
    nameless_ = false;
    Section& section = layout_.sections.back();
    if (tag.code == 2) {
        section.name = tag.asTrimmed();
        section.bodyBegin = tag.end;
    }
    inHeader_ = section.name == "HEADER";
    wantsAll_ = inHeader_;
}

void LayoutBuilder::closeSection(std::size_t bodyEnd, std::size_t end, bool closed) {
    if (!sectionOpen_) {
        return;
    }
    Section& section = layout_.sections.back();
    section.bodyEnd = bodyEnd;
    section.end = end;
    section.lastRecord = layout_.records.size();
    section.closed = closed;
    sectionOpen_ = nameless_ = inHeader_ = wantsAll_ = false;
}

void LayoutBuilder::openRecord(const Tag& tag, std::string_view name) {
    record_ = Record{};
    record_.begin = tag.begin;
    record_.type = layout_.names.intern(name);
    handleIn105_ = name == "DIMSTYLE";
    markerSeen_ = inGroup_ = paperSeen_ = false;
    recordOpen_ = true;
    if (nameless_) {
        nameless_ = false;
        wantsAll_ = false;
    }
}

LayoutBuilder::Step LayoutBuilder::closeRecord(std::size_t end) {
    if (!recordOpen_) {
        return Step::Go;
    }
    recordOpen_ = false;
    const std::size_t length = end - record_.begin;
    if (length > std::numeric_limits<std::uint32_t>::max()) {
        refusal_ =
            Error{Error::Kind::RecordTooLong, layout_.form != Form::Ascii, lineAt(record_.begin), record_.begin, 0, {}};
        return Step::Refuse;
    }
    record_.length = static_cast<std::uint32_t>(length);
    layout_.highestHandle = std::max(layout_.highestHandle, record_.handle);
    layout_.records.push_back(record_);
    return Step::Go;
}

void LayoutBuilder::recordTag(const Tag& tag) {
    switch (tag.code) {
    case 5:
    case 105:
        if (record_.handle == 0 && handleIn105_ == (tag.code == 105)) {
            record_.handle = tag.asHandle().value_or(0);
        }
        break;
    case 330:
        if (record_.owner == 0 && !markerSeen_ && !inGroup_) {
            record_.owner = tag.asHandle().value_or(0);
        }
        break;
    case 100:
        markerSeen_ = true;
        break;
    case 102:
        inGroup_ = tag.asTrimmed().starts_with('{');
        break;
    case 67:
        if (!paperSeen_) {
            record_.paper = tag.asInt() == 1;
            paperSeen_ = true;
        }
        break;
    default:
        break;
    }
}

void LayoutBuilder::headerTag(const Tag& tag) {
    if (tag.code == 9) {
        closeVar(tag.begin);
        HeaderVar& variable = layout_.headerVars.emplace_back();
        variable.name = tag.asTrimmed();
        variable.begin = tag.begin;
        variable.valueBegin = tag.end;
        varOpen_ = true;
        return;
    }
    if (!varOpen_) {
        return;
    }
    const HeaderVar& variable = layout_.headerVars.back();
    if (tag.code == 1 && variable.name == "$ACADVER" && layout_.version.empty()) {
        layout_.version = tag.asTrimmed();
    } else if (tag.code == 3 && variable.name == "$DWGCODEPAGE" && layout_.codePage.empty()) {
        layout_.codePage = tag.asTrimmed();
    } else if (tag.code == 5 && variable.name == "$HANDSEED" && layout_.handleSeedTag.empty()) {
        layout_.handleSeed = tag.asHandle().value_or(0);
        layout_.handleSeedTag = {tag.begin, tag.end};
    }
}

void LayoutBuilder::closeVar(std::size_t end) {
    if (varOpen_) {
        layout_.headerVars.back().end = end;
        varOpen_ = false;
    }
}

void LayoutBuilder::breakOff(std::size_t lastWhole, bool recordWhole) {
    std::size_t end = lastWhole;
    if (recordOpen_ && (!recordWhole || closeRecord(lastWhole) == Step::Refuse)) {
        end = record_.begin;
        recordOpen_ = false;
        const std::string_view type = layout_.names.name(record_.type);
        (void)problem(Error::Kind::Incomplete, end, excerptOf(type));
    } else if (varOpen_) {
        end = layout_.headerVars.back().begin;
        (void)problem(Error::Kind::Incomplete, end, excerptOf(layout_.headerVars.back().name));
        layout_.headerVars.pop_back();
        varOpen_ = false;
    } else if (nameless_) {
        end = layout_.sections.back().begin;
        layout_.sections.pop_back();
        sectionOpen_ = nameless_ = false;
    }
    closeSection(end, end, false);
    layout_.endTag = {end, end};
}

bool LayoutBuilder::problem(Error::Kind kind, std::size_t offset, std::wstring excerpt) {
    ++layout_.problemCount;
    if (options_.recover && layout_.problems.size() >= Layout::kMaxProblems) {
        return true;
    }
    const bool binary = layout_.form != Form::Ascii;
    Error error{kind, binary, binary ? 0 : lineAt(offset), offset, 0, std::move(excerpt)};
    if (options_.recover) {
        layout_.problems.push_back(std::move(error));
    } else {
        refusal_ = std::move(error);
    }
    return options_.recover;
}

// Offsets come in rising order, so each line feed is counted once however many problems there are.
std::size_t LayoutBuilder::lineAt(std::size_t offset) {
    offset = std::min(offset, file_.size());
    if (offset < countedTo_) {
        countedTo_ = 0;
        line_ = 1;
    }
    const auto begin = file_.begin();
    line_ += static_cast<std::size_t>(
        std::count(begin + static_cast<std::ptrdiff_t>(countedTo_), begin + static_cast<std::ptrdiff_t>(offset), '\n'));
    countedTo_ = offset;
    return line_;
}

void LayoutBuilder::report(std::size_t offset) {
    if (options_.progress && offset >= nextReport_) {
        options_.progress(static_cast<double>(offset) / static_cast<double>(file_.size()));
        nextReport_ = offset + kBytesPerReport;
    }
}

} // namespace quor::dxf
