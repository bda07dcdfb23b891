#include "desktop/commandline/completer.h"

#include "desktop/commandline/input_line.h"
#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "host/commands/describe.h"
#include "host/ed/completion_source.h"
#include "host/ed/prompt_options.h"
#include "host/session.h"

namespace quor::desktop {

Completer::Completer(Session& session, DesktopFrontEnd& front, InputLine& line)
    : QObject(&line), session_(session), front_(front), line_(line), list_(new CandidateList(&line)) {
    connect(list_, &CandidateList::picked, this, [this](const QString& word) {
        const QString whole = lineWith(word);
        dismiss();
        Q_EMIT picked(whole);
    });
}

ed::Completion Completer::fitting() const {
    const Question* const question = front_.question();
    if (question == nullptr)
        return {};
    return ed::complete(fromQt(line_.text().left(line_.cursorPosition())), ed::completionSource(session_, *question));
}

QString Completer::detailOf(const ZrString& candidate) const {
    const Question& question = *front_.question();
    if (question.kind == Question::Kind::Command || candidate.starts_with(L"'"))
        return toQt(commands::describe(session_, candidate));
    for (const ed::PromptPart& part : ed::promptParts(question.prompt, question.keywords))
        if (part.kind == ed::PromptPart::Kind::Option && part.answer != candidate && candidate == part.text)
            return toQt(part.text);
    return {};
}

std::vector<CandidateList::Row> Completer::rowsOf(const ed::Completion& completion) const {
    std::vector<CandidateList::Row> rows;
    for (const ZrString& candidate : completion.candidates)
        rows.push_back({toQt(candidate), detailOf(candidate), toQt(candidate)});
    return rows;
}

QString Completer::lineWith(const QString& word) const {
    return line_.text().left(from_) + word + line_.text().mid(line_.cursorPosition());
}

void Completer::show(std::vector<CandidateList::Row> rows) {
    list_->offer(std::move(rows), QRect(line_.mapToGlobal(QPoint(0, 0)), line_.size()));
}

// An empty word fits everything, and a whole one needs no list.
void Completer::offerFitting() {
    const ed::Completion completion = fitting();
    from_ = static_cast<qsizetype>(completion.from);
    const QString word = line_.text().left(line_.cursorPosition()).mid(from_);
    const bool isWhole = completion.candidates.size() == 1 && toQt(completion.candidates.front()) == word;
    if (word.isEmpty() || isWhole)
        return dismiss();
    show(rowsOf(completion));
}

void Completer::offerAll(const std::vector<ZrString>& commands) {
    const Question* const question = front_.question();
    if (question == nullptr)
        return;
    std::vector<CandidateList::Row> rows;
    if (question->kind == Question::Kind::Command)
        for (const ZrString& command : commands)
            rows.push_back({toQt(command), toQt(commands::describe(session_, command)), toQt(command)});
    for (const ed::PromptPart& part : ed::promptParts(question->prompt, question->keywords))
        if (part.kind == ed::PromptPart::Kind::Option)
            rows.push_back({toQt(part.text), {}, toQt(part.answer)});
    from_ = 0;
    line_.selectAll(); // what is chosen stands for the whole line
    show(std::move(rows));
    list_->move(1);
}

void Completer::complete() {
    if (list_->isOpen() && list_->chosen()) {
        line_.setText(*takeChosen());
        return;
    }
    const ed::Completion completion = fitting();
    if (completion.candidates.empty())
        return;
    from_ = static_cast<qsizetype>(completion.from);
    const qsizetype typed = line_.cursorPosition() - from_;
    if (static_cast<qsizetype>(completion.common.size()) > typed || completion.candidates.size() == 1) {
        line_.setSelection(static_cast<int>(from_), static_cast<int>(typed));
        line_.insertText(toQt(completion.common));
    }
    if (completion.candidates.size() == 1)
        return dismiss();
    const bool wasOpen = list_->isOpen();
    show(rowsOf(completion));
    if (wasOpen && typed == static_cast<qsizetype>(completion.common.size()))
        list_->move(1);
}

bool Completer::move(int direction) {
    if (!list_->isOpen())
        return false;
    list_->move(direction);
    return true;
}

std::optional<QString> Completer::takeChosen() {
    const std::optional<QString> word = list_->chosen();
    if (!word)
        return std::nullopt;
    const QString line = lineWith(*word);
    dismiss();
    return line;
}

} // namespace quor::desktop
