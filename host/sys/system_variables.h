// System variables: what they are called, of which type they are, where they live, which values they take.
#pragma once

#include "sdk/ge/point3d.h"
#include "sdk/sys/global_vars.h"
#include "sdk/sys/string.h"
#include "sdk/sys/system.h"

#include <functional>
#include <map>
#include <optional>
#include <span>
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

enum class SetResult { Ok, Unknown, ReadOnly, WrongType, OutOfRange, NoDrawing, NoSuchLayer, NotInList, NotSaved };

struct VariableRow {
    const wchar_t* name; // in capitals
    VariableType type;
    VariableHome home;
    int headerCode = 0; // group code of a header variable
    double low = 0;     // bounds of numbers, both included; equal bounds: none
    double high = 0;
    bool readOnly = false;
    VariableValue initial = short{0}; // where the home has no value
    bool angle = false;               // kept in radians, typed and shown in the drawing's angular units
    const wchar_t* choices = nullptr; // the texts it takes, between "/"
    bool fromNextStart = false;       // a new value counts from the next start on
    // How to reach a value that no home keeps under the variable's name; called with a drawing open where the home is
    // one.
    VariableValue (*read)(Session&) = nullptr;
    SetResult (*write)(Session&, const VariableValue&) = nullptr;

    [[nodiscard]] bool hasBounds() const { return low != high; }
};

// The built-in variables, sorted by name.
[[nodiscard]] std::span<const VariableRow> variableRows();

// The section of the user's settings that holds the variables of home User, each under its name.
inline constexpr const wchar_t* kUserVariables = L"Variables";
// Where the settings keep the language in which the host starts.
inline constexpr const wchar_t* kLanguageSection = L"General";
inline constexpr const wchar_t* kLanguageKey = L"Language";

class SystemVariables final : public ZwSystemVariableService {
public:
    explicit SystemVariables(Session& session);

    // Names are matched without regard to case. Nothing when there is none of that name, or no drawing is open for one
    // that lives in a drawing.
    [[nodiscard]] std::optional<VariableValue> get(std::wstring_view name) const;
    // Undoable when it lives in a drawing. A whole number is taken for a real one. Refused values change nothing,
    // except that NotSaved means that the value holds for this process.
    SetResult set(std::wstring_view name, const VariableValue& value);
    // Sets one that a module registered, which keeps nothing: its listeners are told, no more. False when no module
    // did.
    bool touchRegistered(std::wstring_view name);
    // Converts typed text to the type of the variable, then sets it.
    SetResult setFromText(std::wstring_view name, std::wstring_view text);
    // Why a value was not taken, as one line for people; names the range of a number. Empty for Ok.
    [[nodiscard]] ZrString refusal(std::wstring_view name, SetResult result) const;
    // As a person reads it.
    [[nodiscard]] ZrString toText(const VariableValue& value) const;
    // The variable's value as a person reads it and could type it, angles in the drawing's units; nothing where get()
    // gives nothing.
    [[nodiscard]] std::optional<ZrString> text(std::wstring_view name) const;

    [[nodiscard]] bool has(std::wstring_view name) const;
    // The row of a built-in variable, or null (unknown, or registered by a module).
    [[nodiscard]] const VariableRow* row(std::wstring_view name) const;
    // Whether people may not set it: so it is with those that modules registered, and with names that nobody has.
    [[nodiscard]] bool isReadOnly(std::wstring_view name) const;
    // All names, sorted.
    [[nodiscard]] std::vector<ZrString> names() const;

    bool registerVariable(const wchar_t* name, std::function<short()> read) override;
    bool unregisterVariable(const wchar_t* name) override;

    // Told of every variable that was set, by its name in capitals, also where its value is the one that it had. What
    // undo gives back, and header variables that commands change by themselves, the drawing's own listeners are told
    // of.
    using Listener = std::function<void(const ZrString& name)>;
    // The number by which it is taken off again.
    int addListener(Listener listener);
    void removeListener(int number) { listeners_.erase(number); }

    // Whole number of a variable that is known to exist; `fallback` without a drawing.
    [[nodiscard]] short number(std::wstring_view name, short fallback = 0) const;

    // The variables behind ZrGlobalVarManager::instance().
    [[nodiscard]] ZrGlobalVarManager& globals() { return globals_; }

private:
    // Sets a variable that has a row, and tells nobody.
    SetResult assign(const VariableRow& row, const VariableValue& given);
    void announce(const ZrString& name) const;
    // A value that was checked, where the variable lives.
    SetResult write(const VariableRow& row, const VariableValue& value);
    [[nodiscard]] VariableValue fromUser(const VariableRow& row) const;
    SetResult toUser(const VariableRow& row, const VariableValue& value);

    Session& session_;
    std::map<ZrString, std::function<short()>> registered_; // upper case
    std::map<ZrString, VariableValue> process_;
    std::map<int, Listener> listeners_;
    int lastListener_ = 0;
    ZrGlobalVarManager globals_;
};

} // namespace quor::sys
