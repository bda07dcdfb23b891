#include "console/drawing_stage.h"

#include "console/exit_status.h"
#include "host/commands/drawing_files.h"
#include "host/db/ref_edit.h"
#include "host/document.h"
#include "host/sys/system_variables.h"
#include "host/sys/utf8.h"
#include "host/sys/visible_text.h"
#include "host/texts/console.h"

namespace quor::console {

namespace {

namespace words = texts::console;

void sayProblems(const std::string& name, const std::vector<ZrString>& problems) {
    if (problems.empty())
        return;
    say(words::kRecovered, fromUtf8(name), problems.size());
    for (const ZrString& problem : problems)
        printText(L"  " + problem + L"\n");
}

int readDrawing(Session& session, const Options& options, const Report& report) {
    const std::filesystem::path path(options.drawing);
    const ZrString what = fill(words::kProgressOpen, fromUtf8(path.filename().native()));
    db::OpenOptions opening;
    opening.recover = options.recover;
    opening.progress = [&](double fraction) { session.front().progress(what, fraction); };
    auto drawing = db::Database::open(path, opening);
    session.front().progress(what, 1);
    if (!drawing) {
        report(drawing.error().message);
        return kNotRead;
    }
    const Document& document = session.documents().adopt(std::move(drawing).value(), path);
    sayProblems(options.drawing, document.drawing().problems());
    return kSuccess;
}

// All or none, so that a drawing is never worked on with half of its settings; the run ends at the first bad one.
int applySettings(Session& session, const std::vector<Setting>& settings, const Report& report) {
    for (const Setting& setting : settings) {
        const sys::SetResult result = session.variables().setFromText(setting.name, setting.value);
        if (result == sys::SetResult::Ok)
            continue;
        const ZrString why = session.variables().refusal(setting.name, result);
        if (result == sys::SetResult::NotSaved) {
            report(why);
            continue;
        }
        report(fill(words::kSettingRefused, setting.name, setting.value, why));
        return kWrongUsage;
    }
    return kSuccess;
}

} // namespace

int openDrawing(Session& session, const Options& options, const Report& report) {
    if (options.drawing.empty())
        session.documents().newDocument();
    else if (const int status = readDrawing(session, options, report); status != kSuccess)
        return status;
    return applySettings(session, options.settings, report);
}

int saveDrawing(Session& session, const std::string& name, const Report& report) {
    const std::string path = commands::withExtension(name);
    Document* const document = session.documents().current();
    if (document == nullptr) {
        report(fill(words::kNothingToSave, fromUtf8(path)));
        return kNotSaved;
    }
    if (const db::RefEdit& editing = document->drawing().refEdit(); editing.isActive()) {
        report(fill(words::kNotSavedEditing, visibleText(editing.blockName()), fromUtf8(path)));
        return kNotSaved;
    }
    if (const auto saved = document->drawing().save(path); !saved) {
        report(saved.error().message);
        return kNotSaved;
    }
    say(words::kSaved, fromUtf8(path));
    return kSuccess;
}

} // namespace quor::console
