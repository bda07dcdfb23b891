#include "desktop/front/event_pump.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace quor::desktop {

namespace {

// The host works this much longer than a breath took, up to a pause after which Esc would seem not to be heard.
constexpr qint64 kWorkPerBreath = 4;
constexpr qint64 kLongestPause = 500;

enum class Fate { Passes, Waits, IsDropped };

Fate fateOf(QEvent::Type type) {
    switch (type) {
    case QEvent::KeyPress:
        return Fate::Waits;
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::Drop:
        return Fate::IsDropped;
    default:
        return Fate::Passes;
    }
}

bool isEscape(const std::unique_ptr<QKeyEvent>& key) { return key->key() == Qt::Key_Escape; }

} // namespace

void EventPump::breathe() {
    if (isPumping_ || clock_.elapsed() < pause_)
        return;
    isPumping_ = true;
    clock_.restart();
    QApplication::instance()->installEventFilter(this);
    QApplication::processEvents(QEventLoop::AllEvents);
    QApplication::instance()->removeEventFilter(this);
    isPumping_ = false;
    pause_ = std::clamp<qint64>(clock_.restart() * kWorkPerBreath, kMilliseconds, kLongestPause);
}

// A shortcut would not wait: it is taken for a key.
bool EventPump::eventFilter(QObject*, QEvent* event) {
    switch (fateOf(event->type())) {
    case Fate::Waits:
        keep(*static_cast<QKeyEvent*>(event));
        break;
    case Fate::IsDropped:
        break;
    case Fate::Passes:
        return false;
    }
    event->accept();
    return true;
}

void EventPump::keep(const QKeyEvent& event) { keys_.emplace_back(event.clone()); }

bool EventPump::takeEscape() {
    const auto last = std::find_if(keys_.rbegin(), keys_.rend(), isEscape);
    if (last == keys_.rend())
        return false;
    keys_.erase(keys_.begin(), last.base());
    return true;
}

void EventPump::giveBack() {
    QWidget* const target = QApplication::focusWidget();
    for (std::unique_ptr<QKeyEvent>& key : keys_)
        if (target != nullptr)
            QApplication::postEvent(target, key.release());
    keys_.clear();
}

} // namespace quor::desktop
