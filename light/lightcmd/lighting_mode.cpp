// The viewport-lighting-mode question.
#include "light/lightcmd/multi_light.h"
#include "light/res/load_text.h"
#include "sdk/sys/ads.h"
#include "sdk/ui/task_dialog.h"

using quor::light::LoadedText;
using quor::light::texts;

namespace {

// The per-user setting behind the check box. Only that it was ticked is remembered, not the choice: the question is
// never asked again, and DEFAULTLIGHTING stays as it is.
constexpr const wchar_t* neverAskSetting = L"allowCurSelectDialog";
constexpr int dialogWidth = 500;

bool isNeverAsked() {
    int ticked = 0;
    zwutads::GetValueFromReg(neverAskSetting, ticked);
    return ticked != 0;
}

CZrUiTaskDialog lightingModeDialog() {
    const int turnOff = static_cast<int>(texts.lightingDialogTurnOff.number);
    const int keepOn = static_cast<int>(texts.lightingDialogKeepOn.number);
    CZrUiTaskDialog dialog;
    dialog.SetDialogWidth(ZkUiGetCtrlDPISize(dialogWidth));
    dialog.SetWindowTitle(LoadedText(texts.lightingDialogTitle).str());
    dialog.SetMainInstruction(LoadedText(texts.lightingDialogQuestion).str());
    dialog.AddCommandControl(turnOff, LoadedText(texts.lightingDialogTurnOff).str());
    dialog.AddCommandControl(keepOn, LoadedText(texts.lightingDialogKeepOn).str());
    dialog.SetCommandControlExtend(keepOn, LoadedText(texts.lightingDialogKeepOnExplained).str());
    dialog.SetVerificationCheckboxText(LoadedText(texts.lightingDialogAlways).str());
    dialog.SetOptions(kTaskDialogEnableHyperlinks | kTaskDialogAllowCancellation | kTaskDialogUseCommandLinks);
    dialog.SetCommonButtons(kTaskDialogCancelButton);
    return dialog;
}

} // namespace

bool CZrMultiLight::askDefaultLighting(short& value) {
    zwutads::getVar(L"DEFAULTLIGHTING", value);
    s_calledFromScript = zwutads::isCalledLispOrArx();
    if (s_calledFromScript || s_skipLightingDialogOnce || value == 0 || isNeverAsked()) {
        s_skipLightingDialogOnce = false;
        return true;
    }
    CZrUiTaskDialog dialog = lightingModeDialog();
    const int chosen = dialog.DoModal();
    if (chosen == kTaskDialogCancelled)
        return false;
    value = chosen == static_cast<int>(texts.lightingDialogTurnOff.number) ? 0 : 1;
    if (dialog.GetVerificationCheckboxState())
        zwutads::SetValueFromReg(neverAskSetting, 1);
    return true;
}
