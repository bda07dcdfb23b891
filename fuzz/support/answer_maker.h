// Turns a fuzzer's bytes into answers to the questions that a session asks.
//
// A line of text is typed as it stands. A byte from 0x80 to 0xBF, which begins no UTF-8 text, is an answer that goes
// with the question: it says of which kind, and the byte behind it which one. One from 0xF8 on, which is in no such
// text either, is something that the person does in the palette before answering.
#pragma once

#include "fuzz/support/palette_person.h"
#include "host/ed/input_stack.h"
#include "host/front.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace quor {
class Session;
}

namespace quor::fuzz {

class Scratch;

class AnswerMaker {
public:
    AnswerMaker(std::string_view bytes, Session& session, const Scratch& scratch)
        : rest_(bytes), session_(session), scratch_(scratch), palettePerson_(session) {}

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }
    // The choice among what is offered without a question, when the next bytes make one.
    [[nodiscard]] std::optional<unsigned> choice();
    // May start a script or a program that answers the questions after this one, and act in the palette meanwhile.
    [[nodiscard]] Answer personsAnswer(const Question& question);
    [[nodiscard]] Answer programsAnswer(const Question& question);

private:
    using Make = Answer (AnswerMaker::*)(const Question& question, unsigned choice) const;
    static const Make kMakes[];

    // 0 when there is none left.
    [[nodiscard]] std::uint8_t byte();
    [[nodiscard]] std::string_view line();
    [[nodiscard]] Answer typed(std::wstring_view text) const;
    void startInput();
    void startScript(unsigned choice);
    void startProgram(unsigned choice);
    void actInPalette();

    [[nodiscard]] Answer fitting(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer keyword(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer phrase(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer command(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer file(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer number(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer point(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer pick(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer name(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer selection(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer setting(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer transparent(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer garbage(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer longText(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer enter(const Question& question, unsigned choice) const;
    [[nodiscard]] Answer escape(const Question& question, unsigned choice) const;

    std::string_view rest_;
    Session& session_;
    const Scratch& scratch_;
    PalettePerson palettePerson_;
};

} // namespace quor::fuzz
