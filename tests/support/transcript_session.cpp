#include "tests/support/transcript_session.h"

#include "host/commands/drawing_files.h"
#include "host/commands/list_kinds.h"
#include "host/ed/screen_text.h"
#include "host/ed/script_run.h"
#include "host/ed/script_source.h"
#include "host/rx/module_loader.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "host/sys/utf8.h"
#include "host/ui/file_dialog_text.h"
#include "host/ui/palette_text.h"
#include "host/ui/task_dialog_text.h"
#include "sdk/db/database.h"
#include "sdk/db/light.h"
#include "sdk/rx/result_codes.h"
#include "tests/support/test_session.h"
#include "tests/support/transcript.h"

#include <algorithm>
#include <functional>
#include <sstream>
#include <system_error>

namespace quor::test {

namespace {

using Kind = TranscriptLine::Kind;

// The keyboard and screen of a transcript.
class TranscriptFrontEnd final : public FrontEnd {
public:
    explicit TranscriptFrontEnd(TranscriptRecording& recording) : recording_(recording) {}

    void print(std::wstring_view text) override { recording_.print(toUtf8(screen_.put(text))); }
    Answer ask(const Question& question) override {
        print(question.prompt);
        newLine();
        if (recording_.peek() == nullptr || recording_.peek()->kind != Kind::Typed)
            return {Answer::Kind::End, {}, {}};
        const ZrString typed = fromUtf8(recording_.next()->text);
        if (typed == L"^C")
            return {Answer::Kind::Cancel, {}, {}};
        return typed.empty() ? Answer{Answer::Kind::Enter, {}, {}} : Answer{Answer::Kind::Text, typed, {}};
    }
    void echo(const Question& question, std::wstring_view answer) override {
        print(question.prompt);
        print(answer);
        newLine();
    }
    Answer drag(const Question& question, const std::function<void(const ZrGePoint3d&)>&) override {
        return ask(question);
    }
    TaskDialogAnswer showTaskDialog(const CZrUiTaskDialog& dialog) override {
        return ui::askTaskDialog(
            dialog, [this](std::wstring_view text) { print(text); },
            [](const Question& question) { return ui::askPersonOrScript(Session::current().input(), question); });
    }
    FileAnswer chooseFile(const FileQuestion& file) override {
        return ui::askFile(file, [this](const Question& question) { return ask(question); });
    }
    void paletteShown(const CZkUiPaletteSet& palette) override { print(ui::paletteText(palette, columns())); }

private:
    void newLine() {
        recording_.print("\n");
        screen_.answered();
    }

    TranscriptRecording& recording_;
    ScreenText screen_;
};

// The current folder while a transcript runs, so that what it saves lands nowhere else.
class CurrentFolder {
public:
    explicit CurrentFolder(const std::filesystem::path& folder) : before_(std::filesystem::current_path()) {
        std::filesystem::current_path(folder);
    }
    ~CurrentFolder() { std::filesystem::current_path(before_); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

private:
    std::filesystem::path before_;
};

void replaceAll(std::string& text, const std::string& what, std::string_view with) {
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size()))
        text.replace(at, what.size(), with);
}

bool hasDirective(const std::vector<TranscriptLine>& lines, std::string_view directive) {
    for (const TranscriptLine& line : lines)
        if (line.kind == Kind::Directive && line.text == directive)
            return true;
    return false;
}

// The project's resources, found from where the transcripts lie.
std::filesystem::path resourcesAbove(std::filesystem::path folder) {
    for (; folder.has_relative_path(); folder = folder.parent_path())
        if (std::filesystem::is_directory(folder / "resources"))
            return folder / "resources";
    return {};
}

class Player {
public:
    Player(Session& session, TranscriptRecording& recording, std::filesystem::path folder)
        : session_(session), recording_(recording), folder_(std::move(folder)) {}

    // Empty, or what is wrong with a directive.
    std::string play() {
        while (problem_.empty() && !session_.processor().quitRequested()) {
            const TranscriptLine* line = recording_.peek();
            const bool isAnswered = session_.input().hasProgramInput() || session_.input().hasAnswer();
            if (!isAnswered && line == nullptr)
                break;
            if (!isAnswered && line->kind == Kind::Directive)
                obey(recording_.next()->text.substr(2));
            else
                session_.processor().step();
        }
        return problem_;
    }

private:
    void obey(std::string_view directive) {
        directive.remove_prefix(std::min(directive.find_first_not_of(' '), directive.size()));
        const std::string_view word = directive.substr(0, directive.find(' '));
        const std::string rest(directive.size() > word.size() ? directive.substr(word.size() + 1) : "");
        if (word == "open")
            openDrawing(rest);
        else if (word == "set")
            setVariable(rest);
        else if (word == "script")
            runScript();
        else if (word == "light")
            showLight(rest);
        else if (word == "copy")
            copyFile(rest);
        else if (word == "link")
            makeLink(rest);
        else if (word != "keyboard" && word != "lang" && word != "no-module")
            problem_ = "unknown directive: " + std::string(directive);
    }

    void openDrawing(const std::string& file) {
        if (commands::openPath(session_, folder_ / file, false) != RTNORM)
            problem_ = "cannot open " + file;
    }

    void setVariable(const std::string& assignment) {
        const std::size_t sign = assignment.find('=');
        const std::string value = sign == std::string::npos ? "" : assignment.substr(sign + 1);
        const ZrString name = fromUtf8(assignment.substr(0, sign));
        if (session_.variables().setFromText(name, fromUtf8(value)) != sys::SetResult::Ok)
            problem_ = "cannot set " + assignment;
    }

    void showLight(const std::string& labels) {
        const ZrDbObjectPointer<ZrDbLight> light(lastLight(), ZrDb::kForRead);
        if (!light) {
            problem_ = "there is no light to show";
            return;
        }
        commands::Listing listing;
        commands::listLight(*light, listing);
        std::istringstream words(labels);
        for (std::string word; problem_.empty() && words >> word;)
            showRow(listing, word);
    }

    static ZrDbObjectId lastLight() {
        ZrDbObjectId last;
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(zrdbWorkingDatabase()->currentSpaceId(), ZrDb::kForRead);
        for (auto at = space->newIterator(ZrDbLight::desc()); !at->done(); at->step())
            last = at->entityId();
        return last;
    }

    void showRow(const commands::Listing& listing, const std::string& label) {
        const auto& rows = listing.rows();
        const auto row = std::find_if(rows.begin(), rows.end(), [name = fromUtf8(label)](const auto& candidate) {
            return candidate.first == name;
        });
        if (row == rows.end())
            problem_ = "the light has no row " + label;
        else
            recording_.print("  " + label + " = " + toUtf8(row->second) + "\n");
    }

    void copyFile(const std::string& names) {
        std::istringstream words(names);
        std::string from;
        words >> from;
        std::string to;
        std::getline(words >> std::ws, to);
        const std::filesystem::path target = to.empty() ? from : to;
        std::error_code error;
        if (target.has_parent_path())
            std::filesystem::create_directories(target.parent_path(), error);
        if (!error)
            std::filesystem::copy_file(folder_ / from, target, error);
        if (error)
            problem_ = "cannot copy " + from;
    }

    void makeLink(const std::string& names) {
        std::istringstream words(names);
        std::string link;
        std::string target;
        words >> link >> target;
        std::error_code error;
        std::filesystem::create_symlink(target, link, error);
        if (error)
            problem_ = "cannot make the link " + link;
    }

    void runScript() {
        std::string script;
        while (recording_.peek() != nullptr && recording_.peek()->kind == Kind::Typed)
            script += recording_.next()->text + "\n";
        session_.input().push(std::make_unique<ed::ScriptSource>(std::move(script), L"script.scr"));
        ed::runSources(session_, true);
    }

    Session& session_;
    TranscriptRecording& recording_;
    std::filesystem::path folder_;
    std::string problem_;
};

} // namespace

TranscriptResult runTranscript(const std::filesystem::path& path, std::string_view text) {
    const std::vector<TranscriptLine> lines = readTranscript(text);
    const std::filesystem::path home = std::filesystem::absolute(path).parent_path();
    const TemporaryFolder folder;
    const CurrentFolder inFolder(folder.path());
    TranscriptRecording recording(lines);
    TranscriptFrontEnd front(recording);
    TranscriptResult result;
    {
        Session session(front, {.settingsFile = folder.path() / ".settings.ini",
                                .resourceFolder = resourcesAbove(home),
                                .moduleFolders = {},
                                .language = hasDirective(lines, "#! lang en") ? L"en" : L"zh"});
        session.documents().newDocument();
        if (!hasDirective(lines, "#! no-module") && session.modules().loadModule(L"light.so") != Quor::eOk)
            result.problem = toUtf8(session.modules().lastError());
        if (result.problem.empty())
            result.problem = Player(session, recording, home).play();
    }
    result.file = recording.finish();
    replaceAll(result.file, folder.path().string() + "/", "");
    replaceAll(result.file, home.string() + "/", "");
    if (const std::filesystem::path project = resourcesAbove(home).parent_path(); !project.empty())
        replaceAll(result.file, project.string() + "/", "");
    return result;
}

} // namespace quor::test
