#include "host/db/light_web.h"

#include "host/ies/reader.h"
#include "host/sys/utf8.h"

#include <utility>

namespace quor::db {

namespace {

Quor::ErrorStatus statusOf(ies::Error::Kind kind) {
    switch (kind) {
    case ies::Error::Kind::NotFound:
        return Quor::eFileNotFound;
    case ies::Error::Kind::Unreadable:
        return Quor::eFileAccessErr;
    default:
        return Quor::eUnsupportedFileFormat;
    }
}

WebSymmetry symmetryOf(ies::Symmetry symmetry) {
    switch (symmetry) {
    case ies::Symmetry::None:
        return WebSymmetry::kNone;
    case ies::Symmetry::Axial:
        return WebSymmetry::kAxial;
    case ies::Symmetry::Quadrants:
        return WebSymmetry::kQuadrants;
    case ies::Symmetry::Mirror0_180:
        return WebSymmetry::kMirror0_180;
    case ies::Symmetry::Mirror90_270:
        return WebSymmetry::kMirror90_270;
    case ies::Symmetry::MirrorAtZero:
        return WebSymmetry::kMirrorAtZero;
    }
    return WebSymmetry::kUnknown;
}

WebFinder& webFinder() {
    static WebFinder finder;
    return finder;
}

} // namespace

void setWebFinder(WebFinder finder) { webFinder() = std::move(finder); }

LightWeb readLightWeb(const ZrString& path, ZrString* reason) {
    if (path.empty())
        return {};
    const auto file = ies::loadWeb(toUtf8(path));
    if (file.ok())
        return {Quor::eOk, (*file)->flux, symmetryOf((*file)->web.symmetry)};
    if (reason != nullptr)
        *reason = ies::describe(file.error(), path);
    return {statusOf(file.error().kind), 0, WebSymmetry::kUnknown};
}

std::optional<std::filesystem::path> findKeptWeb(const ZrString& kept) {
    if (kept.empty())
        return std::nullopt;
    return webFinder() ? webFinder()(kept) : std::filesystem::path(toUtf8(kept));
}

WebSymmetry symmetryOfKeptWeb(const ZrString& kept) {
    const std::optional<std::filesystem::path> file = findKeptWeb(kept);
    if (!file)
        return WebSymmetry::kUnknown;
    const ies::LoadedWeb web = ies::loadWeb(*file);
    return web.ok() ? symmetryOf((*web)->web.symmetry) : WebSymmetry::kUnknown;
}

} // namespace quor::db
