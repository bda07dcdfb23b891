#include "host/ed/command_processor.h"

#include "host/document.h"
#include "host/ed/script_source.h"
#include "host/ed/typed_text.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "host/sys/text_width.h"
#include "host/sys/utf8.h"
#include "host/sys/visible_text.h"
#include "host/texts/input.h"
#include "sdk/rx/result_codes.h"

#include <algorithm>
#include <exception>

namespace quor::ed {

namespace {

constexpr const wchar_t* kSetVariable = L"SETVAR";

} // namespace

std::optional<Verdict> CommandProcessor::step() {
    Question question;
    question.kind = Question::Kind::Command;
    question.prompt = texts::kCommandPrompt.get();
    const Answer answer = session_.input().ask(question);
    const bool byProgram = session_.input().lastWasProgram();
    switch (answer.kind) {
    case Answer::Kind::End:
    case Answer::Kind::Broken:
        return std::nullopt;
    case Answer::Kind::Cancel:
        session_.input().dropTypedAhead();
        return Verdict{};
    case Answer::Kind::Point:
    case Answer::Kind::Objects:
        return Verdict{};
    case Answer::Kind::Text:
        return whyNoText(answer.text) == nullptr ? run(answer.text, byProgram) : refuseBytes(answer.text);
    case Answer::Kind::Enter:
        break;
    }
    if (last_.empty())
        return Verdict{};
    say(texts::kRepeats, last_);
    return run(ZrString(last_), byProgram);
}

Verdict CommandProcessor::refuseBytes(const ZrString& typed) {
    session_.input().dropTypedAhead();
    say(*whyNoText(typed));
    return {Verdict::Kind::Refused, RTREJ, shortened(typed)};
}

CommandProcessor::Call CommandProcessor::resolve(const CommandWord& word) const {
    if (const Command* command = session_.commands().find(word))
        return {command, {}};
    if (!word.hostOnly && session_.variables().has(word.name))
        return {session_.commands().find({kSetVariable, false, true, false}), ZrString(word.name)};
    return {};
}

Verdict CommandProcessor::run(const ZrString& typed, bool byProgram) {
    return runCall(resolve(parseCommandWord(typed)), typed, byProgram, false);
}

Verdict CommandProcessor::runTransparent(std::wstring_view typed) {
    const Call call = resolve(parseCommandWord(typed));
    if (call.command != nullptr && (call.command->flags & kTransparent) == 0) {
        say(texts::kNotTransparent, call.command->globalName);
        return {Verdict::Kind::Refused, RTREJ, call.command->globalName};
    }
    const Verdict verdict = runCall(call, ZrString(typed), session_.input().lastWasProgram(), true);
    if (!frames_.empty() && verdict.kind != Verdict::Kind::Unknown)
        say(texts::kResuming, frames_.back().name);
    return verdict;
}

Verdict CommandProcessor::runCall(const Call& call, const ZrString& typed, bool byProgram, bool transparent) {
    if (call.command == nullptr) {
        session_.input().dropTypedAhead();
        say(texts::kUnknownCommand, visibleText(shortened(typed)));
        return {Verdict::Kind::Unknown, RTREJ, shortened(typed)};
    }
    // The host's own commands say themselves what they need.
    if (!call.command->isHost && session_.documents().current() == nullptr) {
        say(texts::kNoDrawing, call.command->globalName);
        return {Verdict::Kind::Refused, RTFAIL, call.command->globalName};
    }
    if (call.answer)
        session_.input().push(std::make_unique<ReadyAnswers>(std::vector<ZrString>{*call.answer}, byProgram));
    Verdict verdict = execute(*call.command, byProgram, transparent);
    // A variable that was typed by its name goes by that name, and Enter asks for it again.
    if (call.answer) {
        verdict.command = *call.answer;
        if (frames_.empty())
            last_ = *call.answer;
    }
    return verdict;
}

Verdict CommandProcessor::execute(const Command& command, bool byProgram, bool transparent) {
    const bool outermost = frames_.empty();
    Frame frame;
    frame.name = command.globalName;
    frame.isHost = command.isHost;
    // What a command starts by itself counts as started by a program.
    frame.byProgram = byProgram || (!outermost && !transparent);
    if (outermost && (command.flags & kNoRepeat) == 0)
        last_ = command.globalName;
    frames_.push_back(std::move(frame));
    Verdict verdict = outermost ? runOutermost(command) : runInner(command);
    if (outermost && verdict.kind == Verdict::Kind::Cancelled)
        say(texts::kCancelled);
    return verdict;
}

Verdict CommandProcessor::runInner(const Command& command) {
    Document* const document = session_.documents().current();
    const bool grouped = document != nullptr && (command.flags & kNoUndo) == 0;
    if (grouped) // counts where the outermost command has no group, as UNDO
        document->drawing().journal().begin(command.globalName);
    const auto endGroup = [&](bool failed) {
        if (!grouped || stillOpen(document) == nullptr)
            return;
        if (failed)
            document->drawing().journal().rollback();
        document->drawing().journal().end();
    };
    try {
        const int result = command.run();
        frames_.back().result = frames_.back().result.value_or(result);
    } catch (...) {
        frames_.pop_back();
        endGroup(true);
        throw; // the outermost command's group is taken back as a whole
    }
    endGroup(false);
    Frame frame = std::move(frames_.back());
    frames_.pop_back();
    return judge(std::move(frame));
}

Verdict CommandProcessor::runOutermost(const Command& command) {
    const ZrString name = command.globalName; // the command may take itself off the table
    session_.documents().tell([&](ZrApDocumentReactor& listener) { listener.commandWillStart(name); });
    Document* const document = session_.documents().current();
    const std::size_t selectionChanges = document != nullptr ? document->selectionChanges : 0;
    const bool grouped = document != nullptr && (command.flags & kNoUndo) == 0;
    if (grouped)
        document->drawing().journal().begin(name);

    ZrString problem;
    try {
        const int result = command.run();
        frames_.back().result = frames_.back().result.value_or(result);
    } catch (const std::exception& error) {
        problem = fromUtf8(error.what());
        frames_.resize(1);
        frames_.back().failed = true;
    } catch (...) {
        problem = texts::kUnexpectedError.get();
        frames_.resize(1);
        frames_.back().failed = true;
    }

    Document* const left = stillOpen(document);
    if (grouped && left != nullptr) {
        if (frames_.back().failed)
            left->drawing().journal().rollback();
        left->drawing().journal().end();
    }
    if (!problem.empty())
        say(texts::kCommandThrew, name, problem);
    if (left != nullptr && left == session_.documents().current() && left->selectionChanges == selectionChanges &&
        !left->impliedSelection.empty())
        zredSetImpliedSelection({});
    Frame frame = std::move(frames_.back());
    frames_.pop_back();
    const Verdict verdict = judge(std::move(frame));
    session_.documents().tell([&](ZrApDocumentReactor& listener) {
        if (verdict.kind == Verdict::Kind::Done)
            listener.commandEnded(name);
        else
            listener.commandCancelled(name);
    });
    return verdict;
}

Verdict CommandProcessor::judge(Frame frame) {
    using Kind = Verdict::Kind;
    const int result = frame.failed ? RTERROR : frame.result.value_or(RTNORM);
    const auto kind = [&] {
        if (frame.failed)
            return Kind::Failed;
        if (frame.ended)
            return Kind::EndOfInput;
        if (result == RTNORM || result == RTNONE)
            return Kind::Done;
        if (frame.escaped || (result == RTCAN && frame.isHost))
            return Kind::Cancelled;
        // Nobody cancelled it: some commands of modules end with this code whatever they did.
        return result == RTCAN ? Kind::Done : Kind::Failed;
    };
    return {kind(), result, std::move(frame.name)};
}

Document* CommandProcessor::stillOpen(Document* document) const {
    const auto& all = session_.documents().all();
    const bool open = std::any_of(all.begin(), all.end(), [&](const auto& known) { return known.get() == document; });
    return open ? document : nullptr;
}

void CommandProcessor::reportResult(int result) {
    if (!frames_.empty())
        frames_.back().result = result;
}

void CommandProcessor::reportFailure() {
    if (!frames_.empty())
        frames_.back().failed = true;
}

void CommandProcessor::reportEndOfInput() {
    for (Frame& frame : frames_)
        frame.ended = true;
}

void CommandProcessor::reportEscape() {
    session_.input().dropTypedAhead();
    for (Frame& frame : frames_)
        frame.escaped = true;
}

std::vector<ZrString> CommandProcessor::running() const {
    std::vector<ZrString> names;
    for (const Frame& frame : frames_)
        names.push_back(frame.name);
    return names;
}

} // namespace quor::ed
