// A colour by hue, saturation and lightness.
#include "light/lightcmd/color_input.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/replies.h"
#include "light/res/load_text.h"
#include "sdk/cm/color_services.h"
#include "sdk/sys/format.h"

using quor::light::LoadedText;
using quor::light::texts;

namespace {

constexpr std::size_t longestAnswer = 259;
constexpr int leftWithoutColor = -1;
constexpr double maxByte = 255.0;
constexpr double maxHue = 360.0;
constexpr double percent = 100.0;

// The default is what the colour is now. It is shown only: Enter does not set it.
ZrString promptFor(const ZrCmColor& color) {
    if (color.isByACI())
        return zrFormat(LoadedText(texts.hslPromptFromIndex).c_str(), {color.colorNameForDisplay()});
    if (color.hasColorName())
        return LoadedText(texts.hslPrompt).str();
    ZrGeVector3d vector(color.red() / maxByte, color.green() / maxByte, color.blue() / maxByte);
    zrdbConvertRgbToHsl(vector, vector);
    double hsl[3] = {vector.x, vector.y * percent, vector.z * percent};
    quor::light::roundTriple(hsl);
    return zrFormat(LoadedText(texts.hslPromptFromRgb).c_str(),
                    {static_cast<int>(hsl[0]), static_cast<int>(hsl[1]), static_cast<int>(hsl[2])});
}

// The rule for true colours comes first, so that hues end at 255 here, not at 360.
bool parseHsl(const wchar_t* text, double hsl[3]) {
    return quor::light::isRgbTriple(text) && quor::light::parseTriple(text, hsl) && hsl[0] <= maxHue &&
           hsl[1] <= percent && hsl[2] <= percent;
}

ZrCmColor colorOf(const double hsl[3]) {
    ZrGeVector3d vector(hsl[0], hsl[1] / percent, hsl[2] / percent);
    zrdbConvertHslToRgb(vector, vector);
    double rgb[3] = {vector.x * maxByte, vector.y * maxByte, vector.z * maxByte};
    quor::light::roundTriple(rgb);
    return ZrCmColor::fromRGB(static_cast<std::uint8_t>(rgb[0]), static_cast<std::uint8_t>(rgb[1]),
                              static_cast<std::uint8_t>(rgb[2]));
}

} // namespace

int CZrMultiLight::promptHslColor() {
    if (m_pLight == nullptr)
        return RTERROR;
    const ZrString prompt = promptFor(m_pLight->lightColor());
    for (;;) {
        zredInitGet(0, nullptr);
        ZrString answer;
        if (zredGetString(0, prompt.c_str(), answer) != RTNORM || answer.empty())
            return leftWithoutColor;
        quor::light::cutTo(answer, longestAnswer);
        double hsl[3] = {};
        if (parseHsl(answer.c_str(), hsl))
            return m_pLight->setLightColor(colorOf(hsl));
        quor::light::printText(texts.hslInvalid);
    }
}
