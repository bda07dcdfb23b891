// The layers of a drawing as a list on the command line.
#pragma once

namespace quor::db {
class Database;
}

namespace quor::commands {

// Without the hidden ones, which are the system's. RTNORM.
int listLayers(db::Database& drawing);

} // namespace quor::commands
