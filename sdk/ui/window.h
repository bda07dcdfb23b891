// A window that knows no toolkit: text, rectangle, styles, parent and children, visibility, focus, messages. It works
// without a display; a program that has one attaches a peer, which shows it and hands over what the person does.
#pragma once

#include "sdk/sys/string.h"
#include "sdk/ui/device_context.h"
#include "sdk/ui/geometry.h"
#include "sdk/ui/input_message.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

class CIcon;

// Window styles that every window has.
inline constexpr unsigned WS_CHILD = 0x40000000;
inline constexpr unsigned WS_VISIBLE = 0x10000000;
inline constexpr unsigned WS_DISABLED = 0x08000000;

// Messages by number. Those from WM_APP on are the program's own.
inline constexpr unsigned WM_SETICON = 0x80;
inline constexpr unsigned WM_COMMAND = 0x111;
inline constexpr unsigned WM_APP = 0x8000;
// Of WM_SETICON's wParam.
inline constexpr std::uintptr_t ICON_SMALL = 0;
inline constexpr std::uintptr_t ICON_BIG = 1;

namespace quor::ui {

class WindowRef;

// What a program attaches to a window to show it. Told after each change.
class WindowPeer {
public:
    enum class Change { Text, Place, Visibility, Enabled, Focus, Picture, Content, Icon };
    virtual ~WindowPeer() = default;
    virtual void changed(CWnd& window, Change change) = 0;
};

// What a control tells its parent; `index` and `column` are -1 where there is none.
struct Notification {
    enum class Code { Click, RightClick, DoubleClick, BeginLabelEdit, EndLabelEdit, ColumnClick, BeginMarquee };
    Code code;
    int index = -1;  // of the row
    int column = -1; // of the column or header item
    ZrString text{}; // of EndLabelEdit
};

// One item that an owner-drawn control has to draw. The control draws at its own coordinates.
struct DrawItem {
    CDC& dc;
    CRect rect;
    int index = -1;        // of the row; -1 for a control as a whole
    bool selected = false; // the states of the item
    bool focused = false;
};

} // namespace quor::ui

class CWnd {
public:
    struct Creation {
        CWnd* parent = nullptr;
        unsigned id = 0;
        unsigned style = 0;
        CRect rect{}; // in the parent's client coordinates; on the screen without a parent
        ZrString text{};
    };

    CWnd() = default;
    // The window goes with the object; its children lose theirs. OnDestroy() is not called any more.
    virtual ~CWnd();
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    // Makes the window of this object: PreSubclassWindow(), then OnCreate(). False when it has one already or the
    // parent has none; false, and no window, when OnCreate() refuses, or when it is gone again once it was announced.
    // Without a parent the program that runs may show it. What is thrown on the way comes through, and there is no
    // window.
    bool Create(const Creation& creation);
    // Takes the place of another window: its text, rectangle, styles, number, children, its place among its siblings,
    // and what the control holds, with its peer and the keyboard. The other object has no window afterwards. Then calls
    // PreSubclassWindow(). False when this object has a window or the other has none.
    bool SubclassWindow(CWnd& other);
    // OnDestroy() is called while all is still there; then its children's windows go, then its own. Nothing without a
    // window.
    void DestroyWindow();
    [[nodiscard]] bool IsWindow() const { return exists_; }

    [[nodiscard]] CWnd* GetParent() const { return parent_; }
    // In the order in which they were made.
    [[nodiscard]] std::span<CWnd* const> children() const { return children_; }
    [[nodiscard]] unsigned GetDlgCtrlID() const { return id_; }
    // The child of that number, or null.
    [[nodiscard]] CWnd* GetDlgItem(unsigned id) const;
    // The window at the top: itself, or the farthest parent.
    [[nodiscard]] CWnd* GetTopLevelParent();

    void SetWindowText(const ZrString& text);
    [[nodiscard]] const ZrString& GetWindowText() const { return text_; }

    [[nodiscard]] unsigned GetStyle() const { return style_; }
    // Whether they have changed. WS_VISIBLE and WS_DISABLED do what ShowWindow() and EnableWindow() do.
    bool ModifyStyle(unsigned remove, unsigned add);

    // On the screen.
    [[nodiscard]] CRect GetWindowRect() const;
    // From (0, 0) on.
    [[nodiscard]] CRect GetClientRect() const { return {0, 0, rect_.Width(), rect_.Height()}; }
    // In the parent's client coordinates.
    [[nodiscard]] CRect GetRectInParent() const { return rect_; }
    void MoveWindow(const CRect& rect, bool repaint = true);
    [[nodiscard]] CPoint ClientToScreen(CPoint point) const;
    [[nodiscard]] CPoint ScreenToClient(CPoint point) const;
    [[nodiscard]] CRect ScreenToClient(const CRect& rect) const;

    // Whether it was shown before.
    bool ShowWindow(bool show);
    // It and all its parents are shown.
    [[nodiscard]] bool IsWindowVisible() const;
    // Its own flag, whatever its parents'.
    [[nodiscard]] bool isShown() const { return (style_ & WS_VISIBLE) != 0; }
    // Whether it was disabled before.
    bool EnableWindow(bool enable = true);
    [[nodiscard]] bool IsWindowEnabled() const { return (style_ & WS_DISABLED) == 0; }

    // Gives it the keyboard, unless it is disabled or one above it is. The window that had it before, or null (the
    // drawing had it). A window that is hidden, disabled or destroyed, or one above it, loses it to the drawing.
    CWnd* SetFocus();
    // The window that has the keyboard; null while the drawing or another program has it.
    [[nodiscard]] static CWnd* GetFocus();
    [[nodiscard]] bool hasFocus() const { return GetFocus() == this; }

    // It has to be painted anew.
    void Invalidate();
    [[nodiscard]] bool needsPaint() const { return needsPaint_; }

    // Sends a message by number: WM_COMMAND (wParam: the command) goes to OnCommand(), WM_SETICON (lParam: a CIcon*) is
    // kept here, all others go to OnMessage(). 0 without a window.
    std::intptr_t SendMessage(unsigned message, std::uintptr_t wParam = 0, std::intptr_t lParam = 0);
    // Tells the parent something: its OnNotify() with this control's number. Nothing without a parent.
    std::intptr_t notifyParent(const quor::ui::Notification& notification);
    // The small icon that was set, or null.
    [[nodiscard]] const quor::ui::PictureResource* icon() const { return icon_; }

    void attachPeer(std::unique_ptr<quor::ui::WindowPeer> peer) { peer_ = std::move(peer); }
    [[nodiscard]] quor::ui::WindowPeer* peer() const { return peer_.get(); }

    // For the host (host/ui/input.h, host/ui/focus.h, host/ui/painting.h): hands a message to the handlers below.
    bool dispatchPreTranslate(const InputMessage& message) { return PreTranslateMessage(message); }
    void dispatchInput(const InputMessage& message);
    void dispatchContextMenu(CWnd* from, CPoint screen) { OnContextMenu(from, screen); }
    void dispatchSetFocus(CWnd* before) { OnSetFocus(before); }
    void dispatchKillFocus(CWnd* after) { OnKillFocus(after); }
    void dispatchPaint(CDC& dc);
    // The window that is meant at a point of the client area: the last made visible child there, and so on; itself.
    [[nodiscard]] CWnd* childAt(CPoint point);

protected:
    // The object is about to be used with its window, made or taken over.
    virtual void PreSubclassWindow() {}
    // False refuses the creation.
    virtual bool OnCreate() { return true; }
    virtual void OnDestroy() {}
    // The size has changed.
    virtual void OnSize(int /*width*/, int /*height*/) {}
    virtual void OnShowWindow(bool /*shown*/) {}
    virtual void OnEnable(bool /*enabled*/) {}
    virtual void OnSetFocus(CWnd* /*before*/) {}
    virtual void OnKillFocus(CWnd* /*after*/) {}
    // Whether the background is done.
    virtual bool OnEraseBkgnd(CDC& /*dc*/) { return false; }
    virtual void OnPaint(CDC& /*dc*/) {}
    virtual void OnMouseMove(unsigned /*flags*/, CPoint /*point*/) {}
    virtual void OnLButtonDown(unsigned /*flags*/, CPoint /*point*/) {}
    virtual void OnLButtonUp(unsigned /*flags*/, CPoint /*point*/) {}
    virtual void OnLButtonDblClk(unsigned /*flags*/, CPoint /*point*/) {}
    virtual void OnRButtonDown(unsigned /*flags*/, CPoint /*point*/) {}
    // Asks for the context menu: OnContextMenu().
    virtual void OnRButtonUp(unsigned flags, CPoint point);
    virtual void OnMouseWheel(int /*lines*/) {}
    virtual void OnKeyDown(unsigned /*key*/, unsigned /*flags*/) {}
    // Goes up to the parent.
    virtual void OnContextMenu(CWnd* from, CPoint screen);
    // Looked at before the window that it is meant for gets it, from that window upwards; true: it goes no further.
    virtual bool PreTranslateMessage(const InputMessage& /*message*/) { return false; }
    // Whether the command was one of its own; else it goes up to the parent.
    virtual bool OnCommand(unsigned /*id*/) { return false; }
    // A control of that number tells something; not 0 refuses what is about to begin.
    virtual std::intptr_t OnNotify(unsigned /*id*/, const quor::ui::Notification& /*notification*/) { return 0; }
    virtual std::intptr_t OnMessage(unsigned /*message*/, std::uintptr_t /*wParam*/, std::intptr_t /*lParam*/) {
        return 0;
    }
    // SubclassWindow: takes over what a control of the same kind holds beside what every window has.
    virtual void takeContent(CWnd& /*other*/) {}

    // Something of its content has changed: it is painted anew and its peer is told.
    void contentChanged();

private:
    void announce(const quor::ui::WindowRef& made);
    void refuse();
    void destroyChildren();
    void dropWindow();
    void leaveParent();
    void loseFocus();
    bool sendCommand(unsigned id);
    void tellPeer(quor::ui::WindowPeer::Change change);

    CWnd* parent_ = nullptr;
    std::vector<CWnd*> children_;
    ZrString text_;
    CRect rect_;
    unsigned id_ = 0;
    unsigned style_ = 0;
    bool exists_ = false;
    bool isGoing_ = false;
    bool needsPaint_ = false;
    const quor::ui::PictureResource* icon_ = nullptr;
    std::unique_ptr<quor::ui::WindowPeer> peer_;
};

// Where the mouse is, on the screen.
[[nodiscard]] CPoint GetCursorPos();
