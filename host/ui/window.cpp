#include "sdk/ui/window.h"

#include "host/session.h"
#include "host/ui/acting.h"
#include "host/ui/focus.h"
#include "sdk/ui/image_list.h"
#include "sdk/ui/window_ref.h"

#include <algorithm>
#include <bit>
#include <utility>

using quor::ui::WindowPeer;
using quor::ui::WindowRef;

// Nothing of a derived class can be asked any more.
CWnd::~CWnd() { dropWindow(); }

bool CWnd::Create(const Creation& creation) {
    if (exists_ || (creation.parent != nullptr && !creation.parent->exists_))
        return false;
    exists_ = true;
    needsPaint_ = true;
    parent_ = creation.parent;
    id_ = creation.id;
    style_ = creation.style | (parent_ == nullptr ? 0U : WS_CHILD);
    rect_ = creation.rect;
    text_ = creation.text;
    if (parent_ != nullptr)
        parent_->children_.push_back(this);
    // Whoever is told of the new window may take it away, with its object.
    const WindowRef made(this);
    try {
        PreSubclassWindow();
        if (OnCreate())
            announce(made);
        else if (made.get() == this)
            refuse();
    } catch (...) {
        if (made.get() == this)
            DestroyWindow();
        throw;
    }
    return made.get() == this;
}

// Those who show windows have a new one, if it is still there.
void CWnd::announce(const WindowRef& made) {
    if (made.get() != this)
        return;
    if (parent_ != nullptr)
        parent_->tellPeer(WindowPeer::Change::Content);
    else if (quor::Session::exists())
        quor::Session::current().front().realise(*this);
}

void CWnd::refuse() {
    destroyChildren();
    dropWindow();
}

bool CWnd::SubclassWindow(CWnd& other) {
    if (exists_ || !other.exists_)
        return false;
    exists_ = true;
    needsPaint_ = true;
    parent_ = std::exchange(other.parent_, nullptr);
    if (parent_ != nullptr)
        std::ranges::replace(parent_->children_, &other, this);
    children_ = std::exchange(other.children_, {});
    for (CWnd* child : children_)
        child->parent_ = this;
    id_ = other.id_;
    style_ = other.style_;
    rect_ = other.rect_;
    text_ = other.text_;
    icon_ = other.icon_;
    peer_ = std::move(other.peer_);
    WindowRef::windowMoved(other, this);
    other.dropWindow();
    takeContent(other);
    PreSubclassWindow();
    tellPeer(WindowPeer::Change::Content);
    return true;
}

void CWnd::DestroyWindow() {
    if (!exists_ || isGoing_)
        return;
    isGoing_ = true;
    loseFocus();
    OnDestroy();
    destroyChildren();
    dropWindow();
}

// What a child does about it may take others away too.
void CWnd::destroyChildren() {
    std::vector<WindowRef> children;
    for (CWnd* child : children_)
        children.emplace_back(child);
    for (const WindowRef& child : children) {
        if (child)
            child->DestroyWindow();
    }
}

// The object is as it was before Create(). Nobody is told.
void CWnd::dropWindow() {
    for (CWnd* child : std::exchange(children_, {})) {
        child->parent_ = nullptr;
        child->dropWindow();
    }
    leaveParent();
    WindowRef::windowMoved(*this, nullptr);
    peer_.reset();
    icon_ = nullptr;
    text_.clear();
    rect_ = {};
    id_ = 0;
    style_ = 0;
    exists_ = false;
    isGoing_ = false;
    needsPaint_ = false;
}

void CWnd::leaveParent() {
    if (parent_ != nullptr)
        std::erase(parent_->children_, this);
    parent_ = nullptr;
}

CWnd* CWnd::GetDlgItem(unsigned id) const {
    const auto found = std::ranges::find(children_, id, &CWnd::id_);
    return found == children_.end() ? nullptr : *found;
}

CWnd* CWnd::GetTopLevelParent() {
    CWnd* top = this;
    while (top->parent_ != nullptr)
        top = top->parent_;
    return top;
}

void CWnd::SetWindowText(const ZrString& text) {
    if (!exists_ || text == text_)
        return;
    text_ = text;
    const WindowRef self(this);
    Invalidate();
    if (self)
        tellPeer(WindowPeer::Change::Text);
}

bool CWnd::ModifyStyle(unsigned remove, unsigned add) {
    const unsigned wanted = (style_ & ~remove) | add;
    const unsigned changed = wanted ^ style_;
    if (!exists_ || changed == 0)
        return false;
    constexpr unsigned told = WS_VISIBLE | WS_DISABLED;
    style_ = (wanted & ~told) | (style_ & told);
    if ((changed & ~told) != 0)
        contentChanged();
    if ((changed & WS_VISIBLE) != 0)
        ShowWindow((wanted & WS_VISIBLE) != 0);
    if ((changed & WS_DISABLED) != 0)
        EnableWindow((wanted & WS_DISABLED) == 0);
    return true;
}

CRect CWnd::GetWindowRect() const {
    const CPoint origin = ClientToScreen({0, 0});
    return GetClientRect().Moved(origin.x, origin.y);
}

void CWnd::MoveWindow(const CRect& rect, bool repaint) {
    if (!exists_ || rect == rect_)
        return;
    const bool resized = rect.Size() != rect_.Size();
    rect_ = rect;
    const WindowRef self(this);
    if (repaint)
        Invalidate();
    if (self)
        tellPeer(WindowPeer::Change::Place);
    if (resized && self)
        OnSize(rect.Width(), rect.Height());
}

CPoint CWnd::ClientToScreen(CPoint point) const {
    for (const CWnd* window = this; window != nullptr; window = window->parent_)
        point = {point.x + window->rect_.left, point.y + window->rect_.top};
    return point;
}

CPoint CWnd::ScreenToClient(CPoint point) const {
    const CPoint origin = ClientToScreen({0, 0});
    return {point.x - origin.x, point.y - origin.y};
}

CRect CWnd::ScreenToClient(const CRect& rect) const {
    const CPoint origin = ClientToScreen({0, 0});
    return rect.Moved(-origin.x, -origin.y);
}

bool CWnd::ShowWindow(bool show) {
    const bool before = isShown();
    if (!exists_ || show == before)
        return before;
    style_ ^= WS_VISIBLE;
    const WindowRef self(this);
    if (show)
        Invalidate();
    else
        loseFocus();
    if (self)
        tellPeer(WindowPeer::Change::Visibility);
    if (self)
        OnShowWindow(show);
    return before;
}

bool CWnd::IsWindowVisible() const {
    const CWnd* window = this;
    while (window != nullptr && window->isShown())
        window = window->parent_;
    return exists_ && window == nullptr;
}

bool CWnd::EnableWindow(bool enable) {
    const bool wasDisabled = !IsWindowEnabled();
    if (!exists_ || enable != wasDisabled)
        return wasDisabled;
    style_ ^= WS_DISABLED;
    const WindowRef self(this);
    Invalidate();
    if (!enable && self)
        loseFocus();
    if (self)
        tellPeer(WindowPeer::Change::Enabled);
    if (self)
        OnEnable(enable);
    return wasDisabled;
}

CWnd* CWnd::SetFocus() {
    const CWnd* window = this;
    while (window != nullptr && window->IsWindowEnabled())
        window = window->parent_;
    return exists_ && window == nullptr ? quor::ui::moveFocus(this) : GetFocus();
}

CWnd* CWnd::GetFocus() { return quor::ui::focusedWindow(); }

void CWnd::loseFocus() {
    if (quor::ui::hasFocusInside(*this))
        quor::ui::focusDrawing();
}

void CWnd::Invalidate() {
    if (!exists_)
        return;
    needsPaint_ = true;
    tellPeer(WindowPeer::Change::Picture);
}

void CWnd::contentChanged() {
    const WindowRef self(this);
    Invalidate();
    if (self)
        tellPeer(WindowPeer::Change::Content);
}

void CWnd::tellPeer(WindowPeer::Change change) {
    if (peer_ != nullptr)
        peer_->changed(*this, change);
}

std::intptr_t CWnd::SendMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) {
    if (!exists_)
        return 0;
    if (message == WM_COMMAND)
        return sendCommand(static_cast<unsigned>(wParam)) ? 1 : 0;
    if (message != WM_SETICON)
        return OnMessage(message, wParam, lParam);
    if (wParam == ICON_SMALL) {
        const auto* const icon = std::bit_cast<const CIcon*>(lParam);
        icon_ = icon == nullptr ? nullptr : icon->picture();
        tellPeer(WindowPeer::Change::Icon);
    }
    return 0;
}

// From this window upwards, until one knows it. Those that do not may have gone nevertheless.
bool CWnd::sendCommand(unsigned id) {
    const quor::ui::ActingScope acting(*this);
    WindowRef window(this);
    while (window) {
        if (window->OnCommand(id))
            return true;
        if (window)
            window = WindowRef(window->parent_);
    }
    return false;
}

std::intptr_t CWnd::notifyParent(const quor::ui::Notification& notification) {
    return parent_ == nullptr ? 0 : parent_->OnNotify(id_, notification);
}

void CWnd::dispatchInput(const InputMessage& message) {
    using Kind = InputMessage::Kind;
    switch (message.kind) {
    case Kind::MouseMove:
        return OnMouseMove(message.flags, message.point);
    case Kind::LeftDown:
        return OnLButtonDown(message.flags, message.point);
    case Kind::LeftUp:
        return OnLButtonUp(message.flags, message.point);
    case Kind::LeftDouble:
        return OnLButtonDblClk(message.flags, message.point);
    case Kind::RightDown:
        return OnRButtonDown(message.flags, message.point);
    case Kind::RightUp:
        return OnRButtonUp(message.flags, message.point);
    case Kind::Wheel:
        return OnMouseWheel(message.lines);
    case Kind::KeyDown:
        return OnKeyDown(message.key, message.flags);
    }
}

void CWnd::dispatchPaint(CDC& dc) {
    needsPaint_ = false;
    OnEraseBkgnd(dc);
    OnPaint(dc);
}

CWnd* CWnd::childAt(CPoint point) {
    const auto found = std::find_if(children_.rbegin(), children_.rend(), [point](const CWnd* child) {
        return child->isShown() && child->rect_.PtInRect(point);
    });
    if (found == children_.rend())
        return this;
    const CPoint origin = (*found)->rect_.TopLeft();
    return (*found)->childAt({point.x - origin.x, point.y - origin.y});
}

void CWnd::OnRButtonUp(unsigned /*flags*/, CPoint point) { OnContextMenu(this, ClientToScreen(point)); }

void CWnd::OnContextMenu(CWnd* from, CPoint screen) {
    if (parent_ != nullptr)
        parent_->OnContextMenu(from, screen);
}
