// The Shadow option: whether the light casts shadows, of which kind, and what that kind asks on.
#include "light/lightcmd/find_row.h"
#include "light/lightcmd/keyword_question.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/shadow_record.h"
#include "sdk/sys/case_fold.h"

#include <optional>

using quor::light::KeywordQuestion;
using quor::light::LoadedText;
using quor::light::texts;

namespace {

using ShadowType = std::optional<ZrGiShadowParameters::ShadowType>; // none: no shadows

struct ShadowKind {
    const wchar_t* keyword;
    const quor::light::Text& shown;
    ShadowType type;
};

constexpr ShadowKind shadowKinds[] = {
    {L"Off", texts.off, std::nullopt},
    {L"Sharp", texts.shadowSharp, ZrGiShadowParameters::kShadowsRayTraced},
    {L"soFtmapped", texts.shadowSoftMapped, ZrGiShadowParameters::kShadowMaps},
    {L"softsAmpled", texts.shadowSoftSampled, ZrGiShadowParameters::kAreaSampled},
};

const ShadowKind* kindOf(const ZrGiShadowParameters& shadows) {
    const ShadowType type = shadows.shadowsOn() ? ShadowType(shadows.shadowType()) : std::nullopt;
    return quor::light::findRow(shadowKinds, [&](const ShadowKind& kind) { return kind.type == type; });
}

const ShadowKind* kindNamed(const ZrString& keyword) {
    return quor::light::findRow(shadowKinds,
                                [&](const ShadowKind& kind) { return quor::equalFolded(kind.keyword, keyword); });
}

// Shadows that are off keep the type that they had.
void setKind(ZrGiShadowParameters& shadows, const ShadowKind& kind) {
    shadows.setShadowsOn(kind.type.has_value());
    if (kind.type)
        shadows.setShadowType(*kind.type);
}

constexpr KeywordQuestion fourKinds{texts.shadowPrompt, texts.shadowKeywords};
constexpr KeywordQuestion threeKinds{texts.distantShadowPrompt, texts.distantShadowKeywords};

} // namespace

// Enter and Esc both choose the kind that the light has, with all that it asks on: Esc leaves only the questions behind
// this one. A distant light has no extent to take samples of, so that kind is not offered for it.
int CZrMultiLight::promptShadow() {
    ZrGiShadowParameters shadows = quor::light::shadowsOf(m_pLight);
    const ShadowKind* const current = kindOf(shadows);
    ZrString prefix;
    const bool isDistant = quor::equalFolded(defaultNamePrefix(prefix), LoadedText(texts.distantKindWord).c_str());
    const ZrString shown = current != nullptr ? LoadedText(current->shown).str() : ZrString();
    ZrString answer;
    const int result = quor::light::askKeyword(isDistant ? threeKinds : fourKinds, shown, answer);
    const ShadowKind* const chosen = result == RTNORM ? kindNamed(answer) : current;
    if (chosen == nullptr)
        return result;
    setKind(shadows, *chosen);
    quor::light::writeShadows(m_pLight, shadows);
    if (chosen->type == ZrGiShadowParameters::kShadowMaps && promptShadowMapSize() != 0)
        promptShadowSoftness();
    else if (chosen->type == ZrGiShadowParameters::kAreaSampled)
        promptShadowSampledOptions();
    return result;
}
