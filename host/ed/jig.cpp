#include "sdk/ed/jig.h"

#include "host/ed/asking.h"
#include "host/session.h"
#include "sdk/db/database.h"
#include "sdk/ed/get.h"

ZrRxClass* ZrEdJig::desc() {
    static ZrRxClass description(L"ZrEdJig", ZrRxObject::desc());
    return &description;
}

ZrEdJig::DragStatus ZrEdJig::acquirePoint(ZrGePoint3d& point) {
    base_.reset();
    if (!sample_)
        return kNoChange;
    point = *sample_;
    return kNormal;
}

ZrEdJig::DragStatus ZrEdJig::acquirePoint(ZrGePoint3d& point, const ZrGePoint3d& base) {
    const DragStatus status = acquirePoint(point);
    base_ = base;
    return status;
}

void ZrEdJig::take(const ZrGePoint3d& sample) {
    sample_ = sample;
    if (sampler() == kNormal)
        update();
}

ZrEdJig::DragStatus ZrEdJig::drag() {
    using namespace quor::ed;
    quor::Session& session = quor::Session::current();
    sample_.reset();
    sampler();
    const bool acceptsEnter = (controls_ & kNullResponseAccepted) != 0;
    Rules rules;
    rules.wanted = Wanted::Point;
    rules.flags = acceptsEnter ? 0 : RSG_NONULL;
    const Outcome outcome = Asking(session, rules, prompt_)
                                .from(base_)
                                .dragging(entity(),
                                          [this, &session](const ZrGePoint3d& sample) {
                                              take(sample);
                                              session.front().redraw();
                                          })
                                .run();
    if (std::holds_alternative<Enter>(outcome))
        return kNull;
    if (!std::holds_alternative<Reading>(outcome))
        return kCancel;
    ZrGePoint3d point = std::get<ZrGePoint3d>(std::get<Reading>(outcome));
    if ((controls_ & kAccept3dCoordinates) == 0)
        point.z = 0;
    take(zrdbUcs2Wcs(point));
    return kNormal;
}
