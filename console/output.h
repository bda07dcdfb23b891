// Standard output as a command-line screen: texts go into a large buffer that is written where somebody waits for it.
// Control characters in them, which somebody typed or a script or drawing holds, are spelled out: a terminal obeys
// them.
#pragma once

#include "host/ed/screen_text.h"

#include <functional>
#include <string>
#include <string_view>

namespace quor::console {

// Takes bytes; answers 0, or the number of the system's error.
using ByteSink = std::function<int(std::string_view)>;
// Answers how many columns the screen has now, 0 where it does not say.
using ScreenColumns = std::function<int()>;

// After the sink's first error nothing more is written.
class Output {
public:
    explicit Output(ByteSink sink, bool quiet = false, ScreenColumns columns = {});

    // How many columns a line may take: the screen's, the usual ones where it does not say, any number where there is
    // no screen.
    [[nodiscard]] int columns() const;

    // What the host says; on a screen, long lines are broken to its width.
    void print(std::wstring_view text);
    // A question, behind whose last line an answer follows. It stands as it is.
    void prompt(std::wstring_view text);
    // What was answered to the question whose prompt was printed last, with its Enter.
    void answer(std::wstring_view text);
    // The person pressed Enter on the screen itself.
    void answered() { screen_.answered(); }
    // Ends the line on which the cursor stands.
    void freshLine();

    void flush();
    // Writes the lines that are complete.
    void flushLines();
    // Whether what has been written ends with a whole line.
    [[nodiscard]] bool isAtLineStart() const { return writtenLine_; }
    // Called before bytes go out, to clear the screen's line of something else.
    void beforeWriting(std::function<void()> call) { beforeWriting_ = std::move(call); }
    // 0 while all went well.
    [[nodiscard]] int error() const { return error_; }

private:
    void append(std::wstring_view text);
    void write(std::size_t count);

    ByteSink sink_;
    ScreenColumns columns_;
    std::function<void()> beforeWriting_;
    std::string buffer_;
    ScreenText screen_;
    bool quiet_;
    bool writtenLine_ = true;
    int error_ = 0;
};

} // namespace quor::console
