// The cameras before the one in use, for going back.
#pragma once

#include "host/gs/camera.h"

#include <deque>
#include <optional>

namespace quor::desktop {

class CameraHistory {
public:
    static constexpr std::size_t kMost = 50;

    void keep(const gs::Camera& camera) {
        if (!earlier_.empty() && earlier_.back() == camera)
            return;
        earlier_.push_back(camera);
        if (earlier_.size() > kMost)
            earlier_.pop_front();
    }
    // The last one that was kept, which is forgotten then.
    [[nodiscard]] std::optional<gs::Camera> takeLast() {
        if (earlier_.empty())
            return std::nullopt;
        const gs::Camera last = earlier_.back();
        earlier_.pop_back();
        return last;
    }

private:
    std::deque<gs::Camera> earlier_;
};

} // namespace quor::desktop
