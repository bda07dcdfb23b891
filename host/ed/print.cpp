#include "sdk/ed/print.h"

#include "host/session.h"

namespace quor {

void printText(std::wstring_view text) {
    if (Session::exists())
        Session::current().front().print(text);
}

} // namespace quor
