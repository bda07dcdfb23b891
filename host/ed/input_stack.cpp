#include "host/ed/input_stack.h"

#include "host/ed/script_source.h"
#include "host/sys/utf8.h"
#include "host/texts/input.h"

namespace quor::ed {

namespace {

// How an answer that was not typed is shown.
std::wstring_view shown(const Answer& answer) {
    switch (answer.kind) {
    case Answer::Kind::Text:
        return answer.text;
    case Answer::Kind::Cancel:
    case Answer::Kind::End:
        return L"^C";
    case Answer::Kind::Point:
    case Answer::Kind::Objects:
    case Answer::Kind::Enter:
    case Answer::Kind::Broken:
        break;
    }
    return {};
}

bool isAtPrompt(const Question& question) { return question.kind == Question::Kind::Command; }

} // namespace

ZrString Origin::text() const { return name ? fill(texts::kScriptPlace, *name, line) : ZrString(); }

const std::filesystem::path& InputSource::file() const {
    static const std::filesystem::path none;
    return none;
}

void InputStack::push(std::unique_ptr<InputSource> source) { sources_.push_back(std::move(source)); }

std::optional<ZrString> InputStack::pushScript(std::unique_ptr<InputSource> script) {
    dropEnded();
    std::size_t scripts = 0;
    for (const auto& source : sources_) {
        if (source->file().empty())
            continue;
        ++scripts;
        if (source->file() == script->file())
            return fill(texts::kScriptIsRunning, fromUtf8(script->file().string()));
    }
    if (scripts >= kMostScripts)
        return fill(texts::kScriptsTooDeep, kMostScripts, fromUtf8(script->file().string()));
    push(std::move(script));
    return std::nullopt;
}

void InputStack::dropEnded() {
    while (!sources_.empty() && sources_.back()->atEnd())
        sources_.pop_back();
}

void InputStack::queueMacro(std::wstring_view macro) {
    macros_.push_back(std::make_unique<MacroSource>(macro));
    front_.macroQueued(macro.starts_with(L"^C"));
}

void InputStack::clear() {
    sources_.clear();
    macros_.clear();
    typedLine_.reset();
}

void InputStack::typeAhead(std::wstring_view rest) { typedLine_ = std::make_unique<TypedLine>(rest); }

const InputSource* InputStack::top() const { return sources_.empty() ? nullptr : sources_.back().get(); }

bool InputStack::hasProgramInput() {
    while (!macros_.empty()) { // the last one in goes below, so that the first runs first
        sources_.push_back(std::move(macros_.back()));
        macros_.pop_back();
    }
    dropEnded();
    return !sources_.empty();
}

bool InputStack::hasAnswer() {
    for (auto source = sources_.rbegin(); source != sources_.rend(); ++source)
        if (!(*source)->atEnd() || (*source)->endsCommand())
            return true;
    return typedLine_ && !typedLine_->atEnd();
}

Answer InputStack::take(InputSource& source, const Question& question, Answer answer) {
    lastWasProgram_ = source.isProgram();
    if (isAtPrompt(question))
        commandOrigin_ = source.origin();
    // Esc at the command prompt is the habit of macros to begin with; nobody needs to see it.
    if (source.isEchoed() && !(isAtPrompt(question) && answer.kind == Answer::Kind::Cancel))
        front_.echo(question, shown(answer));
    return answer;
}

std::optional<Answer> InputStack::fromSources(const Question& question) {
    if (isAtPrompt(question) && !macros_.empty())
        hasProgramInput();
    while (!sources_.empty()) {
        InputSource& source = *sources_.back();
        if (std::optional<Answer> answer = source.next(question))
            return take(source, question, std::move(*answer));
        const std::unique_ptr<InputSource> ended = std::move(sources_.back());
        sources_.pop_back();
        if (!isAtPrompt(question) && ended->endsCommand())
            return take(*ended, question, Answer{Answer::Kind::End, {}, {}});
    }
    if (typedLine_) {
        if (std::optional<Answer> answer = typedLine_->next(question))
            return take(*typedLine_, question, std::move(*answer));
        typedLine_.reset();
    }
    return std::nullopt;
}

Answer InputStack::cutTyped(const Question& question, Answer answer) {
    lastWasProgram_ = false;
    if (isAtPrompt(question))
        commandOrigin_ = {};
    const bool isOne = question.acceptsBlanks || answer.text.find_first_of(L" \t") == ZrString::npos;
    if (answer.kind != Answer::Kind::Text || (isOne && !answer.text.starts_with(L"^C")))
        return answer;
    typedLine_ = std::make_unique<TypedLine>(answer.text);
    std::optional<Answer> first = typedLine_->next(question);
    return first ? std::move(*first) : Answer{Answer::Kind::Enter, {}, {}};
}

// Callers that ask again after an error come to an end: a front end that broke is not asked again.
template <class Ask>
Answer InputStack::fromPerson(const Question& question, const Ask& ask) {
    if (isBroken_)
        return Answer{Answer::Kind::End, {}, {}};
    Answer answer = ask();
    isBroken_ = answer.kind == Answer::Kind::Broken;
    return cutTyped(question, std::move(answer));
}

Answer InputStack::ask(const Question& question) {
    if (std::optional<Answer> answer = fromSources(question))
        return std::move(*answer);
    return fromPerson(question, [&] { return front_.ask(question); });
}

Answer InputStack::drag(const Question& question, const std::function<void(const ZrGePoint3d&)>& sample) {
    if (std::optional<Answer> answer = fromSources(question))
        return std::move(*answer);
    return fromPerson(question, [&] { return front_.drag(question, sample); });
}

} // namespace quor::ed
