// The settings of a drawing that the Properties palette shows while nothing is selected.
#pragma once

#include "host/props/row.h"

namespace quor {
class Session;
}

namespace quor::props {

// A drawing is open.
[[nodiscard]] std::vector<Row> drawingRows(Session& session);
[[nodiscard]] Refusal setDrawingRow(Session& session, std::string_view id, const ZrString& typed);

} // namespace quor::props
