// What Tab offers: command names at the command prompt, keywords at a question, file names where a path is typed.
#pragma once

#include "sdk/sys/string.h"

#include <functional>
#include <span>
#include <vector>

namespace quor::ed {

struct CommandName {
    ZrString global;
    ZrString local;
};

// The names in a folder; those of folders end with "/". The folder is empty or ends with "/".
using FolderLister = std::function<std::vector<ZrString>(const ZrString& folder)>;

// What may stand where the caret is.
struct CompletionSource {
    bool atCommandPrompt = false;
    bool acceptsBlanks = false;
    bool acceptsText = false; // a path may be meant
    std::vector<CommandName> commands;
    std::vector<ZrString> otherNames; // aliases, system variables; offered once their beginning is typed
    std::span<const ZrString> keywords;
    FolderLister files;
};

struct Completion {
    std::size_t from = 0;             // where the word to be completed starts
    std::vector<ZrString> candidates; // each stands for the whole word; sorted
    ZrString common;                  // what all of them begin with, as the first one spells it

    // Whether the only candidate is a whole answer, behind which a person would go on.
    [[nodiscard]] bool isFinal() const { return candidates.size() == 1 && candidates.front().back() != L'/'; }
};

// `typed`: the line up to the caret.
[[nodiscard]] Completion complete(std::wstring_view typed, const CompletionSource& source);

} // namespace quor::ed
