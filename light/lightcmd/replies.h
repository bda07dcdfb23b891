// Replies as the commands take them: up to 259 characters.
#pragma once

#include "sdk/ed/get.h"

#include <algorithm>

namespace quor::light {

// Replies go into buffers of this many characters, the terminating one included.
inline constexpr std::size_t replyBufferSize = 260;
// The result code of a reply that is longer.
inline constexpr int replyTooLong = -5008;

[[nodiscard]] inline int checkReplyLength(int result, const ZrString& reply) {
    return result == RTNORM && reply.size() >= replyBufferSize ? replyTooLong : result;
}

// A question whose answer is a keyword.
[[nodiscard]] inline int askKeyword(const wchar_t* prompt, ZrString& reply) {
    const int result = zredGetKword(prompt, reply);
    return checkReplyLength(result, reply);
}

// A question for one of some keywords that takes any other text too, as it was typed.
[[nodiscard]] inline int askKeywordOrText(const wchar_t* prompt, const wchar_t* keywords, ZrString& reply) {
    zredInitGet(RSG_OTHER, keywords);
    return askKeyword(prompt, reply);
}

// A question whose answer is a text with blanks in it.
[[nodiscard]] inline int askLine(const wchar_t* prompt, ZrString& reply) {
    const int result = zredGetString(1, prompt, reply);
    return checkReplyLength(result, reply);
}

// A question whose answer is a text without blanks; Enter answers the empty text.
[[nodiscard]] inline int askWord(const wchar_t* prompt, ZrString& reply) {
    const int result = zredGetString(0, prompt, reply);
    return checkReplyLength(result, reply);
}

// Leaves of a reply what its buffer holds; for the questions that do not refuse one that is longer.
inline void cutTo(ZrString& reply, std::size_t longest) { reply.resize(std::min(reply.size(), longest)); }

} // namespace quor::light
