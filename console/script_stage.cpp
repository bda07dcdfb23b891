#include "console/script_stage.h"

#include "console/exit_status.h"
#include "console/signals.h"
#include "host/ed/command_processor.h"
#include "host/ed/script_run.h"
#include "host/sys/utf8.h"
#include "host/texts/console.h"

#include <algorithm>
#include <fstream>

namespace quor::console {

namespace {

namespace words = texts::console;

// A shorter script is over before its progress could be read.
constexpr std::size_t kLinesWithProgress = 100;

std::size_t countLines(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::size_t lines = 0;
    std::vector<char> chunk(std::size_t{1} << 16);
    while (file.read(chunk.data(), static_cast<std::streamsize>(chunk.size())) || file.gcount() > 0)
        lines += static_cast<std::size_t>(std::count(chunk.data(), chunk.data() + file.gcount(), '\n'));
    return lines;
}

ZrString whyFailed(const ed::Verdict& verdict, const ConsoleFrontEnd& front) {
    using Kind = ed::Verdict::Kind;
    if (verdict.kind == Kind::EndOfInput)
        return words::kWhyEnded.get();
    if (verdict.kind == Kind::Unknown)
        return words::kWhyUnknown.get();
    const ZrString message = front.lastMessage();
    return message.empty() ? ZrString(words::kWhyFailed.get()) : message;
}

// Watches over the commands of a script: tells of failures, progress and Ctrl+C.
class ScriptRun {
public:
    ScriptRun(const ScriptRoom& room, const ZrString& name, std::size_t lines)
        : room_(room), name_(name), lines_(lines), what_(fill(words::kProgressScript, name)) {}

    int run() {
        const auto outcome = ed::runSources(room_.session, room_.keepGoing,
                                            [this](const ed::Verdict& verdict) { return afterCommand(verdict); });
        room_.front.progress(what_, 1);
        if (signals::interrupted())
            return kInterrupted;
        return outcome.failures > 0 ? kCommandFailed : kSuccess;
    }

private:
    bool afterCommand(const ed::Verdict& verdict) {
        const ed::Origin& origin = room_.session.input().commandOrigin();
        if (verdict.isFailure())
            reportFailure(verdict, origin.name ? origin.text() : name_);
        // A script that this one runs counts its own lines.
        if (lines_ >= kLinesWithProgress && origin.name && *origin.name == name_)
            room_.front.progress(what_, std::min(0.99, static_cast<double>(origin.line) / static_cast<double>(lines_)));
        room_.front.forgetMessage();
        return !signals::interrupted();
    }

    // A macro has no name; what it said itself is enough.
    void reportFailure(const ed::Verdict& verdict, const ZrString& where) {
        if (!where.empty())
            room_.report(fill(words::kCommandFailed, where, verdict.command, whyFailed(verdict, room_.front)));
    }

    const ScriptRoom& room_;
    ZrString name_;
    std::size_t lines_;
    ZrString what_;
};

} // namespace

int readScripts(const std::vector<Run>& runs, const Report& report, std::vector<ScriptToRun>& scripts) {
    int commands = 0;
    for (const Run& run : runs) {
        if (run.kind == Run::Kind::Command) {
            ++commands;
            if (!isValidUtf8(run.text)) {
                report(fill(words::kCommandNotUtf8, commands));
                return kWrongUsage;
            }
            scripts.push_back(
                {std::make_unique<ed::ScriptSource>(run.text + "\n"), fill(words::kCommandOption, commands), 0});
            continue;
        }
        auto source = ed::ScriptSource::open(run.text);
        if (!source) {
            report(source.error());
            return kWrongUsage;
        }
        scripts.push_back({std::move(source).value(), fromUtf8(std::filesystem::path(run.text).filename().native()),
                           countLines(run.text)});
    }
    return kSuccess;
}

int runScripts(const ScriptRoom& room, std::vector<ScriptToRun> scripts) {
    int status = kSuccess;
    for (ScriptToRun& script : scripts) {
        if (room.session.processor().quitRequested())
            break;
        room.session.input().push(std::move(script.source));
        const int result = ScriptRun(room, script.name, script.lines).run();
        if (result == kSuccess)
            continue;
        status = result;
        if (result == kInterrupted || !room.keepGoing)
            break;
    }
    return status;
}

int runWaiting(const ScriptRoom& room) { return ScriptRun(room, {}, 0).run(); }

} // namespace quor::console
