#include "host/dxf/layout.h"

#include "host/dxf/tag_reader.h"

#include <algorithm>

namespace quor::dxf {
namespace {

template <class Items>
auto findByName(const Items& items, std::string_view name) -> decltype(items.data()) {
    const auto found = std::find_if(items.begin(), items.end(), [&](const auto& item) { return item.name == name; });
    return found != items.end() ? &*found : nullptr;
}

} // namespace

const Section* Layout::findSection(std::string_view name) const { return findByName(sections, name); }

const HeaderVar* Layout::findVar(std::string_view name) const { return findByName(headerVars, name); }

std::string_view Layout::typeName(const Image& image, const Record& record) const {
    if (record.type != NameTable::kOther) {
        return names.name(record.type);
    }
    Tag tag;
    TagReader reader(image.bytes(), form, record.begin, record.end());
    return reader.next(tag) ? tag.asTrimmed() : std::string_view();
}

} // namespace quor::dxf
