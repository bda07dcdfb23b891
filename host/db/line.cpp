#include "sdk/db/line.h"

#include "host/db/data.h"
#include "host/db/finite.h"

namespace {

const ZrDbLineData& dataOf(const ZrDbLine& line) { return static_cast<const ZrDbLineData&>(*line.hostData()); }

} // namespace

ZrDbLine::ZrDbLine(const ZrGePoint3d& start, const ZrGePoint3d& end) : ZrDbEntity(std::make_unique<ZrDbLineData>()) {
    auto& data = static_cast<ZrDbLineData&>(*data_);
    data.start = start;
    data.end = end;
}

ZrRxClass* ZrDbLine::desc() {
    static ZrRxClass description(L"ZrDbLine", ZrDbEntity::desc(), L"LINE");
    return &description;
}

ZrGePoint3d ZrDbLine::startPoint() const { return dataOf(*this).start; }

ZrGePoint3d ZrDbLine::endPoint() const { return dataOf(*this).end; }

Quor::ErrorStatus ZrDbLine::setStartPoint(const ZrGePoint3d& point) {
    if (!quor::db::isFinite(point))
        return Quor::eInvalidInput;
    if (const Quor::ErrorStatus status = aboutToModify(); status != Quor::eOk)
        return status;
    static_cast<ZrDbLineData&>(*data_).start = point;
    return Quor::eOk;
}

Quor::ErrorStatus ZrDbLine::setEndPoint(const ZrGePoint3d& point) {
    if (!quor::db::isFinite(point))
        return Quor::eInvalidInput;
    if (const Quor::ErrorStatus status = aboutToModify(); status != Quor::eOk)
        return status;
    static_cast<ZrDbLineData&>(*data_).end = point;
    return Quor::eOk;
}
