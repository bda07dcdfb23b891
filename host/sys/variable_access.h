// How to reach the system variables that no home keeps under their name: each is a pair of functions that the table of
// variables names. Those of the drawing are called with a drawing open only.
#pragma once

#include "host/sys/system_variables.h"

namespace quor::sys::access {

VariableValue readTileMode(Session& session);
SetResult writeTileMode(Session& session, const VariableValue& value);
VariableValue readCvPort(Session& session);
SetResult writeCvPort(Session& session, const VariableValue& value);
VariableValue readDefaultLighting(Session& session);
SetResult writeDefaultLighting(Session& session, const VariableValue& value);
VariableValue readLightingUnits(Session& session);
// Degrees in the drawing, radians here.
VariableValue readAngBase(Session& session);
SetResult writeAngBase(Session& session, const VariableValue& value);

VariableValue readLayer(Session& session);
SetResult writeLayer(Session& session, const VariableValue& value);

VariableValue readUcsName(Session& session);
VariableValue readUcsOrigin(Session& session);
VariableValue readUcsXDirection(Session& session);
VariableValue readUcsYDirection(Session& session);
VariableValue readWorldUcs(Session& session);

VariableValue readDrawingName(Session& session);
VariableValue readDrawingPrefix(Session& session);
VariableValue readDrawingModified(Session& session);
VariableValue readDrawingVersion(Session& session);
// The block that is being edited in place, empty when none is.
VariableValue readRefEditName(Session& session);
VariableValue readLastPoint(Session& session);
SetResult writeLastPoint(Session& session, const VariableValue& value);

VariableValue readCommandNames(Session& session);
VariableValue readLanguage(Session& session);
SetResult writeLanguage(Session& session, const VariableValue& value);

} // namespace quor::sys::access
