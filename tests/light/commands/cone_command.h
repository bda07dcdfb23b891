// A light command with a cone, whose questions for the angles are called one by one.
#pragma once

#include "tests/light/commands/opened_command.h"

namespace quor::test {

template <class Command>
class ConeCommand : public OpenedCommand<Command> {
public:
    using Command::promptFalloff;
    using Command::promptHotspot;
};

template <class Command>
class ConeCommandTest : public OpenedCommandTest<ConeCommand<Command>> {
protected:
    using OpenedCommandTest<ConeCommand<Command>>::OpenedCommandTest;

    bool hotspot(std::initializer_list<ZrString> lines) {
        return this->answerOf(&ConeCommand<Command>::promptHotspot, lines);
    }
    bool falloff(std::initializer_list<ZrString> lines) {
        return this->answerOf(&ConeCommand<Command>::promptFalloff, lines);
    }
    // The angles of the light before the prompt, in radians.
    void beginWith(double hotspot, double falloff) {
        this->before = [=, this] { this->command_.m_pLight->setHotspotAndFalloff(hotspot, falloff); };
    }
};

} // namespace quor::test
