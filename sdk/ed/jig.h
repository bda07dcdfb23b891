// A drag: the host asks for a point and calls the jig back for each sample until the user accepts, presses Enter or
// Esc.
#pragma once

#include "sdk/ge/point3d.h"
#include "sdk/rx/object.h"
#include "sdk/sys/string.h"

#include <optional>

class ZrDbEntity;

class ZrEdJig : public ZrRxObject {
public:
    enum DragStatus { kNormal = 0, kNull = -1, kCancel = -4, kOther = -5, kNoChange = -6 };

    // Bits of setUserInputControls.
    enum UserInputControls {
        kGovernedByUcsDetect = 2,
        kNullResponseAccepted = 128,
        kAccept3dCoordinates = 4096,
    };

    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }

    // Runs the drag. kNormal: a point was accepted; kNull: Enter; kCancel: Esc, or the input broke. Enter is refused
    // with the host's message when the sampler did not set kNullResponseAccepted. Without 3D coordinates a typed z is
    // dropped.
    DragStatus drag();

    void setDispPrompt(const wchar_t* prompt) { prompt_ = prompt; }
    [[nodiscard]] const ZrString& dispPrompt() const { return prompt_; }
    void setUserInputControls(int controls) { controls_ = controls; }
    [[nodiscard]] int userInputControls() const { return controls_; }

    // Reads one sample: calls acquirePoint() and stores it.
    virtual DragStatus sampler() = 0;
    // Applies the stored sample to the entity.
    virtual bool update() = 0;
    // The entity that is dragged.
    [[nodiscard]] virtual ZrDbEntity* entity() const = 0;

protected:
    // The current sample in world coordinates; the form with a base point shows a rubber band from it. kNoChange while
    // there is no sample yet: the drag calls the sampler once before it asks, to learn the controls and the base point.
    DragStatus acquirePoint(ZrGePoint3d& point);
    DragStatus acquirePoint(ZrGePoint3d& point, const ZrGePoint3d& base);

private:
    void take(const ZrGePoint3d& sample);

    ZrString prompt_;
    int controls_ = 0;
    std::optional<ZrGePoint3d> sample_; // world coordinates
    std::optional<ZrGePoint3d> base_;   // what the last acquirePoint() gave
};
