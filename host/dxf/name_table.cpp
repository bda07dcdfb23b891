#include "host/dxf/name_table.h"

namespace quor::dxf {

NameId NameTable::intern(std::string_view name) {
    if (last_ != kOther && names_[last_] == name) {
        return last_;
    }
    if (name.size() > kMaxLength) {
        return kOther;
    }
    const auto found = ids_.find(name);
    if (found != ids_.end()) {
        return last_ = found->second;
    }
    if (names_.size() >= kOther) {
        return kOther;
    }
    const auto id = static_cast<NameId>(names_.size());
    names_.emplace_back(name);
    ids_.emplace(names_.back(), id);
    return last_ = id;
}

NameId NameTable::find(std::string_view name) const {
    const auto found = ids_.find(name);
    return found != ids_.end() ? found->second : kOther;
}

std::string_view NameTable::name(NameId id) const {
    return id < names_.size() ? std::string_view(names_[id]) : std::string_view();
}

} // namespace quor::dxf
