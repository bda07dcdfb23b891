#include "desktop/palettes/list_accessible.h"

#include "desktop/palettes/list_view.h"
#include "desktop/palettes/painter_device.h"
#include "desktop/palettes/window_widget.h"
#include "desktop/qt_text.h"
#include "host/ui/list_text.h"
#include "sdk/ui/controls.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>

namespace quor::desktop {

namespace {

// What a list has in it: a row or a heading, named by its place. What it says is asked for when it is wanted.
class PartAccessible : public QAccessibleInterface {
public:
    PartAccessible(ListView& view, int index) : view_(&view), index_(index) {}

    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return view_ == nullptr ? nullptr : QAccessible::queryAccessibleInterface(view_);
    }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    void setText(QAccessible::Text /*which*/, const QString& /*text*/) override {}
    [[nodiscard]] int index() const { return index_; }

protected:
    [[nodiscard]] ListView* view() const { return view_; }
    [[nodiscard]] const CListCtrl* list() const { return view_ == nullptr ? nullptr : view_->list(); }
    [[nodiscard]] QRect onScreen(QRect inView) const {
        return inView.isEmpty() ? QRect() : inView.translated(view_->mapToGlobal(QPoint()));
    }

private:
    QPointer<ListView> view_;
    int index_;
};

class RowAccessible final : public PartAccessible {
public:
    using PartAccessible::PartAccessible;

    [[nodiscard]] bool isValid() const override { return list() != nullptr && index() < list()->GetItemCount(); }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QString text(QAccessible::Text which) const override {
        return which == QAccessible::Name && isValid() ? toQt(ui::rowText(*list(), index())) : QString();
    }
    [[nodiscard]] QRect rect() const override { return isValid() ? onScreen(view()->rowRect(index())) : QRect(); }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid())
            return state;
        state.selectable = true;
        state.focusable = true;
        state.multiSelectable = (list()->GetStyle() & LVS_SINGLESEL) == 0;
        state.selected = list()->GetItemState(index(), LVIS_SELECTED) != 0;
        state.focused = view()->hasFocus() && list()->GetItemState(index(), LVIS_FOCUSED) != 0;
        state.offscreen = view()->rowRect(index()).isEmpty();
        return state;
    }
};

class HeadingAccessible final : public PartAccessible {
public:
    using PartAccessible::PartAccessible;

    [[nodiscard]] bool isValid() const override {
        return list() != nullptr && index() < list()->GetHeaderCtrl()->GetItemCount();
    }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ColumnHeader; }
    [[nodiscard]] QString text(QAccessible::Text which) const override {
        return which == QAccessible::Name && isValid() ? toQt(ui::headingText(*list(), index())) : QString();
    }
    [[nodiscard]] QRect rect() const override {
        if (!isValid())
            return {};
        const CHeaderCtrl& header = *list()->GetHeaderCtrl();
        const CRect place = header.GetRectInParent();
        return onScreen(toQt(header.GetItemRect(index()).Moved(place.left, place.top)));
    }
    [[nodiscard]] QAccessible::State state() const override { return {}; }
};

// Rows first, by their index; then the headings.
class ListAccessible final : public QAccessibleWidget {
public:
    explicit ListAccessible(ListView& view) : QAccessibleWidget(&view, QAccessible::List), view_(&view) {}
    ~ListAccessible() override {
        for (const auto* parts : {&rows_, &headings_})
            for (const QAccessible::Id id : *parts)
                QAccessible::deleteAccessibleInterface(id);
    }
    ListAccessible(const ListAccessible&) = delete;
    ListAccessible& operator=(const ListAccessible&) = delete;

    [[nodiscard]] int childCount() const override { return rowCount() + headingCount(); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount())
            return nullptr;
        return index < rowCount() ? part<RowAccessible>(rows_, index)
                                  : part<HeadingAccessible>(headings_, index - rowCount());
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* const part = dynamic_cast<const PartAccessible*>(child);
        if (part == nullptr)
            return -1;
        return part->role() == QAccessible::ListItem ? part->index() : rowCount() + part->index();
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        const CListCtrl* const shown = list();
        const QPoint at = view_ == nullptr ? QPoint() : view_->mapFromGlobal(QPoint(x, y));
        return shown == nullptr ? nullptr : child(shown->HitTest(fromQt(at)));
    }
    [[nodiscard]] QAccessibleInterface* focusChild() const override {
        const CListCtrl* const shown = list();
        return shown == nullptr || !view_->hasFocus() ? nullptr : child(shown->GetNextItem(-1, LVNI_FOCUSED));
    }

private:
    using Parts = QHash<int, QAccessible::Id>;

    [[nodiscard]] const CListCtrl* list() const { return view_ == nullptr ? nullptr : view_->list(); }
    [[nodiscard]] int rowCount() const { return list() == nullptr ? 0 : list()->GetItemCount(); }
    [[nodiscard]] int headingCount() const { return list() == nullptr ? 0 : list()->GetHeaderCtrl()->GetItemCount(); }
    // Made when somebody asks for it.
    template <class Part>
    QAccessibleInterface* part(Parts& parts, int index) const {
        const auto known = parts.constFind(index);
        if (known != parts.constEnd())
            return QAccessible::accessibleInterface(*known);
        auto* const made = new Part(*view_, index); // the registry's from now on
        parts.insert(index, QAccessible::registerAccessibleInterface(made));
        return made;
    }

    QPointer<ListView> view_;
    mutable Parts rows_;
    mutable Parts headings_;
};

QAccessibleInterface* accessibleOf(const QString& /*className*/, QObject* object) {
    if (auto* const view = qobject_cast<ListView*>(object))
        return new ListAccessible(*view);
    auto* const widget = qobject_cast<WindowWidget*>(object);
    if (widget != nullptr && dynamic_cast<CStatic*>(widget->shownWindow()) != nullptr)
        return new QAccessibleWidget(widget, QAccessible::StaticText);
    return nullptr;
}

} // namespace

void installListAccessibility() { QAccessible::installFactory(accessibleOf); }

} // namespace quor::desktop
