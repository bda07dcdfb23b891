#include "tests/transcripts/trial_lights.h"

#include "host/ed/command_table.h"
#include "host/session.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/option_loop.h"
#include "light/res/text_table.h"

namespace quor::test {

namespace {

using light::ask;
using light::LightOption;
using light::texts;

// What tells one kind of light from another.
struct Kind {
    const wchar_t* command;
    DrawableType type;
    const wchar_t* namePrefix;
    const light::Text& prompt;
    const light::Text& keywords;
};

constexpr Kind kKinds[] = {
    {L"TRIALSPOT", DrawableType::kSpotLight, L"聚光灯", texts.spotPhotometricOptions, texts.spotOptionKeywords},
    {L"TRIALFREESPOT", DrawableType::kSpotLight, L"自由聚光灯", texts.freeSpotPhotometricOptions,
     texts.freeSpotOptionKeywords},
    {L"TRIALDISTANT", DrawableType::kDistantLight, L"平行光", texts.distantPhotometricOptions,
     texts.distantOptionKeywords},
    {L"TRIALWEB", DrawableType::kWebLight, L"光域灯光", texts.webOptions, texts.webOptionKeywords},
};

class TrialLight : public CZrMultiLight {
public:
    explicit TrialLight(const Kind& kind) : CZrMultiLight(L"Trial"), kind_(kind) {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"TRIALCMD"; }

protected:
    bool placeLight() override { return m_pLight->setLightType(kind_.type) == Quor::eOk; }
    ZrString& defaultNamePrefix(ZrString& out) override { return out = kind_.namePrefix; }
    int optionLoop() override {
        static constexpr LightOption options[] = {
            {L"Name", ask<&TrialLight::promptName>},         {L"Photometry", ask<&TrialLight::promptPhotometry>, true},
            {L"shadoW", ask<&TrialLight::promptShadow>},     {L"Attenuation", ask<&TrialLight::promptAttenuation>},
            {L"weB", ask<&TrialLight::promptWeb>},           {L"Color", ask<&TrialLight::promptColor>},
            {L"filterColor", ask<&TrialLight::promptColor>},
        };
        return runOptionLoop({
            .standardPrompt = kind_.prompt,
            .photometricPrompt = kind_.prompt,
            .keywords = kind_.keywords,
            .unitsRead = light::UnitsRead::OnEveryPass,
            .withoutLight = light::WithoutLight::EndsAtOnce,
            .options = options,
        });
    }

private:
    const Kind& kind_;
};

} // namespace

void addTrialLights(Session& session) {
    for (const Kind& kind : kKinds)
        session.commands().add({.group = L"TEST",
                                .globalName = kind.command,
                                .localName = kind.command,
                                .flags = 0,
                                .run = [&kind] { return TrialLight(kind).execute(); },
                                .isHost = false});
}

} // namespace quor::test
