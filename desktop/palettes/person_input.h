// What a person does with mouse and keyboard in a widget, as messages to its window.
#pragma once

#include "sdk/ui/input_message.h"
#include "sdk/ui/window_ref.h"

#include <QPoint>

#include <optional>

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace quor::desktop {

[[nodiscard]] unsigned heldKeys(Qt::KeyboardModifiers modifiers);
// The host's number of a key that windows are told of; none for others, which are typed into the command line.
[[nodiscard]] std::optional<unsigned> keyOf(const QKeyEvent& event);
// The kind of a mouse event; none for buttons that windows know nothing of.
[[nodiscard]] std::optional<InputMessage::Kind> kindOf(const QMouseEvent& event);

// Sends a message to the window of a widget. The place of its palette on the screen is told first. Both may be gone
// afterwards.
void handOver(QWidget& widget, InputMessage message);
// `offset`: where the widget that got the event stands in the window. Ignores the event when the window knows nothing
// of its button.
void handOverMouse(QWidget& widget, const ui::WindowRef& window, QMouseEvent& event, QPoint offset = {});
// The same of a key; false when windows are not told of it.
bool handOverKey(QWidget& widget, const ui::WindowRef& window, const QKeyEvent& event);
// The right button, pressed and let go there: what the menu key does.
void askForMenu(QWidget& widget, const ui::WindowRef& window, CPoint point);

} // namespace quor::desktop
