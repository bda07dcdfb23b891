// A light command with a cone that shows its inside, and the session in which its tests run it.
#pragma once

#include "sdk/db/database.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "tests/support/test_session.h"

#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

namespace quor::test {

// Either the command as it is, or, with a step, its light with that step in place of its option loop.
template <class Command>
class ConeCommand : public Command {
public:
    using Command::m_pLight;
    using Command::promptFalloff;
    using Command::promptHotspot;

    std::function<void()> step;
    bool beginsWithTarget = false;
    ZrDbObjectId made; // the light of the last run

    [[nodiscard]] const wchar_t* kindWord() const { return this->m_kindWord; }
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
    // It begins as a light of another kind.
    bool placeLight() override {
        m_pLight->setLightType(DrawableType::kWebLight);
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

template <class Command>
class ConeCommandTest : public testing::Test {
protected:
    using Prompt = bool (ConeCommand<Command>::*)();

    explicit ConeCommandTest(std::vector<ZrString> placement) : placement_(std::move(placement)) {
        session_.addCommand(L"CONE", [this] { return command_.execute(); });
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
    }

    // Runs the command with the lines that place its light, and these.
    int run(std::initializer_list<ZrString> lines) {
        typePlacement();
        front().type(lines);
        return runOnTyped();
    }
    // The same with input that breaks behind them.
    int runToBreak(std::initializer_list<ZrString> lines) {
        typePlacement();
        front().type(lines);
        front().breakInput();
        return runOnTyped();
    }
    // What the prompt answers when these lines are typed.
    bool answerOf(Prompt prompt, std::initializer_list<ZrString> lines) {
        std::optional<bool> answer;
        command_.step = [&] {
            if (before)
                before();
            answer = (command_.*prompt)();
        };
        run(lines);
        return answer.value();
    }
    bool hotspot(std::initializer_list<ZrString> lines) {
        return answerOf(&ConeCommand<Command>::promptHotspot, lines);
    }
    bool falloff(std::initializer_list<ZrString> lines) {
        return answerOf(&ConeCommand<Command>::promptFalloff, lines);
    }
    // The angles of the light before the prompt, in radians.
    void beginWith(double hotspot, double falloff) {
        before = [=, this] { command_.m_pLight->setHotspotAndFalloff(hotspot, falloff); };
    }

    // The light of the last run.
    [[nodiscard]] ZrDbObjectPointer<ZrDbLight> light() const { return {command_.made, ZrDb::kForRead}; }
    [[nodiscard]] ScriptedFrontEnd& front() { return session_.front(); }
    [[nodiscard]] const ZrString& lastQuestion() { return front().asked().back(); }

    TestSession session_;
    ConeCommand<Command> command_;
    std::function<void()> before; // what happens to the light before the prompt

private:
    void typePlacement() {
        for (const ZrString& line : placement_)
            front().type(line);
    }
    int runOnTyped() { return session_.session().processor().run(L"CONE", false).result; }

    std::vector<ZrString> placement_;
};

} // namespace quor::test
