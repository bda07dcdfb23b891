#include "light/palette/light_list_commands.h"

#include "light/palette/light_list.h"
#include "light/palette/light_list_dialog.h"
#include "light/palette/show_light_list.h"
#include "sdk/rx/result_codes.h"

using quor::light::lightListPalette;

int CZrLightListCmd::execute() {
    if (lightListPalette == nullptr)
        return RTERROR;
    quor::light::showLightList(true);
    if (lightListPalette == nullptr)
        return RTCAN;
    CZrlightListDlg* const dialog = lightListPalette->dialog();
    if (dialog == nullptr)
        return RTERROR;
    dialog->refreshList();
    return RTCAN;
}

int CZrLightListCloseCmd::execute() {
    if (lightListPalette != nullptr)
        quor::light::showLightList(false);
    return RTCAN;
}
