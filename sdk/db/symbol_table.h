// The symbol tables of a drawing: named records, found by name without regard to case.
#pragma once

#include "sdk/cm/color.h"
#include "sdk/db/object.h"
#include "sdk/sys/string.h"

#include <vector>

// A record of a table.
class ZrDbSymbolTableRecord : public ZrDbObject {
public:
    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }

    // The plain name, without the asterisk of a hidden layer.
    [[nodiscard]] virtual ZrString getName() const = 0;

protected:
    using ZrDbObject::ZrDbObject;
};

// A table. Opened for read to look a record up, for write to add one.
class ZrDbSymbolTable : public ZrDbObject {
public:
    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }

    // eKeyNotFound when there is no record of that name that is not erased.
    Quor::ErrorStatus getIdAt(std::wstring_view name, ZrDbObjectId& id) const;
    [[nodiscard]] bool has(std::wstring_view name) const;
    // The records in the order of the drawing, erased ones left out.
    [[nodiscard]] std::vector<ZrDbObjectId> recordIds() const;

protected:
    using ZrDbObject::ZrDbObject;
};

struct ZrDbLayerTableRecordData;

class ZrDbLayerTableRecord : public ZrDbSymbolTableRecord {
public:
    ZrDbLayerTableRecord();
    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }

    [[nodiscard]] ZrString getName() const override;
    Quor::ErrorStatus setName(const ZrString& name);
    // The name under which the layer is seen from outside: with a leading asterisk when hidden.
    [[nodiscard]] ZrString displayName() const;

    [[nodiscard]] ZrCmColor color() const;
    Quor::ErrorStatus setColor(const ZrCmColor& color);
    // A hidden layer is not offered in layer lists.
    [[nodiscard]] bool isHidden() const;
    Quor::ErrorStatus setIsHidden(bool hidden);
    [[nodiscard]] bool isPlottable() const;
    Quor::ErrorStatus setIsPlottable(bool plottable);
    // Neither shown nor selectable. The current layer cannot be frozen: eNotAllowed.
    [[nodiscard]] bool isFrozen() const;
    Quor::ErrorStatus setIsFrozen(bool frozen);
    // Its entities are seen and cannot be changed.
    [[nodiscard]] bool isLocked() const;
    Quor::ErrorStatus setIsLocked(bool locked);
    [[nodiscard]] bool isOff() const;
    Quor::ErrorStatus setIsOff(bool off);
    // The plot style by name ("Color_7"); a drawing with colour-dependent plot styles keeps no name.
    Quor::ErrorStatus setPlotStyleName(const ZrString& name);
    [[nodiscard]] ZrString plotStyleName() const;
    [[nodiscard]] ZrDbObjectId linetypeObjectId() const;
    Quor::ErrorStatus setLinetypeObjectId(ZrDbObjectId linetype);
    // Hundredths of a millimetre; -3 is the default.
    [[nodiscard]] int lineWeight() const;
    Quor::ErrorStatus setLineWeight(int weight);

private:
    template <class T, class Data>
    Quor::ErrorStatus change(T Data::*member, const T& value);
    Quor::ErrorStatus setFlag(int flag, bool on);
};

class ZrDbLayerTable : public ZrDbSymbolTable {
public:
    explicit ZrDbLayerTable(std::unique_ptr<ZrDbObjectData> data) : ZrDbSymbolTable(std::move(data)) {}
    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }

    // Finds a hidden layer by either spelling, with or without the asterisk: use getIdAt().
    // Adds a record; on success it belongs to the drawing, open for write. eDuplicateKey, eInvalidName,
    // eNotOpenForWrite.
    Quor::ErrorStatus add(ZrDbObjectId& id, ZrDbLayerTableRecord* record);
};
