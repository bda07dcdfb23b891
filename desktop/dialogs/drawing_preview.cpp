#include "desktop/dialogs/drawing_preview.h"

#include "desktop/dialogs/facts_html.h"
#include "host/db/database.h"
#include "host/texts/files.h"

#include <QFileInfo>

#include <algorithm>

namespace quor::desktop {

namespace {

constexpr qint64 kLargest = 16 << 20;

QString versionText(const ZrString& version) {
    const auto* release = std::ranges::find_if(texts::kReleases, [&](const auto& r) { return version == r.version; });
    return toQt(release == std::end(texts::kReleases) ? version : version + L" (" + release->name + L")");
}

std::size_t entityCount(db::Database& drawing) {
    std::size_t count = drawing.entities(drawing.interface().modelSpaceId()).size();
    for (const db::LayoutInfo& layout : drawing.layouts())
        count += drawing.entities(layout.blockId).size();
    return count;
}

} // namespace

QString drawingFacts(const QString& path) {
    const qint64 size = QFileInfo(path).size();
    const Fact sizeFact{toQt(texts::kPreviewSize), fileSizeText(size)};
    if (size > kLargest)
        return factsHtml({sizeFact}) + "<p>" + toQt(texts::kPreviewTooLarge).toHtmlEscaped() + "</p>";
    const auto drawing = db::Database::open(path.toStdString());
    if (!drawing)
        return factsHtml({sizeFact}) + "<p>" + toQt(drawing.error().message).toHtmlEscaped() + "</p>";
    return factsHtml({{toQt(texts::kPreviewVersion), versionText((*drawing)->version())},
                      {toQt(texts::kPreviewEntities), QString::number(entityCount(**drawing))},
                      sizeFact});
}

} // namespace quor::desktop
