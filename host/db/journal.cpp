#include "host/db/journal.h"

#include "host/db/database.h"
#include "host/db/light_names.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace quor::db {

void Journal::begin(std::wstring_view name) {
    if (depth_++ > 0)
        return;
    auto known = names_.find(name);
    if (known == names_.end())
        known = names_.emplace(name).first;
    open_ = Group{&*known, {}, nextNumber_++, false};
    ++serial_;
}

void Journal::end() {
    if (--depth_ > 0 || open_.changes.empty())
        return;
    redo_.clear();
    undo_.push_back(std::move(open_));
    open_ = {};
}

void Journal::rollback() {
    Group taken = std::move(open_);
    open_ = Group{taken.name, {}, taken.number, taken.leadsBack};
    ++serial_;
    apply(taken, true);
}

std::optional<ZrString> Journal::undo() {
    if (undo_.empty() || isOpen())
        return std::nullopt;
    // A listener may change the drawing while it is told, which clears what could be restored.
    Group group = std::move(undo_.back());
    undo_.pop_back();
    apply(group, true);
    redo_.push_back(std::move(group));
    return *redo_.back().name;
}

std::optional<ZrString> Journal::redo() {
    if (redo_.empty() || isOpen())
        return std::nullopt;
    Group group = std::move(redo_.back());
    redo_.pop_back();
    apply(group, false);
    undo_.push_back(std::move(group));
    return *undo_.back().name;
}

bool Journal::isModified() const { return state().group != savedNumber_; }

void Journal::markSaved() { savedNumber_ = state().group; }

// No group has that number.
void Journal::markUnsaved() { savedNumber_ = std::numeric_limits<std::size_t>::max(); }

Journal::State Journal::state() const {
    if (!open_.changes.empty())
        return {open_.number, open_.changes.size()};
    return undo_.empty() ? State() : State{undo_.back().number, undo_.back().changes.size()};
}

void Journal::ledBackTo(const State& earlier) {
    open_.number = earlier.group;
    open_.leadsBack = true;
}

void Journal::leaveKnownState() {
    if (open_.number == savedNumber_ || open_.leadsBack)
        open_.number = nextNumber_++;
    open_.leadsBack = false;
}

void Journal::addReactor(ZrDbDatabaseReactor* reactor) { reactors_.push_back(reactor); }

void Journal::removeReactor(ZrDbDatabaseReactor* reactor) {
    if (telling_ > 0)
        std::replace(reactors_.begin(), reactors_.end(), reactor, static_cast<ZrDbDatabaseReactor*>(nullptr));
    else
        std::erase(reactors_, reactor);
}

template <class... Parameters, class... Arguments>
void Journal::tell(void (ZrDbDatabaseReactor::*message)(Parameters...), Arguments&&... arguments) {
    // Listeners may come and go while they are told.
    ++telling_;
    for (std::size_t i = 0; i < reactors_.size(); ++i)
        if (reactors_[i] != nullptr)
            (reactors_[i]->*message)(database_.interface(), arguments...);
    if (--telling_ == 0)
        std::erase(reactors_, nullptr);
}

void Journal::sayGoodbye() { tell(&ZrDbDatabaseReactor::goodbye); }

void Journal::record(Change change) {
    const bool alone = !isOpen();
    if (alone)
        begin({});
    leaveKnownState();
    open_.changes.push_back(std::move(change));
    if (alone)
        end();
}

void Journal::appended(ObjectEntry& entry) {
    database_.objects().touch(entry);
    record(Append{&entry});
    entry.keptInGroup = serial_;
}

void Journal::aboutToModify(ObjectEntry& entry) {
    const bool first = !std::exchange(entry.modifiedInThisOpening, true);
    if (entry.keptInGroup != serial_ || (first && !isOpen())) {
        database_.objects().touch(entry);
        record(Modify{&entry, entry.object->hostData()->clone(), entry.changed});
        entry.keptInGroup = serial_;
    }
    leaveKnownState();
    entry.changed = true;
    if (first)
        tell(&ZrDbDatabaseReactor::objectOpenedForModify, *entry.object);
}

void Journal::erased(ObjectEntry& entry, bool erasing) {
    database_.objects().touch(entry);
    record(Erase{&entry, erasing});
    setErased(entry, erasing);
}

void Journal::announce(ObjectEntry& entry) {
    const bool appended = std::exchange(entry.appendToAnnounce, false);
    const bool modified = std::exchange(entry.modifiedInThisOpening, false);
    const bool erased = std::exchange(entry.eraseToAnnounce, false);
    if (appended)
        tell(&ZrDbDatabaseReactor::objectAppended, *entry.object);
    else if (modified)
        tell(&ZrDbDatabaseReactor::objectModified, *entry.object);
    if (erased)
        tell(&ZrDbDatabaseReactor::objectErased, *entry.object, entry.erased);
}

void Journal::settingChanged(const ZrString& name, std::function<void()> exchange) {
    record(std::make_unique<Setting>(Setting{name, std::move(exchange)}));
    tell(&ZrDbDatabaseReactor::headerSysVarChanged, name.c_str());
}

void Journal::setErased(ObjectEntry& entry, bool erased) {
    entry.erased = erased;
    LightNames::entityErased(entry, erased);
    if (erased)
        return;
    database_.layers().cameBack(entry);
    database_.structure().cameBack(entry);
}

void Journal::apply(Group& group, bool undoing) {
    ++serial_;
    const auto one = [&](Change& change) { std::visit([&](auto& each) { applyChange(each, undoing); }, change); };
    if (undoing)
        std::for_each(group.changes.rbegin(), group.changes.rend(), one);
    else
        std::for_each(group.changes.begin(), group.changes.end(), one);
}

void Journal::applyChange(Append& change, bool undoing) {
    setErased(*change.entry, undoing);
    tell(undoing ? &ZrDbDatabaseReactor::objectUnAppended : &ZrDbDatabaseReactor::objectReAppended,
         *change.entry->object);
}

void Journal::applyChange(Modify& change, bool /*undoing*/) {
    ObjectEntry& entry = *change.entry;
    tell(&ZrDbDatabaseReactor::objectOpenedForModify, *entry.object);
    {
        const LightNames::Renaming renaming(entry);
        entry.object->hostData().swap(change.other);
    }
    std::swap(entry.changed, change.otherChanged);
    tell(&ZrDbDatabaseReactor::objectModified, *entry.object);
}

void Journal::applyChange(Erase& change, bool undoing) {
    const bool erased = change.erasing != undoing;
    setErased(*change.entry, erased);
    tell(&ZrDbDatabaseReactor::objectErased, *change.entry->object, erased);
}

void Journal::applyChange(std::unique_ptr<Setting>& change, bool /*undoing*/) {
    change->exchange();
    tell(&ZrDbDatabaseReactor::headerSysVarChanged, change->name.c_str());
}

} // namespace quor::db
