// Tells a person what cannot be done.
#pragma once

#include <string_view>

class QWidget;

namespace quor::desktop {

// Waits until the person has closed it.
void showProblem(std::wstring_view message, QWidget* parent);

} // namespace quor::desktop
