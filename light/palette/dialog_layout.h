// Where the controls of the light list dialog stand.
#pragma once

#include "sdk/ui/geometry.h"

namespace quor::light {

struct DialogLayout {
    CRect label; // above the list
    CRect list;
    CRect tips; // below it, whether it is shown or not
};

// `frame`: the dialog's own rectangle, in its client coordinates. Without the tips the list takes their place too.
[[nodiscard]] DialogLayout layOutDialog(const CRect& frame, bool tipsShown);

} // namespace quor::light
