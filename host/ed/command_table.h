// The commands that can be typed: by global name, local name and alias.
#pragma once

#include "host/sys/case_fold.h"
#include "sdk/sys/string.h"

#include <functional>
#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

namespace quor::ed {

// A command. The function answers a result code (sdk/rx/result_codes.h).
struct Command {
    ZrString group;      // "QUOR" for the host's own
    ZrString globalName; // as it was registered; matched without regard to case
    ZrString localName;
    int flags = 0;
    std::function<int()> run;
    bool isHost = false;                 // reached by a leading "."
    std::function<ZrString()> help = {}; // the page that a module gave for it; the host's own have theirs in host/texts
};

inline constexpr int kTransparent = 1; // may run inside another command, with a leading "'"
inline constexpr int kNoUndo = 2;      // opens no undo group of its own (UNDO, SAVE, OPEN, …)
inline constexpr int kNoRepeat = 4;    // Enter at the command prompt does not repeat it

// How a typed command word was spelled.
struct CommandWord {
    std::wstring_view name;
    bool transparent = false; // a leading "'"
    bool hostOnly = false;    // a leading "."
    bool globalOnly = false;  // a leading "_"
};
// Takes the marks off the front ("'", ".", "_" in any order). Its name is a part of what was typed.
[[nodiscard]] CommandWord parseCommandWord(std::wstring_view typed);

class CommandTable {
public:
    // False when the group has a command of that global name.
    bool add(Command command);
    // False when the group has no such command.
    bool setHelp(const ZrString& group, const ZrString& globalName, std::function<ZrString()> page);
    bool remove(const ZrString& group, const ZrString& globalName);
    void removeGroup(const ZrString& group);
    bool addAlias(const ZrString& alias, const ZrString& globalName);

    // Local name, then global name, then alias; null when there is none. A later group hides an earlier one of the same
    // name except for the host's own asked for with ".".
    [[nodiscard]] const Command* find(const CommandWord& word) const;
    // Global and local names for completion and HELP, sorted.
    [[nodiscard]] std::vector<const Command*> all() const;
    [[nodiscard]] std::vector<ZrString> aliasesOf(const ZrString& globalName) const;

private:
    // The commands of each name, the latest last.
    using Index = std::unordered_map<ZrString, std::vector<const Command*>, FoldedHash, FoldedEqual>;

    static void forget(Index& index, std::wstring_view name, const Command* command);
    [[nodiscard]] static const Command* latest(const Index& index, std::wstring_view name, bool hostOnly);

    std::vector<std::unique_ptr<Command>> commands_;
    Index byGlobalName_;
    Index byLocalName_;
    std::map<ZrString, ZrString, FoldedLess> aliases_; // alias -> global name
};

} // namespace quor::ed
