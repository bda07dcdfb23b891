#include "light/palette/dialog_layout.h"

#include "sdk/ui/dpi.h"

namespace quor::light {

namespace {

int listTop(const CRect& frame) {
    // Rounded lengths need not add up to the rounded sum: on a finer screen the list begins where the label ends.
    if (ZkUiGetDisplayScale() > 1.0)
        return frame.top + ZkUiGetCtrlDPISize(4) + ZkUiGetCtrlDPISize(20) + ZkUiGetCtrlDPISize(1);
    return frame.top + ZkUiGetCtrlDPISize(25);
}

int listBottom(const CRect& frame, bool tipsShown) {
    const int withoutTips = frame.bottom - ZkUiGetCtrlDPISize(10);
    return tipsShown ? withoutTips - ZkUiGetCtrlDPISize(100) - ZkUiGetCtrlDPISize(8) : withoutTips;
}

} // namespace

DialogLayout layOutDialog(const CRect& frame, bool tipsShown) {
    const int left = frame.left + ZkUiGetCtrlDPISize(10);
    const int right = std::max(left, frame.right - ZkUiGetCtrlDPISize(10));
    const int labelTop = frame.top + ZkUiGetCtrlDPISize(4);
    const int top = listTop(frame);
    const int bottom = listBottom(frame, tipsShown);
    const int tipsTop = bottom + ZkUiGetCtrlDPISize(8);
    return {.label = {left, labelTop, right, labelTop + ZkUiGetCtrlDPISize(20)},
            .list = {left, top, right, std::max(top, bottom)},
            .tips = {left, tipsTop, right, tipsTop + ZkUiGetCtrlDPISize(100)}};
}

} // namespace quor::light
