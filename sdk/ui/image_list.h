// Pictures and lists of them.
#pragma once

#include "sdk/ui/geometry.h"
#include "sdk/ui/resource_templates.h"

#include <vector>

class CDC;

// A picture of the resources: a bitmap or an icon. A small value; the picture itself stays where it is.
class CBitmap {
public:
    // Looks it up in the resources in use. False, and no picture, when there is none of that number.
    bool LoadBitmap(unsigned id);
    [[nodiscard]] const quor::ui::PictureResource* picture() const { return picture_; }

private:
    const quor::ui::PictureResource* picture_ = nullptr;
};

class CIcon {
public:
    // Looks it up in the given resources.
    bool LoadIcon(ZwResourceInstance instance, unsigned id);
    [[nodiscard]] const quor::ui::PictureResource* picture() const { return picture_; }

private:
    const quor::ui::PictureResource* picture_ = nullptr;
};

// Kinds of image lists.
inline constexpr unsigned ILC_MASK = 0x1;
inline constexpr unsigned ILC_COLOR8 = 0x8;
// How an image is drawn.
inline constexpr unsigned ILD_NORMAL = 0;
inline constexpr unsigned ILD_TRANSPARENT = 1;

// Pictures of one size, by index.
class CImageList {
public:
    // `width` and `height` in pixels of the screen in use; `initial` and `grow` are counts of images. False when the
    // size is not positive.
    bool Create(int width, int height, unsigned flags, int initial, int grow);
    // The index of the added picture, or -1 when it has none or the list was not created.
    int Add(const CBitmap& bitmap);
    [[nodiscard]] int GetImageCount() const { return static_cast<int>(pictures_.size()); }
    [[nodiscard]] CSize GetImageSize() const { return size_; }
    [[nodiscard]] unsigned flags() const { return flags_; }
    // Null for an index that does not exist.
    [[nodiscard]] const quor::ui::PictureResource* picture(int index) const;
    // Draws an image with its top left corner there. False for an index that does not exist.
    bool Draw(CDC& dc, int index, CPoint at, unsigned style) const;

private:
    std::vector<const quor::ui::PictureResource*> pictures_;
    CSize size_;
    unsigned flags_ = 0;
};
