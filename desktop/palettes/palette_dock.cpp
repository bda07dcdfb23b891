#include "desktop/palettes/palette_dock.h"

#include "desktop/palettes/painter_device.h"
#include "desktop/palettes/palette_area.h"
#include "desktop/palettes/person_input.h"
#include "desktop/palettes/picture_cache.h"
#include "desktop/qt_text.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMainWindow>
#include <QScopedValueRollback>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace quor::desktop {

PaletteDock::PaletteDock(CZkUiPaletteSet& palette, QWidget* parent)
    : QDockWidget(parent), window_(&palette), area_(new PaletteArea(palette, *this)) {
    setObjectName(toQt(palette.GetToolID()));
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    setWidget(area_);
    setAttribute(Qt::WA_ShowWithoutActivating); // whoever asks for a palette goes on typing
    connect(this, &QDockWidget::topLevelChanged, this, &PaletteDock::tellOfDocking);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { tellOfKeyboard(now); });
}

// Widgets inside lose the keyboard when they are destroyed, after this object.
PaletteDock::~PaletteDock() { disconnect(qApp, nullptr, this, nullptr); }

void PaletteDock::windowChanged(CWnd& window, ui::WindowPeer::Change change) {
    using Change = ui::WindowPeer::Change;
    switch (change) {
    case Change::Text:
        setWindowTitle(toQt(window.GetWindowText()));
        return;
    case Change::Icon:
        setWindowIcon(window.icon() != nullptr ? iconOf(*window.icon()) : QIcon());
        toggleViewAction()->setIcon(windowIcon());
        return;
    case Change::Visibility:
        return followVisibility(window.isShown());
    case Change::Place:
        if (const CZkUiPaletteSet* const shown = shownPalette())
            followPlace(*shown);
        return;
    case Change::Enabled:
    case Change::Focus:
    case Change::Picture:
    case Change::Content:
        return followWindow(*area_, window, change);
    }
}

void PaletteDock::followVisibility(bool shown) {
    const QScopedValueRollback following(isFollowing_, true);
    setVisible(shown);
}

void PaletteDock::tellPlace() {
    CZkUiPaletteSet* const shown = shownPalette();
    if (shown == nullptr || !area_->isVisible() || isFloating() != isKnownToFloat_)
        return;
    const QScopedValueRollback following(isFollowing_, true);
    const CRect place = fromQt(QRect(area_->mapToGlobal(QPoint()), area_->size()));
    if (isFloating())
        shown->SetFloatingRect(place);
    else
        shown->SetDockedRect(place);
}

bool PaletteDock::restorePlace(QMainWindow& window) {
    const QScopedValueRollback following(isFollowing_, true);
    return window.restoreDockWidget(this);
}

// A docked palette goes where its dock goes.
void PaletteDock::followPlace(const CZkUiPaletteSet& palette) {
    if (!isFollowing_ && isFloating() && !palette.IsDocked())
        placeInside(palette.GetWindowRect());
}

void PaletteDock::placeInside(const CRect& place) {
    const QScopedValueRollback following(isFollowing_, true);
    const QRect wanted = toQt(place);
    if (QRect(area_->mapToGlobal(QPoint()), area_->size()) == wanted)
        return;
    const QSize frame = isVisible() ? size() - area_->size() : sizeHint() - area_->sizeHint();
    const QPoint corner = isVisible() ? area_->mapTo(this, QPoint()) : QPoint();
    setGeometry(QRect(wanted.topLeft() - corner, wanted.size() + frame));
}

// Other ways than the palette's: the list of docks in a menu, a layout that is restored. Docks are hidden and shown in
// passing as well, when they are moved.
bool PaletteDock::event(QEvent* event) {
    const bool isChange = event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent;
    if (isChange && !isFollowing_)
        QMetaObject::invokeMethod(this, &PaletteDock::settleVisibility, Qt::QueuedConnection);
    return QDockWidget::event(event);
}

void PaletteDock::settleVisibility() {
    CZkUiPaletteSet* const shown = shownPalette();
    if (shown == nullptr || shown->isShown() != isHidden())
        return;
    if (isHidden())
        shown->SendMessage(WM_COMMAND, ui::kCloseCommand);
    else
        Q_EMIT shownByPerson();
}

void PaletteDock::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (CZkUiPaletteSet* const shown = shownPalette())
        shown->SendMessage(WM_COMMAND, ui::kCloseCommand);
}

void PaletteDock::moveEvent(QMoveEvent* event) {
    QDockWidget::moveEvent(event);
    tellPlace();
}

// What nobody in a floating palette wants is typed into the main window.
void PaletteDock::keyPressEvent(QKeyEvent* event) {
    if (isFloating() && parentWidget() != nullptr)
        QApplication::sendEvent(parentWidget(), event);
    else
        QDockWidget::keyPressEvent(event);
}

// On the title: the palette's own menu.
void PaletteDock::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    handOver(*area_, {.kind = InputMessage::Kind::RightUp,
                      .window = window_.get(),
                      .point = fromQt(area_->mapFromGlobal(event->globalPos()))});
}

void PaletteDock::tellOfDocking(bool floats) {
    isKnownToFloat_ = floats;
    CZkUiPaletteSet* const shown = shownPalette();
    if (shown == nullptr)
        return;
    if (floats && !isFollowing_)
        floatAsBefore(toQt(shown->GetFloatingRect()).size());
    tellPlace();
    if (floats)
        shown->onFloated();
    else
        shown->onDocked();
}

// A dock that is dragged away keeps the size of the place that it leaves: the whole height of the window. Where it is
// dragged to is up to the person.
void PaletteDock::floatAsBefore(QSize inside) {
    const QScopedValueRollback following(isFollowing_, true);
    const QSize frame = isVisible() ? size() - area_->size() : sizeHint() - area_->sizeHint();
    const QRect space = screen()->availableGeometry();
    resize((inside.expandedTo(area_->minimumSizeHint()) + frame).boundedTo(space.size()));
    QMetaObject::invokeMethod(this, &PaletteDock::moveIntoSight, Qt::QueuedConnection); // Qt places it after this
}

void PaletteDock::moveIntoSight() {
    if (!isFloating() || QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    const QRect space = screen()->availableGeometry();
    const QSize outside = frameGeometry().size();
    move(std::clamp(x(), space.left(), std::max(space.left(), space.right() + 1 - outside.width())),
         std::clamp(y(), space.top(), std::max(space.top(), space.bottom() + 1 - outside.height())));
}

void PaletteDock::tellOfKeyboard(QWidget* now) {
    const bool hasIt = now != nullptr && (now == this || isAncestorOf(now));
    CZkUiPaletteSet* const shown = shownPalette();
    if (std::exchange(hasKeyboard_, hasIt) == hasIt || shown == nullptr)
        return;
    if (hasIt)
        shown->onActivated();
    else
        shown->onDeactivated();
}

} // namespace quor::desktop
