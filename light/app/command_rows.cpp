#include "light/app/command_rows.h"

#include "light/commands/point_light.h"

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
};

} // namespace

std::span<const CommandRow> commandRows() { return rows; }

} // namespace quor::light
