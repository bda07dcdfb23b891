// About the program, and what mouse and keyboard do in it.
#pragma once

class QWidget;

namespace quor::desktop {

void showAbout(QWidget& owner);
void showShortcuts(QWidget& owner);

} // namespace quor::desktop
