#include "desktop/window/typing.h"

#include "desktop/front/desktop_front_end.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/ed/pick.h"
#include "host/ed/script_source.h"
#include "host/session.h"
#include "host/sys/system_variables.h"

#include <algorithm>

namespace quor::desktop {

namespace {

// What stands behind the apostrophe may run within another command.
bool isTransparent(const ZrString& line) { return line.starts_with(L'\''); }

bool takesTransparent(const Question& question) {
    return question.kind != Question::Kind::Text && !question.acceptsBlanks;
}

} // namespace

Typing::Typing(Session& session, DesktopFrontEnd& front, QObject* parent)
    : QObject(parent), session_(session), front_(front) {
    // Not within the signal: who asks is not ready for the answer yet.
    connect(&front, &DesktopFrontEnd::questionOpened, this, &Typing::proceed, Qt::QueuedConnection);
}

void Typing::line(const ZrString& line) {
    const Question* const open = front_.question();
    const bool isWithin = open != nullptr && open->kind != Question::Kind::Command;
    if (!isTransparent(line) || !isWithin)
        front_.run(line);
    else if (takesTransparent(*open))
        front_.giveText(line);
    else
        beside(line);
}

// A question for a text takes an apostrophe for a character like any other: the command runs beside it, so that whoever
// only looks around loses nothing of what they have begun.
void Typing::beside(const ZrString& line) {
    const std::size_t blank = line.find(L' ');
    if (blank != ZrString::npos)
        session_.input().push(std::make_unique<ed::ReadyAnswers>(std::vector<ZrString>{line.substr(blank + 1)}, false));
    session_.processor().runTransparent(line.substr(0, blank));
}

void Typing::switchVariable(const wchar_t* name) {
    line(L"'" + ZrString(name) + (session_.variables().number(name) != 0 ? L" 0" : L" 1"));
}

void Typing::selectAll() {
    const Question* const open = front_.question();
    const Document* const document = session_.documents().current();
    if (open == nullptr || document == nullptr)
        return;
    if (open->kind == Question::Kind::Selection)
        front_.giveText(L"_ALL");
    else if (open->kind == Question::Kind::Command)
        zredSetImpliedSelection(ed::selectableEntities(*document));
}

void Typing::open(const std::vector<ZrString>& files) {
    for (const ZrString& file : files)
        atCommandPrompt([this, file] { front_.run(L"_OPEN " + file); });
}

void Typing::choose(int document) {
    withDocument(document, [] {});
}

void Typing::close(int document) {
    withDocument(document, [this] { front_.run(L"_CLOSE"); });
}

void Typing::withDocument(int index, const std::function<void()>& next) {
    const auto& all = session_.documents().all();
    if (index < 0 || static_cast<std::size_t>(index) >= all.size())
        return;
    const Document* const wanted = all[static_cast<std::size_t>(index)].get();
    atCommandPrompt([this, wanted, next] {
        const auto& open = session_.documents().all();
        const auto found = std::ranges::find_if(open, [&](const auto& one) { return one.get() == wanted; });
        if (found == open.end())
            return;
        session_.documents().setCurrent(found->get());
        next();
    });
}

void Typing::atCommandPrompt(std::function<void()> action) {
    waiting_.push_back(std::move(action));
    proceed();
}

void Typing::proceed() {
    while (!waiting_.empty() && front_.question() != nullptr) {
        if (front_.question()->kind != Question::Kind::Command)
            return front_.escape();
        const std::function<void()> action = std::move(waiting_.front());
        waiting_.pop_front();
        action();
    }
}

} // namespace quor::desktop
