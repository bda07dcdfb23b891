// The application object of a module: the host sends it numbered messages, each has its handler.
#pragma once

#include "sdk/rx/object.h"

#include <vector>

namespace Zr {

// The messages in the host's order.
enum AppMsgCode {
    kNullMsg = 0,
    kInitAppMsg = 1,       // the module was loaded
    kUnloadAppMsg = 2,     // the module is about to be unloaded
    kLoadDwgMsg = 3,       // a drawing was opened or made
    kUnloadDwgMsg = 4,     // a drawing is about to be closed
    kInvokeSubrMsg = 5,    // a LISP function of the module is called
    kEndMsg = 6,           // END: the drawing is saved and the host ends
    kQuitMsg = 7,          // the host ends
    kSaveMsg = 8,          // the drawing is being saved
    kDependencyMsg = 9,    // another module came to depend on this one
    kNoDependencyMsg = 10, // the last such dependency is gone
    kOleUnloadMsg = 11,    // a container asks whether the module may go
    kPreQuitMsg = 12,      // the host is about to end, drawings still open
    kInitDialogMsg = 13,   // a dialog with pages is being built
    kEndDialogMsg = 14,    // such a dialog was closed
    kSuspendMsg = 15,      // the host is put aside or comes back
};

enum AppRetCode : int { kRetOK = 0, kRetError = 3 };

inline constexpr unsigned kMessageCount = 16;

} // namespace Zr

// A LISP function that a module offers: its name and the function behind it.
struct ZrRxLispFunction {
    const wchar_t* name;
    int (*function)();
};

// The application object of a module without a user interface.
class ZrRxDbxApp {
public:
    ZrRxDbxApp();
    virtual ~ZrRxDbxApp() = default;
    ZrRxDbxApp(const ZrRxDbxApp&) = delete;
    ZrRxDbxApp& operator=(const ZrRxDbxApp&) = delete;

    // Sends the message to its handler; a number above 15 is answered with kRetOK and does nothing.
    Zr::AppRetCode zrrxEntryPoint(unsigned message, void* applicationId);

protected:
    // Tells the dynamic linker what the two flags say, registers the class map and builds the class hierarchy.
    virtual Zr::AppRetCode onInitAppMsg(void* applicationId);
    // Takes the classes of the class map out of the registry.
    virtual Zr::AppRetCode onUnloadAppMsg(void* applicationId);
    virtual Zr::AppRetCode onLoadDwgMsg(void* applicationId);
    virtual Zr::AppRetCode onUnloadDwgMsg(void* applicationId);
    virtual Zr::AppRetCode onInvokeSubrMsg(void* applicationId);
    virtual Zr::AppRetCode onEndMsg(void* applicationId);
    virtual Zr::AppRetCode onQuitMsg(void* applicationId);
    virtual Zr::AppRetCode onSaveMsg(void* applicationId);
    virtual Zr::AppRetCode onDependencyMsg(void* applicationId);
    virtual Zr::AppRetCode onNoDependencyMsg(void* applicationId);
    virtual Zr::AppRetCode onOleUnloadMsg(void* applicationId);
    virtual Zr::AppRetCode onPreQuitMsg(void* applicationId);
    virtual Zr::AppRetCode onInitDialogMsg(void* applicationId);
    virtual Zr::AppRetCode onEndDialogMsg(void* applicationId);
    virtual Zr::AppRetCode onSuspendMsg(void* applicationId);
    virtual Zr::AppRetCode onNullMsg(void* applicationId);

    // The classes that the module adds to the host, registered on initialisation. Empty unless filled by the module.
    std::vector<ZrRxClass*> classMap_;
    bool unlocked_ = true; // the module may be unloaded while the host runs
    bool mdiAware_ = true; // the module works with several open drawings
};

// The application object of a module with commands and LISP functions.
class ZrRxZpxApp : public ZrRxDbxApp {
protected:
    // Defines the functions of the LISP function map for the drawing.
    Zr::AppRetCode onLoadDwgMsg(void* applicationId) override;
    // Undefines them.
    Zr::AppRetCode onUnloadDwgMsg(void* applicationId) override;

    std::vector<ZrRxLispFunction> lispFunctionMap_;
};

namespace Zr {

// The version of the host's interface. A module exports a C function of the same name that forwards to this one; the
// namespace keeps the two apart for the loader, which would else find the host's in a module that has none.
[[nodiscard]] unsigned zrrxGetApiVersion();

} // namespace Zr
