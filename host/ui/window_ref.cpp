#include "sdk/ui/window_ref.h"

#include "sdk/ui/window.h"

namespace quor::ui {

namespace {
// A plain pointer: windows and references that live until the process ends may use it to the last.
WindowRef* first = nullptr;
} // namespace

WindowRef::WindowRef(CWnd* window) : window_(window != nullptr && window->IsWindow() ? window : nullptr), next_(first) {
    if (next_ != nullptr)
        next_->before_ = this;
    first = this;
}

WindowRef& WindowRef::operator=(const WindowRef& other) {
    if (this != &other)
        window_ = other.window_;
    return *this;
}

WindowRef::~WindowRef() {
    (before_ == nullptr ? first : before_->next_) = next_;
    if (next_ != nullptr)
        next_->before_ = before_;
}

void WindowRef::windowMoved(const CWnd& from, CWnd* to) {
    for (WindowRef* reference = first; reference != nullptr; reference = reference->next_) {
        if (reference->window_ == &from)
            reference->window_ = to;
    }
}

} // namespace quor::ui
