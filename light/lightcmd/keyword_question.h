// A question for a keyword that shows a word for what the light has, or for what Enter does.
#pragma once

#include "light/lightcmd/replies.h"
#include "light/res/load_text.h"
#include "sdk/sys/format.h"

namespace quor::light {

struct KeywordQuestion {
    const Text& prompt; // with one %s, the word that is shown
    const Text& keywords;
};

[[nodiscard]] inline int askKeyword(const KeywordQuestion& question, const ZrString& shown, ZrString& reply) {
    zredInitGet(0, LoadedText(question.keywords).c_str());
    return askKeyword(zrFormat(LoadedText(question.prompt).c_str(), {shown}).c_str(), reply);
}

} // namespace quor::light
