// Runs what scripts and macros have to say, with the windows alive and Esc at hand.
#pragma once

namespace quor {
class Session;
}

namespace quor::desktop {

class DesktopFrontEnd;

// To their end, their first failure, or Esc.
void runSources(Session& session, DesktopFrontEnd& front);

} // namespace quor::desktop
