#include "light/app/cmds_app.h"

#include "light/app/command_rows.h"
#include "light/palette/show_light_list.h"
#include "light/res/load_text.h"
#include "sdk/rx/command_manager.h"

namespace {

void addHelp(RxCmdManager& manager) {
    for (const quor::light::CommandRow& row : quor::light::commandRows())
        manager.setHelp(quor::light::commandGroup, row.globalName,
                        [&row] { return quor::light::LoadedText(row.help).str(); });
}

} // namespace

Zr::AppRetCode CQUORCmdsApp::onInitAppMsg(void* applicationId) {
    const Zr::AppRetCode result = ZrRxZpxApp::onInitAppMsg(applicationId);
    RxCmdManager* manager = RxCmdManager::initInstance();
    quor::light::checkKeywordTranslations();
    for (const quor::light::CommandRow& row : quor::light::commandRows()) {
        const quor::light::LoadedText localName(row.localName);
        manager->registerCmd2(row.make, row.run, quor::light::commandGroup, row.globalName, localName.c_str(), 0);
    }
    addHelp(*manager);
    quor::light::addLightList();
    return result;
}

Zr::AppRetCode CQUORCmdsApp::onUnloadAppMsg(void* applicationId) {
    const Zr::AppRetCode result = ZrRxZpxApp::onUnloadAppMsg(applicationId);
    RxCmdManager::releaseInstance();
    quor::light::releaseLightList();
    return result;
}
