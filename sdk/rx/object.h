// The root of all classes that can be asked at run time what they are.
#pragma once

#include "sdk/rx/class.h"

class ZrRxObject {
public:
    virtual ~ZrRxObject() = default;

    static ZrRxClass* desc();
    [[nodiscard]] virtual ZrRxClass* isA() const { return desc(); }
    [[nodiscard]] bool isKindOf(const ZrRxClass* other) const { return isA()->isDerivedFrom(other); }

protected:
    ZrRxObject() = default;
    ZrRxObject(const ZrRxObject&) = default;
    ZrRxObject& operator=(const ZrRxObject&) = default;
};

// `object` as a T when it is one, else null. T needs a static desc().
template <class T>
[[nodiscard]] T* zrrxCast(ZrRxObject* object) {
    return object != nullptr && object->isKindOf(T::desc()) ? static_cast<T*>(object) : nullptr;
}
template <class T>
[[nodiscard]] const T* zrrxCast(const ZrRxObject* object) {
    return object != nullptr && object->isKindOf(T::desc()) ? static_cast<const T*>(object) : nullptr;
}
