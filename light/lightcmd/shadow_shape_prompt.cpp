// The shape that gives the light of soft sampled shadows, and its sizes.
#include "light/lightcmd/find_row.h"
#include "light/lightcmd/keyword_question.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/real_question.h"
#include "light/lightcmd/shadow_record.h"
#include "sdk/sys/case_fold.h"

using quor::light::findRow;
using quor::light::KeywordQuestion;
using quor::light::LoadedText;
using quor::light::shadowsOf;
using quor::light::texts;
using quor::light::writeShadows;

namespace {

struct Shape {
    ZrGiShadowParameters::ExtendedLightShape shape;
    const wchar_t* keyword;
    const quor::light::Text& shown;
};

constexpr Shape shapes[] = {
    {ZrGiShadowParameters::kLinear, L"Linear", texts.shapeLinear},
    {ZrGiShadowParameters::kRect, L"Rect", texts.shapeRect},
    {ZrGiShadowParameters::kDisk, L"Disk", texts.shapeDisk},
    {ZrGiShadowParameters::kCylinder, L"Cylinder", texts.shapeCylinder},
    {ZrGiShadowParameters::kSphere, L"Sphere", texts.shapeSphere},
};

constexpr KeywordQuestion twoShapes{texts.spotShapePrompt, texts.spotShapeKeywords};
constexpr KeywordQuestion fiveShapes{texts.shapePrompt, texts.shapeKeywords};

// A spot light shines out of a flat opening.
bool isSpotWord(const ZrString& word) {
    return quor::equalFolded(word, LoadedText(texts.freeSpotKindWord).c_str()) ||
           quor::equalFolded(word, LoadedText(texts.spotKindWord).c_str());
}

// One size of the shape.
struct Size {
    const quor::light::Text& prompt;
    double (ZrGiShadowParameters::*get)() const;
    bool (ZrGiShadowParameters::*set)(double);
};

constexpr Size length{texts.lengthPrompt, &ZrGiShadowParameters::extendedLightLength,
                      &ZrGiShadowParameters::setExtendedLightLength};
constexpr Size width{texts.widthPrompt, &ZrGiShadowParameters::extendedLightWidth,
                     &ZrGiShadowParameters::setExtendedLightWidth};
constexpr Size radius{texts.radiusPrompt, &ZrGiShadowParameters::extendedLightRadius,
                      &ZrGiShadowParameters::setExtendedLightRadius};

// 0 when it was cancelled, else 1.
int askSize(ZrDbLight* light, const Size& size) {
    ZrGiShadowParameters shadows = shadowsOf(light);
    double value = (shadows.*size.get)();
    const int result = quor::light::askReal(size.prompt, value);
    if (result == RTNORM && (shadows.*size.set)(value))
        writeShadows(light, shadows);
    return result == RTCAN ? 0 : 1;
}

} // namespace

int CZrMultiLight::promptShadowLength() { return askSize(m_pLight, length); }

int CZrMultiLight::promptShadowRadius() { return askSize(m_pLight, radius); }

bool CZrMultiLight::promptShadowWidth() {
    askSize(m_pLight, width);
    return false;
}

// Enter takes the shape that the light has, also one that is not offered, and asks for its sizes again. Esc at a size
// leaves out those behind it; the shape is the light's by then.
bool CZrMultiLight::promptShadowShape() {
    ZrGiShadowParameters shadows = shadowsOf(m_pLight);
    const Shape* const current =
        findRow(shapes, [&](const Shape& shape) { return shape.shape == shadows.extendedLightShape(); });
    ZrString prefix;
    const KeywordQuestion& question = isSpotWord(defaultNamePrefix(prefix)) ? twoShapes : fiveShapes;
    ZrString answer;
    const int result =
        quor::light::askKeyword(question, current != nullptr ? LoadedText(current->shown).str() : L"", answer);
    if (result != RTNORM && result != RTNONE)
        return false;
    const Shape* const chosen =
        answer.empty() ? current
                       : findRow(shapes, [&](const Shape& shape) { return quor::equalFolded(shape.keyword, answer); });
    if (chosen == nullptr || !shadows.setExtendedLightShape(chosen->shape))
        return false;
    writeShadows(m_pLight, shadows);
    switch (chosen->shape) {
    case ZrGiShadowParameters::kLinear:
        promptShadowLength();
        break;
    case ZrGiShadowParameters::kRect:
        if (promptShadowLength() != 0)
            promptShadowWidth();
        break;
    case ZrGiShadowParameters::kDisk:
    case ZrGiShadowParameters::kSphere:
        promptShadowRadius();
        break;
    case ZrGiShadowParameters::kCylinder:
        if (promptShadowRadius() != 0)
            promptShadowLength();
        break;
    }
    return false;
}
