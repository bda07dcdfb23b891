// The hidden layer on which all lights lie.
#include "light/lightcmd/multi_light.h"
#include "sdk/db/database.h"

#include <memory>

namespace {

constexpr const wchar_t* layerName = L"ADSK_SYSTEM_LIGHTS";
constexpr int layerColor = 7;
constexpr int defaultLineWeight = -3;

std::unique_ptr<ZrDbLayerTableRecord> newSystemLightsLayer(const ZrDbDatabase& database) {
    auto layer = std::make_unique<ZrDbLayerTableRecord>();
    layer->setName(layerName);
    layer->setColor(ZrCmColor::fromIndex(layerColor));
    layer->setIsHidden(true);
    layer->setIsPlottable(true);
    layer->setPlotStyleName(L"Color_7");
    if (const ZrDbObjectId continuous = database.linetypeId(L"CONTINUOUS"); continuous.isValid())
        layer->setLinetypeObjectId(continuous);
    layer->setLineWeight(defaultLineWeight);
    return layer;
}

ZrDbObjectId addSystemLightsLayer(ZrDbLayerTable& table, const ZrDbDatabase& database) {
    std::unique_ptr<ZrDbLayerTableRecord> layer = newSystemLightsLayer(database);
    ZrDbObjectId id;
    if (table.add(id, layer.get()) != Quor::eOk)
        return {};
    layer.release()->close(); // it is the drawing's now
    return id;
}

} // namespace

ZrDbObjectId CZrMultiLight::systemLightsLayerId() {
    ZrDbDatabase* database = zrdbWorkingDatabase();
    ZrDbLayerTable* table = nullptr;
    if (database == nullptr || database->getLayerTable(table, ZrDb::kForWrite) != Quor::eOk)
        return {};
    ZrDbObjectId id;
    if (table->getIdAt(layerName, id) != Quor::eOk)
        id = addSystemLightsLayer(*table, *database);
    table->close();
    return id;
}
