#include "host/gs/standard_views.h"

#include "host/sys/case_fold.h"

#include <algorithm>
#include <array>

namespace quor::gs {

namespace {

constexpr std::array kViews{
    StandardView{L"TOP", {0, 0, 1}},     StandardView{L"BOTTOM", {0, 0, -1}}, StandardView{L"FRONT", {0, -1, 0}},
    StandardView{L"BACK", {0, 1, 0}},    StandardView{L"LEFT", {-1, 0, 0}},   StandardView{L"RIGHT", {1, 0, 0}},
    StandardView{L"SWISO", {-1, -1, 1}}, StandardView{L"SEISO", {1, -1, 1}},  StandardView{L"NEISO", {1, 1, 1}},
    StandardView{L"NWISO", {-1, 1, 1}},
};

} // namespace

std::span<const StandardView> standardViews() { return kViews; }

const StandardView* findStandardView(std::wstring_view name) {
    const auto* const found = std::find_if(kViews.begin(), kViews.end(),
                                           [&](const StandardView& view) { return equalFolded(view.name, name); });
    return found == kViews.end() ? nullptr : found;
}

} // namespace quor::gs
