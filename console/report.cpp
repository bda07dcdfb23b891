#include "console/report.h"

#include "host/sys/utf8.h"
#include "host/texts/console.h"

namespace quor::console {

void Report::operator()(std::wstring_view message) const {
    output_.freshLine();
    output_.flush();
    progress_.remove();
    sink_(toUtf8(fill(texts::console::kError, message)));
}

} // namespace quor::console
