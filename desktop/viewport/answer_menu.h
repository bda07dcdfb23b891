// The menu of a question that offers keywords: Enter, Esc, and each of them.
#pragma once

class QMenu;
class QWidget;

namespace quor::desktop {

class DesktopFrontEnd;

// For the question that waits; to be shown, and deleted after that. It answers that question only.
[[nodiscard]] QMenu* makeAnswerMenu(DesktopFrontEnd& front, QWidget* parent);

} // namespace quor::desktop
