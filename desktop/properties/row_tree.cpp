#include "desktop/properties/row_tree.h"

#include "desktop/keys.h"
#include "desktop/properties/hint.h"
#include "desktop/properties/row_delegate.h"
#include "desktop/properties/swatch.h"
#include "desktop/qt_text.h"
#include "host/session.h"
#include "host/sys/settings_store.h"
#include "host/texts/properties.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace quor::desktop {

namespace {

constexpr int kLabel = 0;
constexpr int kValue = 1;
constexpr int kIndentation = 12;
// In the data of an item: the place of its row, or the number of its group.
constexpr int kPlace = Qt::UserRole;
// Where the settings keep the groups that are closed, by their numbers.
constexpr const wchar_t* kSection = L"Properties";
constexpr const wchar_t* kFolded = L"Folded";

std::set<int> readFolded(Session& session) {
    std::set<int> groups;
    const QString kept = toQt(session.settings().get(kSection, kFolded).value_or(L""));
    for (const QString& number : kept.split(',', Qt::SkipEmptyParts))
        groups.insert(number.toInt());
    return groups;
}

bool opensRow(const QKeyEvent& key) {
    constexpr std::array kOpening{Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2, Qt::Key_Space};
    const bool isPlain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return isPlain && std::ranges::find(kOpening, key.key()) != kOpening.end();
}

} // namespace

RowTree::RowTree(Session& session, Take take, QWidget* parent)
    : QTreeWidget(parent), session_(session), take_(std::move(take)), folded_(readFolded(session)),
      hint_(new Hint(viewport())) {
    setObjectName("rows");
    setColumnCount(2);
    setHeaderLabels({toQt(texts::kPropertyColumn), toQt(texts::kValueColumn)});
    setItemDelegate(new RowDelegate(this));
    setIndentation(kIndentation);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    setAllColumnsShowFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(true);
    connect(header(), &QHeaderView::sectionResized, this, [this](int section, int, int size) {
        if (section == kLabel && !isResizing_ && viewport()->width() > 0)
            labelShare_ = static_cast<double>(size) / viewport()->width();
    });
    connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { rememberFolded(*item, false); });
    connect(this, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* item) { rememberFolded(*item, true); });
}

void RowTree::rememberFolded(const QTreeWidgetItem& group, bool folded) {
    if (isFilling_)
        return;
    const int number = group.data(kLabel, kPlace).toInt();
    if (folded)
        folded_.insert(number);
    else
        folded_.erase(number);
    QStringList numbers;
    for (const int each : folded_)
        numbers.append(QString::number(each));
    session_.settings().set(kSection, kFolded, fromQt(numbers.join(',')));
    giveUp();
}

bool RowTree::isSameShape(const std::vector<props::Row>& rows) const {
    return std::ranges::equal(rows, rows_, {}, &props::Row::id, &props::Row::id);
}

void RowTree::showRows(const std::vector<props::Row>& rows, bool isWorld, std::size_t showing) {
    if (showing != showing_)
        endEdit();
    showing_ = showing;
    const bool isSame = isSameShape(rows);
    rows_ = rows;
    isFilling_ = true;
    if (isSame)
        updateTexts(isWorld);
    else
        rebuild(isWorld);
    isFilling_ = false;
}

void RowTree::fill(QTreeWidgetItem& item, const props::Row& row) const {
    item.setText(kLabel, toQt(row.label));
    item.setText(kValue, toQt(row.text));
    item.setToolTip(kLabel, asTip(toQt(row.label)));
    item.setToolTip(kValue, asTip(toQt(row.text)));
    item.setData(kValue, RowDelegate::IsEditable, isEditable_ && row.editor != props::Editor::ReadOnly);
    item.setData(kValue, RowDelegate::Color, row.color ? QVariant(toQt(*row.color)) : QVariant());
}

void RowTree::rebuild(bool isWorld) {
    const props::Row* const before = rowOf(currentItem());
    const std::string_view current = before != nullptr ? before->id : std::string_view();
    endEdit();
    clear();
    for (std::size_t place = 0; place < rows_.size(); ++place) {
        QTreeWidgetItem* group = groupOf(rows_[place].group);
        if (group == nullptr) {
            group = new QTreeWidgetItem(this);
            group->setData(kLabel, kPlace, static_cast<int>(rows_[place].group));
            group->setData(kLabel, RowDelegate::IsHeading, true);
            group->setText(kLabel, toQt(props::headingOf(rows_[place].group, isWorld)));
            group->setFirstColumnSpanned(true);
        }
        auto* const item = new QTreeWidgetItem(group);
        item->setData(kLabel, kPlace, static_cast<int>(place));
        fill(*item, rows_[place]);
    }
    for (int i = 0; i < topLevelItemCount(); ++i)
        topLevelItem(i)->setExpanded(!folded_.contains(topLevelItem(i)->data(kLabel, kPlace).toInt()));
    if (QTreeWidgetItem* const item = itemOf(current))
        setCurrentItem(item);
}

void RowTree::updateTexts(bool isWorld) {
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem& group = *topLevelItem(i);
        const auto number = static_cast<props::Group>(group.data(kLabel, kPlace).toInt());
        group.setText(kLabel, toQt(props::headingOf(number, isWorld)));
        for (int j = 0; j < group.childCount(); ++j)
            fill(*group.child(j), *rowOf(group.child(j)));
    }
}

const props::Row* RowTree::rowOf(const QTreeWidgetItem* item) const {
    if (item == nullptr || item->parent() == nullptr)
        return nullptr;
    const auto place = static_cast<std::size_t>(item->data(kLabel, kPlace).toInt());
    return place < rows_.size() ? &rows_[place] : nullptr;
}

QTreeWidgetItem* RowTree::groupOf(props::Group group) const {
    for (int i = 0; i < topLevelItemCount(); ++i)
        if (topLevelItem(i)->data(kLabel, kPlace).toInt() == static_cast<int>(group))
            return topLevelItem(i);
    return nullptr;
}

QTreeWidgetItem* RowTree::itemOf(std::string_view id) const {
    for (QTreeWidgetItemIterator at(const_cast<RowTree*>(this)); *at != nullptr; ++at)
        if (const props::Row* const row = rowOf(*at); row != nullptr && row->id == id)
            return *at;
    return nullptr;
}

void RowTree::setEditable(bool editable) {
    if (editable == isEditable_)
        return;
    isEditable_ = editable;
    if (!editable)
        giveUp();
    for (QTreeWidgetItemIterator at(this); *at != nullptr; ++at)
        if (const props::Row* const row = rowOf(*at))
            (*at)->setData(kValue, RowDelegate::IsEditable, editable && row->editor != props::Editor::ReadOnly);
}

void RowTree::beginEdit(QTreeWidgetItem* item, bool byMouse) {
    endEdit();
    const props::Row* const row = rowOf(item);
    if (row == nullptr || !isEditable_ || row->editor == props::Editor::ReadOnly)
        return;
    setCurrentItem(item);
    scrollToItem(item);
    edited_ = item;
    editor_ = ValueEditor::make(*row, session_, viewport());
    connect(editor_, &ValueEditor::applied, this, &RowTree::takeInput);
    connect(editor_, &ValueEditor::givenUp, this, &RowTree::giveUp);
    setItemWidget(item, kValue, editor_);
    editor_->begin(byMouse);
}

// What is taken may change the rows, and with them the item and its editor.
void RowTree::takeInput(const QString& typed, int step) {
    const props::Row* const row = rowOf(edited_);
    if (row == nullptr || isTaking_)
        return;
    const std::string_view id = row->id;
    const bool hadKeyboard = editor_ != nullptr && editor_->focusProxy()->hasFocus();
    isTaking_ = true;
    const QString refusal = take_(id, typed);
    isTaking_ = false;
    if (!refusal.isEmpty()) {
        if (editor_ == nullptr)
            return;
        editor_->setWrong(true);
        hint_->say(refusal, editor_);
        return;
    }
    endEdit();
    if (hadKeyboard || step != 0)
        setFocus();
    if (step != 0)
        if (QTreeWidgetItem* const next = nextEditable(itemOf(id), step))
            beginEdit(next, false);
}

void RowTree::giveUp() {
    const bool hadKeyboard = editor_ != nullptr && editor_->focusProxy()->hasFocus();
    endEdit();
    if (hadKeyboard)
        setFocus();
}

void RowTree::finish() {
    if (editor_ != nullptr && !editor_->isWrong())
        takeInput(editor_->text(), 0);
    giveUp();
}

// An editor that goes loses the keyboard, which is no input. It is deleted when the program comes to it: while a
// question waits that may be long after.
void RowTree::endEdit() {
    hint_->clearMessage();
    QTreeWidgetItem* const item = std::exchange(edited_, nullptr);
    if (editor_ == nullptr)
        return;
    editor_->disconnect(this);
    editor_->hide();
    editor_ = nullptr;
    if (item != nullptr)
        removeItemWidget(item, kValue);
}

QTreeWidgetItem* RowTree::nextEditable(QTreeWidgetItem* from, int step) const {
    for (QTreeWidgetItem* at = from; at != nullptr;) {
        at = step > 0 ? itemBelow(at) : itemAbove(at);
        if (const props::Row* const row = rowOf(at); row != nullptr && row->editor != props::Editor::ReadOnly)
            return at;
    }
    return nullptr;
}

// Before shortcuts of the main window.
bool RowTree::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && opensRow(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QTreeWidget::event(event);
}

void RowTree::editEmptied(QKeyEvent& key) {
    if (editor_ != nullptr)
        return;
    beginEdit(currentItem(), false);
    if (editor_ != nullptr)
        QApplication::sendEvent(editor_->focusProxy(), &key);
}

void RowTree::keyPressEvent(QKeyEvent* event) {
    QTreeWidgetItem* const item = currentItem();
    const bool opens = opensRow(*event);
    if (isErasing(event->key()))
        editEmptied(*event);
    else if (opens && item != nullptr && item->parent() == nullptr)
        item->setExpanded(!item->isExpanded());
    else if (opens)
        beginEdit(item, false);
    else if (isWalking(event->key()))
        QTreeWidget::keyPressEvent(event);
    else // what is typed is for others
        event->ignore();
}

// Not at the press: a list that it opened would take its release for a choice.
void RowTree::mouseReleaseEvent(QMouseEvent* event) {
    QTreeWidget::mouseReleaseEvent(event);
    const QPoint place = event->position().toPoint();
    QTreeWidgetItem* const item = itemAt(place);
    const bool isOnItsRow = item != nullptr && item == currentItem() && item->parent() != nullptr;
    if (event->button() == Qt::LeftButton && isOnItsRow && columnAt(place.x()) == kValue)
        beginEdit(item, true);
}

void RowTree::scrollContentsBy(int dx, int dy) {
    QTreeWidget::scrollContentsBy(dx, dy);
    if (hint_->isVisible() && editor_ != nullptr)
        hint_->say(hint_->text(), editor_);
}

void RowTree::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    isResizing_ = true;
    header()->resizeSection(kLabel, static_cast<int>(viewport()->width() * labelShare_));
    isResizing_ = false;
}

} // namespace quor::desktop
