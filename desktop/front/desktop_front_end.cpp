#include "desktop/front/desktop_front_end.h"

#include "desktop/qt_text.h"
#include "host/db/units_format.h"
#include "host/ed/input_stack.h"
#include "host/session.h"
#include "host/ui/file_dialog_text.h"
#include "host/ui/task_dialog_text.h"
#include "sdk/db/database.h"
#include "sdk/db/units.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include <utility>

namespace quor::desktop {

namespace {

// The host's own, whatever a module or a language makes of the name.
constexpr const wchar_t* kQuit = L"._QUIT";
// How often a program that ends looks for what keeps it.
constexpr int kMillisecondsToGo = 50;

ZrString shownPoint(const ZrGePoint3d& world) {
    const ZrGePoint3d p = zrdbWcs2Ucs(world);
    const auto number = [](double value) {
        ZrString text;
        zrdbRToS(value, -1, -1, text);
        return text;
    };
    return number(p.x) + L"," + number(p.y) + L"," + number(p.z);
}

ZrString shown(const Answer& answer) {
    switch (answer.kind) {
    case Answer::Kind::Text:
        return answer.text;
    case Answer::Kind::Point:
        return shownPoint(answer.point);
    case Answer::Kind::Cancel:
    case Answer::Kind::End:
        return L"^C";
    case Answer::Kind::Objects:
    case Answer::Kind::Enter:
    case Answer::Kind::Broken:
        break;
    }
    return {};
}

} // namespace

DesktopFrontEnd::DesktopFrontEnd(QObject* parent) : QObject(parent) {}

DesktopFrontEnd::~DesktopFrontEnd() = default;

const Question* DesktopFrontEnd::question() const {
    return waiting_.empty() || waiting_.back()->answer ? nullptr : &waiting_.back()->question;
}

bool DesktopFrontEnd::isDragging() const { return question() != nullptr && waiting_.back()->sample != nullptr; }

void DesktopFrontEnd::sample(const ZrGePoint3d& world) {
    if (isDragging())
        (*waiting_.back()->sample)(world);
}

void DesktopFrontEnd::give(Answer answer) {
    if (question() == nullptr)
        return;
    waiting_.back()->answer = std::move(answer);
    waiting_.back()->loop.quit();
}

void DesktopFrontEnd::giveText(const ZrString& typed) {
    if (typed.empty())
        giveEnter();
    else
        give({Answer::Kind::Text, typed, {}});
}

void DesktopFrontEnd::givePoint(const ZrGePoint3d& world) { give({Answer::Kind::Point, {}, world}); }

void DesktopFrontEnd::run(const ZrString& line) {
    Q_EMIT brokenOff();
    line_ = line;
    if (const Question* const open = question())
        if (std::optional<Answer> answer = readyAnswer(*open))
            give(std::move(*answer));
}

void DesktopFrontEnd::quit() {
    if (dialogs_ != nullptr)
        dialogs_->escape();
    run(kQuit);
}

// A question that is open may have a dialog on top that it is asked beside: that one goes first. What opens a dialog on
// its own is told as long as it does.
void DesktopFrontEnd::end() {
    if (dialogs_ != nullptr)
        dialogs_->escape();
    for (Waiting* const open : waiting_) {
        if (!open->answer)
            open->answer = Answer{Answer::Kind::End, {}, {}};
        open->loop.quit();
    }
    if (!std::exchange(isEnding_, true))
        line_.reset();
    QTimer::singleShot(kMillisecondsToGo, this, &DesktopFrontEnd::end);
}

std::optional<Answer> DesktopFrontEnd::readyAnswer(const Question& question) {
    if (isEnding_)
        return Answer{Answer::Kind::End, {}, {}};
    if (!line_)
        return std::nullopt;
    if (question.kind != Question::Kind::Command)
        return Answer{Answer::Kind::Cancel, {}, {}};
    return Answer{Answer::Kind::Text, *std::exchange(line_, std::nullopt), {}};
}

// A dialog or a menu has events handled itself.
void DesktopFrontEnd::breathe() {
    const bool isWorking = waiting_.empty() || waiting_.back()->answer;
    if (isAlive_ && isWorking && QApplication::activeModalWidget() == nullptr &&
        QApplication::activePopupWidget() == nullptr)
        pump_.breathe();
}

bool DesktopFrontEnd::goesOn() {
    breathe();
    return !pump_.takeEscape() && !isLeaving();
}

void DesktopFrontEnd::print(std::wstring_view text) {
    Q_EMIT printed(toQt(text));
    breathe();
}

Answer DesktopFrontEnd::wait(const Question& question, const Sample* sample) {
    std::optional<Answer> answer = readyAnswer(question);
    if (!answer) {
        QEventLoop loop;
        Waiting here{question, sample, loop, {}};
        waiting_.push_back(&here);
        Q_EMIT questionOpened();
        if (!here.answer) { // nobody has answered at once
            pump_.giveBack();
            loop.exec();
        }
        waiting_.pop_back();
        // A loop that ends by itself ends with the program.
        answer = here.answer ? std::move(*here.answer) : Answer{Answer::Kind::End, {}, {}};
    }
    const bool isAtPrompt = question.kind == Question::Kind::Command;
    const bool isEscape = answer->kind == Answer::Kind::Cancel;
    if (isEscape)
        Q_EMIT brokenOff();
    if (isAtPrompt && answer->kind == Answer::Kind::Text)
        Q_EMIT commandGiven(toQt(answer->text));
    if (!isAtPrompt || !isEscape)
        Q_EMIT questionAnswered(toQt(question.prompt), toQt(shown(*answer)));
    if (this->question() != nullptr)
        Q_EMIT questionOpened();
    return std::move(*answer);
}

Answer DesktopFrontEnd::ask(const Question& question) { return wait(question, nullptr); }

Answer DesktopFrontEnd::drag(const Question& question, const Sample& sample) { return wait(question, &sample); }

void DesktopFrontEnd::echo(const Question& question, std::wstring_view answer) {
    Q_EMIT questionAnswered(toQt(question.prompt), toQt(answer));
    breathe();
}

TaskDialogAnswer DesktopFrontEnd::showTaskDialog(const CZrUiTaskDialog& dialog) {
    if (isLeaving())
        return {std::nullopt, false, isEnding_ || !dialog.isCancellable()};
    if (dialogs_ != nullptr) {
        TaskDialogAnswer answer = dialogs_->showTaskDialog(dialog);
        if (!answer.command)
            Q_EMIT brokenOff();
        return answer;
    }
    return ui::askTaskDialog(
        dialog, [this](std::wstring_view text) { print(text); },
        [](const Question& question) { return ui::askPersonOrScript(Session::current().input(), question); });
}

FileAnswer DesktopFrontEnd::chooseFile(const FileQuestion& file) {
    if (isLeaving())
        return {std::nullopt, isEnding_};
    if (dialogs_ != nullptr) {
        FileAnswer answer = dialogs_->chooseFile(file);
        if (!answer.file)
            Q_EMIT brokenOff();
        return answer;
    }
    return ui::askFile(file, [](const Question& question) { return Session::current().input().ask(question); });
}

std::optional<SaveChoice> DesktopFrontEnd::askToSave(std::wstring_view drawing) {
    if (isLeaving())
        return SaveChoice::Cancel;
    if (dialogs_ == nullptr)
        return std::nullopt;
    const SaveChoice choice = dialogs_->askToSave(drawing);
    if (choice == SaveChoice::Cancel)
        Q_EMIT brokenOff();
    return choice;
}

void DesktopFrontEnd::showProblem(std::wstring_view message) {
    if (dialogs_ != nullptr && !isLeaving())
        dialogs_->showProblem(message);
}

void DesktopFrontEnd::realise(CWnd& window) {
    if (windows_ != nullptr)
        windows_->realise(window);
}

void DesktopFrontEnd::paletteShown(const CZkUiPaletteSet& palette) {
    if (windows_ != nullptr)
        windows_->paletteShown(palette);
}

unsigned DesktopFrontEnd::trackMenu(const CMenu& menu, CPoint screen) {
    return windows_ != nullptr && !isLeaving() ? windows_->trackMenu(menu, screen) : 0;
}

void DesktopFrontEnd::macroQueued(bool cancelsFirst) {
    const Question* const open = question();
    if (open != nullptr && (cancelsFirst || open->kind == Question::Kind::Command))
        escape();
}

bool DesktopFrontEnd::showProperties() {
    if (panels_ != nullptr)
        panels_->showProperties();
    return panels_ != nullptr;
}

bool DesktopFrontEnd::showLayers() {
    if (panels_ != nullptr)
        panels_->showLayers();
    return panels_ != nullptr;
}

bool DesktopFrontEnd::showTextWindow(bool show) {
    if (panels_ != nullptr)
        panels_->showTextWindow(show);
    return panels_ != nullptr;
}

void DesktopFrontEnd::progress(std::wstring_view what, double fraction) {
    Q_EMIT progressed(toQt(what), fraction);
    breathe();
}

} // namespace quor::desktop
