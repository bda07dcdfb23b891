#include "light/commands/light_jig.h"

#include "light/res/load_text.h"
#include "sdk/db/database.h"
#include "sdk/sys/case_fold.h"

using quor::light::LoadedText;
using quor::light::texts;

namespace {

constexpr int inputControls =
    ZrEdJig::kAccept3dCoordinates | ZrEdJig::kNullResponseAccepted | ZrEdJig::kGovernedByUcsDetect;
constexpr double sameSampleDistance = 1e-9;
constexpr double targetOffset = 10;

bool isSameSample(const ZrGePoint3d& a, const ZrGePoint3d& b) { return a.distanceTo(b) <= sameSampleDistance; }

ZrGePoint3d belowInWorld(const ZrGePoint3d& point) { return {point.x, point.y, point.z - targetOffset}; }

ZrGePoint3d belowInUcs(const ZrGePoint3d& point) { return point - targetOffset * ucsNormalVector(); }

// Goes through the user's coordinates and back, as a target that is typed there does.
ZrGePoint3d belowInUcsCoordinates(const ZrGePoint3d& point) { return zrdbUcs2Wcs(belowInWorld(zrdbWcs2Ucs(point))); }

} // namespace

bool CZrLightJig::isKind(const wchar_t* word) const { return quor::equalFolded(m_kind, word); }

ZrEdJig::DragStatus CZrLightJig::sampler() {
    setUserInputControls(inputControls);
    return m_targetMode ? sampleTarget() : sampleSource();
}

ZrEdJig::DragStatus CZrLightJig::sampleSource() {
    ZrGePoint3d point = m_source;
    const DragStatus status = acquirePoint(point);
    if (status != kNormal)
        return status;
    const ZrGePoint3d previous = m_source;
    m_source = point;
    return isSameSample(m_source, previous) ? kNoChange : kNormal;
}

ZrEdJig::DragStatus CZrLightJig::sampleTarget() {
    ZrGePoint3d point = m_target;
    const DragStatus status = acquirePoint(point, m_source);
    if (status != kNormal)
        return status;
    if (isSameSample(point, m_target))
        return kNoChange;
    m_target = point;
    return kNormal;
}

bool CZrLightJig::update() {
    if (m_targetMode) {
        m_light->setTargetLocation(m_target);
        return true;
    }
    m_light->setPosition(m_source);
    if (isKind(L"FreeSpot"))
        m_light->setTargetLocation(belowInUcs(m_source));
    else if (isKind(L"SpotLight"))
        m_light->setTargetLocation(belowInWorld(m_source));
    return true;
}

bool CZrLightJig::dragSource() {
    setDispPrompt(LoadedText(texts.sourcePrompt).c_str());
    const DragStatus status = drag();
    if (status == kCancel)
        return false;
    if (status == kNull)
        m_source = ZrGePoint3d::kOrigin;
    m_light->setPosition(m_source);
    // A free light at the origin aims down the world's z axis, even in another UCS.
    if (isKind(L"FreeSpot") || isKind(L"FreeWeb"))
        m_light->setTargetLocation(m_source.isEqualTo(ZrGePoint3d::kOrigin) ? belowInWorld(m_source)
                                                                            : belowInUcs(m_source));
    return true;
}

bool CZrLightJig::dragTarget() {
    m_targetMode = true;
    for (;;) {
        setDispPrompt(LoadedText(texts.targetPrompt).c_str());
        const DragStatus status = drag();
        if (status == kCancel)
            return false;
        if (status == kNull)
            m_target = belowInUcsCoordinates(m_source);
        if (!isKind(L"SpotLight") || !m_target.isEqualTo(m_source))
            break;
        quor::light::printText(texts.spotTargetOnSource);
    }
    m_light->setTargetLocation(m_target);
    return true;
}
