#include "host/props/light_name.h"

#include "host/db/database.h"
#include "host/db/light_names.h"
#include "host/sys/case_fold.h"
#include "host/sys/visible_text.h"
#include "host/texts/properties.h"

#include <algorithm>

namespace quor::props {

namespace {

constexpr std::size_t kLongest = 255;
constexpr std::wstring_view kInvalid = L"<>/\\\"':;?*|,=`";

bool isTaken(const ZrDbLight& light, const ZrString& name) {
    db::Database& drawing = light.database()->host();
    db::Block* const block = drawing.structure().blockOf(light.ownerId().entry());
    if (block == nullptr)
        return false;
    const std::uint32_t own = equalFolded(light.name(), name) ? 1 : 0;
    return db::LightNames::of(drawing, *block).count(name) > own;
}

} // namespace

Refusal refusalOfName(const ZrDbLight& light, const ZrString& name) {
    if (name.empty())
        return texts::kNameIsEmpty.get();
    const bool hasControl = std::any_of(name.begin(), name.end(), isControl);
    if (hasControl || name.find_first_of(kInvalid) != ZrString::npos)
        return fill(texts::kNameHasInvalid, ZrString(kInvalid));
    if (isTaken(light, name))
        return fill(texts::kNameIsTaken, name);
    if (name.size() > kLongest)
        return fill(texts::kNameIsTooLong, name.size());
    return std::nullopt;
}

} // namespace quor::props
