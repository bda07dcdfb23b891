#include "sdk/ui/image_list.h"

#include "host/ui/resource_lookup.h"

bool CBitmap::LoadBitmap(unsigned id) {
    picture_ = quor::ui::findPicture(zwGetResourceInstance(), id);
    return picture_ != nullptr;
}

bool CIcon::LoadIcon(ZwResourceInstance instance, unsigned id) {
    picture_ = quor::ui::findPicture(instance, id);
    return picture_ != nullptr;
}
