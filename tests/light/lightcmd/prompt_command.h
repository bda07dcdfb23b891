// A light command whose option loop is a step of the test, and the session in which its tests run it: any one member of
// the command, with a light that is as the test wants it, what it answers and what becomes of the light.
#pragma once

#include "tests/light/lightcmd/step_command.h"

#include <functional>
#include <type_traits>

namespace quor::test {

class PromptCommand : public StepCommand {
public:
    using CZrMultiLight::m_endLimit;
    using CZrMultiLight::m_lampColorTemp;
    using CZrMultiLight::m_pLight;
    using CZrMultiLight::m_shadowSamples;
    using CZrMultiLight::m_startLimit;
    using CZrMultiLight::m_webFile;

    using CZrMultiLight::chooseWebFile;
    using CZrMultiLight::convertPhotometricIntensity;
    using CZrMultiLight::promptAttenuation;
    using CZrMultiLight::promptAttenuationLimits;
    using CZrMultiLight::promptAttenuationType;
    using CZrMultiLight::promptColor;
    using CZrMultiLight::promptColorBookColor;
    using CZrMultiLight::promptFlux;
    using CZrMultiLight::promptHslColor;
    using CZrMultiLight::promptIlluminance;
    using CZrMultiLight::promptIndexColor;
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
    using CZrMultiLight::promptWeb;
    using CZrMultiLight::promptWebFile;
    using CZrMultiLight::promptWebRotation;
    using CZrMultiLight::setLampColorPresetByName;

    std::function<void()> loop;
    ZrDbObjectId made; // the light of the last run

    void loseLight() {
        m_pLight->close();
        m_pLight = nullptr;
    }
    // From here on the light refuses every change.
    void reopenForRead() { reopen(ZrDb::kForRead); }
    // From here on a change of the light is told as the first of an opening.
    void reopenForWrite() { reopen(ZrDb::kForWrite); }

protected:
    int optionLoop() override {
        made = m_pLight->objectId();
        loop();
        return RTNORM;
    }

private:
    void reopen(ZrDb::OpenMode mode) {
        m_pLight->close();
        ASSERT_EQ(zrdbOpenObject(m_pLight, made, mode), Quor::eOk);
    }
};

// As long as it is there: whether an object of the drawing is written to, be it with the values that it has.
class WriteListener : public ZrDbDatabaseReactor {
public:
    WriteListener() { zrdbWorkingDatabase()->addReactor(this); }
    ~WriteListener() override { zrdbWorkingDatabase()->removeReactor(this); }
    WriteListener(const WriteListener&) = delete;
    WriteListener& operator=(const WriteListener&) = delete;

    void objectOpenedForModify(const ZrDbDatabase&, const ZrDbObject&) override { isTold = true; }

    bool isTold = false;
};

class PromptCommandTest : public testing::Test {
protected:
    template <class Result>
    using Prompt = Result (CZrMultiLight::*)();

    PromptCommandTest() {
        session_.addCommand(L"PROMPT", [this] { return command_.execute(); });
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
        command_.prefix = L"点光源";
    }

    // Makes a light, types the lines and answers what the step answers.
    template <class Step>
    auto answer(Step step, std::initializer_list<ZrString> lines = {}) {
        std::optional<std::invoke_result_t<Step>> result;
        command_.loop = [&] {
            if (before)
                before();
            result = step();
        };
        front().type(lines);
        session_.session().processor().run(L"PROMPT", false);
        return result.value();
    }
    // What the prompt answers when these lines are typed.
    template <class Result>
    Result answerOf(Prompt<Result> prompt, std::initializer_list<ZrString> lines) {
        return answer([&] { return (command_.*prompt)(); }, lines);
    }
    // The input stays broken for the rest of the test.
    template <class Result>
    Result answerToBrokenInput(Prompt<Result> prompt) {
        front().breakInput();
        return answerOf(prompt, {});
    }
    // Whether the prompt writes to the light when these lines are typed.
    template <class Result>
    bool writes(Prompt<Result> prompt, std::initializer_list<ZrString> lines) {
        const auto listened = [&] {
            command_.reopenForWrite();
            const WriteListener listener;
            (command_.*prompt)();
            return listener.isTold;
        };
        return answer(listened, lines);
    }
    // Makes a light and lets the step have it where its options are asked.
    void withLight(const std::function<void(ZrDbLight&)>& step, std::initializer_list<ZrString> lines = {}) {
        answer([&] { return step(*command_.m_pLight), true; }, lines);
    }

    [[nodiscard]] ScriptedFrontEnd& front() { return session_.front(); }
    [[nodiscard]] std::size_t linesLeft() { return front().linesLeft(); }
    [[nodiscard]] const std::vector<ZrString>& asked() { return front().asked(); }
    // The light of the last run.
    [[nodiscard]] ZrDbObjectPointer<ZrDbLight> light() const { return {command_.made, ZrDb::kForRead}; }

    TestSession session_;
    PromptCommand command_;
    std::function<void()> before; // what happens to the light before the prompt
};

} // namespace quor::test
