// A front end that answers from a list and keeps what it was shown: the port without a screen or a keyboard.
#pragma once

#include "host/ed/screen_text.h"
#include "host/front.h"
#include "sdk/ui/task_dialog.h"

#include <deque>
#include <functional>
#include <optional>
#include <variant>

namespace quor::test {

class ScriptedFrontEnd final : public FrontEnd {
public:
    // What is typed next, in this order: "" is Enter, "^C" Esc. After the last one the input has ended.
    void type(std::initializer_list<ZrString> lines);
    void type(ZrString line) { lines_.push_back(std::move(line)); }
    // A point that is picked next, in world coordinates; during a drag the cursor passes the samples first.
    void pick(const ZrGePoint3d& point, std::vector<ZrGePoint3d> samples = {});
    // The input breaks at this place.
    void breakInput() { lines_.emplace_back(Break{}); }
    // Answers the next task dialog directly; without one it is answered by what is typed.
    void answerDialog(const TaskDialogAnswer& answer) { dialogAnswers_.push_back(answer); }
    // The file that is chosen next; none: cancelled. Without one the path is typed.
    void choose(std::optional<ZrString> file) { files_.push_back(std::move(file)); }
    // The command that is chosen in the next menu; without one nothing is chosen.
    void chooseMenu(unsigned command) { menuAnswers_.push_back(command); }
    // Done while a menu is shown, before the person chooses.
    void whenMenuShown(std::function<void()> action) { whenMenuShown_ = std::move(action); }
    // Done to each window at the top when it is made; may throw, as a program that cannot show it.
    void whenRealised(std::function<void(CWnd&)> action) { whenRealised_ = std::move(action); }

    // The picture of the current drawing; without one there is none. It has to outlive its use.
    void setView(gs::View* view) { view_ = view; }

    // Everything that a screen would show: prompts with their answers, messages.
    [[nodiscard]] const ZrString& screen() const { return screen_; }
    [[nodiscard]] bool shows(std::wstring_view text) const { return screen_.find(text) != ZrString::npos; }
    void clearScreen() { screen_.clear(); }
    // The questions that reached a person, with their prompts.
    [[nodiscard]] const std::vector<ZrString>& asked() const { return asked_; }
    [[nodiscard]] const std::vector<ZrString>& echoed() const { return echoed_; }
    [[nodiscard]] const std::vector<ZrString>& lastKeywords() const { return lastKeywords_; }
    [[nodiscard]] std::optional<ZrGePoint3d> lastBase() const { return lastBase_; }
    // The task dialog that was shown last, as it was asked for.
    [[nodiscard]] const std::optional<CZrUiTaskDialog>& lastDialog() const { return lastDialog_; }
    // The file that was to be chosen last, as it was asked for.
    [[nodiscard]] const std::optional<FileQuestion>& lastFileQuestion() const { return lastFileQuestion_; }
    // The menu that was shown last, a line for each entry: "[x] " before those that are checked, those of submenus
    // indented, "---" for a separator.
    [[nodiscard]] const std::vector<ZrString>& lastMenu() const { return lastMenu_; }
    // Where it was, on the screen.
    [[nodiscard]] CPoint lastMenuPlace() const { return lastMenuPlace_; }
    // The windows at the top that were made, in their order; they may be gone.
    [[nodiscard]] const std::vector<CWnd*>& realised() const { return realised_; }
    // How often something that is shown had changed.
    [[nodiscard]] int redraws() const { return redraws_; }
    [[nodiscard]] std::size_t linesLeft() const { return lines_.size(); }

    void print(std::wstring_view text) override;
    Answer ask(const Question& question) override;
    void echo(const Question& question, std::wstring_view answer) override;
    Answer drag(const Question& question, const std::function<void(const ZrGePoint3d&)>& sample) override;
    TaskDialogAnswer showTaskDialog(const CZrUiTaskDialog& dialog) override;
    FileAnswer chooseFile(const FileQuestion& question) override;
    void realise(CWnd& window) override;
    // As text on the screen.
    void paletteShown(const CZkUiPaletteSet& palette) override;
    unsigned trackMenu(const CMenu& menu, CPoint screen) override;
    gs::View* view() override { return view_; }
    void redraw() override { ++redraws_; }

private:
    struct Break {};
    struct Pick {
        ZrGePoint3d point;
        std::vector<ZrGePoint3d> samples;
    };

    [[nodiscard]] Answer nextAnswer(const Question& question);
    void showAnswer(std::wstring_view answer);

    std::deque<std::variant<ZrString, Pick, Break>> lines_;
    std::optional<CZrUiTaskDialog> lastDialog_;
    std::optional<FileQuestion> lastFileQuestion_;
    std::deque<TaskDialogAnswer> dialogAnswers_;
    std::deque<std::optional<ZrString>> files_;
    std::deque<unsigned> menuAnswers_;
    std::vector<ZrString> lastMenu_;
    CPoint lastMenuPlace_;
    std::function<void()> whenMenuShown_;
    std::vector<CWnd*> realised_;
    std::function<void(CWnd&)> whenRealised_;
    ZrString screen_;
    ScreenText screenText_;
    std::vector<ZrString> asked_;
    std::vector<ZrString> echoed_;
    std::vector<ZrString> lastKeywords_;
    std::optional<ZrGePoint3d> lastBase_;
    std::vector<ZrGePoint3d> samples_;
    gs::View* view_ = nullptr;
    int redraws_ = 0;
};

} // namespace quor::test
