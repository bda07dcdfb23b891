// The headings of a list's columns.
#pragma once

#include "sdk/ui/window.h"

class CImageList;

// Bits of an item's format.
inline constexpr int HDF_LEFT = 0;
inline constexpr int HDF_IMAGE = 0x800;

class CHeaderCtrl : public CWnd {
public:
    struct Item {
        ZrString text{};
        int width = 0; // pixels
        int format = HDF_LEFT;
        int image = -1;
        int order = 0; // its place from the left
    };

    // Its index, or -1 for a bad one. It stands as far from the left as its index says, whatever its order.
    int InsertItem(int index, const Item& item);
    bool DeleteItem(int index);
    [[nodiscard]] int GetItemCount() const { return static_cast<int>(items_.size()); }
    // An item as it is; null for a bad index. `order` is kept up to date.
    [[nodiscard]] const Item* GetItem(int index) const;
    // False for a bad index, width or order.
    bool SetItem(int index, const Item& item);
    // In its client coordinates; from the left in their order, over the whole height.
    [[nodiscard]] CRect GetItemRect(int index) const;
    // The item at a point, or -1.
    [[nodiscard]] int HitTest(CPoint point) const;
    // Not owned.
    void SetImageList(CImageList* images) { images_ = images; }
    [[nodiscard]] CImageList* GetImageList() const { return images_; }

protected:
    void OnPaint(CDC& dc) override;
    // Tells its parent, the list, which column was clicked.
    void OnLButtonDown(unsigned flags, CPoint point) override;
    void takeContent(CWnd& other) override;

private:
    void itemsChanged();

    std::vector<Item> items_;
    CImageList* images_ = nullptr;
};
