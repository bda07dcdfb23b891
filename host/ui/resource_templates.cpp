#include "host/ui/resource_lookup.h"

#include "host/ui/host_resources.h"

#include <utility>

namespace {
ZwResourceInstance inUse = nullptr;
} // namespace

ZwResourceInstance zwSetResourceInstance(ZwResourceInstance instance) { return std::exchange(inUse, instance); }

ZwResourceInstance zwGetResourceInstance() { return inUse; }

ZrString zwResourceText(const ZwResourceText& text) {
    const ZrString* const translated =
        text.number != 0 ? zwFindResourceText(zwCommandLibraryResources(), text.number) : nullptr;
    if (translated != nullptr && !translated->empty())
        return *translated;
    return text.builtIn != nullptr ? text.builtIn : ZrString();
}

namespace quor::ui {

namespace {

template <class Item>
const Item* withId(std::span<const Item> items, unsigned id) {
    for (const Item& item : items)
        if (item.id == id)
            return &item;
    return nullptr;
}

const ZwUiResources& behind(ZwResourceInstance instance) { return instance != nullptr ? *instance : hostResources(); }

} // namespace

const MenuTemplate* findMenu(unsigned id) { return withId(behind(inUse).menus, id); }

const DialogTemplate* findDialog(unsigned id) { return withId(behind(inUse).dialogs, id); }

const PictureResource* findPicture(ZwResourceInstance instance, unsigned id) {
    return withId(behind(instance).pictures, id);
}

} // namespace quor::ui
