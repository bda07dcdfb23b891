// A light command whose option loop is one prompt, and the session in which its tests run it.
#pragma once

#include "tests/light/lightcmd/step_command.h"

#include <functional>

namespace quor::test {

class PromptCommand : public StepCommand {
public:
    using CZrMultiLight::m_endLimit;
    using CZrMultiLight::m_lampColorTemp;
    using CZrMultiLight::m_pLight;
    using CZrMultiLight::m_shadowSamples;
    using CZrMultiLight::m_startLimit;

    using CZrMultiLight::convertPhotometricIntensity;
    using CZrMultiLight::promptAttenuation;
    using CZrMultiLight::promptAttenuationLimits;
    using CZrMultiLight::promptAttenuationType;
    using CZrMultiLight::promptFlux;
    using CZrMultiLight::promptIlluminance;
    using CZrMultiLight::promptLampColor;
    using CZrMultiLight::promptPhotometricIntensity;
    using CZrMultiLight::promptPhotometry;
    using CZrMultiLight::promptShadow;
    using CZrMultiLight::promptShadowLength;
    using CZrMultiLight::promptShadowMapSize;
    using CZrMultiLight::promptShadowRadius;
    using CZrMultiLight::promptShadowSampledOptions;
    using CZrMultiLight::promptShadowSamples;
    using CZrMultiLight::promptShadowShape;
    using CZrMultiLight::promptShadowSoftness;
    using CZrMultiLight::promptShadowVisibility;
    using CZrMultiLight::promptShadowWidth;
    using CZrMultiLight::setLampColorPresetByName;

    std::function<void()> loop;

    void loseLight() {
        m_pLight->close();
        m_pLight = nullptr;
    }
    // From here on the light refuses every change.
    void reopenForRead() {
        const ZrDbObjectId id = m_pLight->objectId();
        m_pLight->close();
        ASSERT_EQ(zrdbOpenObject(m_pLight, id, ZrDb::kForRead), Quor::eOk);
    }

protected:
    int optionLoop() override {
        loop();
        return RTNORM;
    }
};

class PromptCommandTest : public testing::Test {
protected:
    PromptCommandTest() {
        session_.addCommand(L"PROMPT", [this] { return command_.execute(); });
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
        command_.prefix = L"点光源";
    }

    // What the prompt answers when these lines are typed.
    template <class Result>
    Result answerOf(Result (CZrMultiLight::*prompt)(), std::initializer_list<ZrString> lines) {
        Result result{};
        command_.loop = [&] {
            if (before)
                before();
            result = (command_.*prompt)();
        };
        session_.front().type(lines);
        session_.session().processor().run(L"PROMPT", false);
        return result;
    }
    // The input stays broken for the rest of the test.
    template <class Result>
    Result answerToBrokenInput(Result (CZrMultiLight::*prompt)()) {
        session_.front().breakInput();
        return answerOf(prompt, {});
    }

    [[nodiscard]] std::size_t linesLeft() { return session_.front().linesLeft(); }
    [[nodiscard]] const std::vector<ZrString>& asked() { return session_.front().asked(); }

    static ZrDbObjectPointer<ZrDbLight> light() {
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(zrdbWorkingDatabase()->currentSpaceId(), ZrDb::kForRead);
        return {space->newIterator(ZrDbLight::desc())->entityId(), ZrDb::kForRead};
    }

    TestSession session_;
    PromptCommand command_;
    std::function<void()> before; // what happens to the light before the prompt
};

} // namespace quor::test
