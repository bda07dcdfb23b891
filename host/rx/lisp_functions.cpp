#include "host/rx/lisp_functions.h"

namespace quor::rx {

bool LispFunctions::define(const ZrRxLispFunction& function) {
    const auto [at, added] = functions_.try_emplace(function.name, Definition{function.function, 0});
    if (at->second.function != function.function)
        return false;
    ++at->second.drawings;
    return true;
}

bool LispFunctions::undefine(const ZrRxLispFunction& function) {
    const auto at = functions_.find(std::wstring_view(function.name));
    if (at == functions_.end() || at->second.function != function.function)
        return false;
    if (--at->second.drawings == 0)
        functions_.erase(at);
    return true;
}

LispFunctions& lispFunctions() {
    static LispFunctions functions;
    return functions;
}

} // namespace quor::rx
