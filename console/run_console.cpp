#include "console/run_console.h"

#include "console/console_front_end.h"
#include "console/drawing_stage.h"
#include "console/exit_status.h"
#include "console/script_stage.h"
#include "console/signals.h"
#include "console/typing_stage.h"
#include "host/db/ref_edit.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/rx/module_loader.h"
#include "host/sys/problem_report.h"
#include "host/sys/system_error.h"
#include "host/sys/utf8.h"
#include "host/sys/visible_text.h"
#include "host/texts/console.h"

#include <system_error>

namespace quor::console {

namespace {

namespace words = texts::console;

constexpr const wchar_t* kUsualModule = L"light";

// A file as people name files, seen from where they are; other names are looked up in the module folders.
ZrString moduleName(const std::string& given) {
    std::error_code problem;
    const bool isHere = std::filesystem::is_regular_file(given, problem);
    return fromUtf8(isHere ? std::filesystem::absolute(given, problem).native() : given);
}

// One run; each stage answers kSuccess or the status with which the run ends.
class Stages {
public:
    Stages(const Options& options, const Streams& streams, SessionOptions sessionOptions)
        : options_(options), streams_(streams), output_(streams.out, options.quiet, streams.columns),
          progress_(streams.showsProgress ? streams.err : ByteSink(), streams.outputIsScreen ? &output_ : nullptr,
                    streams.clock),
          front_(output_, progress_), report_(streams.err, output_, progress_),
          session_(front_, std::move(sessionOptions)) {
        // The command line, on which problems are shown, is not to be seen then.
        if (options.quiet)
            setProblemReporter(report_);
    }

    int run() {
        std::vector<ScriptToRun> scripts;
        int status = readScripts(options_.runs, report_, scripts);
        if (status == kSuccess)
            status = loadModules();
        if (status == kSuccess)
            status = openDrawing(session_, options_, report_);
        if (status == kSuccess)
            status = work(std::move(scripts));
        output_.freshLine();
        output_.flush();
        return status == kSuccess ? outputStatus() : status;
    }

private:
    int loadModules() {
        std::vector<ZrString> modules;
        for (const std::string& module : options_.modules)
            modules.push_back(moduleName(module));
        const bool isUsual = modules.empty();
        if (isUsual)
            modules.emplace_back(kUsualModule);
        for (const ZrString& module : modules) {
            if (session_.modules().loadModule(module) == Quor::eOk)
                continue;
            report_(session_.modules().lastError());
            // The host is of use without its usual module; a module that was asked for is needed.
            if (!isUsual)
                return kCommandFailed;
        }
        return kSuccess;
    }

    int work(std::vector<ScriptToRun> scripts) {
        int status = kSuccess;
        if (options_.runs.empty())
            status = typeCommands({session_, front_, output_, options_, streams_, report_});
        else
            status = runScripts({session_, front_, output_, options_.keepGoing, report_}, std::move(scripts));
        const bool stopped = status != kSuccess && !(status == kCommandFailed && options_.keepGoing);
        if (stopped)
            return status;
        if (options_.output.empty()) {
            warnOfUnsavedChanges();
            return status;
        }
        const int saved = saveDrawing(session_, options_.output, report_);
        return saved == kSuccess ? status : saved;
    }

    // The terminal has asked already, and QUIT too.
    void warnOfUnsavedChanges() {
        const bool asked = session_.processor().quitRequested() || (options_.runs.empty() && streams_.editsLines);
        if (asked || options_.quiet || !session_.documents().hasUnsavedChanges())
            return;
        if (const Document* const edited = session_.documents().firstWithEditing())
            report_(fill(words::kUnsavedEditing, visibleText(edited->drawing().refEdit().blockName())));
        else
            report_(words::kUnsaved.get());
    }

    // A reader who went away has seen enough; a full disk is an error.
    int outputStatus() {
        if (output_.error() == 0 || output_.error() == EPIPE)
            return kSuccess;
        report_(fill(words::kOutputBroken, systemErrorText(output_.error())));
        return kCommandFailed;
    }

    const Options& options_;
    const Streams& streams_;
    Output output_;
    ProgressLine progress_;
    ConsoleFrontEnd front_;
    Report report_;
    Session session_;
};

} // namespace

int runConsole(const Options& options, const Streams& streams, SessionOptions session) {
    if (session.language.empty())
        session.language = options.language;
    return Stages(options, streams, std::move(session)).run();
}

} // namespace quor::console
