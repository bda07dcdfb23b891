// The direction of a distant light: from a point to another one, or along a vector.
#include "light/commands/distant_light.h"
#include "light/lightcmd/real_question.h"
#include "light/lightcmd/replies.h"
#include "sdk/db/database.h"
#include "sdk/sys/case_fold.h"

#include <array>
#include <optional>

using quor::light::LoadedText;
using quor::light::texts;

namespace {

constexpr ZrGeVector3d defaultVector{0.0, -0.01, 1.0};
constexpr ZrGePoint3d defaultTarget{1, 1, 1};

// The first three numbers between the commas, of length 1; what follows them does not count.
std::optional<ZrGeVector3d> directionOf(const ZrString& reply) {
    std::array<double, 3> numbers{};
    std::size_t begin = 0;
    for (double& number : numbers) {
        if (begin > reply.size())
            return std::nullopt; // there was no comma
        const std::size_t comma = std::min(reply.find(L',', begin), reply.size());
        if (zrdbDisToF(reply.substr(begin, comma - begin).c_str(), quor::light::unitsOfDrawing, number) != RTNORM)
            return std::nullopt;
        begin = comma + 1;
    }
    return ZrGeVector3d(numbers[0], numbers[1], numbers[2]).normal();
}

// A vector without a length is none.
bool setDirection(ZrDbLight& light, const ZrGeVector3d& direction) {
    return light.setLightDirection(direction) == Quor::eOk &&
           light.setTargetLocation({direction.x, direction.y, direction.z}) == Quor::eOk;
}

} // namespace

int CZrDistantLightCmd::promptDistantDirection() {
    if (m_pLight == nullptr)
        return RTERROR;
    const LoadedText prompt(texts.distantFromPrompt);
    const LoadedText keywords(texts.distantFromKeywords);
    for (;;) {
        if (const int armed = zredInitGet(0, keywords.c_str()); armed != RTNORM)
            return armed;
        ZrGePoint3d from;
        const int result = zredGetPoint(nullptr, prompt.c_str(), from);
        if (result == RTCAN || result == RTERROR)
            return result;
        if (result == RTNORM || result == RTNONE)
            return askTarget(from);
        ZrString keyword;
        if (result == RTKWORD && zredGetInput(keyword) == RTNORM && quor::equalFolded(keyword, L"Vector"))
            return askVector();
    }
}

// The position stays where it is; the target is the tip of the vector at the origin.
int CZrDistantLightCmd::askVector() {
    const LoadedText prompt(texts.vectorPrompt);
    for (;;) {
        ZrString reply;
        const int result = quor::light::askWord(prompt.c_str(), reply);
        if (result == RTCAN || result == RTERROR)
            return result;
        const std::optional<ZrGeVector3d> direction = reply.empty() ? defaultVector.normal() : directionOf(reply);
        if (direction && setDirection(*m_pLight, *direction))
            return RTNORM;
        quor::light::printText(texts.vectorInvalid);
    }
}

// `from` in the coordinates of the UCS, as it was answered. A light that refuses one of the points ends the command.
int CZrDistantLightCmd::askTarget(const ZrGePoint3d& from) {
    const ZrGePoint3d source = zrdbUcs2Wcs(from);
    if (m_pLight->setPosition(source) != Quor::eOk)
        return RTCAN;
    const LoadedText prompt(texts.distantToPrompt);
    for (;;) {
        ZrGePoint3d to = defaultTarget;
        const int result = zredGetPoint(&from, prompt.c_str(), to);
        if (result == RTCAN || result == RTERROR)
            return result;
        const ZrGePoint3d target = zrdbUcs2Wcs(to);
        if (!target.isEqualTo(source))
            return m_pLight->setTargetLocation(target) == Quor::eOk ? RTNORM : RTCAN;
        quor::light::printText(texts.distantToOnFrom);
    }
}
