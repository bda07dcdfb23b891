#include "light/app/command_rows.h"

#include "light/commands/distant_light.h"
#include "light/commands/free_spot.h"
#include "light/commands/free_web.h"
#include "light/commands/light.h"
#include "light/commands/point_light.h"
#include "light/commands/spot_light.h"
#include "light/commands/target_point.h"
#include "light/commands/web_light.h"
#include "light/palette/light_list_commands.h"

#include <new>

namespace quor::light {

namespace {

template <class Command>
RxCommand* make() {
    return new (std::nothrow) Command;
}

template <class Command>
void run() {
    RxCmdManager::cmdEntryPoint(&make<Command>);
}

template <class Command>
constexpr CommandRow row(const wchar_t* globalName, const Text& localName, const Text& help) {
    return {globalName, localName, help, &make<Command>, &run<Command>};
}

constexpr CommandRow rows[] = {
    row<CZrPointLightCmd>(L"POINTLIGHT", texts.pointLightCommand, texts.pointLightHelp),
    row<CZrSpotLightCmd>(L"SPOTLIGHT", texts.spotLightCommand, texts.spotLightHelp),
    row<CZrTargetPointCmd>(L"TargetPoint", texts.targetPointCommand, texts.targetPointHelp),
    row<CZrWebLightCmd>(L"WEBLIGHT", texts.webLightCommand, texts.webLightHelp),
    row<CZrDistantLightCmd>(L"distantlight", texts.distantLightCommand, texts.distantLightHelp),
    row<CZrFreeSpotCmd>(L"FREESPOT", texts.freeSpotCommand, texts.freeSpotHelp),
    row<CZrFreeWebCmd>(L"FREEWEB", texts.freeWebCommand, texts.freeWebHelp),
    row<CZrLightCmd>(L"Light", texts.lightCommand, texts.lightHelp),
    row<CZrLightListCmd>(L"LightList", texts.lightListCommand, texts.lightListHelp),
    row<CZrLightListCloseCmd>(L"LightListClose", texts.lightListCloseCommand, texts.lightListCloseHelp),
};

} // namespace

std::span<const CommandRow> commandRows() { return rows; }

} // namespace quor::light
