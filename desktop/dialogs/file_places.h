// Where a file dialog starts, and the places that it offers beside its list.
#pragma once

#include "host/front.h"

#include <QString>

#include <vector>

namespace quor {
class Session;
}

namespace quor::desktop {

struct FilePlace {
    QString name;
    QString folder;
};

// The folder of the drawing, the web files that come with the program, the home folder; those that exist, each once.
[[nodiscard]] std::vector<FilePlace> filePlaces(Session& session);

// Files of one kind, by the first filter, are looked for where the last one of the kind was chosen.
[[nodiscard]] QString startFolder(Session& session, const FileQuestion& question);
void rememberFolder(Session& session, const FileQuestion& question, const QString& file);

} // namespace quor::desktop
