// The tags of a light that its fields and its summary both read.
#pragma once

#include "host/dxf/tag.h"
#include "sdk/db/light.h"

#include <optional>
#include <string_view>

namespace quor::db::light_tags {

inline constexpr std::string_view kLight = "AcDbLight";
inline constexpr int kName = 1;
inline constexpr int kType = 70;
inline constexpr int kLast = 280; // what stands behind it in the subclass is the writer's own

inline constexpr std::string_view kPhotometry = "AcDbXrecord";
inline constexpr int kHasWeb = 290;

// The type in a tag kType; nothing when it holds none.
[[nodiscard]] inline std::optional<DrawableType> typeIn(const dxf::Tag& tag) {
    const auto type = tag.asInt();
    const bool isType = type && *type >= static_cast<int>(DrawableType::kDistantLight) &&
                        *type <= static_cast<int>(DrawableType::kSpotLight);
    return isType ? std::optional(static_cast<DrawableType>(*type)) : std::nullopt;
}

// A web light has no type of its own: it is a point light whose photometric data name a web in a tag kHasWeb.
[[nodiscard]] inline DrawableType withWeb(DrawableType type, const dxf::Tag& tag) {
    const bool isWeb = type == DrawableType::kPointLight && tag.asInt().value_or(0) != 0;
    return isWeb ? DrawableType::kWebLight : type;
}

} // namespace quor::db::light_tags
