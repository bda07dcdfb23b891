#include "desktop/palettes/person_input.h"

#include "desktop/palettes/painter_device.h"
#include "desktop/palettes/palette_area.h"
#include "desktop/palettes/palette_dock.h"
#include "host/ui/input.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace quor::desktop {

namespace {

using Kind = InputMessage::Kind;

struct KnownKey {
    int qt;
    unsigned host;
};

constexpr KnownKey kKeys[] = {
    {Qt::Key_Return, VK_RETURN}, {Qt::Key_Enter, VK_RETURN},  {Qt::Key_Escape, VK_ESCAPE}, {Qt::Key_Space, VK_SPACE},
    {Qt::Key_PageUp, VK_PRIOR},  {Qt::Key_PageDown, VK_NEXT}, {Qt::Key_End, VK_END},       {Qt::Key_Home, VK_HOME},
    {Qt::Key_Up, VK_UP},         {Qt::Key_Down, VK_DOWN},     {Qt::Key_Delete, VK_DELETE},
};

struct KnownButton {
    Qt::MouseButton button;
    Kind down;
    Kind up;
    Kind twice;
};

// A second press of the right button is one more press.
constexpr KnownButton kButtons[] = {
    {Qt::LeftButton, Kind::LeftDown, Kind::LeftUp, Kind::LeftDouble},
    {Qt::RightButton, Kind::RightDown, Kind::RightUp, Kind::RightDown},
};

} // namespace

unsigned heldKeys(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? MK_SHIFT : 0U) |
           (modifiers.testFlag(Qt::ControlModifier) ? MK_CONTROL : 0U);
}

std::optional<unsigned> keyOf(const QKeyEvent& event) {
    if (event.modifiers().testFlag(Qt::AltModifier) || event.modifiers().testFlag(Qt::MetaModifier))
        return std::nullopt;
    if (event.key() == Qt::Key_A && event.modifiers() == Qt::ControlModifier)
        return 'A';
    const auto* const known = std::ranges::find(kKeys, event.key(), &KnownKey::qt);
    return known == std::end(kKeys) ? std::nullopt : std::optional(known->host);
}

std::optional<Kind> kindOf(const QMouseEvent& event) {
    if (event.type() == QEvent::MouseMove)
        return Kind::MouseMove;
    const auto* const known = std::ranges::find(kButtons, event.button(), &KnownButton::button);
    if (known == std::end(kButtons))
        return std::nullopt;
    if (event.type() == QEvent::MouseButtonRelease)
        return known->up;
    return event.type() == QEvent::MouseButtonDblClick ? known->twice : known->down;
}

// The palette's place is looked at when somebody needs it: a dock is moved in many ways.
void handOver(QWidget& widget, InputMessage message) {
    if (PaletteArea* const area = PaletteArea::around(widget))
        area->dock().tellPlace();
    ui::sendInput(message);
}

void handOverMouse(QWidget& widget, const ui::WindowRef& window, QMouseEvent& event, QPoint offset) {
    const std::optional<Kind> kind = kindOf(event);
    if (!kind) {
        event.ignore();
        return;
    }
    event.accept();
    handOver(widget, {.kind = *kind,
                      .window = window.get(),
                      .point = fromQt(event.position().toPoint() + offset),
                      .flags = heldKeys(event.modifiers())});
}

bool handOverKey(QWidget& widget, const ui::WindowRef& window, const QKeyEvent& event) {
    const std::optional<unsigned> key = keyOf(event);
    if (key)
        handOver(widget,
                 {.kind = Kind::KeyDown, .window = window.get(), .flags = heldKeys(event.modifiers()), .key = *key});
    return key.has_value();
}

void askForMenu(QWidget& widget, const ui::WindowRef& window, CPoint point) {
    for (const Kind kind : {Kind::RightDown, Kind::RightUp})
        handOver(widget, {.kind = kind, .window = window.get(), .point = point});
}

} // namespace quor::desktop
