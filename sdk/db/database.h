// A drawing in memory.
#pragma once

#include "sdk/db/block_table.h"
#include "sdk/db/object.h"
#include "sdk/ge/matrix3d.h"
#include "sdk/sys/string.h"

#include <memory>

class ZrDbDatabase;
namespace quor::db {
class Database;
}

// Told of what happens in a drawing, in the order in which it happens, after the object is closed.
class ZrDbDatabaseReactor {
public:
    virtual ~ZrDbDatabaseReactor() = default;
    virtual void objectAppended(const ZrDbDatabase&, const ZrDbObject&) {}
    // An undo took the append back; a redo brought it again.
    virtual void objectUnAppended(const ZrDbDatabase&, const ZrDbObject&) {}
    virtual void objectReAppended(const ZrDbDatabase&, const ZrDbObject&) {}
    virtual void objectOpenedForModify(const ZrDbDatabase&, const ZrDbObject&) {}
    virtual void objectModified(const ZrDbDatabase&, const ZrDbObject&) {}
    virtual void objectErased(const ZrDbDatabase&, const ZrDbObject&, bool /*erased*/) {}
    virtual void headerSysVarChanged(const ZrDbDatabase&, const wchar_t* /*name*/) {}
    virtual void goodbye(const ZrDbDatabase&) {}
};

class ZrDbDatabase : public ZrRxObject {
public:
    ~ZrDbDatabase() override;
    ZrDbDatabase(const ZrDbDatabase&) = delete;
    ZrDbDatabase& operator=(const ZrDbDatabase&) = delete;
    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }

    // The tables, to be closed by the caller; eWasOpenForWrite and the other statuses of zrdbOpenObject.
    Quor::ErrorStatus getLayerTable(ZrDbLayerTable*& table, ZrDb::OpenMode mode);
    Quor::ErrorStatus getBlockTable(ZrDbBlockTable*& table, ZrDb::OpenMode mode);
    // The ids of the records that every drawing has.
    [[nodiscard]] ZrDbObjectId modelSpaceId() const;
    [[nodiscard]] ZrDbObjectId paperSpaceId() const;
    // Model space, or the space of the current layout.
    [[nodiscard]] ZrDbObjectId currentSpaceId() const;
    [[nodiscard]] ZrDbObjectId layerZeroId() const;
    // The layer that new entities get.
    [[nodiscard]] ZrDbObjectId currentLayerId() const;
    // A linetype by name, without regard to case; null when there is none.
    [[nodiscard]] ZrDbObjectId linetypeId(const ZrString& name) const;

    [[nodiscard]] ZrDbObjectId objectId(ZrDbHandle handle) const;

    // Listeners are not owned; the order of adding is the order of telling.
    void addReactor(ZrDbDatabaseReactor* reactor);
    void removeReactor(ZrDbDatabaseReactor* reactor);

    // The user coordinate system of the current space, as a matrix from it to the world.
    [[nodiscard]] ZrGeMatrix3d ucsToWorld() const;

    [[nodiscard]] quor::db::Database& host() const { return *host_; }

protected:
    explicit ZrDbDatabase(quor::db::Database* host) : host_(host) {}

private:
    quor::db::Database* host_;
};

// The drawing that commands work in, or null when none is open.
[[nodiscard]] ZrDbDatabase* zrdbWorkingDatabase();

// Coordinate conversions between the current UCS of the working database and the world.
ZrGePoint3d zrdbUcs2Wcs(const ZrGePoint3d& point);
ZrGePoint3d zrdbWcs2Ucs(const ZrGePoint3d& point);
ZrGeVector3d zrdbUcs2Wcs(const ZrGeVector3d& vector);
ZrGeVector3d zrdbWcs2Ucs(const ZrGeVector3d& vector);
// The z axis of the current UCS in world coordinates, of length 1.
ZrGeVector3d ucsNormalVector();
