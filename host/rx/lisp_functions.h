// The LISP functions that modules have defined, by name: one definition for each drawing that the module was told of.
#pragma once

#include "host/sys/case_fold.h"
#include "sdk/rx/application.h"

#include <map>

namespace quor::rx {

class LispFunctions {
public:
    // False when another function has the name.
    bool define(const ZrRxLispFunction& function);
    // Takes one definition back; false when there is none.
    bool undefine(const ZrRxLispFunction& function);
    [[nodiscard]] bool isDefined(std::wstring_view name) const { return functions_.find(name) != functions_.end(); }

private:
    struct Definition {
        int (*function)();
        int drawings;
    };
    std::map<ZrString, Definition, FoldedLess> functions_;
};

// Those of the process.
[[nodiscard]] LispFunctions& lispFunctions();

} // namespace quor::rx
