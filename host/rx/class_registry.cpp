#include "sdk/rx/class.h"
#include "sdk/rx/object.h"

#include <map>

namespace {

using Registry = std::map<ZrString, ZrRxClass*, std::less<>>;

Registry& registry() {
    static Registry classes;
    return classes;
}

} // namespace

Quor::ErrorStatus newZrRxClass(ZrRxClass* description) {
    if (description == nullptr)
        return Quor::eInvalidInput;
    const auto [at, added] = registry().try_emplace(description->name(), description);
    return added || at->second == description ? Quor::eOk : Quor::eDuplicateKey;
}

Quor::ErrorStatus deleteZrRxClass(ZrRxClass* description) {
    if (description == nullptr)
        return Quor::eInvalidInput;
    const auto at = registry().find(std::wstring_view(description->name()));
    if (at == registry().end() || at->second != description)
        return Quor::eKeyNotFound;
    registry().erase(at);
    return Quor::eOk;
}

ZrRxClass* findZrRxClass(std::wstring_view name) {
    const auto at = registry().find(name);
    return at == registry().end() ? nullptr : at->second;
}

void zrrxBuildClassHierarchy() {
    std::erase_if(registry(), [](const auto& entry) { return !entry.second->isDerivedFrom(ZrRxObject::desc()); });
}
