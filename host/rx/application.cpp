#include "sdk/rx/application.h"

#include "host/rx/lisp_functions.h"
#include "sdk/rx/dynamic_linker.h"

#include <algorithm>

ZrRxDbxApp::ZrRxDbxApp() = default;

Zr::AppRetCode ZrRxDbxApp::zrrxEntryPoint(unsigned message, void* applicationId) {
    using Handler = Zr::AppRetCode (ZrRxDbxApp::*)(void*);
    static constexpr Handler handlers[Zr::kMessageCount] = {
        &ZrRxDbxApp::onNullMsg,       &ZrRxDbxApp::onInitAppMsg,      &ZrRxDbxApp::onUnloadAppMsg,
        &ZrRxDbxApp::onLoadDwgMsg,    &ZrRxDbxApp::onUnloadDwgMsg,    &ZrRxDbxApp::onInvokeSubrMsg,
        &ZrRxDbxApp::onEndMsg,        &ZrRxDbxApp::onQuitMsg,         &ZrRxDbxApp::onSaveMsg,
        &ZrRxDbxApp::onDependencyMsg, &ZrRxDbxApp::onNoDependencyMsg, &ZrRxDbxApp::onOleUnloadMsg,
        &ZrRxDbxApp::onPreQuitMsg,    &ZrRxDbxApp::onInitDialogMsg,   &ZrRxDbxApp::onEndDialogMsg,
        &ZrRxDbxApp::onSuspendMsg};
    return message < Zr::kMessageCount ? (this->*handlers[message])(applicationId) : Zr::kRetOK;
}

Zr::AppRetCode ZrRxDbxApp::onInitAppMsg(void* applicationId) {
    if (ZrRxDynamicLinker* linker = zrrxDynamicLinker()) {
        if (unlocked_)
            linker->unlockApplication(applicationId);
        if (mdiAware_)
            linker->registerAppMdiAware(applicationId);
    }
    for (std::size_t i = 0; i < classMap_.size(); ++i)
        if (newZrRxClass(classMap_[i]) != Quor::eOk) {
            std::for_each_n(classMap_.begin(), i, deleteZrRxClass);
            return Zr::kRetError;
        }
    zrrxBuildClassHierarchy();
    return Zr::kRetOK;
}

Zr::AppRetCode ZrRxDbxApp::onUnloadAppMsg(void*) {
    for (ZrRxClass* description : classMap_)
        deleteZrRxClass(description);
    return Zr::kRetOK;
}

// Nothing to do unless a module says otherwise.
Zr::AppRetCode ZrRxDbxApp::onLoadDwgMsg(void*) { return Zr::kRetOK; }
Zr::AppRetCode ZrRxDbxApp::onUnloadDwgMsg(void*) { return Zr::kRetOK; }
Zr::AppRetCode ZrRxDbxApp::onInvokeSubrMsg(void*) { return Zr::kRetOK; }
Zr::AppRetCode ZrRxDbxApp::onEndMsg(void*) { return Zr::kRetOK; }
Zr::AppRetCode ZrRxDbxApp::onQuitMsg(void*) { return Zr::kRetOK; }
Zr::AppRetCode ZrRxDbxApp::onSaveMsg(void*) { return Zr::kRetOK; }
Zr::AppRetCode ZrRxDbxApp::onDependencyMsg(void*) { return Zr::kRetOK; }
Zr::AppRetCode ZrRxDbxApp::onNoDependencyMsg(void*) { return Zr::kRetOK; }
Zr::AppRetCode ZrRxDbxApp::onOleUnloadMsg(void*) { return Zr::kRetOK; }
Zr::AppRetCode ZrRxDbxApp::onPreQuitMsg(void*) { return Zr::kRetOK; }
Zr::AppRetCode ZrRxDbxApp::onInitDialogMsg(void*) { return Zr::kRetOK; }
Zr::AppRetCode ZrRxDbxApp::onEndDialogMsg(void*) { return Zr::kRetOK; }
Zr::AppRetCode ZrRxDbxApp::onSuspendMsg(void*) { return Zr::kRetOK; }
Zr::AppRetCode ZrRxDbxApp::onNullMsg(void*) { return Zr::kRetOK; }

Zr::AppRetCode ZrRxZpxApp::onLoadDwgMsg(void* applicationId) {
    const Zr::AppRetCode base = ZrRxDbxApp::onLoadDwgMsg(applicationId);
    for (const ZrRxLispFunction& function : lispFunctionMap_)
        if (!quor::rx::lispFunctions().define(function))
            return Zr::kRetError;
    return base;
}

Zr::AppRetCode ZrRxZpxApp::onUnloadDwgMsg(void* applicationId) {
    for (const ZrRxLispFunction& function : lispFunctionMap_)
        quor::rx::lispFunctions().undefine(function);
    return ZrRxDbxApp::onUnloadDwgMsg(applicationId);
}

unsigned Zr::zrrxGetApiVersion() { return 1; }
