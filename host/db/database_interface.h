// The face of a drawing that modules see.
#pragma once

#include "sdk/db/database.h"

#include <memory>

namespace quor::db {

class Database;

[[nodiscard]] std::unique_ptr<ZrDbDatabase> makeInterface(Database& database);

} // namespace quor::db
