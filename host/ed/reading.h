// What a typed answer means for a question: a value, a keyword, other text, or why it is refused. Pure.
#pragma once

#include "host/db/units_settings.h"
#include "host/ed/keywords.h"
#include "host/texts/text.h"
#include "sdk/db/object_id.h"
#include "sdk/ge/point3d.h"

#include <functional>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

namespace quor::ed {

// What is asked for.
enum class Wanted { Text, Keyword, Integer, Real, Distance, Angle, Point };

struct Rules {
    Wanted wanted = Wanted::Text;
    int flags = 0; // RSG_…
    const KeywordList* keywords = nullptr;
    long long low = 0; // bounds of whole numbers, both included
    long long high = 0;
};

// What the drawing contributes. It is asked for only where the text needs it.
struct DrawingRules {
    std::function<units::UnitSettings()> units;
    std::function<std::optional<ZrGePoint3d>()> lastPoint; // UCS
    std::function<ZrGePoint3d(const ZrGePoint3d&)> worldToUcs;
    std::function<ZrGePoint3d(const ZrGePoint3d&)> ucsToWorld;
};

struct KeywordAnswer {
    std::wstring_view word; // of the question's keyword list
};
struct TextAnswer {
    ZrString text;
};
// Entities that were picked; only a question for a selection gets them.
struct PickedAnswer {
    std::vector<ZrDbObjectId> ids;
    bool takesAway = false;
};
struct Refusal {
    ZrString message;
};
// Numbers: whole, real, a distance; an angle in radians. Points: UCS.
using Reading = std::variant<long long, double, ZrGePoint3d, KeywordAnswer, TextAnswer, PickedAnswer, Refusal>;

[[nodiscard]] Reading readAnswer(ZrString typed, const Rules& rules, const DrawingRules& drawing);
// Whether a value that did not come as text (a distance or an angle between two points) is allowed; else the refusal.
[[nodiscard]] std::optional<Refusal> checkNumber(double value, int flags);
// What is said to an answer of the wrong kind (Enter where it is none, a picked point where a keyword is asked).
[[nodiscard]] Refusal wrongKind(const Rules& rules);

} // namespace quor::ed
