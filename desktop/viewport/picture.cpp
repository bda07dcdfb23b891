#include "desktop/viewport/picture.h"

#include "desktop/viewport/viewport_colors.h"

#include <QElapsedTimer>

namespace quor::desktop {

const QImage& Picture::of(const Subject& subject, const gs::SceneData& scene) {
    if (subject == shown_)
        return image_;
    // A fine picture of something is as good as a fast one of it.
    Subject fine = subject;
    fine.isMoving = false;
    if (fine == shown_)
        return image_;
    render(subject, scene);
    shown_ = subject;
    return image_;
}

void Picture::render(const Subject& subject, const gs::SceneData& scene) {
    if (image_.size() != subject.size)
        image_ = QImage(subject.size, QImage::Format_RGB32);
    image_.setDevicePixelRatio(1);
    RenderOptions options;
    options.style = subject.style;
    options.lighting = subject.lighting;
    options.colors = viewportColors(subject.isDark).picture;
    options.isMoving = subject.isMoving;
    options.pixelRatio = subject.pixelRatio;
    const PixelBuffer pixels{reinterpret_cast<std::uint32_t*>(image_.bits()), image_.width(), image_.height(),
                             static_cast<int>(image_.bytesPerLine() / 4)};
    QElapsedTimer clock;
    clock.start();
    renderer_.render(scene, subject.camera, options, pixels);
    if (!subject.isMoving)
        fineTime_ = clock.elapsed();
    image_.setDevicePixelRatio(subject.pixelRatio);
    ++renderCount_;
}

} // namespace quor::desktop
