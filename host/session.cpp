#include "host/session.h"

#include "host/cm/color_books.h"
#include "host/cm/color_names.h"
#include "host/commands/command_list.h"
#include "host/db/light_web.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/ed/input_stack.h"
#include "host/ed/input_state.h"
#include "host/ed/modeless_operation.h"
#include "host/ed/selection_sets.h"
#include "host/ed/support_files.h"
#include "host/rx/module_loader.h"
#include "host/sys/language_choice.h"
#include "host/sys/problem_report.h"
#include "host/sys/program_folder.h"
#include "host/sys/resource_library.h"
#include "host/sys/settings_store.h"
#include "host/sys/system_variables.h"
#include "host/texts/text.h"
#include "host/ui/user_interface.h"
#include "sdk/sys/resources.h"

#include <cassert>

namespace quor {

namespace {

Session* running = nullptr;

SessionOptions completed(SessionOptions options, SettingsStore& settings) {
    if (options.resourceFolder.empty())
        options.resourceFolder = sys::programFolder().parent_path() / "share" / "quor";
    if (options.moduleFolders.empty())
        options.moduleFolders.push_back(sys::defaultModuleFolder());
    options.language = options.language.empty() ? sys::languageOf(settings) : sys::languageOf(options.language);
    return options;
}

std::unique_ptr<SettingsStore> openSettings(const std::filesystem::path& file) {
    return file.empty() ? std::make_unique<SettingsStore>() : std::make_unique<SettingsStore>(file);
}

// The texts 6924 to 6930 of the command library's resource module: the names of the numbered colours 1 to 7.
ZrString colorNameOfPack(int index) {
    constexpr unsigned beforeFirstName = 6923;
    constexpr int longestName = 260;
    wchar_t name[longestName];
    LoadStringW(zwCommandLibraryResources(), beforeFirstName + static_cast<unsigned>(index), name, longestName);
    return name;
}

// Nothing is read here: names and colour books are looked up when somebody asks for them. A person adds a colour book
// by a file beside the settings.
void setUpColors(const SettingsStore& settings, const SessionOptions& options) {
    cm::setColorNameSource(colorNameOfPack);
    std::vector<std::filesystem::path> folders{options.resourceFolder / "colorbooks"};
    if (settings.path().has_filename())
        folders.push_back(settings.path().parent_path() / "colorbooks");
    cm::setColorBookFolders(std::move(folders));
}

void forgetColors() {
    cm::setColorNameSource(nullptr);
    cm::setColorBookFolders({});
}

void showProblem(const ZrString& message) { printText(L"\n" + message); }

} // namespace

Session::Session(FrontEnd& front, SessionOptions options) : front_(front) {
    assert(running == nullptr && "one session at a time");
    running = this;
    setProblemReporter(showProblem);
    settings_ = openSettings(options.settingsFile);
    options_ = completed(std::move(options), *settings_);
    setLanguage(options_.language == L"en" ? Language::English : Language::Chinese);
    resources_ = std::make_unique<sys::ResourceLibrary>(options_.resourceFolder, options_.language);
    variables_ = std::make_unique<sys::SystemVariables>(*this);
    documents_ = std::make_unique<DocumentManager>();
    input_ = std::make_unique<ed::InputStack>(front_);
    inputState_ = std::make_unique<ed::InputState>();
    selectionSets_ = std::make_unique<ed::SelectionSets>(*documents_);
    modelessOperation_ = std::make_unique<ed::ModelessOperation>(*documents_);
    commands_ = std::make_unique<ed::CommandTable>();
    processor_ = std::make_unique<ed::CommandProcessor>(*this);
    ui_ = std::make_unique<ui::UserInterface>(*this);
    modules_ = std::make_unique<rx::ModuleLoader>(*this);
    registerHostCommands(*this);
    setUpColors(*settings_, options_);
    db::setWebFinder([this](const ZrString& kept) { return ed::findKeptFile(*this, kept); });
}

// Modules go first, then the windows, then the drawings; all may use everything else while they do.
Session::~Session() {
    modules_.reset();
    ui_.reset();
    documents_->closeAll();
    db::setWebFinder(nullptr);
    processor_.reset();
    commands_.reset();
    modelessOperation_.reset();
    selectionSets_.reset();
    inputState_.reset();
    input_.reset();
    documents_.reset();
    variables_.reset();
    forgetColors();
    resources_.reset();
    settings_.reset();
    setProblemReporter(nullptr);
    running = nullptr;
}

Session& Session::current() {
    assert(running != nullptr && "no session");
    return *running;
}

bool Session::exists() { return running != nullptr; }

} // namespace quor
