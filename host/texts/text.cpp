#include "host/texts/text.h"

namespace quor {

namespace {
Language spoken = Language::Chinese;
} // namespace

Language language() { return spoken; }

void setLanguage(Language language) { spoken = language; }

} // namespace quor
