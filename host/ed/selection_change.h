// Tells that something else is selected before a command.
#pragma once

namespace quor {
class DocumentManager;
}

namespace quor::ed {

// Every listener of the pick-first selection; one that is taken off on the way is not told any more.
void tellSelectionChanged(const DocumentManager& documents);

} // namespace quor::ed
