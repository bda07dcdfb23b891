// The host's own commands, with their aliases, in one table.
#pragma once

namespace quor {
class Session;

void registerHostCommands(Session& session);
} // namespace quor
