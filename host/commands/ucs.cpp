#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/listing.h"
#include "host/commands/ucs_math.h"
#include "host/document.h"
#include "host/session.h"
#include "host/texts/commands.h"
#include "sdk/db/units.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quor::commands {

namespace {

constexpr std::size_t kHistory = 10;

// Makes it the current one; the last point entered stays where it is in the world.
void apply(Document& document, const db::Ucs& next) {
    const db::Ucs before = document.drawing().ucs();
    const ZrGePoint3d last = worldFromUcs(before) * document.lastPoint;
    document.drawing().setUcs(next);
    document.lastPoint = worldFromUcs(next).inverse() * last;
}

int change(Document& document, const db::Ucs& next) {
    const db::Ucs before = document.drawing().ucs();
    if (!sameUcs(before, next)) {
        document.previousUcs.push_back(before);
        if (document.previousUcs.size() > kHistory)
            document.previousUcs.erase(document.previousUcs.begin());
    }
    apply(document, next);
    return RTNORM;
}

int change(Document& document, const std::optional<db::Ucs>& next) {
    return next ? change(document, *next) : failWith(texts::kNoUcsPlane);
}

// A point in world coordinates. `base` too.
int askPoint(const Text& prompt, const ZrGePoint3d* base, ZrGePoint3d& world) {
    const ZrGePoint3d baseInUcs = base == nullptr ? ZrGePoint3d() : zrdbWcs2Ucs(*base);
    const int result = zredGetPoint(base == nullptr ? nullptr : &baseInUcs, prompt.get(), world);
    if (result == RTNORM)
        world = zrdbUcs2Wcs(world);
    return result;
}

// The origin was answered: two more points turn the axes, Enter at either accepts what stands.
int byPoints(Document& document, const ZrGePoint3d& origin) {
    const db::Ucs now = document.drawing().ucs();
    ZrGePoint3d onX;
    int result = askPoint(texts::kAskUcsX, &origin, onX);
    if (result == RTNONE)
        return change(document, movedUcs(now, origin));
    if (result != RTNORM)
        return result;
    ZrGePoint3d onXy;
    result = askPoint(texts::kAskUcsXy, &origin, onXy);
    if (result == RTNONE)
        return change(document, ucsTowards(now, origin, onX));
    return result == RTNORM ? change(document, ucsThrough(origin, onX, onXy)) : result;
}

// The origin for an option; Enter takes the present one.
int askOrigin(const Document& document, ZrGePoint3d& origin) {
    origin = document.drawing().ucs().origin;
    const ZrGePoint3d now = origin;
    const int result = askPoint(texts::kAskUcsOrigin, nullptr, origin);
    if (result != RTNONE)
        return result;
    origin = now;
    return RTNORM;
}

int byOrigin(Document& document) {
    ZrGePoint3d origin;
    const int result = askOrigin(document, origin);
    return result == RTNORM ? change(document, movedUcs(document.drawing().ucs(), origin)) : result;
}

int byThreePoints(Document& document) {
    ZrGePoint3d origin;
    const int result = askOrigin(document, origin);
    return result == RTNORM ? byPoints(document, origin) : result;
}

int byZAxis(Document& document) {
    ZrGePoint3d origin;
    if (const int result = askOrigin(document, origin); result != RTNORM)
        return result;
    ZrGePoint3d onZ;
    const int result = askPoint(texts::kAskUcsZ, &origin, onZ);
    if (result == RTNONE)
        return change(document, movedUcs(document.drawing().ucs(), origin));
    return result == RTNORM ? change(document, ucsAlongZ(origin, onZ)) : result;
}

// Angles are answered from the drawing's base angle in its direction; a turn counts from zero.
double turnOf(double answered) {
    double zero = 0;
    double quarter = std::numbers::pi / 2;
    zrdbAngToF(L"0d", 0, zero);
    zrdbAngToF(L"90d", 0, quarter);
    const bool clockwise = std::sin(quarter - zero) < 0;
    return clockwise ? zero - answered : answered - zero;
}

int byRotation(Document& document, wchar_t axis) {
    double angle = 0;
    const int result = zredGetAngle(nullptr, fill(texts::kAskUcsAngle, ZrString(1, axis)).c_str(), angle);
    if (result != RTNORM && result != RTNONE)
        return result;
    const double turn = result == RTNONE ? std::numbers::pi / 2 : turnOf(angle);
    return change(document, rotatedUcs(document.drawing().ucs(), axis, turn));
}

int goBack(Document& document) {
    std::vector<db::Ucs>& history = document.previousUcs;
    const db::Ucs now = document.drawing().ucs();
    while (!history.empty() && sameUcs(history.back(), now))
        history.pop_back();
    if (history.empty())
        return failWith(texts::kNoPreviousUcs);
    const db::Ucs previous = history.back();
    history.pop_back();
    apply(document, previous);
    return RTNORM;
}

// "3" alone names the option too, though it is no capital letter.
constexpr const wchar_t* kKeywords =
    L"World Origin ZAxis Previous 3 3Point X Y Z _World Origin ZAxis Previous 3Point 3Point X Y Z";

struct Option {
    const wchar_t* keyword;
    int (*run)(Document&);
};
constexpr Option kOptions[] = {
    {L"World", [](Document& document) { return change(document, db::Ucs()); }},
    {L"Origin", byOrigin},
    {L"3Point", byThreePoints},
    {L"ZAxis", byZAxis},
    {L"Previous", goBack},
    {L"X", [](Document& document) { return byRotation(document, L'X'); }},
    {L"Y", [](Document& document) { return byRotation(document, L'Y'); }},
    {L"Z", [](Document& document) { return byRotation(document, L'Z'); }},
};

// Where it lies in the world.
void sayCurrent(const db::Ucs& ucs) {
    if (sameUcs(ucs, db::Ucs()))
        return say(texts::kUcsIsWorld);
    say(texts::kUcsIs, coordinatesText(ucs.origin.x, ucs.origin.y, ucs.origin.z),
        coordinatesText(ucs.xAxis.x, ucs.xAxis.y, ucs.xAxis.z), coordinatesText(ucs.yAxis.x, ucs.yAxis.y, ucs.yAxis.z));
}

} // namespace

int ucs(Session& session) {
    Document& document = *session.documents().current();
    sayCurrent(document.drawing().ucs());
    zredInitGet(0, kKeywords);
    ZrGePoint3d origin;
    const int result = askPoint(texts::kAskUcs, nullptr, origin);
    if (result == RTNORM)
        return byPoints(document, origin);
    if (result == RTNONE)
        return change(document, db::Ucs());
    if (result != RTKWORD)
        return result;
    ZrString keyword;
    zredGetInput(keyword);
    const auto* option = std::ranges::find_if(kOptions, [&](const Option& o) { return keyword == o.keyword; });
    return option == std::end(kOptions) ? RTERROR : option->run(document);
}

} // namespace quor::commands
