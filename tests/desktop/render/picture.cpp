#include "tests/desktop/render/picture.h"

#include <algorithm>

namespace quor::desktop {
namespace {

constexpr std::uint32_t kAround = 0x12345678;
constexpr int kPadding = 7;

} // namespace

std::uint32_t HandScene::addItem(const std::vector<gs::Coordinates>& points, gs::SceneItem item) {
    gs::SceneChunk chunk{points.front(), points.front(), static_cast<std::uint32_t>(arrays_.items.size()), 1};
    for (const gs::Coordinates& p : points) {
        for (std::size_t i = 0; i < p.size(); ++i) {
            chunk.low[i] = std::min(chunk.low[i], p[i]);
            chunk.high[i] = std::max(chunk.high[i], p[i]);
        }
    }
    item.entity = static_cast<std::uint32_t>(arrays_.emphasis.size());
    arrays_.chunks.push_back(chunk);
    arrays_.items.push_back(item);
    arrays_.emphasis.push_back(gs::Emphasis::None);
    return item.entity;
}

std::uint32_t HandScene::addLine(const gs::Coordinates& a, const gs::Coordinates& b, std::uint32_t rgb) {
    return addLines({{a, b}}, rgb);
}

std::uint32_t HandScene::addLines(const std::vector<gs::SceneLine>& lines, std::uint32_t rgb) {
    const auto first = static_cast<std::uint32_t>(arrays_.lines.size());
    std::vector<gs::Coordinates> points;
    for (const gs::SceneLine& line : lines) {
        arrays_.lines.push_back(line);
        points.insert(points.end(), {line.a, line.b});
    }
    return addItem(points, {.rgb = rgb, .firstLine = first, .lineCount = static_cast<std::uint32_t>(lines.size())});
}

std::uint32_t HandScene::addTriangle(const gs::Coordinates& a, const gs::Coordinates& b, const gs::Coordinates& c,
                                     std::uint32_t rgb) {
    arrays_.triangles.push_back({a, b, c});
    return addItem(
        {a, b, c},
        {.rgb = rgb, .firstTriangle = static_cast<std::uint32_t>(arrays_.triangles.size()) - 1, .triangleCount = 1});
}

std::uint32_t HandScene::addSquare(float low, float high, float z, std::uint32_t rgb) {
    arrays_.triangles.push_back({{low, low, z}, {high, low, z}, {high, high, z}});
    arrays_.triangles.push_back({{low, low, z}, {high, high, z}, {low, high, z}});
    return addItem(
        {{low, low, z}, {high, high, z}},
        {.rgb = rgb, .firstTriangle = static_cast<std::uint32_t>(arrays_.triangles.size()) - 2, .triangleCount = 2});
}

std::uint32_t HandScene::addLight(gs::LightMark light) {
    light.entity = static_cast<std::uint32_t>(arrays_.emphasis.size());
    arrays_.emphasis.push_back(gs::Emphasis::None);
    arrays_.lights.push_back(light);
    return light.entity;
}

Picture::Picture(int width, int height)
    : width_(width), height_(height), stride_(width + kPadding),
      pixels_(static_cast<std::size_t>(stride_) * static_cast<std::size_t>(height + 2), kAround) {}

void Picture::take(const HandScene& scene, const gs::Camera& camera, const RenderOptions& options, unsigned threads) {
    Renderer renderer(threads);
    take(scene, camera, options, renderer);
}

void Picture::take(const HandScene& scene, const gs::Camera& camera, const RenderOptions& options, Renderer& renderer) {
    renderer.render(scene.data(), camera, options, {pixels_.data() + stride_, width_, height_, stride_});
}

std::uint32_t Picture::at(int x, int y) const {
    const int index = (y + 1) * stride_ + x;
    return pixels_[static_cast<std::size_t>(index)];
}

int Picture::brightness(int x, int y) const {
    const std::uint32_t color = at(x, y);
    return static_cast<int>((color >> 16 & 0xFFU) + (color >> 8 & 0xFFU) + (color & 0xFFU));
}

int Picture::count(std::uint32_t color) const {
    return static_cast<int>(std::count(pixels_.begin(), pixels_.end(), color));
}

int Picture::differences(const Picture& other, int x, int y, int width, int height) const {
    int sum = 0;
    for (int row = y; row < y + height; ++row) {
        for (int column = x; column < x + width; ++column)
            sum += at(column, row) != other.at(column, row) ? 1 : 0;
    }
    return sum;
}

bool Picture::isUntouchedAround() const {
    for (int y = -1; y <= height_; ++y) {
        const bool isRow = y >= 0 && y < height_;
        for (int x = isRow ? width_ : 0; x < stride_; ++x) {
            if (at(x, y) != kAround)
                return false;
        }
    }
    return true;
}

long Picture::sum() const {
    long sum = 0;
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x)
            sum += brightness(x, y);
    }
    return sum;
}

gs::Camera cameraFromAbove() { return {.target = {50, 50, 0}, .height = 100}; }

gs::Camera perspectiveFromAbove() {
    return {.target = {50, 50, 0}, .height = 100, .projection = gs::Projection::Perspective};
}

RenderOptions plainOptions() {
    RenderOptions options;
    options.colors.backgroundTop = 0xFF000000;
    options.colors.backgroundBottom = 0xFF000000;
    options.isMoving = true;
    return options;
}

RenderOptions shadedOptions(Lighting lighting) {
    RenderOptions options = plainOptions();
    options.style = gs::VisualStyle::Shaded;
    options.lighting = lighting;
    options.isMoving = false;
    return options;
}

} // namespace quor::desktop
