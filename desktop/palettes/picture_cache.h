// Pictures of the resources as pixels of the screen. What was drawn once is kept, for as long as the widget that draws
// it.
#pragma once

#include "sdk/ui/resource_templates.h"

#include <QHash>
#include <QIcon>
#include <QPixmap>

namespace quor::desktop {

// Any size, sharp: as many pixels as the screen has for it.
[[nodiscard]] QPixmap drawPicture(const ui::PictureResource& picture, QSize size, qreal pixelRatio);
// In the sizes that title bars and menus use.
[[nodiscard]] QIcon iconOf(const ui::PictureResource& picture);

class PictureCache {
public:
    [[nodiscard]] const QPixmap& get(const ui::PictureResource& picture, QSize size, qreal pixelRatio);

private:
    struct Drawn {
        const ui::PictureResource* picture;
        QSize pixels;
        bool operator==(const Drawn&) const = default;
    };
    friend size_t qHash(const Drawn& drawn, size_t seed) {
        return qHashMulti(seed, drawn.picture, drawn.pixels.width(), drawn.pixels.height());
    }
    QHash<Drawn, QPixmap> drawn_;
};

} // namespace quor::desktop
