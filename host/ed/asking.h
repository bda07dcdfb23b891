// The one loop behind all questions: asks, lets transparent commands run, says what is wrong with an answer and asks
// again.
#pragma once

#include "host/ed/reading.h"
#include "host/front.h"

namespace quor {
class Session;
}

namespace quor::ed {

// What a question ended with: Enter, Esc (or the end of the input), input that broke, or an answer.
struct Enter {};
struct Escape {};
struct Broken {};
using Outcome = std::variant<Enter, Escape, Broken, Reading>;

// The rules of the current drawing; without one, those of a new drawing.
[[nodiscard]] DrawingRules currentDrawingRules(Session& session);

class Asking {
public:
    Asking(Session& session, Rules rules, std::wstring_view prompt);

    Asking& acceptBlanks(bool accepts) {
        question_.acceptsBlanks = accepts;
        return *this;
    }
    // Where the rubber band starts, in world coordinates.
    Asking& from(const std::optional<ZrGePoint3d>& base) {
        question_.base = base;
        return *this;
    }
    // The base is the first corner of a rectangle.
    Asking& toCorner() {
        question_.baseIsCorner = true;
        return *this;
    }
    Asking& as(Question::Kind kind) {
        question_.kind = kind;
        return *this;
    }
    // What moves under the cursor, and who is told of each point under it, in world coordinates.
    Asking& dragging(const ZrDbEntity* entity, std::function<void(const ZrGePoint3d&)> sample) {
        question_.dragged = entity;
        sample_ = std::move(sample);
        return *this;
    }

    // Asks until there is an answer that the rules allow. Never a Refusal. A point is remembered as the last one.
    [[nodiscard]] Outcome run();

private:
    [[nodiscard]] Answer askOnce();
    [[nodiscard]] std::optional<Outcome> read(Answer answer);
    [[nodiscard]] std::optional<Outcome> readText(ZrString typed);
    [[nodiscard]] Outcome accept(Reading reading);
    [[nodiscard]] bool ranTransparently(const ZrString& typed);

    Session& session_;
    Rules rules_;
    Question question_;
    DrawingRules drawing_;
    std::function<void(const ZrGePoint3d&)> sample_;
};

} // namespace quor::ed
