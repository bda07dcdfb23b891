// A pointer to a window that somebody else may destroy meanwhile.
#pragma once

class CWnd;

namespace quor::ui {

// Becomes null when the window is gone: destroyed, or its object is. Where another object takes the window over, it
// points to that one.
class WindowRef {
public:
    // Null for an object without a window too.
    explicit WindowRef(CWnd* window = nullptr);
    WindowRef(const WindowRef& other) : WindowRef(other.window_) {}
    WindowRef& operator=(const WindowRef& other);
    ~WindowRef();

    [[nodiscard]] CWnd* get() const { return window_; }
    explicit operator bool() const { return window_ != nullptr; }
    CWnd* operator->() const { return window_; }
    CWnd& operator*() const { return *window_; }

private:
    friend class ::CWnd;
    // The window `from` is gone, or `to` has it.
    static void windowMoved(const CWnd& from, CWnd* to);

    CWnd* window_;
    // All that there are, in a chain, so that a window that goes finds those that point to it.
    WindowRef* before_ = nullptr;
    WindowRef* next_;
};

} // namespace quor::ui
