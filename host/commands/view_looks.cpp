// How the picture is made: its style and projection, PLAN, REGEN, OSNAP.
#include "host/commands/commands.h"
#include "host/commands/view.h"
#include "host/document.h"
#include "host/gs/picking.h"
#include "host/sys/system_variables.h"
#include "host/texts/view.h"

#include <algorithm>
#include <array>

namespace quor::commands {

namespace {

using gs::Projection;
using gs::VisualStyle;

constexpr const wchar_t* kSnapVariable = L"OSMODE";
constexpr int kAllSnaps = gs::kSnapEnd | gs::kSnapMiddle | gs::kSnapCenter;

struct SnapName {
    int mode;
    const wchar_t* keyword;
    const Text& name;
};
constexpr std::array kSnapNames{
    SnapName{gs::kSnapEnd, L"End", texts::kSnapEndName},
    SnapName{gs::kSnapMiddle, L"Mid", texts::kSnapMidName},
    SnapName{gs::kSnapCenter, L"Center", texts::kSnapCenterName},
};

struct StyleName {
    VisualStyle style;
    const wchar_t* keyword;
    const Text& name;
};
// A style may have more than one keyword; it is called by its first one.
constexpr std::array kStyleNames{
    StyleName{VisualStyle::Wireframe, L"Wireframe", texts::kStyleWireframe},
    StyleName{VisualStyle::Shaded, L"Shaded", texts::kStyleShaded},
    StyleName{VisualStyle::Interior, L"Interior", texts::kStyleInterior},
    StyleName{VisualStyle::Wireframe, L"2dwireframe", texts::kStyleWireframe},
    StyleName{VisualStyle::Shaded, L"Realistic", texts::kStyleShaded},
};

ZrString describeSnaps(int modes) {
    ZrString names;
    for (const SnapName& snap : kSnapNames)
        if ((modes & snap.mode) != 0)
            names += (names.empty() ? L"" : L", ") + ZrString(snap.name.get());
    if (names.empty())
        names = texts::kSnapsNone.get();
    return (modes & gs::kSnapOff) != 0 ? fill(texts::kSnapsOff, names) : names;
}

// The modes after an answer. One that is switched on also switches all on.
int switched(int modes, const ZrString& keyword) {
    if (keyword == L"ON")
        return modes & ~gs::kSnapOff;
    if (keyword == L"OFF")
        return modes | gs::kSnapOff;
    if (keyword == L"All")
        return (modes | kAllSnaps) & ~gs::kSnapOff;
    if (keyword == L"None")
        return modes & ~kAllSnaps;
    for (const SnapName& snap : kSnapNames)
        if (keyword == snap.keyword)
            return (modes & snap.mode) != 0 ? modes & ~snap.mode : (modes | snap.mode) & ~gs::kSnapOff;
    return modes;
}

} // namespace

int visualStyle(Session& session) {
    gs::View* const view = viewFor(session, L"VISUALSTYLE");
    if (view == nullptr)
        return RTERROR;
    const auto* const now = std::ranges::find(kStyleNames, view->visualStyle(), &StyleName::style);
    armKeywords(0, L"Wireframe Shaded Interior 2dwireframe Realistic");
    ZrString answer;
    const int result = zredGetKword(fill(texts::kAskVisualStyle, now->name.get()).c_str(), answer);
    if (result != RTNORM)
        return result == RTNONE ? RTNORM : result;
    view->setVisualStyle(std::ranges::find(kStyleNames, answer, &StyleName::keyword)->style);
    return RTNORM;
}

int projection(Session& session) {
    gs::View* const view = viewFor(session, L"PROJECTION");
    if (view == nullptr)
        return RTERROR;
    gs::Camera camera = view->camera();
    const Text& now =
        camera.projection == Projection::Perspective ? texts::kProjectionPerspective : texts::kProjectionParallel;
    armKeywords(0, L"Parallel pErspective");
    ZrString answer;
    const int result = zredGetKword(fill(texts::kAskProjection, now.get()).c_str(), answer);
    if (result != RTNORM)
        return result == RTNONE ? RTNORM : result;
    camera.projection = answer == L"pErspective" ? Projection::Perspective : Projection::Parallel;
    view->setCamera(camera);
    return RTNORM;
}

int plan(Session& session) {
    gs::View* const view = viewFor(session, L"PLAN");
    if (view == nullptr)
        return RTERROR;
    armKeywords(0, L"Current World");
    ZrString answer;
    const int result = zredGetKword(texts::kAskPlan.get(), answer);
    if (result != RTNORM && result != RTNONE)
        return result;
    const db::Ucs ucs = answer == L"World" ? db::Ucs() : session.documents().current()->drawing().ucs();
    gs::Camera camera = view->camera();
    camera.backward = ucs.xAxis.crossProduct(ucs.yAxis).normal();
    camera.up = ucs.yAxis.normal();
    view->setCamera(fitted(camera, view->size(), wholeDrawing(session, *view)));
    return RTNORM;
}

int regen(Session& session) {
    gs::View* const view = viewFor(session, L"REGEN");
    if (view == nullptr)
        return RTERROR;
    view->regenerate();
    return RTNORM;
}

// Snaps are a setting of the person, which a program without a picture keeps for the others.
int objectSnaps(Session& session) {
    while (true) {
        const int modes = session.variables().number(kSnapVariable);
        sayShown(texts::kSnapsAre, describeSnaps(modes));
        armKeywords(0, L"End Mid Center All None ON OFF");
        ZrString answer;
        const int result = zredGetKword(texts::kAskSnap.get(), answer);
        if (result != RTNORM)
            return result == RTNONE ? RTNORM : result;
        session.variables().set(kSnapVariable, static_cast<short>(switched(modes, answer)));
        session.front().redraw();
    }
}

} // namespace quor::commands
