#include "host/ed/script_source.h"

#include "host/sys/system_error.h"
#include "host/sys/utf8.h"
#include "host/sys/whole_file.h"
#include "host/texts/input.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace quor::ed {

namespace {

// Enough for millions of commands; a device that never ends is given up here.
constexpr std::size_t kMostBytes = std::size_t{256} << 20;

std::optional<Answer> nextAnswer(AnswerReader& reader, const Question& question) {
    const std::optional<RawAnswer> raw = reader.next(question.acceptsBlanks);
    if (!raw)
        return std::nullopt;
    switch (raw->kind) {
    case RawAnswer::Kind::Escape:
        return Answer{Answer::Kind::Cancel, {}, {}};
    case RawAnswer::Kind::Enter:
        return Answer{Answer::Kind::Enter, {}, {}};
    case RawAnswer::Kind::Text:
        break;
    }
    return Answer{Answer::Kind::Text, fromUtf8(raw->text), {}};
}

// Where the text stops being UTF-8, or its size. No text holds a zero byte; UTF-16 is full of them.
std::size_t invalidText(std::string_view text) {
    return std::min({validUtf8Prefix(text), text.find('\0'), text.size()});
}

std::size_t lineAt(std::string_view text, std::size_t place) {
    std::size_t line = 1;
    for (std::size_t at = 0; at < place; ++at)
        line += text[at] == '\n' || (text[at] == '\r' && text.substr(at + 1, 1) != "\n") ? 1 : 0;
    return line;
}

} // namespace

ScriptSource::ScriptSource(std::string text, const ZrString& name)
    : text_(std::move(text)), reader_(text_, AnswerSyntax::Script),
      name_(name.empty() ? nullptr : std::make_shared<const ZrString>(name)) {}

Result<std::unique_ptr<ScriptSource>, ZrString> ScriptSource::open(const std::filesystem::path& path) {
    const ZrString name = fromUtf8(path.string());
    // Scripts come out of pipes, too.
    Result<std::string, int> bytes = readWholeFile(path, kMostBytes, FileKinds::All);
    if (!bytes && bytes.error() == EISDIR)
        return fail(fill(texts::kScriptIsFolder, name));
    if (!bytes)
        return fail(fill(texts::kScriptUnreadable, name, systemErrorText(bytes.error())));
    std::string text = std::move(bytes).value();
    if (const std::size_t invalid = invalidText(text); invalid < text.size())
        return fail(fill(texts::kScriptNotUtf8, name, lineAt(text, invalid)));
    auto script = std::make_unique<ScriptSource>(std::move(text), fromUtf8(path.filename().string()));
    std::error_code problem;
    const std::filesystem::path whole = std::filesystem::weakly_canonical(path, problem);
    script->file_ = problem ? path : whole;
    return script;
}

std::optional<Answer> ScriptSource::next(const Question& question) { return nextAnswer(reader_, question); }

MacroSource::MacroSource(std::wstring_view macro) : text_(toUtf8(macro)), reader_(text_, AnswerSyntax::Macro) {}

std::optional<Answer> MacroSource::next(const Question& question) { return nextAnswer(reader_, question); }

TypedLine::TypedLine(std::wstring_view line) : text_(toUtf8(line) + '\n'), reader_(text_, AnswerSyntax::Line) {}

std::optional<Answer> TypedLine::next(const Question& question) { return nextAnswer(reader_, question); }

std::optional<Answer> ReadyAnswers::next(const Question&) {
    if (atEnd())
        return std::nullopt;
    return Answer{Answer::Kind::Text, answers_[at_++], {}};
}

} // namespace quor::ed
