// What the actions do that type nothing, and the states that actions show.
#pragma once

namespace quor::sys {
class SystemVariables;
}

namespace quor::desktop {

class Actions;
class Typing;
class Viewport;

// How the drawing is seen and pointed at.
void bindView(Actions& actions, Viewport& viewport);
// Switches, and choices of one value among several.
void bindVariables(Actions& actions, sys::SystemVariables& variables, Typing& typing);

} // namespace quor::desktop
