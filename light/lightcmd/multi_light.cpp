#include "light/lightcmd/multi_light.h"

#include "light/lightcmd/model_space.h"
#include "light/res/load_text.h"
#include "sdk/db/database.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "sdk/sys/global_vars.h"

#include <algorithm>
#include <cwchar>
#include <new>

using quor::light::printText;
using quor::light::texts;

namespace {

constexpr const wchar_t* lastNumberVariable = L"LAST_LIGHT_NUM_DISPLAY";
constexpr int notInModelSpace = -1;

// The manager of the process-wide variables, with the counter of default names in it.
ZrGlobalVarManager* managerWithCounter() {
    ZrGlobalVarManager* globals = ZrGlobalVarManager::instance();
    if (globals != nullptr && globals->reg(ZrGlobalVarManager::kShort, lastNumberVariable) == ZrGlobalVarManager::kOk)
        globals->set(lastNumberVariable, short{0});
    return globals;
}

} // namespace

bool CZrMultiLight::s_calledFromScript = false;
bool CZrMultiLight::s_skipLightingDialogOnce = false;

CZrMultiLight::CZrMultiLight(const wchar_t* kindWord) {
    const std::size_t length = std::min(std::wcslen(kindWord), kKindWordSize - 1);
    std::wmemcpy(m_kindWord, kindWord, length);
}

int CZrMultiLight::execute() {
    short units = 0;
    if (!checkLightingUnits(units))
        return RTERROR;
    if (!quor::light::checkModelSpace())
        return notInModelSpace;
    ZrGlobalVarManager* globals = managerWithCounter();
    if (!createLight())
        return RTERROR;
    if (globals == nullptr) {
        eraseLight();
        return RTERROR;
    }
    globals->get(lastNumberVariable, m_lightNumber);
    nextDefaultNumber(m_lightNumber);
    m_pLight->setVisibility(ZrDb::kInvisible, true);
    takeSnapshot();
    resetSpotShadows();
    return keepOrErase(optionLoop(), *globals);
}

int CZrMultiLight::optionLoop() { return RTNORM; }

ZrString& CZrMultiLight::defaultNamePrefix(ZrString& out) {
    out.clear();
    return out;
}

bool CZrMultiLight::placeLight() { return true; }

bool CZrMultiLight::applyName() {
    if (!m_nameEntered)
        m_name = defaultName();
    else if (m_name.starts_with(L' ')) // a name with a leading blank counts as the default name
        m_name = m_prevName;
    return m_pLight != nullptr && m_pLight->setName(m_name) == Quor::eOk;
}

bool CZrMultiLight::checkLightingUnits(short& value) {
    zwutads::getVar(L"LIGHTINGUNITS", value);
    if (value != 0)
        return true;
    printText(texts.notWithGenericUnits);
    return false;
}

bool CZrMultiLight::createLight() {
    if (!askDefaultLighting(m_defaultLighting))
        return false;
    std::unique_ptr<ZrDbLight> light(new (std::nothrow) ZrDbLight);
    if (!light)
        return false;
    const Quor::ErrorStatus onLayer = light->setLayer(systemLightsLayerId(), true, true);
    light->setGlyphDisplay(GlyphDisplay::kOn);
    m_lightOn = light->isOn();
    if (m_lightOn)
        light->setOn(false); // it must not light the scene while it is placed
    m_pLight = light.get();
    if (onLayer != Quor::eOk || !placeLight() || !postLight(std::move(light))) {
        m_pLight = nullptr;
        return false;
    }
    m_pLight->setGlyphDisplay(GlyphDisplay::kOff);
    if (m_pLight->setVisibility(ZrDb::kInvisible, true) == Quor::eOk)
        return true;
    eraseLight();
    return false;
}

// A light that cannot be posted goes with its pointer.
bool CZrMultiLight::postLight(std::unique_ptr<ZrDbLight> light) {
    const ZrDbObjectId id = postToDb(*light, nullptr, nullptr, true);
    m_pLight = nullptr;
    if (!id.isValid())
        return false;
    static_cast<void>(light.release()); // it is the drawing's now
    return zrdbOpenObject(m_pLight, id, ZrDb::kForWrite) == Quor::eOk;
}

void CZrMultiLight::takeSnapshot() {
    m_fluxDefault = 18849.5559;
    m_illuminanceDefault = 1500000000.0;
    m_intensity = m_pLight->intensity();
    m_lampColorTemp = m_pLight->lampColorTemp();
    m_illuminanceDistance = m_pLight->illuminanceDistance();
    m_physicalIntensity = m_pLight->physicalIntensity();
    const ZrGiLightAttenuation attenuation = m_pLight->lightAttenuation();
    m_startLimit = attenuation.startLimit();
    m_endLimit = attenuation.endLimit();
    ZrGiShadowParameters shadows;
    m_pLight->shadowParameters(shadows);
    m_shadowSamples = shadows.shadowSamples();
}

// A spot light begins with the shadows of a new light, but from a disk.
void CZrMultiLight::resetSpotShadows() {
    if (m_pLight->lightType() != DrawableType::kSpotLight)
        return;
    ZrGiShadowParameters shadows;
    shadows.setExtendedLightShape(ZrGiShadowParameters::kDisk);
    m_pLight->setShadowParameters(shadows);
}

// Whatever the option loop answered, the light is shown again; the counter of default names goes on also where the
// light is thrown away.
int CZrMultiLight::keepOrErase(int result, ZrGlobalVarManager& globals) {
    if (m_pLight != nullptr) {
        m_pLight->setVisibility(ZrDb::kVisible, true);
        m_pLight->setGlyphDisplay(GlyphDisplay::kAutomatic);
        m_pLight->setOn(m_lightOn);
    }
    globals.set(lastNumberVariable, m_lightNumber);
    if (result == RTNORM)
        zwutads::setVar(L"DEFAULTLIGHTING", m_defaultLighting);
    else if (m_pLight != nullptr)
        m_pLight->erase();
    closeLight();
    return result;
}

void CZrMultiLight::closeLight() {
    if (m_pLight != nullptr)
        m_pLight->close();
    m_pLight = nullptr;
}

void CZrMultiLight::eraseLight() {
    m_pLight->erase();
    closeLight();
}
