#include "host/commands/commands.h"
#include "host/session.h"
#include "host/texts/commands.h"
#include "sdk/rx/result_codes.h"

namespace quor::commands {

namespace {

int show(Session& session, bool textWindow) {
    if (!session.front().showTextWindow(textWindow))
        say(texts::kOneScreen);
    return RTNORM;
}

} // namespace

int textScreen(Session& session) { return show(session, true); }

int graphicsScreen(Session& session) { return show(session, false); }

} // namespace quor::commands
