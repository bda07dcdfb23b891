// What soft mapped shadows ask: the size of the shadow map, and how soft its edges are.
#include "light/lightcmd/find_row.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/real_question.h"
#include "light/lightcmd/replies.h"
#include "light/lightcmd/shadow_record.h"

#include <optional>

using quor::light::LoadedText;
using quor::light::printText;
using quor::light::shadowsOf;
using quor::light::texts;
using quor::light::writeShadows;

namespace {

constexpr int noNegativeNorZero = RSG_NONEG | RSG_NOZERO;
constexpr std::uint16_t mapSizes[] = {64, 128, 256, 512, 1024, 2048, 4096};
constexpr std::uint8_t softest = 10;
constexpr std::uint8_t hardest = 1;

// The number as it is typed in the units of the drawing, when it is one of the sizes.
std::optional<std::uint16_t> mapSizeFrom(const ZrString& answer) {
    double number = 0;
    if (zrdbDisToF(answer.c_str(), quor::light::unitsOfDrawing, number) != RTNORM)
        return std::nullopt;
    const auto* const found = quor::light::findRow(mapSizes, [&](std::uint16_t size) { return size == number; });
    return found == nullptr ? std::nullopt : std::optional(*found);
}

// Enter makes the shadows as hard as can be, whatever softness is shown.
std::optional<std::uint8_t> softnessFrom(const ZrString& answer) {
    if (answer.empty())
        return hardest;
    double number = 0;
    const bool isNumber = zrdbDisToF(answer.c_str(), quor::light::unitsOfDrawing, number) == RTNORM;
    if (!isNumber || number < hardest || number > softest || std::trunc(number) != number)
        return std::nullopt;
    return static_cast<std::uint8_t>(number);
}

} // namespace

int CZrMultiLight::promptShadowMapSize() {
    ZrGiShadowParameters shadows = shadowsOf(m_pLight);
    const ZrString prompt = zrFormat(LoadedText(texts.mapSizePrompt).c_str(), {shadows.shadowMapSize()});
    for (;;) {
        ZrString answer;
        zredInitGet(0, nullptr);
        if (quor::light::askWord(prompt.c_str(), answer) != RTNORM)
            return 0;
        const auto size = answer.empty() ? std::optional(shadows.shadowMapSize()) : mapSizeFrom(answer);
        if (!size) {
            printText(texts.mapSizeInvalid);
            continue;
        }
        shadows.setShadowMapSize(*size);
        writeShadows(m_pLight, shadows);
        return 1;
    }
}

bool CZrMultiLight::promptShadowSoftness() {
    ZrGiShadowParameters shadows = shadowsOf(m_pLight);
    const ZrString prompt = zrFormat(LoadedText(texts.softnessPrompt).c_str(), {shadows.shadowMapSoftness()});
    for (;;) {
        ZrString answer;
        zredInitGet(noNegativeNorZero, nullptr);
        if (quor::light::askWord(prompt.c_str(), answer) != RTNORM)
            return true;
        const std::optional<std::uint8_t> softness = softnessFrom(answer);
        if (!softness) {
            printText(texts.softnessInvalid);
        } else if (shadows.setShadowMapSoftness(*softness)) {
            writeShadows(m_pLight, shadows);
            return true;
        }
    }
}
