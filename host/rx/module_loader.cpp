#include "host/rx/module_loader.h"

#include "host/document.h"
#include "host/rx/shared_library.h"
#include "host/session.h"
#include "host/sys/program_folder.h"
#include "host/sys/utf8.h"
#include "host/texts/modules.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace quor::rx {

using EntryPoint = Zr::AppRetCode(unsigned message, void* applicationId);
using GetApiVersion = unsigned();

struct LoadedModule {
    fs::path file;
    SharedLibrary library;
    EntryPoint* entry;
    bool unlocked = false;
    bool mdiAware = false;
};

namespace {

constexpr const char* entryName = "zrrxEntryPoint";
constexpr const char* versionName = "zrrxGetApiVersion";

// A module that throws has failed; nothing of it passes through the host.
bool send(LoadedModule& module, Zr::AppMsgCode message) {
    try {
        return module.entry(message, &module) == Zr::kRetOK;
    } catch (...) {
        return false;
    }
}

std::vector<fs::path> searchFolders(const SessionOptions& options) {
    return options.moduleFolders.empty() ? std::vector{sys::defaultModuleFolder()} : options.moduleFolders;
}

ZrString joined(const std::vector<fs::path>& folders) {
    ZrString text;
    for (const fs::path& folder : folders)
        text += (text.empty() ? L"" : L"; ") + fromUtf8(folder.string());
    return text;
}

// The file under the given name or the name with ".so", as one path whatever links lead to it.
std::optional<fs::path> existingFile(const fs::path& path) {
    for (const fs::path& candidate : {path, fs::path(path) += ".so"}) {
        std::error_code error;
        if (fs::is_regular_file(candidate, error))
            if (fs::path canonical = fs::canonical(candidate, error); !error)
                return canonical;
    }
    return std::nullopt;
}

} // namespace

ModuleLoader::ModuleLoader(Session& session) : session_(session) { session_.documents().addReactor(this); }

ModuleLoader::~ModuleLoader() {
    unloadAll();
    session_.documents().removeReactor(this);
}

std::optional<fs::path> ModuleLoader::findFile(const ZrString& fileName) const {
    const fs::path asked(toUtf8(fileName));
    if (asked.has_parent_path())
        return existingFile(asked);
    for (const fs::path& folder : searchFolders(session_.options()))
        if (auto found = existingFile(folder / asked))
            return found;
    return std::nullopt;
}

ModuleLoader::Modules::const_iterator ModuleLoader::findLoaded(const ZrString& fileName) const {
    const fs::path asked(toUtf8(fileName));
    const auto file = findFile(fileName);
    // A bare name also names a module that was loaded by its full path.
    return std::find_if(modules_.begin(), modules_.end(), [&](const auto& module) {
        return (file && module->file == *file) || module->file.filename() == asked || module->file.stem() == asked;
    });
}

Quor::ErrorStatus ModuleLoader::refuse(Quor::ErrorStatus status, ZrString reason) {
    lastError_ = std::move(reason);
    return status;
}

Quor::ErrorStatus ModuleLoader::loadModule(const ZrString& fileName) {
    const auto file = fileName.empty() ? std::nullopt : findFile(fileName);
    if (!file)
        return refuse(Quor::eFileNotFound,
                      fill(texts::moduleNotFound, fileName, joined(searchFolders(session_.options()))));
    const auto isThis = [&](const auto& module) { return module->file == *file; };
    if (std::any_of(modules_.begin(), modules_.end(), isThis))
        return Quor::eOk;
    auto library = SharedLibrary::open(*file);
    if (!library)
        return refuse(Quor::eInvalidInput, fill(texts::moduleNotLoadable, fileName, fromUtf8(library.error())));
    auto* version = library->function<GetApiVersion>(versionName);
    auto* entry = library->function<EntryPoint>(entryName);
    if (version == nullptr || entry == nullptr)
        return refuse(Quor::eInvalidInput, fill(texts::moduleWithoutEntry, fileName,
                                                fromUtf8(version == nullptr ? versionName : entryName)));
    if (const unsigned theirs = version(); theirs != Zr::zrrxGetApiVersion())
        return refuse(Quor::eInvalidInput, fill(texts::moduleOtherVersion, fileName, theirs, Zr::zrrxGetApiVersion()));
    modules_.push_back(std::make_unique<LoadedModule>(LoadedModule{*file, std::move(library).value(), entry}));
    return initialise(*modules_.back());
}

Quor::ErrorStatus ModuleLoader::initialise(LoadedModule& module) {
    if (!send(module, Zr::kInitAppMsg)) {
        send(module, Zr::kUnloadAppMsg); // what it had registered by then must not outlive its code
        const ZrString name = fromUtf8(module.file.stem().string());
        std::erase_if(modules_, [&](const auto& held) { return held.get() == &module; });
        return refuse(Quor::eNotApplicable, fill(texts::moduleInitFailed, name));
    }
    for (std::size_t open = session_.documents().all().size(); open > 0; --open)
        send(module, Zr::kLoadDwgMsg);
    return Quor::eOk;
}

Quor::ErrorStatus ModuleLoader::unloadModule(const ZrString& fileName) {
    const auto at = findLoaded(fileName);
    if (at == modules_.end())
        return refuse(Quor::eKeyNotFound, fill(texts::moduleNotLoaded, fileName));
    if (!(*at)->unlocked)
        return refuse(Quor::eNotAllowed, fill(texts::moduleLocked, fileName));
    takeDown(**at);
    return Quor::eOk;
}

void ModuleLoader::takeDown(LoadedModule& module) {
    for (std::size_t open = session_.documents().all().size(); open > 0; --open)
        send(module, Zr::kUnloadDwgMsg);
    send(module, Zr::kUnloadAppMsg);
    std::erase_if(modules_, [&](const auto& held) { return held.get() == &module; });
}

void ModuleLoader::unloadAll() {
    while (!modules_.empty())
        takeDown(*modules_.back());
}

bool ModuleLoader::unlockApplication(void* applicationId) {
    for (const auto& module : modules_)
        if (module.get() == applicationId)
            return module->unlocked = true;
    return false;
}

bool ModuleLoader::registerAppMdiAware(void* applicationId) {
    for (const auto& module : modules_)
        if (module.get() == applicationId)
            return module->mdiAware = true;
    return false;
}

std::vector<fs::path> ModuleLoader::loaded() const {
    std::vector<fs::path> files;
    for (const auto& module : modules_)
        files.push_back(module->file);
    return files;
}

bool ModuleLoader::isMdiAware(const ZrString& fileName) const {
    const auto at = findLoaded(fileName);
    return at != modules_.end() && (*at)->mdiAware;
}

void ModuleLoader::sendToAll(Zr::AppMsgCode message) {
    for (const auto& module : modules_)
        send(*module, message);
}

void ModuleLoader::documentCreated(ZrApDocument&) { sendToAll(Zr::kLoadDwgMsg); }
void ModuleLoader::documentToBeDestroyed(ZrApDocument&) { sendToAll(Zr::kUnloadDwgMsg); }

} // namespace quor::rx

ZrRxDynamicLinker* zrrxDynamicLinker() {
    return quor::Session::exists() ? &quor::Session::current().modules() : nullptr;
}
