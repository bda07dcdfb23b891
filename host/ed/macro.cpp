#include "sdk/ed/macro.h"

#include "host/ed/input_stack.h"
#include "host/session.h"
#include "host/ui/focus.h"
#include "sdk/rx/result_codes.h"

namespace {

constexpr const wchar_t* kCancel = L"^C^C";

} // namespace

int zredMenuMacro(const wchar_t* macro, bool cancelFirst, bool focusToDrawing) {
    if (macro == nullptr || !quor::Session::exists())
        return RTERROR;
    quor::Session::current().input().queueMacro(cancelFirst ? ZrString(kCancel) + macro : ZrString(macro));
    if (focusToDrawing)
        quor::ui::focusDrawing();
    return RTNORM;
}
