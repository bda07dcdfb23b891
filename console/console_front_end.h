// The front end on a terminal or a pipe: texts go to the output, questions to whoever gives lines.
#pragma once

#include "console/line_reader.h"
#include "console/output.h"
#include "console/progress_line.h"

namespace quor::console {

class ConsoleFrontEnd final : public FrontEnd {
public:
    ConsoleFrontEnd(Output& output, ProgressLine& progress) : output_(output), progress_(progress) {}

    // Who is asked; null (as at first): nobody, every question is answered by the end of input.
    void setReader(LineReader* reader) { reader_ = reader; }
    // The last line that was printed, without blanks around it: why a command failed, mostly.
    [[nodiscard]] ZrString lastMessage() const;
    void forgetMessage() { lastText_.clear(); }

    [[nodiscard]] int columns() const override { return output_.columns(); }
    void print(std::wstring_view text) override;
    Answer ask(const Question& question) override;
    void echo(const Question& question, std::wstring_view answer) override;
    // There is nothing to point with: a drag is a question for a point.
    Answer drag(const Question& question, const std::function<void(const ZrGePoint3d&)>& sample) override;
    TaskDialogAnswer showTaskDialog(const CZrUiTaskDialog& dialog) override;
    FileAnswer chooseFile(const FileQuestion& question) override;
    // There are no windows: what it shows is printed.
    void paletteShown(const CZkUiPaletteSet& palette) override;
    void progress(std::wstring_view what, double fraction) override { progress_.update(what, fraction); }

private:
    Output& output_;
    ProgressLine& progress_;
    LineReader* reader_ = nullptr;
    ZrString lastText_;
};

} // namespace quor::console
