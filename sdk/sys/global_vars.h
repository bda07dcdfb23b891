// Variables that live as long as the host process, shared by all drawings and modules.
#pragma once

#include "sdk/sys/string.h"

#include <map>
#include <variant>

class ZrGlobalVarManager {
public:
    // The one manager of the process; null after the host has ended.
    static ZrGlobalVarManager* instance();

    enum Type { kString = 1, kShort = 2, kInt = 3, kReal = 4 };
    enum Result { kOk = 0, kNoValue = 1, kExists = 2, kWrongType = 3, kUnknown = 4, kError = 5 };

    // Registers a variable without a value: 0 when it did not exist before, kExists when it did, kError for a bad type
    // or name.
    int reg(int type, const wchar_t* name);
    // 0 with the value; kNoValue while it has none, kUnknown when it is not registered, kWrongType.
    int get(const wchar_t* name, short& value) const;
    int get(const wchar_t* name, ZrString& value) const;
    // 0; kUnknown when it is not registered, kWrongType, kError for a null text.
    int set(const wchar_t* name, short value);
    int set(const wchar_t* name, const wchar_t* value);

private:
    struct Variable {
        int type;
        std::variant<std::monostate, short, ZrString> value;
    };
    [[nodiscard]] const Variable* find(const wchar_t* name) const;
    template <class T>
    int read(const wchar_t* name, int type, T& value) const;
    template <class T>
    int write(const wchar_t* name, int type, T value);

    std::map<ZrString, Variable, std::less<>> variables_;
};
