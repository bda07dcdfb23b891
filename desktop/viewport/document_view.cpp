#include "desktop/viewport/document_view.h"

#include "host/gs/initial_camera.h"

#include <utility>

namespace quor::desktop {

DocumentView::DocumentView(Document& document, gs::PictureSize size, std::function<void()> changed)
    : document_(document), size_(size), changed_(std::move(changed)), scene_(*document.database()) {
    document.database()->addReactor(this);
}

DocumentView::~DocumentView() { document_.database()->removeReactor(this); }

Look& DocumentView::look() {
    const ZrDbObjectId space = document_.database()->currentSpaceId();
    const auto known = looks_.find(space);
    if (known != looks_.end())
        return known->second;
    Look first;
    first.camera = firstCamera();
    return looks_.emplace(space, std::move(first)).first->second;
}

void DocumentView::resize(gs::PictureSize size) {
    if (size == size_)
        return;
    size_ = size;
    if (look().isUntouched)
        look().camera = firstCamera();
}

gs::Camera DocumentView::firstCamera() {
    update();
    return gs::initialCamera(document_.drawing(), size_, scene_.extents());
}

void DocumentView::update(const std::function<void(double)>& progress) {
    isTold_ = false;
    if (scene_.update(progress))
        ++version_;
}

const std::vector<ZrGePoint3d>& DocumentView::selectedLightLines() {
    constexpr int kMostLights = 200;
    if (lightLinesVersion_ == version_)
        return lightLines_;
    lightLinesVersion_ = version_;
    lightLines_.clear();
    const gs::SceneData data = scene_.data();
    int count = 0;
    for (const gs::LightMark& light : data.lights)
        if (light.isGlyphShown && data.emphasis[light.entity] == gs::Emphasis::Selected && count++ < kMostLights) {
            const std::vector<ZrGePoint3d> lines = gs::Scene::lightLines(light.id);
            lightLines_.insert(lightLines_.end(), lines.begin(), lines.end());
        }
    return lightLines_;
}

void DocumentView::noteChange() {
    if (!std::exchange(isTold_, true))
        changed_();
}

} // namespace quor::desktop
