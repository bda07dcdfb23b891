// The front end of a fuzzed session: the screen of the console, and the answer maker in place of a person; Esc, or the
// end of the input, once it has no more. Windows have peers that look at them, and palettes are shown as tables too.
#pragma once

#include "console/output.h"
#include "fuzz/support/answer_maker.h"
#include "host/front.h"

namespace quor::fuzz {

// What comes when the answers are used up.
enum class Ending { Escape, End, Broken };

class FuzzedFrontEnd final : public FrontEnd {
public:
    FuzzedFrontEnd();
    ~FuzzedFrontEnd() override { screen_.flush(); }

    // The maker needs the session, which needs the front end.
    void answerFrom(AnswerMaker& maker, Ending ending);

    void print(std::wstring_view text) override;
    Answer ask(const Question& question) override;
    void echo(const Question& question, std::wstring_view answer) override;
    Answer drag(const Question& question, const std::function<void(const ZrGePoint3d&)>& sample) override;
    TaskDialogAnswer showTaskDialog(const CZrUiTaskDialog& dialog) override;
    FileAnswer chooseFile(const FileQuestion& question) override;
    void realise(CWnd& window) override;
    void paletteShown(const CZkUiPaletteSet& palette) override;
    unsigned trackMenu(const CMenu& menu, CPoint screen) override;

private:
    [[nodiscard]] Answer lastAnswer(const Question& question);

    console::Output screen_;
    AnswerMaker* maker_ = nullptr;
    Ending ending_ = Ending::Escape;
    int escapes_ = 0;
};

} // namespace quor::fuzz
