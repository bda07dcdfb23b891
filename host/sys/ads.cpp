#include "sdk/sys/ads.h"

#include "host/db/ref_edit.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/session.h"
#include "host/sys/settings_store.h"
#include "host/sys/system_variables.h"
#include "sdk/ed/print.h"

namespace {

using quor::Session;
using quor::sys::SetResult;

// Where the user's choices in dialogs are kept.
constexpr const wchar_t* dialogOptions = L"Dialogs.Options";

// What is being edited in place in the current drawing; null when no drawing is open.
const quor::db::RefEdit* currentRefEdit() {
    const quor::Document* const document = Session::exists() ? Session::current().documents().current() : nullptr;
    return document == nullptr ? nullptr : &document->drawing().refEdit();
}

bool refuse(const wchar_t* name, SetResult result, bool quiet) {
    if (!quiet)
        quor::printText(L"\n" + Session::current().variables().refusal(name, result));
    return false;
}

} // namespace

namespace zwutads {

bool getVar(const wchar_t* name, short& value, bool quiet) {
    if (name == nullptr || !Session::exists())
        return false;
    const auto& variables = Session::current().variables();
    const auto found = variables.get(name);
    if (!found)
        return refuse(name, variables.has(name) ? SetResult::NoDrawing : SetResult::Unknown, quiet);
    const auto* whole = std::get_if<short>(&*found);
    if (whole == nullptr)
        return refuse(name, SetResult::WrongType, quiet);
    value = *whole;
    return true;
}

bool setVar(const wchar_t* name, short value, bool quiet) {
    if (name == nullptr || !Session::exists())
        return false;
    auto& variables = Session::current().variables();
    if (variables.touchRegistered(name))
        return true;
    const SetResult result = variables.set(name, value);
    return result == SetResult::Ok || refuse(name, result, quiet);
}

bool isCalledLispOrArx() { return Session::exists() && Session::current().processor().isCalledByProgram(); }

bool GetValueFromReg(const wchar_t* name, int& value) {
    if (name == nullptr || !Session::exists())
        return false;
    const auto found = Session::current().settings().getInt(dialogOptions, name);
    value = found.value_or(value);
    return found.has_value();
}

bool SetValueFromReg(const wchar_t* name, int value) {
    return name != nullptr && Session::exists() && !Session::current().settings().setInt(dialogOptions, name, value);
}

bool isRefEditting() {
    const quor::db::RefEdit* const editing = currentRefEdit();
    return editing != nullptr && editing->isActive();
}

bool isObjInWorkset(ZrDbObjectId id) {
    const quor::db::RefEdit* const editing = currentRefEdit();
    return editing != nullptr && !id.isNull() && editing->holds(*id.entry());
}

} // namespace zwutads
