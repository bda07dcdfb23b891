// The drawing as it was rendered last, kept until something makes it another one.
#pragma once

#include "desktop/render/renderer.h"

#include <QImage>

namespace quor::desktop {

class Picture {
public:
    // What a picture depends on beside the contents of the scene.
    struct Subject {
        const void* scene = nullptr; // which one
        std::size_t version = 0;     // of its contents
        gs::Camera camera;
        gs::VisualStyle style = gs::VisualStyle::Wireframe;
        Lighting lighting = Lighting::Default;
        bool isDark = true;
        bool isMoving = false;
        QSize size; // pixels of the screen
        double pixelRatio = 1;
        bool operator==(const Subject&) const = default;
    };

    // Renders when it has to.
    const QImage& of(const Subject& subject, const gs::SceneData& scene);
    // Whether it is there already.
    [[nodiscard]] bool has(const Subject& subject) const { return subject == shown_; }
    // Whether the last fine picture kept the person waiting.
    [[nodiscard]] bool takesLong() const { return fineTime_ > kLongTime; }
    // How often it had to.
    [[nodiscard]] std::size_t renderCount() const { return renderCount_; }
    // The next one is rendered, whatever it is of.
    void forget() { shown_ = {}; }

private:
    static constexpr qint64 kLongTime = 150; // milliseconds

    void render(const Subject& subject, const gs::SceneData& scene);

    Renderer renderer_;
    QImage image_;
    Subject shown_;
    std::size_t renderCount_ = 0;
    qint64 fineTime_ = 0; // milliseconds
};

} // namespace quor::desktop
