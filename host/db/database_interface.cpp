#include "host/db/database_interface.h"

#include "host/db/database.h"

namespace quor::db {

namespace {

class Interface final : public ZrDbDatabase {
public:
    explicit Interface(Database& database) : ZrDbDatabase(&database) {}
};

template <class Table>
Quor::ErrorStatus openTable(Database& database, std::string_view type, Table*& table, ZrDb::OpenMode mode) {
    return zrdbOpenObject(table, ZrDbObjectId(database.structure().table(type).entry), mode);
}

} // namespace

std::unique_ptr<ZrDbDatabase> makeInterface(Database& database) { return std::make_unique<Interface>(database); }

} // namespace quor::db

ZrDbDatabase::~ZrDbDatabase() = default;

ZrRxClass* ZrDbDatabase::desc() {
    static ZrRxClass description(L"ZrDbDatabase", ZrRxObject::desc());
    return &description;
}

Quor::ErrorStatus ZrDbDatabase::getLayerTable(ZrDbLayerTable*& table, ZrDb::OpenMode mode) {
    return quor::db::openTable(*host_, "LAYER", table, mode);
}

Quor::ErrorStatus ZrDbDatabase::getBlockTable(ZrDbBlockTable*& table, ZrDb::OpenMode mode) {
    return quor::db::openTable(*host_, "BLOCK_RECORD", table, mode);
}

ZrDbObjectId ZrDbDatabase::modelSpaceId() const { return ZrDbObjectId(host_->structure().modelSpace().record); }

ZrDbObjectId ZrDbDatabase::paperSpaceId() const { return ZrDbObjectId(host_->structure().paperSpace().record); }

ZrDbObjectId ZrDbDatabase::currentSpaceId() const { return ZrDbObjectId(host_->currentSpace().record); }

ZrDbObjectId ZrDbDatabase::layerZeroId() const { return ZrDbObjectId(host_->layers().find(L"0")); }

ZrDbObjectId ZrDbDatabase::currentLayerId() const { return ZrDbObjectId(host_->currentLayer()); }

ZrDbObjectId ZrDbDatabase::linetypeId(const ZrString& name) const {
    const auto& byName = host_->structure().table("LTYPE").byName;
    const auto found = byName.find(name);
    return found == byName.end() ? ZrDbObjectId() : ZrDbObjectId(found->second);
}

ZrDbObjectId ZrDbDatabase::objectId(ZrDbHandle handle) const {
    return handle.isNull() ? ZrDbObjectId() : ZrDbObjectId(host_->objects().find(handle.value()));
}

void ZrDbDatabase::addReactor(ZrDbDatabaseReactor* reactor) { host_->journal().addReactor(reactor); }

void ZrDbDatabase::removeReactor(ZrDbDatabaseReactor* reactor) { host_->journal().removeReactor(reactor); }

ZrGeMatrix3d ZrDbDatabase::ucsToWorld() const {
    const quor::db::Ucs ucs = host_->ucs();
    ZrGeMatrix3d matrix;
    matrix.setCoordSystem(ucs.origin, ucs.xAxis, ucs.yAxis, ucs.xAxis.crossProduct(ucs.yAxis));
    return matrix;
}

namespace {

ZrGeMatrix3d currentUcs() {
    const ZrDbDatabase* database = zrdbWorkingDatabase();
    return database == nullptr ? ZrGeMatrix3d() : database->ucsToWorld();
}

} // namespace

ZrGePoint3d zrdbUcs2Wcs(const ZrGePoint3d& point) { return currentUcs() * point; }

ZrGePoint3d zrdbWcs2Ucs(const ZrGePoint3d& point) { return currentUcs().inverse() * point; }

ZrGeVector3d zrdbUcs2Wcs(const ZrGeVector3d& vector) { return currentUcs() * vector; }

ZrGeVector3d zrdbWcs2Ucs(const ZrGeVector3d& vector) { return currentUcs().inverse() * vector; }

ZrGeVector3d ucsNormalVector() { return currentUcs() * ZrGeVector3d::kZAxis; }
