#include "desktop/dialogs/file_places.h"

#include "desktop/qt_text.h"
#include "host/document.h"
#include "host/session.h"
#include "host/sys/path_text.h"
#include "host/sys/settings_store.h"
#include "host/texts/dialogs.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace quor::desktop {

namespace {

constexpr const wchar_t* kSection = L"Folders";
constexpr const char* kWebFolder = "webs";
constexpr const wchar_t* kWebKind = L"ies";

QString pathToQt(const std::filesystem::path& path) { return QFile::decodeName(path.c_str()); }

// "ies" of "*.ies"; "any" of a filter that holds for every file.
ZrString kindOf(const FileQuestion& question) {
    constexpr const wchar_t* kAny = L"any";
    if (question.filters.empty())
        return kAny;
    ZrString kind;
    const ZrString& pattern = question.filters.front().pattern;
    const std::size_t dot = pattern.find(L'.');
    for (std::size_t i = dot == ZrString::npos ? pattern.size() : dot + 1; i < pattern.size(); ++i)
        if ((pattern[i] >= L'a' && pattern[i] <= L'z') || (pattern[i] >= L'0' && pattern[i] <= L'9'))
            kind += pattern[i];
        else
            break;
    return kind.empty() ? kAny : kind;
}

QString drawingFolder(Session& session) {
    const Document* const document = session.documents().current();
    return document == nullptr || document->path().empty() ? QString()
                                                           : pathToQt(absolutePath(document->path()).parent_path());
}

QString webFolder(Session& session) { return pathToQt(absolutePath(session.options().resourceFolder / kWebFolder)); }

bool isFolder(const QString& path) { return !path.isEmpty() && QFileInfo(path).isDir(); }

} // namespace

std::vector<FilePlace> filePlaces(Session& session) {
    std::vector<FilePlace> places;
    const auto offer = [&](const Text& name, const QString& folder) {
        const QString clean = QDir::cleanPath(folder);
        const bool isKnown = std::ranges::any_of(places, [&](const FilePlace& place) { return place.folder == clean; });
        if (isFolder(folder) && !isKnown)
            places.push_back({toQt(name), clean});
    };
    offer(texts::kFilePlaceDrawing, drawingFolder(session));
    offer(texts::kFilePlaceWebs, webFolder(session));
    offer(texts::kFilePlaceHome, QDir::homePath());
    return places;
}

QString startFolder(Session& session, const FileQuestion& question) {
    const ZrString kind = kindOf(question);
    const QString last = toQt(session.settings().get(kSection, kind).value_or(ZrString()));
    for (const QString& folder : {last, drawingFolder(session), kind == kWebKind ? webFolder(session) : QString()})
        if (isFolder(folder))
            return folder;
    return QDir::currentPath();
}

// A folder that cannot be kept is no reason to bother the person who has chosen a file.
void rememberFolder(Session& session, const FileQuestion& question, const QString& file) {
    session.settings().set(kSection, kindOf(question), fromQt(QFileInfo(file).absolutePath()));
}

} // namespace quor::desktop
