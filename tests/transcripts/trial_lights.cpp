#include "tests/transcripts/trial_lights.h"

#include "host/ed/command_table.h"
#include "host/session.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/option_loop.h"
#include "light/res/load_text.h"
#include "light/res/text_table.h"

#include <span>

namespace quor::test {

namespace {

using light::ask;
using light::LightOption;
using light::texts;

// What tells one kind of light from another.
struct Kind {
    const wchar_t* command;
    DrawableType type;
    const light::Text& namePrefix;
    const light::Text& prompt;
    const light::Text& keywords;
    bool hasPhotometry = true;
};

// A distant light asks for its candela in a way of its own, which no trial light has.
constexpr Kind kKinds[] = {
    {L"TRIALDISTANT", DrawableType::kDistantLight, texts.distantNamePrefix, texts.distantPhotometricOptions,
     texts.distantOptionKeywords, false},
    {L"TRIALWEB", DrawableType::kWebLight, texts.webNamePrefix, texts.webOptions, texts.webOptionKeywords},
};

class TrialLight : public CZrMultiLight {
public:
    explicit TrialLight(const Kind& kind) : CZrMultiLight(L"Trial"), kind_(kind) {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"TRIALCMD"; }

protected:
    bool placeLight() override { return m_pLight->setLightType(kind_.type) == Quor::eOk; }
    ZrString& defaultNamePrefix(ZrString& out) override { return out = light::LoadedText(kind_.namePrefix).str(); }
    int optionLoop() override {
        static constexpr LightOption options[] = {
            {L"Photometry", ask<&TrialLight::promptPhotometry>, true}, // the first, to be left out
            {L"Name", ask<&TrialLight::promptName>},
            {L"Intensity", ask<&TrialLight::promptIntensity>},
            {L"Intensityfactor", ask<&TrialLight::promptIntensity>}, // of a web light
            {L"Status", ask<&TrialLight::promptStatus>},
            {L"shadoW", ask<&TrialLight::promptShadow>},
            {L"Attenuation", ask<&TrialLight::promptAttenuation>},
            {L"weB", ask<&TrialLight::promptWeb>},
            {L"Color", ask<&TrialLight::promptColor>},
            {L"filterColor", ask<&TrialLight::promptColor>},
        };
        return runOptionLoop({
            .standardPrompt = kind_.prompt,
            .photometricPrompt = kind_.prompt,
            .keywords = kind_.keywords,
            .unitsRead = light::UnitsRead::OnEveryPass,
            .withoutLight = light::WithoutLight::EndsAtOnce,
            .options = std::span(options).subspan(kind_.hasPhotometry ? 0 : 1),
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
