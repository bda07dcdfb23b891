// A list of rows with columns: texts, an image and a number per row, selection, hit test, label edit, sorting. What a
// click or a key does to the selection stands here, once for every program. It holds 100,000 rows: a row is a few
// numbers and its texts, the selection a bit; inserting, removing, moving and finding a row cost the logarithm of their
// number.
#pragma once

#include "sdk/ui/header_control.h"
#include "sdk/ui/image_list.h"
#include "sdk/ui/window.h"

#include <functional>

namespace quor::ui {
class ListRows;
}

// Styles.
inline constexpr unsigned LVS_REPORT = 0x1;
inline constexpr unsigned LVS_SINGLESEL = 0x4;
inline constexpr unsigned LVS_EDITLABELS = 0x200;
inline constexpr unsigned LVS_OWNERDRAWFIXED = 0x400; // rows are drawn by DrawItem()
// Extended styles.
inline constexpr unsigned LVS_EX_FULLROWSELECT = 0x20;
// States of a row.
inline constexpr unsigned LVIS_FOCUSED = 0x1;
inline constexpr unsigned LVIS_SELECTED = 0x2;
// Parts of a row's rectangle.
inline constexpr int LVIR_BOUNDS = 0;
inline constexpr int LVIR_ICON = 1;
inline constexpr int LVIR_LABEL = 2;
// What GetNextItem looks for.
inline constexpr unsigned LVNI_FOCUSED = 0x1;
inline constexpr unsigned LVNI_SELECTED = 0x2;
// Image lists of a list.
inline constexpr int LVSIL_SMALL = 1;

class CListCtrl : public CWnd {
public:
    CListCtrl();
    ~CListCtrl() override;

    // A row for SetRows(): its texts by column.
    struct Row {
        std::vector<ZrString> texts;
        int image = -1;
    };

    // Columns. `width` in pixels; the index, or -1 for a bad one.
    int InsertColumn(int index, const ZrString& title, int format, int width);
    bool SetColumnWidth(int column, int width);
    [[nodiscard]] int GetColumnWidth(int column) const;
    [[nodiscard]] CHeaderCtrl* GetHeaderCtrl() const { return header_; }
    // Another object takes the header over; it must outlive the list's window.
    void SubclassHeader(CHeaderCtrl& header);

    // Rows by their index, from 0. A bad index is answered with false, -1, 0 or an empty text, and changes nothing.
    [[nodiscard]] int GetItemCount() const;
    // Inserts a row with its text of column 0; the index where it stands (past the end: at the end).
    int InsertItem(int index, const ZrString& text, int image = -1);
    bool DeleteItem(int index);
    bool DeleteAllItems();
    // All rows at once in place of those that are there; costs less than one by one.
    void SetRows(std::vector<Row> rows);
    // The same by columns, as many rows as there are images; costs least. Texts that a column lacks are empty.
    void SetRows(std::vector<std::vector<ZrString>> columns, std::vector<int> images);
    // The row goes elsewhere with all that belongs to it; `to` counts without it.
    bool MoveItem(int from, int to);
    bool SetItemText(int index, int column, const ZrString& text);
    [[nodiscard]] const ZrString& GetItemText(int index, int column) const;
    bool SetItemImage(int index, int image);
    [[nodiscard]] int GetItemImage(int index) const;
    bool SetItemData(int index, std::intptr_t data);
    [[nodiscard]] std::intptr_t GetItemData(int index) const;
    // From now on the data of each row is its index, until SetItemData() gives one another.
    void NumberItems();

    // A row keeps its id for as long as it is there, wherever it stands. Ids are small and used again; -1 and
    // kNoRow for what does not exist.
    static constexpr unsigned kNoRow = ~0U;
    [[nodiscard]] unsigned MapIndexToID(int index) const;
    [[nodiscard]] int MapIDToIndex(unsigned id) const;
    [[nodiscard]] const ZrString& textOf(unsigned id, int column) const;
    [[nodiscard]] int imageOf(unsigned id) const;
    // Walks the rows in their order, from the first: the id behind `id`, or kNoRow.
    [[nodiscard]] unsigned nextID(unsigned id) const;

    // Sorts the rows; those that compare equal keep their order. The comparison gets ids. Selection, focus and mark
    // stay with their rows.
    void SortItems(const std::function<bool(unsigned before, unsigned after)>& less);
    // Puts the rows in this order, each id once; what belongs to them stays with them. False, and nothing changed, when
    // these are not the rows that are there.
    bool ReorderItems(const std::vector<unsigned>& ids);

    // Selection and focus. Only the bits of `mask` are changed; setting the focus takes it from the row that had it.
    bool SetItemState(int index, unsigned state, unsigned mask);
    [[nodiscard]] unsigned GetItemState(int index, unsigned mask) const;
    [[nodiscard]] int GetSelectedCount() const;
    // The next row after `after` (-1: from the first) that has the state, or -1.
    [[nodiscard]] int GetNextItem(int after, unsigned flags) const;
    void SelectAll(bool select);
    [[nodiscard]] bool isSelected(unsigned id) const;
    bool select(unsigned id, bool select);
    // Exactly these rows, as one change.
    void selectOnly(const std::vector<unsigned>& ids);
    // From where Shift extends a selection; -1 for none. Set answers what it was.
    [[nodiscard]] int GetSelectionMark() const;
    int SetSelectionMark(int index);

    // Rows on the screen, in client coordinates; below the header, from GetTopIndex() on.
    [[nodiscard]] int rowHeight() const;
    [[nodiscard]] CRect GetItemRect(int index, int part) const;
    [[nodiscard]] CRect GetSubItemRect(int index, int column, int part) const;
    // The row at a point, or -1. With LVS_EX_FULLROWSELECT all of the row counts, else its icon and label in column 0.
    [[nodiscard]] int HitTest(CPoint point) const;
    [[nodiscard]] int GetTopIndex() const { return top_; }
    // How many whole rows fit.
    [[nodiscard]] int GetCountPerPage() const;
    void SetTopIndex(int index);
    // How far it is scrolled to the right, in pixels; at most until the last column is seen.
    [[nodiscard]] int GetScrollLeft() const { return left_; }
    void SetScrollLeft(int pixels);
    // How many pixels the scroll bars of the program that shows it cover at the right and at the bottom; none at first.
    void SetScrollBarSpace(const CSize& covered);
    // Scrolls as little as needed. False for a bad index.
    bool EnsureVisible(int index);

    // Asks the parent (BeginLabelEdit); false when it refuses, or labels cannot be edited at all. EndEditLabel() with a
    // text asks the parent too (EndLabelEdit), and takes it as text of column 0 unless that refuses; without one it
    // gives up. F2 asks for the focused row, and so does a second click on the only selected row.
    bool EditLabel(int index);
    void EndEditLabel(const std::optional<ZrString>& text);
    [[nodiscard]] int editedItem() const;

    // Not owned. Answers the one before.
    CImageList* SetImageList(CImageList* images, int kind);
    [[nodiscard]] CImageList* GetImageList(int kind) const;
    void SetExtendedStyle(unsigned style) { extendedStyle_ = style; }
    [[nodiscard]] unsigned GetExtendedStyle() const { return extendedStyle_; }
    void SetBkColor(COLORREF color);
    void SetTextColor(COLORREF color);
    [[nodiscard]] COLORREF GetBkColor() const { return backgroundColor_; }
    [[nodiscard]] COLORREF GetTextColor() const { return textColor_; }

protected:
    // Draws one row of an owner-drawn list.
    virtual void DrawItem(const quor::ui::DrawItem& item);

    bool OnCreate() override;
    void OnSize(int width, int height) override;
    void OnPaint(CDC& dc) override;
    // Selects: alone, with Ctrl one more or less, with Shift from the mark on, with both in addition; tells the parent
    // of the click. Beside the rows: asks whether a marquee may begin; refused, nothing changes.
    void OnLButtonDown(unsigned flags, CPoint point) override;
    void OnLButtonDblClk(unsigned flags, CPoint point) override;
    // A row that is not selected is selected alone first.
    void OnRButtonDown(unsigned flags, CPoint point) override;
    // Tells the parent of the right click, with the row or -1.
    void OnRButtonUp(unsigned flags, CPoint point) override;
    void OnMouseWheel(int lines) override;
    // Arrows, Home, End, Page up and down move the focus and select, with Ctrl they only move it, with Shift they
    // extend; Space selects the focused row; Ctrl+A all. What they select is told like a click.
    void OnKeyDown(unsigned key, unsigned flags) override;
    void OnSetFocus(CWnd* before) override;
    void OnKillFocus(CWnd* after) override;
    // Passes a click on a column heading on to the parent.
    std::intptr_t OnNotify(unsigned id, const quor::ui::Notification& notification) override;
    void takeContent(CWnd& other) override;

private:
    void layOutHeader();
    void rowsChanged();
    [[nodiscard]] int lastTopIndex() const;
    [[nodiscard]] bool isSingleSelection() const;
    void selectRow(unsigned id, bool select);
    void chooseRow(int index, unsigned flags);
    void chooseAll();
    void pressBesideRows(unsigned held);
    [[nodiscard]] int keyTarget(unsigned key) const;
    void goTo(int index, unsigned held, bool movesFocusOnly);
    void tellClick(quor::ui::Notification::Code code, int index);

    std::unique_ptr<CHeaderCtrl> ownHeader_;
    CHeaderCtrl* header_ = nullptr;
    std::unique_ptr<quor::ui::ListRows> rows_;
    CImageList* smallImages_ = nullptr;
    unsigned extendedStyle_ = 0;
    COLORREF backgroundColor_;
    COLORREF textColor_;
    int top_ = 0;
    int left_ = 0;
    CSize covered_; // by scroll bars
    unsigned edited_ = kNoRow;
};
