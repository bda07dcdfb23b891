#include "fuzz/support/onlooker.h"

#include "sdk/ui/list_control.h"

#include <algorithm>
#include <memory>

namespace quor::fuzz {

namespace {

// What has been seen goes nowhere; that it can be read is what counts.
std::size_t seen = 0;

void lookAtRows(const CListCtrl& list) {
    constexpr int kMostRows = 40;
    const int end = std::min(list.GetItemCount(), list.GetTopIndex() + std::min(list.GetCountPerPage() + 1, kMostRows));
    for (int row = list.GetTopIndex(); row < end; ++row) {
        seen += list.GetItemText(row, 0).size() + list.GetItemText(row, 1).size();
        seen += list.GetItemState(row, LVIS_SELECTED | LVIS_FOCUSED);
        seen += static_cast<std::size_t>(list.GetItemImage(row) + list.GetItemRect(row, LVIR_BOUNDS).top);
    }
    seen += static_cast<std::size_t>(list.GetSelectedCount() + list.GetSelectionMark());
}

class Onlooker final : public ui::WindowPeer {
public:
    void changed(CWnd& window, Change /*change*/) override {
        seen += window.GetWindowText().size() + static_cast<std::size_t>(window.GetWindowRect().bottom);
        seen += window.IsWindowVisible() && window.IsWindowEnabled() ? 1 : 0;
        if (const auto* const list = dynamic_cast<const CListCtrl*>(&window))
            lookAtRows(*list);
    }
};

} // namespace

void watch(CWnd& window) {
    if (window.peer() == nullptr)
        window.attachPeer(std::make_unique<Onlooker>());
    for (CWnd* const child : window.children())
        watch(*child);
}

} // namespace quor::fuzz
