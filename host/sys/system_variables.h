// System variables: what they are called, of which type they are, where they live, which values they take.
#pragma once

#include "sdk/ge/point3d.h"
#include "sdk/sys/string.h"
#include "sdk/sys/system.h"

#include <functional>
#include <map>
#include <optional>
#include <variant>
#include <vector>

namespace quor {
class Session;
}

namespace quor::sys {

enum class VariableType { Short, Real, Text, Point };

// Where a variable is kept.
enum class VariableHome {
    Header,     // a header variable of the drawing ("$" + name), saved with it
    Dictionary, // the drawing's variable dictionary, saved with it once it was set
    Viewport,   // the drawing's active viewport, where its version has a place for it, else this session only
    Drawing,    // computed from the drawing, or kept with it for the session (CVPORT, DWGNAME, …)
    User,       // the per-user settings
    Process,    // this process only
};

using VariableValue = std::variant<short, double, ZrString, ZrGePoint3d>;

struct VariableRow {
    const wchar_t* name;
    VariableType type;
    VariableHome home;
    int headerCode = 0; // group code of a header variable
    double low = 0;     // bounds of numbers, both included
    double high = 0;
    bool readOnly = false;
    VariableValue initial = short{0};
};

enum class SetResult { Ok, Unknown, ReadOnly, WrongType, OutOfRange, NoDrawing };

class SystemVariables final : public ZwSystemVariableService {
public:
    explicit SystemVariables(Session& session);

    // Names are matched without regard to case. Nothing when there is none of that name, or no drawing is open for one that
    // lives in a drawing.
    [[nodiscard]] std::optional<VariableValue> get(std::wstring_view name) const;
    // Undoable when it lives in a drawing.
    SetResult set(std::wstring_view name, const VariableValue& value);
    // Converts typed text to the type of the variable, then sets it.
    SetResult setFromText(std::wstring_view name, std::wstring_view text);
    // As a person reads it.
    [[nodiscard]] ZrString toText(const VariableValue& value) const;

    [[nodiscard]] bool has(std::wstring_view name) const;
    // The row of a built-in variable, or null (unknown, or registered by a module).
    [[nodiscard]] const VariableRow* row(std::wstring_view name) const;
    // All names, sorted.
    [[nodiscard]] std::vector<ZrString> names() const;

    bool registerVariable(const wchar_t* name, std::function<short()> read) override;
    bool unregisterVariable(const wchar_t* name) override;

    // Whole number of a variable that is known to exist; `fallback` without a drawing.
    [[nodiscard]] short number(std::wstring_view name, short fallback = 0) const;

private:
    Session& session_;
    std::map<ZrString, std::function<short()>> registered_; // upper case
    std::map<ZrString, VariableValue> process_;
};

} // namespace quor::sys
