#include "sdk/rx/object.h"

ZrRxClass* ZrRxObject::desc() {
    static ZrRxClass description(L"ZrRxObject", nullptr);
    return &description;
}
