// The sources of answers: script texts, macros, typed lines and ready answers.
#pragma once

#include "host/ed/answer_reader.h"
#include "host/ed/input_stack.h"
#include "host/sys/result.h"

#include <filesystem>
#include <string>

namespace quor::ed {

// A script: blank or line end ends an answer, a blank line is Enter, ";" at the start of a line is a comment, ^C is
// Esc.
class ScriptSource final : public InputSource {
public:
    // `text` is UTF-8. `name` is what messages call it; empty for a text that is no file (quorc -c).
    explicit ScriptSource(std::string text, const ZrString& name = {});
    // Reads a file, which must be UTF-8; in words for a person why not.
    [[nodiscard]] static Result<std::unique_ptr<ScriptSource>, ZrString> open(const std::filesystem::path& path);

    std::optional<Answer> next(const Question& question) override;
    [[nodiscard]] bool atEnd() override { return reader_.atEnd(); }
    [[nodiscard]] Origin origin() const override { return {name_, reader_.line()}; }
    [[nodiscard]] const std::filesystem::path& file() const override { return file_; }

private:
    std::string text_;
    AnswerReader reader_;
    std::shared_ptr<const ZrString> name_;
    std::filesystem::path file_;
};

// What a button or menu runs. Where it ends in the middle of a command, the person goes on.
class MacroSource final : public InputSource {
public:
    explicit MacroSource(std::wstring_view macro);
    std::optional<Answer> next(const Question& question) override;
    [[nodiscard]] bool atEnd() override { return reader_.atEnd(); }
    [[nodiscard]] bool endsCommand() const override { return false; }

private:
    std::string text_;
    AnswerReader reader_;
};

// A line on which a person typed several answers, with its Enter.
class TypedLine final : public InputSource {
public:
    explicit TypedLine(std::wstring_view line);
    std::optional<Answer> next(const Question& question) override;
    [[nodiscard]] bool atEnd() override { return reader_.atEnd(); }
    [[nodiscard]] bool isProgram() const override { return false; }
    [[nodiscard]] bool endsCommand() const override { return false; }

private:
    std::string text_;
    AnswerReader reader_;
};

// Answers that a program has ready for the command it is about to run. They are not shown.
class ReadyAnswers final : public InputSource {
public:
    explicit ReadyAnswers(std::vector<ZrString> answers, bool program)
        : answers_(std::move(answers)), program_(program) {}
    std::optional<Answer> next(const Question& question) override;
    [[nodiscard]] bool atEnd() override { return at_ >= answers_.size(); }
    [[nodiscard]] bool isProgram() const override { return program_; }
    [[nodiscard]] bool endsCommand() const override { return false; }
    [[nodiscard]] bool isEchoed() const override { return false; }

private:
    std::vector<ZrString> answers_;
    std::size_t at_ = 0;
    bool program_;
};

} // namespace quor::ed
