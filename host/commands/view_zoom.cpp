#include "host/commands/commands.h"
#include "host/commands/view.h"
#include "host/document.h"
#include "host/texts/view.h"
#include "sdk/db/units.h"

#include <algorithm>
#include <cmath>

namespace quor::commands {

namespace {

using gs::Camera;
using gs::View;

int show(View& view, const Camera& camera) {
    if (camera != view.camera())
        view.setCamera(camera);
    return RTNORM;
}

// A drawing without anything visible shows its limits.
gs::Box visible(Session& session, const View& view) {
    const gs::Box box = view.extents();
    return box.isEmpty() ? wholeDrawing(session, view) : box;
}

int zoomExtents(Session& session, View& view) {
    return show(view, fitted(view.camera(), view.size(), visible(session, view)));
}

int zoomAll(Session& session, View& view) {
    return show(view, fitted(view.camera(), view.size(), wholeDrawing(session, view)));
}

int zoomPrevious(Session&, View& view) {
    return view.backToPreviousCamera() ? RTNORM : failWith(texts::kNoPreviousView);
}

int zoomBy(Session& session, View& view, const ZoomScale& scale) {
    Camera camera = view.camera();
    const double whole = fitted(camera, view.size(), wholeDrawing(session, view)).height;
    const double factor = scale.ofCurrent ? scale.value : scale.value * camera.height / whole;
    const gs::PictureSize size = view.size();
    const Camera zoomed = zoomedAt(camera, size, size.width / 2.0, size.height / 2.0, factor);
    if (zoomed == camera && factor != 1)
        return failWith(texts::kZoomLimit);
    return show(view, zoomed);
}

// A scale factor that was typed.
int zoomBy(Session& session, View& view, const ZrString& typed) {
    const auto scale = readZoomScale(typed);
    return scale ? zoomBy(session, view, *scale) : failWith(texts::kBadZoomScale, typed);
}

int zoomScale(Session& session, View& view) {
    const auto typed = askWord(texts::kAskZoomScale.get());
    if (!typed)
        return RTCAN;
    return typed->empty() ? RTNORM : zoomBy(session, view, *typed);
}

// Between two points in the world: what they hold between them on the screen fills the picture.
int zoomBetween(View& view, const ZrGePoint3d& from, const ZrGePoint3d& to) {
    constexpr double kLeast = 1; // pixel
    const Camera camera = view.camera();
    const gs::PictureSize size = view.size();
    const gs::Projector projector(camera, size);
    const auto a = projector.toScreen(from);
    const auto b = projector.toScreen(to);
    if (!a || !b || std::max(std::abs(a->x - b->x), std::abs(a->y - b->y)) < kLeast)
        return failWith(texts::kZoomWindowIsPoint);
    const double factor = std::min(size.width / std::max(std::abs(a->x - b->x), kLeast),
                                   size.height / std::max(std::abs(a->y - b->y), kLeast));
    const double middleX = size.width / 2.0;
    const double middleY = size.height / 2.0;
    const Camera moved = panned(camera, size, middleX - (a->x + b->x) / 2, middleY - (a->y + b->y) / 2);
    return show(view, zoomedAt(moved, size, middleX, middleY, factor));
}

// `first` is in the UCS, as points are answered.
int zoomFrom(View& view, const ZrGePoint3d& first) {
    ZrGePoint3d other;
    zredInitGet(RSG_NONULL, nullptr);
    const int result = zredGetCorner(first, texts::kAskZoomOther.get(), other);
    return result == RTNORM ? zoomBetween(view, zrdbUcs2Wcs(first), zrdbUcs2Wcs(other)) : result;
}

int zoomWindow(Session&, View& view) {
    ZrGePoint3d first;
    zredInitGet(RSG_NONULL, nullptr);
    const int result = zredGetPoint(nullptr, texts::kAskZoomCorner.get(), first);
    return result == RTNORM ? zoomFrom(view, first) : result;
}

int zoomCenter(Session&, View& view) {
    Camera camera = view.camera();
    ZrGePoint3d center;
    const int result = zredGetPoint(nullptr, texts::kAskZoomCenter.get(), center);
    if (result != RTNORM && result != RTNONE)
        return result;
    if (result == RTNORM)
        camera.target = zrdbUcs2Wcs(center);
    ZrString height;
    zrdbRToS(camera.height, -1, -1, height);
    const auto typed = askWord(fill(texts::kAskZoomHeight, height));
    if (!typed)
        return RTCAN;
    if (!typed->empty()) {
        const auto scale = readZoomScale(*typed);
        if (!scale)
            return failWith(texts::kBadZoomScale, *typed);
        camera.height = scale->ofCurrent ? camera.height / scale->value : scale->value;
    }
    return show(view, camera);
}

struct Option {
    const wchar_t* keyword;
    int (*run)(Session&, View&);
};
constexpr Option kOptions[] = {
    {L"All", zoomAll},           {L"Center", zoomCenter}, {L"Extents", zoomExtents},
    {L"Previous", zoomPrevious}, {L"Scale", zoomScale},   {L"Window", zoomWindow},
};
constexpr const wchar_t* kKeywords = L"All Center Extents Previous Scale Window";

} // namespace

gs::View* viewFor(Session& session, const wchar_t* command) {
    gs::View* const view = session.front().view();
    if (view == nullptr)
        sayShown(texts::kNoPicture, command);
    return view;
}

std::optional<ZoomScale> readZoomScale(std::wstring_view typed) {
    constexpr int kDecimal = 2;
    ZoomScale scale;
    scale.ofCurrent = typed.ends_with(L'x') || typed.ends_with(L'X');
    if (scale.ofCurrent)
        typed.remove_suffix(1);
    if (zrdbDisToF(ZrString(typed).c_str(), kDecimal, scale.value) != RTNORM || !(scale.value > 0))
        return std::nullopt;
    return scale;
}

gs::Box wholeDrawing(Session& session, const gs::View& view) {
    gs::Box box = view.extents();
    const db::Database& drawing = session.documents().current()->drawing();
    const bool isFlat = std::abs(view.camera().backward.z) > 1 - 1e-9;
    if (!isFlat && !box.isEmpty())
        return box;
    const ZrString prefix = drawing.isModelTab() ? L"$LIM" : L"$PLIM";
    const auto low = drawing.header(prefix + L"MIN");
    const auto high = drawing.header(prefix + L"MAX");
    const auto* lowest = low ? std::get_if<ZrGePoint3d>(&*low) : nullptr;
    const auto* highest = high ? std::get_if<ZrGePoint3d>(&*high) : nullptr;
    if (lowest != nullptr && highest != nullptr && lowest->x < highest->x && lowest->y < highest->y) {
        box.add({lowest->x, lowest->y, 0});
        box.add({highest->x, highest->y, 0});
    }
    return box;
}

int zoom(Session& session) {
    View* const view = viewFor(session, L"ZOOM");
    if (view == nullptr)
        return RTERROR;
    ZrGePoint3d corner;
    armKeywords(RSG_OTHER, kKeywords);
    const int result = zredGetPoint(nullptr, texts::kAskZoom.get(), corner);
    if (result == RTNONE)
        return zoomExtents(session, *view);
    if (result == RTNORM)
        return zoomFrom(*view, corner);
    if (result != RTKWORD)
        return result;
    ZrString answer;
    zredGetInput(answer);
    for (const Option& option : kOptions)
        if (answer == option.keyword)
            return option.run(session, *view);
    return zoomBy(session, *view, answer);
}

} // namespace quor::commands
