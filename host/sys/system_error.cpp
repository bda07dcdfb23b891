#include "host/sys/system_error.h"

#include "host/sys/utf8.h"
#include "host/texts/system_errors.h"

#include <system_error>

namespace quor {

ZrString systemErrorText(int number) {
    for (const texts::SystemErrorText& known : texts::kSystemErrors)
        if (known.number == number)
            return known.text.get();
    return fromUtf8(std::generic_category().message(number));
}

} // namespace quor
