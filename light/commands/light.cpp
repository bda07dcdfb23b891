#include "light/commands/light.h"

#include "light/commands/distant_light.h"
#include "light/commands/free_spot.h"
#include "light/commands/free_web.h"
#include "light/commands/point_light.h"
#include "light/commands/spot_light.h"
#include "light/commands/target_point.h"
#include "light/commands/web_light.h"
#include "light/lightcmd/find_row.h"
#include "light/lightcmd/keyword_question.h"
#include "light/lightcmd/model_space.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "sdk/sys/case_fold.h"
#include "sdk/sys/global_vars.h"

#include <memory>
#include <new>

using quor::light::Text;
using quor::light::texts;

namespace {

constexpr const wchar_t* defaultKindVariable = L"LightCmdDefLightType";
constexpr const wchar_t* firstDefaultKind = L"Freespot";

using Maker = std::unique_ptr<CZrMultiLight> (*)();

struct Kind {
    const wchar_t* keyword;
    const Text& shown; // as the default in the question
    Maker make;        // null when there is no memory for it
};

template <class Command>
std::unique_ptr<CZrMultiLight> make() {
    return std::unique_ptr<CZrMultiLight>(new (std::nothrow) Command);
}

constexpr Kind kinds[] = {
    {L"Point", texts.kindPoint, make<CZrPointLightCmd>},
    {L"Spot", texts.kindSpot, make<CZrSpotLightCmd>},
    {L"Web", texts.kindWeb, make<CZrWebLightCmd>},
    {L"Targetpoint", texts.kindTargetPoint, make<CZrTargetPointCmd>},
    {L"Freespot", texts.kindFreeSpot, make<CZrFreeSpotCmd>},
    {L"freeweB", texts.kindFreeWeb, make<CZrFreeWebCmd>},
    {L"Distant", texts.kindDistant, make<CZrDistantLightCmd>},
};

const Kind* findKind(const ZrString& keyword) {
    return quor::light::findRow(kinds, [&](const Kind& kind) { return quor::equalFolded(kind.keyword, keyword); });
}

} // namespace

int CZrLightCmd::execute() {
    if (!quor::light::checkModelSpace())
        return RTCAN;
    short defaultLighting = 0;
    getVar(L"DEFAULTLIGHTING", defaultLighting);
    const bool isCalled = isCalledByCommand();
    if (!CZrMultiLight::askDefaultLighting(defaultLighting) || registerDefaultKind() != RTNORM)
        return RTERROR;
    ZrString answer;
    if (const int result = askKind(answer); result == RTCAN || result == RTERROR)
        return result;
    const Kind* kind = findKind(answer);
    const std::unique_ptr<CZrMultiLight> command = kind != nullptr ? kind->make() : nullptr;
    if (!command)
        return RTERROR;
    // Kept also where the light is then given up.
    ZrGlobalVarManager::instance()->set(defaultKindVariable, answer.c_str());
    CZrMultiLight::s_skipLightingDialogOnce = true; // it has just been asked
    CZrMultiLight::s_calledFromScript = isCalled;
    const int result = command->execute();
    if (result == RTNORM)
        zwutads::setVar(L"DEFAULTLIGHTING", defaultLighting, true);
    return result;
}

int CZrLightCmd::registerDefaultKind() {
    ZrGlobalVarManager* globals = ZrGlobalVarManager::instance();
    if (globals == nullptr ||
        globals->reg(ZrGlobalVarManager::kString, defaultKindVariable) == ZrGlobalVarManager::kError)
        return RTERROR;
    ZrString kept;
    if (globals->get(defaultKindVariable, kept) == ZrGlobalVarManager::kNoValue &&
        globals->set(defaultKindVariable, firstDefaultKind) != ZrGlobalVarManager::kOk)
        return RTERROR;
    return RTNORM;
}

int CZrLightCmd::askKind(ZrString& kind) {
    ZrString kept;
    ZrGlobalVarManager::instance()->get(defaultKindVariable, kept);
    const Kind* shown = findKind(kept);
    const ZrString defaultText = shown != nullptr ? quor::light::LoadedText(shown->shown).str() : ZrString();
    const int result = quor::light::askKeyword({texts.lightKindPrompt, texts.lightKindKeywords}, defaultText, kind);
    if (result == RTNONE)
        kind = kept;
    return result;
}
