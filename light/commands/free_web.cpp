#include "light/commands/free_web.h"

#include "light/commands/light_jig.h"

bool CZrFreeWebCmd::placeLight() {
    CZrLightJig jig(m_pLight, L"FreeWeb");
    m_pLight->setLightType(DrawableType::kWebLight);
    return jig.dragSource();
}

int CZrFreeWebCmd::optionLoop() { return runWebOptions(false); }
