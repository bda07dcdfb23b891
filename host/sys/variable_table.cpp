#include "host/sys/variable_access.h"
#include "host/sys/version.h"

#include <limits>

namespace quor::sys {
namespace {

using enum VariableType;
using enum VariableHome;
using namespace access;

constexpr double most = std::numeric_limits<short>::max();

const VariableRow rows[] = {
    {.name = L"ANGBASE", .type = Real, .home = Drawing, .angle = true, .read = readAngBase, .write = writeAngBase},
    {.name = L"ANGDIR", .type = Short, .home = Header, .headerCode = 70, .high = 1},
    {.name = L"AUNITS", .type = Short, .home = Header, .headerCode = 70, .high = 4},
    {.name = L"AUPREC", .type = Short, .home = Header, .headerCode = 70, .high = 8},
    {.name = L"CLAYER", .type = Text, .home = Drawing, .read = readLayer, .write = writeLayer},
    {.name = L"CMDECHO", .type = Short, .home = Process, .high = 1, .initial = short{1}},
    {.name = L"CMDNAMES", .type = Text, .home = Process, .readOnly = true, .read = readCommandNames},
    {.name = L"COLORTHEME", .type = Short, .home = User, .high = 2, .initial = short{2}},
    {.name = L"CVPORT",
     .type = Short,
     .home = Drawing,
     .low = 1,
     .high = most,
     .read = readCvPort,
     .write = writeCvPort},
    {.name = L"DBMOD", .type = Short, .home = Drawing, .readOnly = true, .read = readDrawingModified},
    {.name = L"DEFAULTLIGHTING",
     .type = Short,
     .home = Viewport,
     .high = 1,
     .initial = short{1},
     .read = readDefaultLighting,
     .write = writeDefaultLighting},
    {.name = L"DWGNAME", .type = Text, .home = Drawing, .readOnly = true, .read = readDrawingName},
    {.name = L"DWGPREFIX", .type = Text, .home = Drawing, .readOnly = true, .read = readDrawingPrefix},
    {.name = L"DWGVERSION", .type = Text, .home = Drawing, .readOnly = true, .read = readDrawingVersion},
    {.name = L"ELEVATION", .type = Real, .home = Header, .headerCode = 40, .initial = 0.0},
    {.name = L"EXTMAX", .type = Point, .home = Header, .headerCode = 10, .readOnly = true, .initial = ZrGePoint3d()},
    {.name = L"EXTMIN", .type = Point, .home = Header, .headerCode = 10, .readOnly = true, .initial = ZrGePoint3d()},
    {.name = L"FILEDIA", .type = Short, .home = User, .high = 1, .initial = short{1}},
    {.name = L"INSUNITS", .type = Short, .home = Header, .headerCode = 70, .high = 24},
    {.name = L"LANGUAGE",
     .type = Text,
     .home = User,
     .initial = ZrString(L"zh"),
     .choices = L"zh/en/auto",
     .fromNextStart = true,
     .read = readLanguage,
     .write = writeLanguage},
    {.name = L"LASTPOINT", .type = Point, .home = Drawing, .read = readLastPoint, .write = writeLastPoint},
    {.name = L"LIGHTGLYPHDISPLAY", .type = Short, .home = Header, .headerCode = 280, .high = 1, .initial = short{1}},
    {.name = L"LIGHTINGUNITS",
     .type = Short,
     .home = Dictionary,
     .high = 2,
     .initial = short{2},
     .read = readLightingUnits},
    {.name = L"LIMMAX", .type = Point, .home = Header, .headerCode = 10, .initial = ZrGePoint3d(12, 9, 0)},
    {.name = L"LIMMIN", .type = Point, .home = Header, .headerCode = 10, .initial = ZrGePoint3d()},
    {.name = L"LTSCALE", .type = Real, .home = Header, .headerCode = 40, .low = 1e-99, .high = 1e99, .initial = 1.0},
    {.name = L"LUNITS", .type = Short, .home = Header, .headerCode = 70, .low = 1, .high = 5, .initial = short{2}},
    {.name = L"LUPREC", .type = Short, .home = Header, .headerCode = 70, .high = 8, .initial = short{4}},
    {.name = L"MEASUREMENT", .type = Short, .home = Header, .headerCode = 70, .high = 1},
    {.name = L"ORTHOMODE", .type = Short, .home = Process, .high = 1},
    {.name = L"OSMODE", .type = Short, .home = User, .high = most, .initial = short{7}},
    {.name = L"QUORVERSION", .type = Text, .home = Process, .readOnly = true, .initial = ZrString(kVersion)},
    {.name = L"REFEDITNAME", .type = Text, .home = Drawing, .readOnly = true, .read = readRefEditName},
    {.name = L"SAVETIME", .type = Short, .home = User, .high = 600, .initial = short{10}},
    {.name = L"SUPPORTPATH", .type = Text, .home = User, .initial = ZrString()},
    {.name = L"TILEMODE",
     .type = Short,
     .home = Drawing,
     .high = 1,
     .initial = short{1},
     .read = readTileMode,
     .write = writeTileMode},
    {.name = L"UCSNAME", .type = Text, .home = Drawing, .readOnly = true, .read = readUcsName},
    {.name = L"UCSORG", .type = Point, .home = Drawing, .readOnly = true, .read = readUcsOrigin},
    {.name = L"UCSXDIR", .type = Point, .home = Drawing, .readOnly = true, .read = readUcsXDirection},
    {.name = L"UCSYDIR", .type = Point, .home = Drawing, .readOnly = true, .read = readUcsYDirection},
    {.name = L"UNITMODE", .type = Short, .home = Header, .headerCode = 70, .high = 1},
    {.name = L"WORLDUCS", .type = Short, .home = Drawing, .readOnly = true, .read = readWorldUcs},
};

} // namespace

std::span<const VariableRow> variableRows() { return rows; }

} // namespace quor::sys
