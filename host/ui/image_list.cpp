#include "sdk/ui/image_list.h"

#include "sdk/ui/device_context.h"

#include <algorithm>

bool CImageList::Create(int width, int height, unsigned flags, int initial, int /*grow*/) {
    if (width <= 0 || height <= 0)
        return false;
    pictures_.clear();
    pictures_.reserve(static_cast<std::size_t>(std::max(initial, 0)));
    size_ = {width, height};
    flags_ = flags;
    return true;
}

int CImageList::Add(const CBitmap& bitmap) {
    if (bitmap.picture() == nullptr || size_ == CSize())
        return -1;
    pictures_.push_back(bitmap.picture());
    return GetImageCount() - 1;
}

const quor::ui::PictureResource* CImageList::picture(int index) const {
    return index >= 0 && index < GetImageCount() ? pictures_[static_cast<std::size_t>(index)] : nullptr;
}

bool CImageList::Draw(CDC& dc, int index, CPoint at, unsigned style) const {
    const quor::ui::PictureResource* const found = picture(index);
    if (found == nullptr)
        return false;
    dc.DrawPicture(*found, {at.x, at.y, at.x + size_.cx, at.y + size_.cy}, style);
    return true;
}
