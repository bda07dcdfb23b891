#include "sdk/rx/command_manager.h"

#include "host/ed/command_processor.h"
#include "host/ed/command_table.h"
#include "host/session.h"
#include "host/sys/utf8.h"
#include "host/texts/modules.h"
#include "sdk/rx/command.h"
#include "sdk/rx/result_codes.h"

#include <exception>
#include <memory>
#include <utility>
#include <vector>

namespace {

struct Registration {
    ZrString group;
    ZrString globalName;
};

// What was registered through the instance.
std::vector<Registration>& registrations() {
    static std::vector<Registration> kept;
    return kept;
}

std::unique_ptr<RxCmdManager>& instance() {
    static std::unique_ptr<RxCmdManager> manager;
    return manager;
}

// The result code of the command object, made and deleted here.
int runOnce(RxCommandFactory factory) {
    const std::unique_ptr<RxCommand> command(factory());
    return command && command->canExecute() ? command->execute() : RTERROR;
}

void reportFailure(quor::ed::CommandProcessor& processor, const ZrString& reason) {
    quor::say(quor::texts::commandFailed, reason);
    processor.reportResult(RTERROR);
    processor.reportFailure();
}

} // namespace

RxCmdManager* RxCmdManager::initInstance() {
    if (!instance())
        instance().reset(new RxCmdManager);
    return instance().get();
}

RxCmdManager* RxCmdManager::instancePtr() { return instance().get(); }

void RxCmdManager::releaseInstance() {
    if (quor::Session::exists())
        for (const Registration& registered : registrations())
            quor::Session::current().commands().remove(registered.group, registered.globalName);
    registrations().clear();
    instance().reset();
}

bool RxCmdManager::registerCmd2(RxCommandFactory, RxCommandEntry entry, const wchar_t* group, const wchar_t* globalName,
                                const wchar_t* localName, int flags) {
    if (entry == nullptr || group == nullptr || globalName == nullptr || *globalName == L'\0' ||
        !quor::Session::exists())
        return false;
    quor::ed::Command command{.group = group,
                              .globalName = globalName,
                              .localName = localName != nullptr && *localName != L'\0' ? localName : globalName,
                              .flags = flags,
                              .run = [entry] {
                                  entry();
                                  return RTNORM; // the result that counts is reported by cmdEntryPoint()
                              }};
    if (!quor::Session::current().commands().add(std::move(command)))
        return false;
    registrations().push_back({group, globalName});
    return true;
}

bool RxCmdManager::setHelp(const wchar_t* group, const wchar_t* globalName, std::function<ZrString()> page) {
    return quor::Session::exists() && quor::Session::current().commands().setHelp(group, globalName, std::move(page));
}

void RxCmdManager::cmdEntryPoint(RxCommandFactory factory) {
    auto& processor = quor::Session::current().processor();
    try {
        processor.reportResult(runOnce(factory));
    } catch (const std::exception& error) {
        reportFailure(processor, quor::fromUtf8(error.what()));
    } catch (...) {
        reportFailure(processor, quor::texts::unknownError.get());
    }
}
