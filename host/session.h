// One running host: what the interface's free functions work on. A program makes one; tests make one each.
#pragma once

#include "host/front.h"
#include "sdk/sys/string.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace quor {

namespace ed {
class CommandTable;
class CommandProcessor;
class InputStack;
struct InputState;
class ModelessOperation;
class SelectionSets;
} // namespace ed
namespace sys {
class SystemVariables;
class ResourceLibrary;
} // namespace sys
namespace rx {
class ModuleLoader;
}
namespace ui {
class UserInterface;
}
class DocumentManager;
class SettingsStore;

// Where a host finds its things, and how it speaks.
struct SessionOptions {
    std::filesystem::path settingsFile;               // empty: the user's own
    std::filesystem::path resourceFolder;             // language packs, colour books; empty: beside the program
    std::vector<std::filesystem::path> moduleFolders; // empty: beside the program
    ZrString language;                                // "zh", "en", "auto"; empty: the user's setting, else "zh"
};

class Session {
public:
    explicit Session(FrontEnd& front, SessionOptions options = {});
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // The session in which the calling code runs; there is at most one at a time.
    [[nodiscard]] static Session& current();
    [[nodiscard]] static bool exists();

    [[nodiscard]] FrontEnd& front() { return front_; }
    [[nodiscard]] const SessionOptions& options() const { return options_; }
    [[nodiscard]] ed::CommandTable& commands() { return *commands_; }
    [[nodiscard]] ed::InputStack& input() { return *input_; }
    [[nodiscard]] ed::InputState& inputState() { return *inputState_; }
    [[nodiscard]] ed::SelectionSets& selectionSets() { return *selectionSets_; }
    [[nodiscard]] ed::ModelessOperation& modelessOperation() { return *modelessOperation_; }
    [[nodiscard]] ed::CommandProcessor& processor() { return *processor_; }
    [[nodiscard]] sys::SystemVariables& variables() { return *variables_; }
    [[nodiscard]] sys::ResourceLibrary& resources() { return *resources_; }
    [[nodiscard]] ui::UserInterface& ui() { return *ui_; }
    [[nodiscard]] rx::ModuleLoader& modules() { return *modules_; }
    [[nodiscard]] DocumentManager& documents() { return *documents_; }
    [[nodiscard]] SettingsStore& settings() { return *settings_; }

private:
    FrontEnd& front_;
    SessionOptions options_;
    // In the order of making; taken down in reverse.
    std::unique_ptr<SettingsStore> settings_;
    std::unique_ptr<sys::ResourceLibrary> resources_;
    std::unique_ptr<sys::SystemVariables> variables_;
    std::unique_ptr<DocumentManager> documents_;
    std::unique_ptr<ed::InputStack> input_;
    std::unique_ptr<ed::InputState> inputState_;
    std::unique_ptr<ed::SelectionSets> selectionSets_;
    std::unique_ptr<ed::ModelessOperation> modelessOperation_;
    std::unique_ptr<ed::CommandTable> commands_;
    std::unique_ptr<ed::CommandProcessor> processor_;
    std::unique_ptr<ui::UserInterface> ui_;
    std::unique_ptr<rx::ModuleLoader> modules_;
};

} // namespace quor
