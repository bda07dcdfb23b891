#include "host/ed/asking.h"

#include "host/db/current_units.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/ed/input_stack.h"
#include "host/ed/typed_text.h"
#include "host/session.h"
#include "host/texts/input.h"
#include "sdk/ed/get.h"

namespace quor::ed {

namespace {

constexpr Question::Kind kQuestionKinds[] = {
    Question::Kind::Text,     Question::Kind::Keyword, Question::Kind::Number, Question::Kind::Number,
    Question::Kind::Distance, Question::Kind::Angle,   Question::Kind::Point,
};

} // namespace

DrawingRules currentDrawingRules(Session& session) {
    Session* const here = &session;
    DrawingRules rules;
    rules.units = [] { return units::currentUnits(); };
    rules.lastPoint = [here]() -> std::optional<ZrGePoint3d> {
        const Document* document = here->documents().current();
        return document != nullptr ? std::optional(document->lastPoint) : std::nullopt;
    };
    rules.worldToUcs = [](const ZrGePoint3d& point) { return zrdbWcs2Ucs(point); };
    rules.ucsToWorld = [](const ZrGePoint3d& point) { return zrdbUcs2Wcs(point); };
    return rules;
}

Asking::Asking(Session& session, Rules rules, std::wstring_view prompt)
    : session_(session), rules_(rules), drawing_(currentDrawingRules(session)) {
    question_.kind = kQuestionKinds[static_cast<std::size_t>(rules.wanted)];
    question_.prompt = prompt;
    if (rules.keywords != nullptr)
        question_.keywords = rules.keywords->words();
}

Answer Asking::askOnce() {
    return sample_ ? session_.input().drag(question_, sample_) : session_.input().ask(question_);
}

Outcome Asking::run() {
    while (true)
        if (std::optional<Outcome> outcome = read(askOnce()))
            return std::move(*outcome);
}

std::optional<Outcome> Asking::read(Answer answer) {
    switch (answer.kind) {
    case Answer::Kind::Text:
        return readText(std::move(answer.text));
    case Answer::Kind::Point:
        if (rules_.wanted == Wanted::Point || rules_.wanted == Wanted::Distance || rules_.wanted == Wanted::Angle)
            return accept(drawing_.worldToUcs(answer.point));
        break;
    case Answer::Kind::Objects:
        if (question_.kind == Question::Kind::Selection)
            return Reading{PickedAnswer{std::move(answer.objects), answer.takesAway}};
        break;
    case Answer::Kind::Enter:
        if ((rules_.flags & RSG_NONULL) == 0)
            return Enter{};
        break;
    case Answer::Kind::End:
        session_.processor().reportEndOfInput();
        return Escape{};
    case Answer::Kind::Broken:
        session_.processor().reportEndOfInput();
        return Broken{};
    case Answer::Kind::Cancel:
        session_.processor().reportEscape();
        return Escape{};
    }
    printText(wrongKind(rules_).message);
    return std::nullopt;
}

std::optional<Outcome> Asking::readText(ZrString typed) {
    if (const Text* const problem = whyNoText(typed)) {
        say(*problem);
        return std::nullopt;
    }
    if (ranTransparently(typed))
        return std::nullopt;
    Reading reading = readAnswer(std::move(typed), rules_, drawing_);
    if (const auto* refusal = std::get_if<Refusal>(&reading)) {
        printText(refusal->message);
        return std::nullopt;
    }
    return accept(std::move(reading));
}

Outcome Asking::accept(Reading reading) {
    if (const auto* point = std::get_if<ZrGePoint3d>(&reading))
        if (Document* document = session_.documents().current())
            document->lastPoint = *point;
    return reading;
}

// At a text question an apostrophe is a character like any other: whoever asks decides what a text may hold.
bool Asking::ranTransparently(const ZrString& typed) {
    if (rules_.wanted == Wanted::Text || typed.size() < 2 || typed.front() != L'\'')
        return false;
    session_.processor().runTransparent(typed);
    return true;
}

} // namespace quor::ed
