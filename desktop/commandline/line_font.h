// The font of the command line, in which tables stand in columns.
#pragma once

#include <QFont>

namespace quor::desktop {

// So many points larger than what the program is written in.
[[nodiscard]] QFont lineFont(int steps);

} // namespace quor::desktop
