#include "tests/support/scripted_front_end.h"

#include "host/ui/file_dialog_text.h"
#include "host/ui/palette_text.h"
#include "host/ui/task_dialog_text.h"
#include "sdk/ui/menu.h"

namespace quor::test {

namespace {

template <class T>
std::optional<T> takeFirst(std::deque<T>& waiting) {
    if (waiting.empty())
        return std::nullopt;
    std::optional<T> first = std::move(waiting.front());
    waiting.pop_front();
    return first;
}

void addMenuLines(const CMenu& menu, const ZrString& indent, std::vector<ZrString>& lines) {
    for (const CMenu::Entry& entry : menu.entries()) {
        ZrString& line = lines.emplace_back(indent);
        line += entry.checked ? L"[x] " : L"";
        line += entry.isSeparator() ? L"---" : entry.text;
        if (entry.submenu != nullptr)
            addMenuLines(*entry.submenu, indent + L"  ", lines);
    }
}

} // namespace

void ScriptedFrontEnd::type(std::initializer_list<ZrString> lines) {
    for (const ZrString& line : lines)
        lines_.emplace_back(line);
}

void ScriptedFrontEnd::pick(const ZrGePoint3d& point, std::vector<ZrGePoint3d> samples) {
    lines_.emplace_back(Pick{point, std::move(samples)});
}

void ScriptedFrontEnd::print(std::wstring_view text) { screen_ += screenText_.put(text); }

void ScriptedFrontEnd::showAnswer(std::wstring_view answer) {
    print(answer);
    screen_ += L'\n';
    screenText_.answered();
}

Answer ScriptedFrontEnd::nextAnswer(const Question& question) {
    print(question.prompt);
    asked_.emplace_back(question.prompt);
    lastKeywords_.assign(question.keywords.begin(), question.keywords.end());
    lastBase_ = question.base;
    samples_.clear();
    const auto next = takeFirst(lines_);
    if (!next) {
        showAnswer({});
        return {Answer::Kind::End, {}, {}};
    }
    if (std::holds_alternative<Break>(*next)) {
        showAnswer({});
        return {Answer::Kind::Broken, {}, {}};
    }
    if (const auto* picked = std::get_if<Pick>(&*next)) {
        samples_ = picked->samples;
        showAnswer({});
        return {Answer::Kind::Point, {}, picked->point};
    }
    const ZrString& line = std::get<ZrString>(*next);
    showAnswer(line);
    if (line == L"^C")
        return {Answer::Kind::Cancel, {}, {}};
    return line.empty() ? Answer{Answer::Kind::Enter, {}, {}} : Answer{Answer::Kind::Text, line, {}};
}

Answer ScriptedFrontEnd::ask(const Question& question) { return nextAnswer(question); }

void ScriptedFrontEnd::echo(const Question& question, std::wstring_view answer) {
    print(question.prompt);
    showAnswer(answer);
    echoed_.emplace_back(answer);
}

Answer ScriptedFrontEnd::drag(const Question& question, const std::function<void(const ZrGePoint3d&)>& sample) {
    const Answer answer = nextAnswer(question);
    for (const ZrGePoint3d& point : samples_)
        sample(point);
    return answer;
}

TaskDialogAnswer ScriptedFrontEnd::showTaskDialog(const CZrUiTaskDialog& dialog) {
    lastDialog_ = dialog;
    if (const std::optional<TaskDialogAnswer> ready = takeFirst(dialogAnswers_))
        return *ready;
    return ui::askTaskDialog(
        dialog, [this](std::wstring_view text) { print(text); },
        [this](const Question& question) { return ask(question); });
}

FileAnswer ScriptedFrontEnd::chooseFile(const FileQuestion& question) {
    lastFileQuestion_ = question;
    if (std::optional<std::optional<ZrString>> ready = takeFirst(files_))
        return {std::move(*ready), false};
    return ui::askFile(question, [this](const Question& asked) { return ask(asked); });
}

void ScriptedFrontEnd::realise(CWnd& window) {
    realised_.push_back(&window);
    if (whenRealised_)
        whenRealised_(window);
}

void ScriptedFrontEnd::paletteShown(const CZkUiPaletteSet& palette) { print(ui::paletteText(palette, columns())); }

unsigned ScriptedFrontEnd::trackMenu(const CMenu& menu, CPoint screen) {
    lastMenu_.clear();
    addMenuLines(menu, {}, lastMenu_);
    lastMenuPlace_ = screen;
    if (whenMenuShown_)
        whenMenuShown_();
    return takeFirst(menuAnswers_).value_or(0);
}

} // namespace quor::test
