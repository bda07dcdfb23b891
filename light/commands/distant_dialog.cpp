#include "light/commands/distant_dialog.h"

#include "light/res/load_text.h"
#include "sdk/sys/ads.h"
#include "sdk/ui/task_dialog.h"

namespace quor::light {

namespace {

// The per-user setting behind the check box. Ticked, it allows distant lights from then on, whatever is chosen this
// time.
constexpr const wchar_t* neverAskSetting = L"allowParallelLightDialog";
constexpr int dialogWidth = 500;
constexpr int forbid = static_cast<int>(texts.distantDialogForbid.number);
constexpr int allow = static_cast<int>(texts.distantDialogAllow.number);

bool isAsked(bool calledFromScript) {
    int ticked = 0;
    zwutads::GetValueFromReg(neverAskSetting, ticked);
    short units = 0;
    zwutads::getVar(L"LIGHTINGUNITS", units);
    return !calledFromScript && units != 0 && ticked == 0;
}

CZrUiTaskDialog distantDialog() {
    CZrUiTaskDialog dialog;
    dialog.SetDialogWidth(ZkUiGetCtrlDPISize(dialogWidth));
    dialog.SetWindowTitle(LoadedText(texts.distantDialogTitle).str());
    dialog.SetMainInstruction(LoadedText(texts.distantDialogQuestion).str());
    dialog.AddCommandControl(forbid, LoadedText(texts.distantDialogForbid).str());
    dialog.AddCommandControl(allow, LoadedText(texts.distantDialogAllow).str());
    dialog.SetEnableBtn(forbid);
    dialog.SetVerificationCheckboxText(LoadedText(texts.distantDialogAlways).str());
    dialog.SetOptions(kTaskDialogEnableHyperlinks | kTaskDialogAllowCancellation | kTaskDialogUseCommandLinks);
    dialog.SetCommonButtons(kTaskDialogCancelButton);
    return dialog;
}

} // namespace

bool askDistantLightsAllowed(bool calledFromScript) {
    if (!isAsked(calledFromScript))
        return true;
    CZrUiTaskDialog dialog = distantDialog();
    const int chosen = dialog.DoModal();
    if (chosen == kTaskDialogCancelled)
        return false;
    if (dialog.GetVerificationCheckboxState())
        zwutads::SetValueFromReg(neverAskSetting, 1);
    return chosen != forbid;
}

} // namespace quor::light
