#include "host/gs/letters.h"

#include <utility>

namespace quor::gs {

namespace {

LetterSource letterSource;

} // namespace

void setLetterSource(LetterSource source) { letterSource = std::move(source); }

const LetterOutline* letterOutline(char32_t character) { return letterSource ? letterSource(character) : nullptr; }

} // namespace quor::gs
