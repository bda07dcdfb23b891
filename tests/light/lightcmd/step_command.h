// A light command whose steps are given, and the session in which its tests run it.
#pragma once

#include "light/lightcmd/multi_light.h"
#include "sdk/db/database.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "sdk/sys/global_vars.h"
#include "tests/support/test_session.h"

#include <functional>
#include <gtest/gtest.h>
#include <optional>

namespace quor::test {

// What the light is like while it is placed or while the option loop runs, and what the command took from it.
struct Seen {
    bool on = true;
    ZrDb::Visibility visibility = ZrDb::kVisible;
    GlyphDisplay glyph = GlyphDisplay::kAutomatic;
    ZrGiShadowParameters shadows;
};

struct Snapshot {
    double intensity = 0;
    double physicalIntensity = 0;
    double flux = 0;
    double illuminance = 0;
    double lampColorTemp = 0;
    double illuminanceDistance = 0;
    double startLimit = 0;
    double endLimit = 0;
    std::int32_t shadowSamples = 0;
};

// A light command whose steps are given.
class StepCommand : public CZrMultiLight {
public:
    explicit StepCommand(const wchar_t* kindWord = L"Step") : CZrMultiLight(kindWord) {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"STEPCMD"; }

    DrawableType type = DrawableType::kPointLight;
    bool placed = true;
    int loopResult = RTNORM;
    ZrString prefix = L"Lamp";
    bool losesLight = false;                 // in the option loop, as when something else takes it
    std::function<void(ZrDbLight&)> prepare; // called while the light is placed
    std::optional<Seen> seenPlacing;
    std::optional<Seen> seen;
    Snapshot snapshot;

    [[nodiscard]] const wchar_t* kindWord() const { return m_kindWord; }
    [[nodiscard]] bool holdsLight() const { return m_pLight != nullptr; }

protected:
    bool placeLight() override {
        seenPlacing = look();
        m_pLight->setLightType(type);
        if (prepare)
            prepare(*m_pLight);
        return placed;
    }
    ZrString& defaultNamePrefix(ZrString& out) override { return out = prefix; }
    int optionLoop() override {
        seen = look();
        snapshot = {m_intensity,           m_physicalIntensity, m_fluxDefault, m_illuminanceDefault, m_lampColorTemp,
                    m_illuminanceDistance, m_startLimit,        m_endLimit,    m_shadowSamples};
        const bool isNamed = applyName();
        if (losesLight) {
            m_pLight->close();
            m_pLight = nullptr;
        }
        return isNamed ? loopResult : RTERROR;
    }

private:
    [[nodiscard]] Seen look() const {
        Seen now{m_pLight->isOn(), m_pLight->visibility(), m_pLight->glyphDisplay(), {}};
        m_pLight->shadowParameters(now.shadows);
        return now;
    }
};

class StepCommandTest : public testing::Test {
protected:
    StepCommandTest() {
        session_.addCommand(L"STEP", [this] { return command_.execute(); });
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
        CZrMultiLight::s_skipLightingDialogOnce = false;
    }

    int run() { return session_.session().processor().run(L"STEP", false).result; }
    ScriptedFrontEnd& front() { return session_.front(); }

    static ZrDbObjectPointer<ZrDbBlockTableRecord> space() {
        return {zrdbWorkingDatabase()->currentSpaceId(), ZrDb::kForRead};
    }
    static std::size_t lightCount() { return space()->entityCount(ZrDbLight::desc()); }
    static ZrDbObjectId firstLight() { return space()->newIterator(ZrDbLight::desc())->entityId(); }
    static short defaultLighting() {
        short value = -1;
        zwutads::getVar(L"DEFAULTLIGHTING", value);
        return value;
    }
    static void setLastNumber(short number) {
        ZrGlobalVarManager* globals = ZrGlobalVarManager::instance();
        globals->reg(ZrGlobalVarManager::kShort, L"LAST_LIGHT_NUM_DISPLAY");
        globals->set(L"LAST_LIGHT_NUM_DISPLAY", number);
    }
    static short lastNumber() {
        short number = -1;
        ZrGlobalVarManager::instance()->get(L"LAST_LIGHT_NUM_DISPLAY", number);
        return number;
    }

    TestSession session_;
    StepCommand command_;
};

} // namespace quor::test
