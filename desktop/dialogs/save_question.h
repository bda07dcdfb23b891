// Asks what is to become of the changes of a drawing.
#pragma once

#include "host/front.h"

#include <string_view>

class QWidget;

namespace quor::desktop {

[[nodiscard]] SaveChoice askSaveChoice(std::wstring_view drawing, QWidget* parent);

} // namespace quor::desktop
