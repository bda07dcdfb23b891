// Commands as objects: made by a factory, executed once, deleted.
#pragma once

#include "sdk/db/object_id.h"
#include "sdk/ed/input_point_monitor.h"
#include "sdk/rx/error_status.h"

#include <cstddef>
#include <new>

class ZrDbDatabase;
class ZrDbEntity;

class RxCommand : public ZrEdInputPointMonitor {
public:
    // A fixed word for the kind of command, e.g. "POINTLIGHTCMD".
    [[nodiscard]] virtual const wchar_t* typeName() const = 0;
    // The command's flag word, for the command library. What registers the command has flags of its own.
    [[nodiscard]] virtual int commandFlags() const { return 0; }
    // Asked by the command library before it executes the command: whether the command can be used now. One that
    // cannot has said why, and is not executed.
    [[nodiscard]] virtual bool canExecute() { return true; }
    // Runs the command; the answer is a result code.
    virtual int execute() = 0;

    // Commands are made and deleted one after the other: the memory of the last one serves the next.
    static void* operator new(std::size_t size);
    static void* operator new(std::size_t size, const std::nothrow_t& tag) noexcept;
    static void operator delete(void* memory, std::size_t size) noexcept;
    static void operator delete(void* memory, const std::nothrow_t& tag) noexcept;

    // Appends an entity to a space of `database` and answers its id, null when it could not be appended.
    // `spaceName` null: the current space; `database` null: the working database. On success the entity belongs to the
    // database and, if `close`, is closed; on failure it stays the caller's.
    static ZrDbObjectId postToDb(ZrDbEntity& entity, const wchar_t* spaceName, ZrDbDatabase* database, bool close);
    // Reads a whole-number system variable; false when there is none of that name.
    static bool getVar(const wchar_t* name, short& value);
    // Whether the running command was started by a script, a macro or another command.
    [[nodiscard]] static bool isCalledByCommand();
};
