#include "desktop/palettes/tooltips.h"

#include "desktop/qt_text.h"

#include <QHelpEvent>
#include <QToolTip>

namespace quor::desktop {

namespace {

ZrString tipAmong(const CWnd& parent, CWnd& window) {
    for (CWnd* const child : parent.children()) {
        const auto* const tips = dynamic_cast<const CToolTipCtrl*>(child);
        if (tips != nullptr && tips->shown() == &window)
            return tips->GetText(window);
    }
    return {};
}

// A name is a name, whatever signs stand in it; long ones are broken.

} // namespace

ZrString tipOf(CWnd& window) {
    for (const CWnd* above = window.GetParent(); above != nullptr; above = above->GetParent())
        if (ZrString tip = tipAmong(*above, window); !tip.empty())
            return tip;
    return {};
}

void showTip(QWidget& widget, const ui::WindowRef& window, const QHelpEvent& event) {
    const ZrString tip = window ? tipOf(*window) : ZrString();
    if (tip.empty())
        QToolTip::hideText();
    else
        QToolTip::showText(event.globalPos(), asTip(toQt(tip)), &widget);
}

void TooltipPeer::changed(CWnd& window, Change change) {
    const auto* const tips = dynamic_cast<const CToolTipCtrl*>(&window);
    if (change == Change::Content && tips != nullptr && tips->shown() == nullptr)
        QToolTip::hideText();
}

} // namespace quor::desktop
