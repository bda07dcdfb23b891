// The host's 3D command library: modules register their commands with it.
#pragma once

#include "sdk/sys/string.h"

#include <functional>

class RxCommand;

using RxCommandFactory = RxCommand* (*)();
using RxCommandEntry = void (*)();

class RxCmdManager {
public:
    // The one instance lives between initInstance() and releaseInstance(); instancePtr() is null outside.
    static RxCmdManager* initInstance();
    static RxCmdManager* instancePtr();
    // Removes every command that was registered through the instance, then the instance.
    static void releaseInstance();

    // Registers a command: global and local name in a group; `entry` is called when the user runs it.
    // False when the group has a command of that global name already.
    bool registerCmd2(RxCommandFactory factory, RxCommandEntry entry, const wchar_t* group, const wchar_t* globalName,
                      const wchar_t* localName, int flags);
    // The page that HELP shows for a registered command: what it does, what it asks, an example. Without one HELP tells
    // only where the command comes from. `page` is called when HELP needs it. False when there is no such command in
    // the group.
    bool setHelp(const wchar_t* group, const wchar_t* globalName, std::function<ZrString()> page);
    // Makes the command object, runs it once and deletes it; the command processor receives its result code.
    static void cmdEntryPoint(RxCommandFactory factory);

private:
    RxCmdManager() = default;
};
