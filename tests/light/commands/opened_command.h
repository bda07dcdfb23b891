// A light command that shows its inside, and the session in which its tests run it.
#pragma once

#include "sdk/db/database.h"
#include "sdk/db/light.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "tests/support/test_session.h"

#include <functional>
#include <gtest/gtest.h>
#include <type_traits>
#include <vector>

namespace quor::test {

// The command as it is, but for a light that begins as one of another kind; or, with a step, its light with that step
// in place of its option loop.
template <class Command>
class OpenedCommand : public Command {
public:
    using Command::m_pLight;

    DrawableType beginsAs = DrawableType::kWebLight;
    bool beginsWithTarget = false;
    std::function<void()> step;
    ZrDbObjectId made; // the light of the last run

    [[nodiscard]] const wchar_t* kindWord() const { return this->m_kindWord; }
    [[nodiscard]] ZrString namePrefix() {
        ZrString prefix = L"another";
        return this->defaultNamePrefix(prefix);
    }
    void loseLight() {
        m_pLight->close();
        m_pLight = nullptr;
    }
    // From here on the light refuses every change.
    void reopenForRead() {
        m_pLight->close();
        ASSERT_EQ(zrdbOpenObject(m_pLight, made, ZrDb::kForRead), Quor::eOk);
    }

protected:
    bool placeLight() override {
        m_pLight->setLightType(beginsAs);
        m_pLight->setHasTarget(beginsWithTarget);
        return Command::placeLight();
    }
    int optionLoop() override {
        made = m_pLight->objectId();
        if (!step)
            return Command::optionLoop();
        step();
        return RTNORM;
    }
};

// `Opened` is an OpenedCommand. The transparent command LOSE takes its light away.
template <class Opened>
class OpenedCommandTest : public testing::Test {
protected:
    // `placement`: the lines that place the light, typed before all others.
    explicit OpenedCommandTest(std::vector<ZrString> placement = {}) : placement_(std::move(placement)) {
        session_.addCommand(L"OPENED", [this] { return command_.execute(); });
        session_.addCommand(
            L"LOSE", [this] { return command_.loseLight(), RTNORM; }, ed::kTransparent);
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
    }

    int run(std::initializer_list<ZrString> lines) {
        type(lines);
        return runOnTyped();
    }
    // The same with input that breaks behind the lines.
    int runToBreak(std::initializer_list<ZrString> lines) {
        type(lines);
        front().breakInput();
        return runOnTyped();
    }
    int runOnTyped() { return session_.session().processor().run(L"OPENED", false).result; }
    // What a prompt answers in place of the option loop: `placement` is typed before it, `lines` at it.
    template <class Prompt>
    auto answerOf(Prompt prompt, std::initializer_list<ZrString> lines,
                  std::initializer_list<ZrString> placement = {}) {
        std::invoke_result_t<Prompt, Opened&> answer{};
        command_.step = [&] {
            if (before)
                before();
            front().type(lines);
            answer = std::invoke(prompt, command_);
        };
        EXPECT_EQ(run(placement), RTNORM);
        return answer;
    }

    [[nodiscard]] ScriptedFrontEnd& front() { return session_.front(); }
    [[nodiscard]] const ZrString& lastQuestion() { return front().asked().back(); }
    // The light of the last run.
    [[nodiscard]] ZrDbObjectPointer<ZrDbLight> light() const { return {command_.made, ZrDb::kForRead}; }
    static std::size_t lightCount() {
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(zrdbWorkingDatabase()->currentSpaceId(), ZrDb::kForRead);
        return space->entityCount(ZrDbLight::desc());
    }

    TestSession session_;
    Opened command_;
    std::function<void()> before; // what happens to the light before the prompt

private:
    void type(std::initializer_list<ZrString> lines) {
        for (const ZrString& line : placement_)
            front().type(line);
        front().type(lines);
    }

    std::vector<ZrString> placement_;
};

} // namespace quor::test
