// What a drawing file is, in a few words: version, number of entities, size; or why it is none.
#pragma once

#include <QString>

namespace quor::desktop {

// As HTML. Reads the file, unless it is so large that a person would notice.
[[nodiscard]] QString drawingFacts(const QString& path);

} // namespace quor::desktop
