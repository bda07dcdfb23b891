// Run-time classes: what an object is, by name, across modules.
#pragma once

#include "sdk/rx/error_status.h"
#include "sdk/sys/string.h"

// The description of one class. Each class has exactly one, reached by its static desc().
class ZrRxClass {
public:
    // `dxfName` is the name of the class in drawing files, or null.
    ZrRxClass(const wchar_t* name, const ZrRxClass* parent, const wchar_t* dxfName = nullptr)
        : name_(name), parent_(parent), dxfName_(dxfName) {}
    ZrRxClass(const ZrRxClass&) = delete;
    ZrRxClass& operator=(const ZrRxClass&) = delete;

    [[nodiscard]] const wchar_t* name() const { return name_; }
    [[nodiscard]] const wchar_t* dxfName() const { return dxfName_; }
    [[nodiscard]] const ZrRxClass* myParent() const { return parent_; }

    // Whether this class is `other` or derives from it.
    [[nodiscard]] bool isDerivedFrom(const ZrRxClass* other) const {
        for (const ZrRxClass* at = this; at != nullptr; at = at->parent_)
            if (at == other)
                return true;
        return false;
    }

private:
    const wchar_t* name_;
    const ZrRxClass* parent_;
    const wchar_t* dxfName_;
};

// Makes a class known by its name (eDuplicateKey when the name is taken by another class).
Quor::ErrorStatus newZrRxClass(ZrRxClass* description);
// Removes a class from the registry (eKeyNotFound when it was not there).
Quor::ErrorStatus deleteZrRxClass(ZrRxClass* description);
// The registered class of that name, or null. Case matters.
[[nodiscard]] ZrRxClass* findZrRxClass(std::wstring_view name);
// Called after a module has registered its classes. Each class names its parent when it is made, so that the tree
// stands by itself; the call takes classes out of the registry whose ancestors do not end in ZrRxObject.
void zrrxBuildClassHierarchy();
