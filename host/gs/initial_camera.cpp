#include "host/gs/initial_camera.h"

#include "host/db/database.h"
#include "host/gs/view_record.h"

#include <algorithm>

namespace quor::gs {

namespace {

// Group codes of a viewport record.
struct RealPlace {
    int code;
    double& (*of)(db::ViewData& view);
};
constexpr std::array kReals{
    RealPlace{12, [](db::ViewData& view) -> double& { return view.center.x; }},
    RealPlace{22, [](db::ViewData& view) -> double& { return view.center.y; }},
    RealPlace{16, [](db::ViewData& view) -> double& { return view.direction.x; }},
    RealPlace{26, [](db::ViewData& view) -> double& { return view.direction.y; }},
    RealPlace{36, [](db::ViewData& view) -> double& { return view.direction.z; }},
    RealPlace{17, [](db::ViewData& view) -> double& { return view.target.x; }},
    RealPlace{27, [](db::ViewData& view) -> double& { return view.target.y; }},
    RealPlace{37, [](db::ViewData& view) -> double& { return view.target.z; }},
    RealPlace{40, [](db::ViewData& view) -> double& { return view.height; }},
    RealPlace{51, [](db::ViewData& view) -> double& { return view.twistDegrees; }},
};
constexpr int kModeCode = 71;

db::ViewData readViewport(const db::DrawingFile& file, const db::ObjectEntry& viewport) {
    db::ViewData view;
    dxf::TagReader tags = file.tags(file.record(viewport.record));
    dxf::Tag tag;
    while (tags.next(tag)) {
        const auto* const place =
            std::find_if(kReals.begin(), kReals.end(), [&](const RealPlace& each) { return each.code == tag.code; });
        if (place != kReals.end())
            place->of(view) = tag.asDouble().value_or(0);
        else if (tag.code == kModeCode)
            view.mode = static_cast<int>(tag.asInt().value_or(0));
    }
    return view;
}

// From one value to another.
struct Span {
    double low;
    double high;
    [[nodiscard]] double length() const { return std::max(high - low, 0.0); }
    // How much of it is within 0 and `end`.
    [[nodiscard]] double shareUpTo(double end) const {
        const Span inside{std::clamp(low, 0.0, end), std::clamp(high, 0.0, end)};
        if (length() > 0)
            return inside.length() / length();
        return low >= 0 && low <= end ? 1 : 0;
    }
};

// Whether a person would look at the box like this: most of it is on the picture, and it is no speck there. An eye in
// the midst of it was put there on purpose.
bool shows(const Camera& camera, PictureSize size, const Box& box) {
    constexpr double kMostOfIt = 0.5;
    constexpr double kSpeck = 0.1; // of the picture
    const Projector projector(camera, size);
    Box seen;
    bool isAnyBehindEye = false;
    for (const double x : {box.low.x, box.high.x})
        for (const double y : {box.low.y, box.high.y})
            for (const double z : {box.low.z, box.high.z}) {
                const auto at = projector.toScreen({x, y, z});
                if (at)
                    seen.add({at->x, at->y, 0});
                isAnyBehindEye = isAnyBehindEye || !at;
            }
    if (isAnyBehindEye || seen.isEmpty())
        return !seen.isEmpty();
    const Span across{seen.low.x, seen.high.x};
    const Span down{seen.low.y, seen.high.y};
    const double share = across.shareUpTo(size.width) * down.shareUpTo(size.height);
    const double filled = std::max(across.length() / size.width, down.length() / size.height);
    return share >= kMostOfIt && (filled >= kSpeck || box.diagonal() == 0);
}

} // namespace

Camera cameraOf(db::Database& drawing) {
    const db::ObjectEntry* const viewport = drawing.structure().activeViewport();
    if (viewport == nullptr || !viewport->isInFile())
        return {};
    return cameraOf(readViewport(drawing.file(), *viewport)).value_or(Camera());
}

Camera initialCamera(db::Database& drawing, PictureSize size, const Box& extents) {
    const ZrDbDatabase& database = drawing.interface();
    if (database.currentSpaceId() != database.modelSpaceId())
        return fitted(Camera(), size, extents);
    const Camera camera = cameraOf(drawing);
    return extents.isEmpty() || shows(camera, size, extents) ? camera : fitted(camera, size, extents);
}

} // namespace quor::gs
