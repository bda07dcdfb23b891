// What a person points at: points, objects, rectangles.

#include "desktop/front/desktop_front_end.h"
#include "desktop/viewport/viewport.h"
#include "host/ed/pick.h"
#include "host/session.h"
#include "host/sys/system_variables.h"

#include <algorithm>

namespace quor::desktop {

namespace {

using Kind = Question::Kind;

PickMode modeOf(Qt::KeyboardModifiers modifiers) {
    if (modifiers.testFlag(Qt::ShiftModifier))
        return PickMode::TakeAway;
    return modifiers.testFlag(Qt::ControlModifier) ? PickMode::Toggle : PickMode::Add;
}

} // namespace

bool Viewport::asks(std::initializer_list<Kind> kinds) const {
    const Question* const open = view_ != nullptr ? front_.question() : nullptr;
    return open != nullptr && std::find(kinds.begin(), kinds.end(), open->kind) != kinds.end();
}

bool Viewport::asksForPoint() const { return asks({Kind::Point, Kind::Distance, Kind::Angle}); }

bool Viewport::asksForObjects() const { return asks({Kind::Command, Kind::Selection}); }

bool Viewport::isAtCommandPrompt() const { return asks({Kind::Command}); }

WorkPlane Viewport::plane() const {
    const std::optional<sys::VariableValue> elevation = session_.variables().get(L"ELEVATION");
    const double* const height = elevation ? std::get_if<double>(&*elevation) : nullptr;
    return workPlane(view_->document().database()->ucsToWorld(), height != nullptr ? *height : 0);
}

Viewport::Aim Viewport::aimAt(QPointF place) const {
    const gs::Projector projector = this->projector();
    const bool isShaded = gs::showsFaces(visualStyle());
    const bool isOpen = visualStyle() == gs::VisualStyle::Interior;
    // Faces that are filled are meant where they are seen; of others, only the edges are.
    const int modes = snapModes() | (isShaded ? gs::kSnapFace : 0);
    if (asksForPoint() && areSnapsOn())
        if (std::optional<gs::Snap> snap =
                gs::snapAt(view_->scene().data(), projector, place.x(), place.y(), modes, gs::kSnapRadius, isOpen))
            return {snap->at, snap};
    const WorkPlane plane = this->plane();
    const ZrGePoint3d meant = meantPoint(projector, place.x(), place.y(), plane);
    const Question* const open = front_.question();
    if (isOrthoOn() && asksForPoint() && open->base && !open->baseIsCorner)
        return {alongAnAxis(*open->base, meant, plane), std::nullopt};
    return {meant, std::nullopt};
}

ZrDbObjectId Viewport::objectAt(QPointF place) const {
    gs::PickOptions options;
    options.radius = kPickRadius;
    options.faces = gs::showsFaces(visualStyle());
    options.isOpen = visualStyle() == gs::VisualStyle::Interior;
    return gs::pickAt(view_->scene().data(), projector(), place.x(), place.y(), options);
}

// The mouse is there now.
void Viewport::point(QPointF place) {
    cursor_ = place;
    isHoverDue_ = true;
    aim_.reset();
    update();
    if (view_ == nullptr)
        return;
    if (rectangle_)
        rectangle_->to = place;
    const Aim aim = aimAt(place);
    if (asksForPoint()) {
        aim_ = aim;
        front_.sample(aim.point);
    }
    Q_EMIT cursorMoved(aim.point);
}

// Something under the cursor is taken; nothing there begins a rectangle, and so a second click ends it.
void Viewport::pressToPick(QPointF place, Qt::KeyboardModifiers modifiers) {
    if (rectangle_) {
        finishRectangle(place, modifiers);
        return;
    }
    view_->update();
    if (const ZrDbObjectId hit = objectAt(place); !hit.isNull()) {
        take({hit}, modifiers);
        return;
    }
    rectangle_ = PickRectangle{place, place};
    isRectanglePressed_ = true;
    update();
}

void Viewport::finishRectangle(QPointF place, Qt::KeyboardModifiers modifiers) {
    rectangle_->to = place;
    const PickRectangle rectangle = *rectangle_;
    rectangle_.reset();
    update();
    gs::PickOptions options;
    options.faces = gs::showsFaces(visualStyle());
    view_->update();
    const ZrDbObjectIdArray picked =
        gs::pickIn(view_->scene().data(), projector(), rectangle.pixels(), rectangle.how(), options);
    if (!picked.empty())
        take(picked, modifiers);
}

// While a block is edited in place, nothing else is selected. At a question the host says so.
ZrDbObjectIdArray Viewport::selectable(ZrDbObjectIdArray picked) const {
    std::erase(picked, ZrDbObjectId());
    (void)ed::leaveOutStrangers(view_->document(), picked);
    return picked;
}

void Viewport::take(const ZrDbObjectIdArray& picked, Qt::KeyboardModifiers modifiers) {
    PickMode mode = modeOf(modifiers);
    if (isAtCommandPrompt()) {
        zredSetImpliedSelection(selectionAfter(zredImpliedSelection(), selectable(picked), mode));
        return;
    }
    // An answer adds or takes away: a single object is toggled by what it is, several of them are added.
    const auto isGiven = [&](ZrDbObjectId id) { return std::find(given_.begin(), given_.end(), id) != given_.end(); };
    if (mode == PickMode::Toggle)
        mode = picked.size() == 1 && isGiven(picked.front()) ? PickMode::TakeAway : PickMode::Add;
    given_ = selectionAfter(given_, picked, mode);
    followSelection();
    front_.give({Answer::Kind::Objects, {}, {}, picked, mode == PickMode::TakeAway});
}

bool Viewport::escape() {
    if (rectangle_) {
        rectangle_.reset();
        update();
        return true;
    }
    if (!isAtCommandPrompt() || zredImpliedSelection().empty())
        return false;
    zredSetImpliedSelection({});
    return true;
}

void Viewport::questionOpened() {
    if (isAtCommandPrompt() && !given_.empty()) {
        given_.clear();
        followSelection();
    }
    rectangle_.reset(); // whoever typed meanwhile has left it
    isHoverDue_ = true;
    aim_.reset();
    if (cursor_ && asksForPoint()) {
        aim_ = aimAt(*cursor_);
        front_.sample(aim_->point); // what is dragged is under the cursor from the start
    }
    update();
}

// At most once for each picture.
void Viewport::showHovered() {
    bool isAnother = std::exchange(hoverVersion_, view_->version()) != view_->version();
    if (std::exchange(isHoverDue_, false)) {
        const bool looks = cursor_ && asksForObjects() && !rectangle_ && held_ == Held::Nothing && !isMoving_;
        const ZrDbObjectIdArray meant = looks ? selectable({objectAt(*cursor_)}) : ZrDbObjectIdArray();
        const ZrDbObjectId hovered = meant.empty() ? ZrDbObjectId() : meant.front();
        isAnother = std::exchange(hovered_, hovered) != hovered || isAnother;
    }
    if (isAnother)
        hover_ = hoverSketch(view_->scene().data(), hovered_);
}

} // namespace quor::desktop
