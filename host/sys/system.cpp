#include "sdk/sys/system.h"

#include "host/session.h"
#include "host/sys/system_variables.h"

CZwSystem& CZwSystem::instance() {
    static CZwSystem system;
    return system;
}

ZwSystemVariableService& CZwSystem::systemVariables() const { return quor::Session::current().variables(); }
