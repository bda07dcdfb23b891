#include "console/screen_columns.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace quor::console {

int screenColumns() {
    winsize size{};
    return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

} // namespace quor::console
