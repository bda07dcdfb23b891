// A web light command that shows its inside, and the session in which its tests run it.
#pragma once

#include "sdk/db/database.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

namespace quor::test {

// The command as it is, but for a light that begins as one of another kind.
template <class Command>
class WebCommand : public Command {
public:
    bool beginsWithTarget = false;
    ZrDbObjectId made; // the light of the last run

    [[nodiscard]] const wchar_t* kindWord() const { return this->m_kindWord; }
    [[nodiscard]] ZrString namePrefix() {
        ZrString prefix = L"another";
        return this->defaultNamePrefix(prefix);
    }
    void loseLight() {
        this->m_pLight->close();
        this->m_pLight = nullptr;
    }

protected:
    bool placeLight() override {
        this->m_pLight->setLightType(DrawableType::kSpotLight);
        this->m_pLight->setHasTarget(beginsWithTarget);
        return Command::placeLight();
    }
    int optionLoop() override {
        made = this->m_pLight->objectId();
        return Command::optionLoop();
    }
};

template <class Command>
class WebCommandTest : public testing::Test {
protected:
    WebCommandTest() {
        session_.addCommand(L"WEB", [this] { return command_.execute(); });
        session_.addCommand(
            L"LOSE", [this] { return command_.loseLight(), RTNORM; }, ed::kTransparent);
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
    }

    int run(std::initializer_list<ZrString> lines) {
        front().type(lines);
        return session_.session().processor().run(L"WEB", false).result;
    }
    // The same with input that breaks behind the lines.
    int runToBreak(std::initializer_list<ZrString> lines) {
        front().type(lines);
        front().breakInput();
        return run({});
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
    WebCommand<Command> command_;
};

} // namespace quor::test
