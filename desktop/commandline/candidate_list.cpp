#include "desktop/commandline/candidate_list.h"

#include "desktop/qt_text.h"
#include "host/texts/command_line.h"

#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace quor::desktop {

namespace {

constexpr int kMostRowsSeen = 12;
constexpr int kGap = 18;
constexpr int kLeastWidth = 180;

} // namespace

CandidateList::CandidateList(QWidget* parent) : QTreeWidget(parent), colors_(LineColors::current()) {
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(toQt(texts::line::kListName));
    setColumnCount(2);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    header()->setStretchLastSection(true);
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        const auto row = static_cast<std::size_t>(indexOfTopLevelItem(item));
        if (row < rows_.size()) {
            const QString answer = rows_[row].answer;
            Q_EMIT picked(answer);
        }
    });
}

void CandidateList::offer(std::vector<Row> rows, const QRect& beside) {
    if (rows.empty())
        return dismiss();
    rows_ = std::move(rows);
    clear();
    for (const Row& row : rows_) {
        auto* const item = new QTreeWidgetItem(this, {row.text, row.detail}); // owned by the list
        item->setForeground(1, colors_.dim);
    }
    setCurrentItem(nullptr);
    place(beside);
    show();
}

void CandidateList::place(const QRect& beside) {
    const bool hasDetails =
        std::any_of(rows_.begin(), rows_.end(), [](const Row& row) { return !row.detail.isEmpty(); });
    setColumnHidden(1, !hasDetails);
    const int textWidth = sizeHintForColumn(0) + kGap;
    setColumnWidth(0, textWidth);
    const int seen = std::min(static_cast<int>(rows_.size()), kMostRowsSeen);
    const bool scrolls = seen < static_cast<int>(rows_.size());
    const int bar = scrolls ? verticalScrollBar()->sizeHint().width() : 0;
    const int wanted = textWidth + (hasDetails ? sizeHintForColumn(1) + kGap : 0) + bar + 2 * frameWidth();
    const int width = std::max(wanted, kLeastWidth);
    const int height = seen * std::max(sizeHintForRow(0), 1) + 2 * frameWidth();
    const QScreen* const shown = screen();
    const QRect room = shown != nullptr ? shown->availableGeometry() : QRect(0, 0, 1 << 14, 1 << 14);
    const bool fitsAbove = beside.top() - height >= room.top();
    const int y = fitsAbove ? beside.top() - height : beside.bottom() + 1;
    const int x = std::max(room.left(), std::min(beside.left(), room.right() - width));
    setGeometry(x, y, width, height);
}

void CandidateList::dismiss() {
    hide();
    rows_.clear();
    clear();
}

void CandidateList::move(int direction) {
    const int count = topLevelItemCount();
    if (count == 0)
        return;
    const int at = currentItem() != nullptr ? indexOfTopLevelItem(currentItem()) : (direction > 0 ? -1 : count);
    setCurrentItem(topLevelItem((at + direction + count) % count));
}

std::optional<QString> CandidateList::chosen() const {
    if (!isOpen() || currentItem() == nullptr)
        return std::nullopt;
    return rows_[static_cast<std::size_t>(indexOfTopLevelItem(currentItem()))].answer;
}

void CandidateList::applyColors(const LineColors& colors) {
    colors_ = colors;
    giveColors(*this, colors);
}

} // namespace quor::desktop
