#include "host/commands/commands.h"
#include "host/commands/drawing_files.h"
#include "host/session.h"
#include "sdk/rx/result_codes.h"

namespace quor::commands {

int saveDrawing(Session& session) { return saveInPlace(session, *session.documents().current()); }

int saveDrawingAs(Session& session) {
    Document& document = *session.documents().current();
    std::filesystem::path path;
    const int result = askSavePath(session, document, path);
    return result == RTNORM ? saveTo(document, path) : result;
}

} // namespace quor::commands
