#include "sdk/sys/global_vars.h"

#include "host/session.h"
#include "host/sys/system_variables.h"

ZrGlobalVarManager* ZrGlobalVarManager::instance() {
    return quor::Session::exists() ? &quor::Session::current().variables().globals() : nullptr;
}

int ZrGlobalVarManager::reg(int type, const wchar_t* name) {
    if (type < kString || type > kReal || name == nullptr || *name == L'\0')
        return kError;
    if (find(name) != nullptr)
        return kExists;
    variables_.emplace(name, Variable{type, {}});
    return kOk;
}

const ZrGlobalVarManager::Variable* ZrGlobalVarManager::find(const wchar_t* name) const {
    const auto at = name != nullptr ? variables_.find(std::wstring_view(name)) : variables_.end();
    return at == variables_.end() ? nullptr : &at->second;
}

template <class T>
int ZrGlobalVarManager::read(const wchar_t* name, int type, T& value) const {
    const Variable* variable = find(name);
    if (variable == nullptr)
        return kUnknown;
    if (variable->type != type)
        return kWrongType;
    const T* held = std::get_if<T>(&variable->value);
    if (held == nullptr)
        return kNoValue;
    value = *held;
    return kOk;
}

template <class T>
int ZrGlobalVarManager::write(const wchar_t* name, int type, T value) {
    const auto at = name != nullptr ? variables_.find(std::wstring_view(name)) : variables_.end();
    if (at == variables_.end())
        return kUnknown;
    if (at->second.type != type)
        return kWrongType;
    at->second.value = std::move(value);
    return kOk;
}

int ZrGlobalVarManager::get(const wchar_t* name, short& value) const { return read(name, kShort, value); }
int ZrGlobalVarManager::get(const wchar_t* name, ZrString& value) const { return read(name, kString, value); }
int ZrGlobalVarManager::set(const wchar_t* name, short value) { return write(name, kShort, value); }

int ZrGlobalVarManager::set(const wchar_t* name, const wchar_t* value) {
    return value == nullptr ? kError : write(name, kString, ZrString(value));
}
