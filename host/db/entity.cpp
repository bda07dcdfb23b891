#include "sdk/db/entity.h"

#include "host/db/data.h"
#include "host/db/database.h"

ZrRxClass* ZrDbEntity::desc() {
    static ZrRxClass description(L"ZrDbEntity", ZrDbObject::desc());
    return &description;
}

ZrDbEntityData& ZrDbEntity::entityData() { return static_cast<ZrDbEntityData&>(*data_); }

const ZrDbEntityData& ZrDbEntity::entityData() const { return static_cast<const ZrDbEntityData&>(*data_); }

ZrString ZrDbEntity::layer() const {
    const ZrDbEntityData& data = entityData();
    return data.layer == nullptr ? data.missingLayer : data.layer->database->layers().outsideName(*data.layer);
}

ZrDbObjectId ZrDbEntity::layerId() const { return ZrDbObjectId(entityData().layer); }

Quor::ErrorStatus ZrDbEntity::setLayer(ZrDbObjectId layer, bool /*doSubents*/, bool allowHiddenLayer) {
    if (layer.isNull() || layer.isErased())
        return Quor::eInvalidLayer;
    if (database() != nullptr && layer.database() != database())
        return Quor::eWrongDatabase;
    const ZrDbObjectPointer<ZrDbLayerTableRecord> record(layer, ZrDb::kForRead);
    // A layer that is being made is open for write; its hidden flag can be read all the same.
    const auto* open = record ? record.object() : zrrxCast<ZrDbLayerTableRecord>(layer.entry()->object.get());
    if (open == nullptr || (open->isHidden() && !allowHiddenLayer))
        return Quor::eInvalidLayer;
    if (const Quor::ErrorStatus status = aboutToModify(); status != Quor::eOk)
        return status;
    entityData().layer = layer.entry();
    entityData().missingLayer.clear();
    return Quor::eOk;
}

Quor::ErrorStatus ZrDbEntity::setLayer(const wchar_t* name, bool doSubents, bool allowHiddenLayer) {
    ZrDbDatabase* drawing = database() != nullptr ? database() : zrdbWorkingDatabase();
    if (drawing == nullptr)
        return Quor::eNoDatabase;
    if (name == nullptr)
        return Quor::eInvalidLayer;
    return setLayer(ZrDbObjectId(drawing->host().layers().find(name)), doSubents, allowHiddenLayer);
}

ZrCmColor ZrDbEntity::color() const { return entityData().color; }

Quor::ErrorStatus ZrDbEntity::setColor(const ZrCmColor& color, bool /*doSubents*/) {
    if (const Quor::ErrorStatus status = aboutToModify(); status != Quor::eOk)
        return status;
    entityData().color = color;
    return Quor::eOk;
}

ZrDb::Visibility ZrDbEntity::visibility() const { return entityData().visible ? ZrDb::kVisible : ZrDb::kInvisible; }

Quor::ErrorStatus ZrDbEntity::setVisibility(ZrDb::Visibility visibility, bool /*doSubents*/) {
    if (const Quor::ErrorStatus status = aboutToModify(); status != Quor::eOk)
        return status;
    entityData().visible = visibility == ZrDb::kVisible;
    return Quor::eOk;
}

ZrString ZrDbEntity::linetype() const {
    const ZrString& name = entityData().linetype;
    return name.empty() ? ZrString(L"ByLayer") : name;
}

int ZrDbEntity::lineWeight() const { return entityData().lineWeight; }
