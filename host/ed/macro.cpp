#include "sdk/ed/macro.h"

#include "host/ed/input_stack.h"
#include "host/session.h"
#include "sdk/rx/result_codes.h"

int zredMenuMacro(const wchar_t* macro) {
    if (macro == nullptr || !quor::Session::exists())
        return RTERROR;
    quor::Session::current().input().queueMacro(macro);
    return RTNORM;
}
