// The one place that records changes of a drawing for undo, and announces them. Undo and redo go the same way, so that
// listeners are told of them as of the changes themselves.
#pragma once

#include "host/db/object_entry.h"
#include "sdk/sys/string.h"

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

class ZrDbDatabaseReactor;

namespace quor::db {

class Database;

class Journal {
public:
    explicit Journal(Database& database) : database_(database) {}

    // A group is what one command did; groups nest, only the outermost counts. One that changed nothing leaves no
    // trace.
    void begin(std::wstring_view name);
    void end();
    // Takes back what the open group did so far and forgets it.
    void rollback();
    [[nodiscard]] bool isOpen() const { return depth_ > 0; }

    // Takes back (restores) the last group; the name of its command, or nothing when there was none.
    std::optional<ZrString> undo();
    std::optional<ZrString> redo();
    [[nodiscard]] std::size_t undoDepth() const { return undo_.size(); }
    [[nodiscard]] std::size_t redoDepth() const { return redo_.size(); }

    // Whether the drawing differs from when markSaved() was last called.
    [[nodiscard]] bool isModified() const;
    void markSaved();
    // The drawing is not what its file holds, and no undo makes it so: it counts as modified until it is saved.
    void markUnsaved();

    // How far the drawing has come: the last group that changed it, and how much that one did.
    struct State {
        std::size_t group = 0;
        std::size_t changes = 0;
        bool operator==(const State&) const = default;
    };
    [[nodiscard]] State state() const;
    // The open group has led back to an earlier state that other groups stand behind: unless it does more, the drawing
    // is as much modified as it was then. Undo and redo take their steps as ever.
    void ledBackTo(const State& earlier);

    void addReactor(ZrDbDatabaseReactor* reactor);
    void removeReactor(ZrDbDatabaseReactor* reactor);
    // The drawing is about to go.
    void sayGoodbye();

    // For host/db: records what is about to happen or happened. Listeners are told by announce(), when the object is
    // closed. Every change of an object's values calls aboutToModify(): a group may begin, or be rolled back, while the
    // object is open.
    void appended(ObjectEntry& entry);
    void aboutToModify(ObjectEntry& entry);
    void erased(ObjectEntry& entry, bool erasing);
    void announce(ObjectEntry& entry);
    // A setting was changed. `exchange` swaps its value with the one it had before; undo and redo call it alike.
    void settingChanged(const ZrString& name, std::function<void()> exchange);

private:
    struct Append {
        ObjectEntry* entry;
    };
    struct Modify {
        ObjectEntry* entry;
        std::unique_ptr<ZrDbObjectData> other; // the values that undo (then redo) gives back
        bool otherChanged;
    };
    struct Erase {
        ObjectEntry* entry;
        bool erasing;
    };
    struct Setting {
        ZrString name;
        std::function<void()> exchange;
    };
    // Settings are rare and large; the others should not be as large as they are.
    using Change = std::variant<Append, Modify, Erase, std::unique_ptr<Setting>>;
    struct Group {
        const ZrString* name = nullptr; // one of names_
        std::vector<Change> changes;
        std::size_t number = 0; // counts groups over the life of the drawing
        bool leadsBack = false; // the number is an earlier group's, which left the drawing as this one does
    };

    // A change outside any group becomes a group of its own.
    void record(Change change);
    // What is changed in a group after a save within it is not saved, and one that led back leads on.
    void leaveKnownState();
    void apply(Group& group, bool undoing);
    void applyChange(Append& change, bool undoing);
    void applyChange(Modify& change, bool undoing);
    void applyChange(Erase& change, bool undoing);
    void applyChange(std::unique_ptr<Setting>& change, bool undoing);
    void setErased(ObjectEntry& entry, bool erased);
    template <class... Parameters, class... Arguments>
    void tell(void (ZrDbDatabaseReactor::*message)(Parameters...), Arguments&&... arguments);

    Database& database_;
    std::set<ZrString, std::less<>> names_; // of all groups: a few, however many groups there are
    std::vector<Group> undo_;
    std::vector<Group> redo_;
    Group open_;
    int depth_ = 0;
    std::size_t nextNumber_ = 1;
    std::size_t savedNumber_ = 0;                // number of the group on top when the drawing was saved
    std::uint32_t serial_ = 0;                   // of the open group, to tell what it keeps already
    std::vector<ZrDbDatabaseReactor*> reactors_; // null: left while listeners were being told
    int telling_ = 0;
};

} // namespace quor::db
