#include "host/commands/save_place.h"

#include "host/commands/ask.h"
#include "host/commands/drawing_files.h"
#include "host/commands/problem.h"
#include "host/session.h"
#include "host/texts/files.h"

namespace quor::commands {

namespace fs = std::filesystem;

int checkPlace(Session& session, const fs::path& path, const Document* own, const PlaceTexts& place, bool mayReplace) {
    std::error_code error;
    if (fs::is_directory(path, error))
        return failBeforePerson(place.isFolder, textOf(path));
    if (fs::exists(path, error) && !fs::is_regular_file(path, error))
        return failBeforePerson(place.noRegularFile, textOf(path));
    const fs::path folder = path.parent_path();
    if (!folder.empty() && !fs::is_directory(folder, error))
        return failBeforePerson(place.noSuchFolder, textOf(folder));
    const Document* open = openDocument(session, path);
    if (open != nullptr && open != own)
        return failBeforePerson(place.isOpenDrawing, textOf(path));
    if (open != nullptr || mayReplace || !fs::exists(path, error))
        return RTNORM;
    const std::optional<bool> replace = askYesNo(fillShown(texts::kAskReplace, textOf(path)), false);
    if (!replace)
        return RTCAN;
    return *replace ? RTNORM : failWith(place.notReplaced, textOf(path));
}

} // namespace quor::commands
