// A picture that is nothing but what was asked of it.
#pragma once

#include "host/gs/view.h"

#include <vector>

namespace quor::test {

class FakeView final : public gs::View {
public:
    [[nodiscard]] gs::Camera camera() const override { return camera_; }
    void setCamera(const gs::Camera& camera) override {
        previous_.push_back(camera_);
        camera_ = camera;
    }
    bool backToPreviousCamera() override {
        if (previous_.empty())
            return false;
        camera_ = previous_.back();
        previous_.pop_back();
        return true;
    }
    [[nodiscard]] gs::PictureSize size() const override { return {800, 600}; }
    [[nodiscard]] gs::VisualStyle visualStyle() const override { return style_; }
    void setVisualStyle(gs::VisualStyle style) override { style_ = style; }
    [[nodiscard]] gs::Box extents() const override { return box; }
    void regenerate() override { ++regenerations; }

    gs::Box box;
    int regenerations = 0;

private:
    gs::Camera camera_;
    std::vector<gs::Camera> previous_;
    gs::VisualStyle style_ = gs::VisualStyle::Wireframe;
};

} // namespace quor::test
