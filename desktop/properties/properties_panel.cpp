#include "desktop/properties/properties_panel.h"

#include "desktop/front/desktop_front_end.h"
#include "desktop/keys.h"
#include "desktop/properties/row_tree.h"
#include "desktop/qt_text.h"
#include "host/session.h"
#include "host/texts/properties.h"
#include "host/texts/window.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace quor::desktop {

namespace {

constexpr int kMargin = 4;

} // namespace

PropertiesPanel::PropertiesPanel(Session& session, QWidget* parent)
    : QWidget(parent), session_(session), sheet_(session), kinds_(new QComboBox(this)),
      rows_(new RowTree(
          session, [this](std::string_view id, const QString& typed) { return take(id, typed); }, this)) {
    setObjectName("properties");
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kMargin);
    layout->addWidget(kinds_);
    layout->addWidget(rows_);
    kinds_->setObjectName("kinds");
    kinds_->setAccessibleName(toQt(texts::kShownObjects));
    rows_->setAccessibleName(toQt(texts::window::kProperties));
    connect(kinds_, &QComboBox::currentIndexChanged, this, [this](int kind) {
        if (kind < 0 || !Session::exists())
            return;
        sheet_.chooseKind(static_cast<std::size_t>(kind));
        refresh();
    });
    sheet_.whenStale([this] { refreshSoon(); });
    // Whether a command runs is seen from what is asked.
    if (auto* const front = dynamic_cast<DesktopFrontEnd*>(&session.front())) {
        connect(front, &DesktopFrontEnd::questionOpened, this, &PropertiesPanel::refreshSoon);
        connect(front, &DesktopFrontEnd::questionAnswered, this, &PropertiesPanel::refreshSoon);
        connect(front, &DesktopFrontEnd::commandGiven, rows_, &RowTree::finish); // before the command begins
    }
    refresh();
}

void PropertiesPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
}

// What is erased here is a value; the window would erase the objects.
void PropertiesPanel::keyPressEvent(QKeyEvent* event) { event->setAccepted(isErasing(event->key())); }

// Once for all that happens until the program waits.
void PropertiesPanel::refreshSoon() {
    if (std::exchange(isWaiting_, true))
        return;
    QMetaObject::invokeMethod(
        this, [this] { refresh(); }, Qt::QueuedConnection);
}

// Nobody looks at a palette that is hidden; what it would show is read when it is.
void PropertiesPanel::refresh() {
    isWaiting_ = false;
    if (!Session::exists() || std::exchange(isRefreshing_, true))
        return;
    if (isVisible() || rows_->topLevelItemCount() == 0) {
        refreshKinds();
        rows_->setEditable(sheet_.isEditable());
        rows_->showRows(sheet_.rows(), sheet_.isWorld(), sheet_.showing());
    }
    isRefreshing_ = false;
}

void PropertiesPanel::refreshKinds() {
    const QSignalBlocker blocker(kinds_);
    QStringList names;
    for (const props::Kind& kind : sheet_.kinds())
        names.append(toQt(kind.text));
    QStringList shown;
    for (int i = 0; i < kinds_->count(); ++i)
        shown.append(kinds_->itemText(i));
    if (names != shown) {
        kinds_->clear();
        kinds_->addItems(names);
    }
    kinds_->setCurrentIndex(static_cast<int>(sheet_.chosenKind()));
}

QString PropertiesPanel::take(std::string_view id, const QString& typed) {
    if (!Session::exists())
        return {};
    const props::Refusal refusal = sheet_.set(id, fromQt(typed));
    if (!refusal)
        refresh();
    return refusal ? toQt(*refusal) : QString();
}

} // namespace quor::desktop
