// Pictures of 1280 x 800 pixels while the camera goes around the scene: 10^3 to 10^6 lines with 10^2 to 10^4 lights as
// a wireframe, boxes under the lights of the eye and of the drawing.
#include "bench/support/scene_maker.h"
#include "desktop/render/renderer.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>

namespace {

using namespace quor;
using bench::MadeScene;

constexpr int kWidth = 1280;
constexpr int kHeight = 800;

// A degree further with each picture, through an eye.
gs::Camera cameraAt(int step) {
    const double turn = step * std::numbers::pi / 180;
    gs::Camera camera{.target = {50, 50, 15}, .height = 110, .projection = gs::Projection::Perspective};
    camera.backward = ZrGeVector3d(std::cos(turn), std::sin(turn), 0.7).normal();
    const ZrGeVector3d right = ZrGeVector3d::kZAxis.crossProduct(camera.backward).normal();
    camera.up = camera.backward.crossProduct(right);
    return camera;
}

void timePictures(benchmark::State& state, const MadeScene& scene, const desktop::RenderOptions& options) {
    desktop::Renderer renderer;
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(kWidth) * kHeight);
    int step = 0;
    for ([[maybe_unused]] auto _ : state)
        renderer.render(scene.data(), cameraAt(++step), options, {pixels.data(), kWidth, kHeight, kWidth});
    state.counters["pictures"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

// Lines, lights, whether the picture moves.
void wire(benchmark::State& state) {
    MadeScene scene = bench::makeLines(static_cast<std::size_t>(state.range(0)));
    bench::addLights(scene, static_cast<std::size_t>(state.range(1)));
    timePictures(state, scene, {.colors = {}, .isMoving = state.range(2) != 0});
}
BENCHMARK(wire)
    ->ArgNames({"lines", "lights", "moving"})
    ->ArgsProduct({{1'000, 10'000, 100'000, 200'000, 1'000'000}, {100}, {1}})
    ->ArgsProduct({{200'000}, {1'000, 10'000}, {1}})
    ->ArgsProduct({{1'000, 200'000}, {100}, {0}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

// Triangles, lights, whether the picture moves.
void shaded(benchmark::State& state, desktop::Lighting lighting) {
    MadeScene scene = bench::makeBoxes(static_cast<std::size_t>(state.range(0)));
    bench::addLights(scene, static_cast<std::size_t>(state.range(1)));
    timePictures(
        state, scene,
        {.style = gs::VisualStyle::Shaded, .lighting = lighting, .colors = {}, .isMoving = state.range(2) != 0});
}
BENCHMARK_CAPTURE(shaded, byTheEye, desktop::Lighting::Default)
    ->ArgNames({"triangles", "lights", "moving"})
    ->ArgsProduct({{1'200, 12'000, 120'000}, {100}, {1}})
    ->ArgsProduct({{12'000}, {100}, {0}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(shaded, byTheDrawing, desktop::Lighting::OfDrawing)
    ->ArgNames({"triangles", "lights", "moving"})
    ->ArgsProduct({{1'200, 12'000}, {5, 100}, {1}})
    ->ArgsProduct({{1'200, 12'000}, {5, 100}, {0}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
