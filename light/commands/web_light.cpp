#include "light/commands/web_light.h"

#include "light/commands/light_jig.h"

bool CZrWebLightCmd::placeLight() {
    CZrLightJig jig(m_pLight, L"WebLight");
    m_pLight->setLightType(DrawableType::kWebLight);
    return jig.dragSource() && jig.dragTarget();
}

int CZrWebLightCmd::optionLoop() { return runWebOptions(true); }
