// What everything that can stand in a block has in common.
#pragma once

#include "sdk/cm/color.h"
#include "sdk/db/object.h"
#include "sdk/sys/string.h"

struct ZrDbEntityData;

class ZrDbEntity : public ZrDbObject {
public:
    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }

    // The name of the layer as it is seen from outside: a hidden layer's name begins with an asterisk.
    [[nodiscard]] ZrString layer() const;
    [[nodiscard]] ZrDbObjectId layerId() const;
    // `doSubents`: the parts of the entity too. `allowHiddenLayer`: whether a hidden layer is accepted.
    // eInvalidLayer when there is no such layer, or it is hidden and that is not allowed.
    Quor::ErrorStatus setLayer(ZrDbObjectId layer, bool doSubents = true, bool allowHiddenLayer = false);
    Quor::ErrorStatus setLayer(const wchar_t* name, bool doSubents = true, bool allowHiddenLayer = false);

    // The colour in which the entity is drawn (not the colour that a light sends out).
    [[nodiscard]] ZrCmColor color() const;
    Quor::ErrorStatus setColor(const ZrCmColor& color, bool doSubents = true);

    [[nodiscard]] ZrDb::Visibility visibility() const;
    Quor::ErrorStatus setVisibility(ZrDb::Visibility visibility, bool doSubents = true);

    // The name of the linetype, "ByLayer" by default.
    [[nodiscard]] ZrString linetype() const;
    // Hundredths of a millimetre; -1 by layer, -2 by block, -3 the default.
    [[nodiscard]] int lineWeight() const;

    // The block record that holds the entity.
    [[nodiscard]] ZrDbObjectId blockId() const { return ownerId(); }

protected:
    using ZrDbObject::ZrDbObject;
    [[nodiscard]] ZrDbEntityData& entityData();
    [[nodiscard]] const ZrDbEntityData& entityData() const;
};
