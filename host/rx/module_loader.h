// Loads plug-in modules with the platform's loader, tells them what happens, and unloads them.
#pragma once

#include "sdk/ed/documents.h"
#include "sdk/rx/application.h"
#include "sdk/rx/dynamic_linker.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace quor {
class Session;
}

namespace quor::rx {

// One module that was loaded; its address is the application id that the module is given.
struct LoadedModule;

// Protocol of a module: 1 it is loaded and asked for its interface version, 2 kInitAppMsg, in which it unlocks itself
// if it may be unloaded, 3 kLoadDwgMsg for every open drawing, those that are open already included, 4 kUnloadDwgMsg
// for every drawing that goes or is still open, 5 kUnloadAppMsg.
class ModuleLoader final : public ZrRxDynamicLinker, public ZrApDocumentReactor {
public:
    explicit ModuleLoader(Session& session);
    // Unloads all modules, the last one first.
    ~ModuleLoader() override;
    ModuleLoader(const ModuleLoader&) = delete;
    ModuleLoader& operator=(const ModuleLoader&) = delete;

    Quor::ErrorStatus loadModule(const ZrString& fileName) override;
    Quor::ErrorStatus unloadModule(const ZrString& fileName) override;
    [[nodiscard]] const ZrString& lastError() const override { return lastError_; }
    bool unlockApplication(void* applicationId) override;
    bool registerAppMdiAware(void* applicationId) override;

    // Unloads all, locked ones too: the session ends.
    void unloadAll();
    // The files of the loaded modules, in the order of loading.
    [[nodiscard]] std::vector<std::filesystem::path> loaded() const;
    // Whether the module works with several open drawings; false when it is not loaded.
    [[nodiscard]] bool isMdiAware(const ZrString& fileName) const;

    void documentCreated(ZrApDocument& document) override;
    void documentToBeDestroyed(ZrApDocument& document) override;

private:
    using Modules = std::vector<std::unique_ptr<LoadedModule>>;

    [[nodiscard]] std::optional<std::filesystem::path> findFile(const ZrString& fileName) const;
    [[nodiscard]] Modules::const_iterator findLoaded(const ZrString& fileName) const;
    Quor::ErrorStatus initialise(LoadedModule& module);
    Quor::ErrorStatus refuse(Quor::ErrorStatus status, ZrString reason);
    void takeDown(LoadedModule& module);
    void sendToAll(Zr::AppMsgCode message);

    Session& session_;
    Modules modules_;
    ZrString lastError_;
};

} // namespace quor::rx
