#include "sdk/ed/get.h"

#include "host/ed/asking.h"
#include "host/ed/input_state.h"
#include "host/session.h"
#include "host/texts/input.h"
#include "sdk/db/database.h"

#include <climits>
#include <cmath>
#include <numbers>

namespace {

using namespace quor;
using namespace quor::ed;

std::wstring_view textOf(const wchar_t* prompt) { return prompt != nullptr ? prompt : L""; }

// One get call: takes what zredInitGet armed, asks, and turns what came back into a result code.
class GetCall {
public:
    GetCall(Wanted wanted, long long low = INT_MIN, long long high = INT_MAX) : armed_(state().take()) {
        rules_.wanted = wanted;
        rules_.flags = armed_.flags;
        rules_.low = low;
        rules_.high = high;
        rules_.keywords = armed_.keywords.get();
    }

    [[nodiscard]] int flags() const { return rules_.flags; }
    [[nodiscard]] const Rules& rules() const { return rules_; }

    [[nodiscard]] Asking asking(const wchar_t* prompt) const { return {Session::current(), rules_, textOf(prompt)}; }

    // RTNONE, RTCAN, RTERROR or RTKWORD; RTNORM with the value in `reading`.
    [[nodiscard]] int finish(Outcome outcome, Reading& reading) const {
        if (std::holds_alternative<Enter>(outcome))
            return RTNONE;
        if (std::holds_alternative<Escape>(outcome))
            return RTCAN;
        if (std::holds_alternative<Broken>(outcome))
            return RTERROR;
        reading = std::get<Reading>(std::move(outcome));
        if (const auto* keyword = std::get_if<KeywordAnswer>(&reading))
            state().lastKeyword = keyword->word;
        else if (auto* other = std::get_if<TextAnswer>(&reading))
            state().lastKeyword = std::move(other->text);
        else
            return RTNORM;
        return RTKWORD;
    }

private:
    static InputState& state() { return Session::current().inputState(); }

    InputState::Armed armed_;
    Rules rules_;
};

std::optional<ZrGePoint3d> worldOf(const ZrGePoint3d* ucs) {
    return ucs != nullptr ? std::optional(zrdbUcs2Wcs(*ucs)) : std::nullopt;
}

// A distance or an angle: a number, or two points of which the first may be given.
class Measure {
public:
    using FromPoints = double (*)(const ZrGePoint3d& from, const ZrGePoint3d& to, int flags);

    Measure(Wanted wanted, FromPoints fromPoints) : call_(wanted), fromPoints_(fromPoints) {}

    int ask(const ZrGePoint3d* base, const wchar_t* prompt, double& value) {
        std::optional<ZrGePoint3d> from;
        if (base != nullptr)
            from = *base;
        while (true) {
            Reading reading;
            const wchar_t* const asked = from && base == nullptr ? texts::kSecondPoint.get() : prompt;
            const int result = call_.finish(call_.asking(asked).from(worldOf(from ? &*from : nullptr)).run(), reading);
            if (result != RTNORM)
                return result;
            const auto* point = std::get_if<ZrGePoint3d>(&reading);
            if (point != nullptr && !from) {
                from = *point;
                continue;
            }
            const double measured =
                point != nullptr ? fromPoints_(*from, *point, call_.flags()) : std::get<double>(reading);
            if (const std::optional<Refusal> refusal = checkNumber(measured, call_.flags())) {
                printText(refusal->message);
                continue;
            }
            value = measured;
            return RTNORM;
        }
    }

private:
    GetCall call_;
    FromPoints fromPoints_;
};

double distanceBetween(const ZrGePoint3d& from, const ZrGePoint3d& to, int flags) {
    const ZrGeVector3d way = to - from;
    return (flags & RSG_2D) != 0 ? std::hypot(way.x, way.y) : way.length();
}

double angleBetween(const ZrGePoint3d& from, const ZrGePoint3d& to, int) {
    const double angle = std::atan2(to.y - from.y, to.x - from.x);
    return angle < 0 ? angle + 2 * std::numbers::pi : angle;
}

int getInteger(const wchar_t* prompt, long long low, long long high, int& value) {
    const GetCall call(Wanted::Integer, low, high);
    Reading reading;
    const int result = call.finish(call.asking(prompt).run(), reading);
    if (result == RTNORM)
        value = static_cast<int>(std::get<long long>(reading));
    return result;
}

int getPoint(const ZrGePoint3d* base, const wchar_t* prompt, ZrGePoint3d& point, bool isCorner = false) {
    const GetCall call(Wanted::Point);
    Reading reading;
    Asking asking = call.asking(prompt).from(worldOf(base));
    if (isCorner)
        asking.toCorner();
    const int result = call.finish(asking.run(), reading);
    if (result == RTNORM)
        point = std::get<ZrGePoint3d>(reading);
    return result;
}

} // namespace

int zredInitGet(int flags, const wchar_t* keywords) {
    InputState& state = Session::current().inputState();
    state.flags = flags;
    state.keywords = keywords == nullptr || *keywords == L'\0' ? nullptr : cachedKeywords(keywords);
    return RTNORM;
}

int zredGetString(int cronly, const wchar_t* prompt, ZrString& answer) {
    const GetCall call(Wanted::Text);
    Outcome outcome = call.asking(prompt).acceptBlanks(cronly != 0).run();
    if (std::holds_alternative<Escape>(outcome))
        return RTCAN;
    if (std::holds_alternative<Broken>(outcome))
        return RTERROR;
    if (std::holds_alternative<Enter>(outcome))
        answer.clear();
    else
        answer = std::move(std::get<TextAnswer>(std::get<Reading>(outcome)).text);
    return RTNORM;
}

int zredGetKword(const wchar_t* prompt, ZrString& answer) {
    const GetCall call(Wanted::Keyword);
    Reading reading;
    const int result = call.finish(call.asking(prompt).run(), reading);
    return result == RTKWORD ? zredGetInput(answer) : result;
}

int zredGetInt(const wchar_t* prompt, int& value) { return getInteger(prompt, INT_MIN, INT_MAX, value); }

int zredGetIntInRange(const wchar_t* prompt, int low, int high, int& value) {
    return getInteger(prompt, low, high, value);
}

int zredGetReal(const wchar_t* prompt, double& value) {
    const GetCall call(Wanted::Real);
    Reading reading;
    const int result = call.finish(call.asking(prompt).run(), reading);
    if (result == RTNORM)
        value = std::get<double>(reading);
    return result;
}

int zredGetDist(const ZrGePoint3d* base, const wchar_t* prompt, double& value) {
    return Measure(Wanted::Distance, distanceBetween).ask(base, prompt, value);
}

int zredGetAngle(const ZrGePoint3d* base, const wchar_t* prompt, double& radians) {
    return Measure(Wanted::Angle, angleBetween).ask(base, prompt, radians);
}

int zredGetPoint(const ZrGePoint3d* base, const wchar_t* prompt, ZrGePoint3d& point) {
    return getPoint(base, prompt, point);
}

int zredGetCorner(const ZrGePoint3d& base, const wchar_t* prompt, ZrGePoint3d& point) {
    return getPoint(&base, prompt, point, true);
}

int zredGetInput(ZrString& keyword) {
    keyword = Session::current().inputState().lastKeyword;
    return RTNORM;
}
