#include "fuzz/support/answer_maker.h"

#include "fuzz/support/answer_texts.h"
#include "fuzz/support/scratch.h"
#include "host/ed/command_processor.h"
#include "host/ed/command_table.h"
#include "host/ed/script_source.h"
#include "host/session.h"
#include "host/sys/utf8.h"

#include <array>
#include <cwctype>
#include <iterator>

namespace quor::fuzz {

namespace {

constexpr std::uint8_t kFirstMark = 0x80;
constexpr std::uint8_t kLastMark = 0xBF;
constexpr std::uint8_t kScriptMark = 0xBE;
constexpr std::uint8_t kProgramMark = 0xBF;
// From here on: an act in the palette, with the keys held down in the last two bits.
constexpr std::uint8_t kFirstPaletteMark = 0xF8;

bool isMark(char c) {
    const auto byte = static_cast<std::uint8_t>(c);
    return byte >= kFirstMark && byte <= kLastMark;
}

const wchar_t* chosen(Texts texts, unsigned choice) { return texts[choice % texts.size()]; }

// A slash stays in fractions only: no name that the fuzzer makes up leads out of the scratch folder.
ZrString withoutFolders(std::wstring_view text) {
    ZrString safe(text);
    for (std::size_t at = 0; at < safe.size(); ++at)
        if (safe[at] == L'/' &&
            (at == 0 || at + 1 == safe.size() || !std::iswdigit(static_cast<wint_t>(safe[at - 1])) ||
             !std::iswdigit(static_cast<wint_t>(safe[at + 1]))))
            safe[at] = L'-';
    return safe;
}

ZrString abbreviation(const ZrString& word) {
    ZrString capitals;
    for (const wchar_t c : word)
        if (std::iswupper(static_cast<wint_t>(c)) || std::iswdigit(static_cast<wint_t>(c)))
            capitals += c;
    return capitals.empty() ? word : capitals;
}

ZrString lowered(ZrString text) {
    for (wchar_t& c : text)
        c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
    return text;
}

// Some answers of a program, in the middle of whatever was asked when it began.
class Program final : public ed::InputSource {
public:
    Program(AnswerMaker& maker, unsigned answers, bool endsCommand)
        : maker_(maker), left_(answers), endsCommand_(endsCommand) {}

    std::optional<Answer> next(const Question& question) override {
        if (atEnd())
            return std::nullopt;
        --left_;
        return maker_.programsAnswer(question);
    }
    [[nodiscard]] bool atEnd() override { return left_ == 0 || maker_.atEnd(); }
    [[nodiscard]] bool endsCommand() const override { return endsCommand_; }

private:
    AnswerMaker& maker_;
    unsigned left_;
    bool endsCommand_;
};

} // namespace

// What stands several times comes so many times as often.
const AnswerMaker::Make AnswerMaker::kMakes[] = {
    &AnswerMaker::fitting,  &AnswerMaker::fitting, &AnswerMaker::fitting,   &AnswerMaker::fitting,
    &AnswerMaker::phrase,   &AnswerMaker::phrase,  &AnswerMaker::phrase,    &AnswerMaker::keyword,
    &AnswerMaker::keyword,  &AnswerMaker::command, &AnswerMaker::command,   &AnswerMaker::file,
    &AnswerMaker::number,   &AnswerMaker::point,   &AnswerMaker::pick,      &AnswerMaker::name,
    &AnswerMaker::setting,  &AnswerMaker::setting, &AnswerMaker::selection, &AnswerMaker::transparent,
    &AnswerMaker::garbage,  &AnswerMaker::enter,   &AnswerMaker::enter,     &AnswerMaker::escape,
    &AnswerMaker::longText,
};

std::uint8_t AnswerMaker::byte() {
    if (rest_.empty())
        return 0;
    const auto first = static_cast<std::uint8_t>(rest_.front());
    rest_.remove_prefix(1);
    return first;
}

std::optional<unsigned> AnswerMaker::choice() {
    if (rest_.empty() || !isMark(rest_.front()))
        return std::nullopt;
    rest_.remove_prefix(1);
    return byte();
}

std::string_view AnswerMaker::line() {
    const std::size_t end = rest_.find('\n');
    const std::string_view text = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    return text;
}

Answer AnswerMaker::typed(std::wstring_view text) const {
    if (text == L"^C")
        return {Answer::Kind::Cancel, {}, {}};
    if (text.empty())
        return {Answer::Kind::Enter, {}, {}};
    scratch_.provide(toUtf8(ZrString(text.substr(text.find_last_of(L' ') + 1))));
    return {Answer::Kind::Text, ZrString(text), {}};
}

// What was started in the palette at the command prompt runs first: a program with a screen ends its question then.
Answer AnswerMaker::personsAnswer(const Question& question) {
    while (!rest_.empty()) {
        const auto mark = static_cast<std::uint8_t>(rest_.front());
        if (mark >= kFirstPaletteMark)
            actInPalette();
        else if (mark == kScriptMark || mark == kProgramMark)
            startInput();
        else
            break;
        if (mark >= kFirstPaletteMark && question.kind == Question::Kind::Command && !session_.input().empty())
            return {Answer::Kind::Cancel, {}, {}};
    }
    return programsAnswer(question);
}

void AnswerMaker::startInput() {
    const bool isScript = byte() == kScriptMark;
    const unsigned choice = byte();
    if (isScript)
        startScript(choice);
    else
        startProgram(choice);
}

void AnswerMaker::actInPalette() {
    const unsigned held = byte();
    const unsigned what = byte();
    palettePerson_.act(what, byte(), held);
}

Answer AnswerMaker::programsAnswer(const Question& question) {
    if (rest_.empty() || !isMark(rest_.front()))
        return typed(withoutFolders(fromUtf8(line())));
    const unsigned kind = byte() - kFirstMark;
    return (this->*kMakes[kind % std::size(kMakes)])(question, byte());
}

void AnswerMaker::startScript(unsigned choice) {
    constexpr unsigned kMostLines = 8;
    std::string text;
    for (unsigned count = 0; count <= choice % kMostLines; ++count)
        text += toUtf8(withoutFolders(fromUtf8(line()))) + "\n";
    session_.input().push(std::make_unique<ed::ScriptSource>(text, L"fuzz.scr"));
}

void AnswerMaker::startProgram(unsigned choice) {
    session_.input().push(std::make_unique<Program>(*this, 1 + choice % 32, choice >= 128));
}

Answer AnswerMaker::fitting(const Question& question, unsigned choice) const {
    switch (question.kind) {
    case Question::Kind::Command:
        return command(question, choice);
    case Question::Kind::Keyword:
        return keyword(question, choice);
    case Question::Kind::Selection:
        return selection(question, choice);
    case Question::Kind::Point:
        return point(question, choice);
    case Question::Kind::Number:
    case Question::Kind::Angle:
    case Question::Kind::Distance:
        return number(question, choice);
    case Question::Kind::Text:
        break;
    }
    constexpr std::array<Make, 4> texts{&AnswerMaker::name, &AnswerMaker::file, &AnswerMaker::number,
                                        &AnswerMaker::point};
    return (this->*texts[choice % texts.size()])(question, choice / texts.size());
}

Answer AnswerMaker::keyword(const Question& question, unsigned choice) const {
    if (question.keywords.empty())
        return number(question, choice);
    const ZrString& word = question.keywords[choice % question.keywords.size()];
    switch (choice / question.keywords.size() % 4) {
    case 0:
        return typed(abbreviation(word));
    case 1:
        return typed(lowered(word));
    case 2:
        return typed(L"_" + word);
    default:
        return typed(word.substr(0, 2));
    }
}

Answer AnswerMaker::phrase(const Question& question, unsigned choice) const {
    return typed(chosen(question.kind == Question::Kind::Command ? commandTexts() : optionTexts(), choice));
}

Answer AnswerMaker::command(const Question&, unsigned choice) const {
    const std::vector<const ed::Command*> all = session_.commands().all();
    const ed::Command& command = *all[choice % all.size()];
    constexpr std::array<const wchar_t*, 4> marks{L"", L"_", L".", L"_."};
    const std::size_t spelling = choice / all.size();
    return typed(marks[spelling % marks.size()] + (spelling % 2 == 0 ? command.localName : command.globalName));
}

Answer AnswerMaker::file(const Question&, unsigned choice) const {
    const auto& kept = scratch_.kept();
    if (choice % 2 == 0)
        return typed(chosen(fileTexts(), choice / 2));
    return typed(fromUtf8(std::next(kept.begin(), static_cast<long>(choice / 2 % kept.size()))->first));
}

Answer AnswerMaker::pick(const Question&, unsigned choice) const {
    constexpr std::array<double, 8> coordinates{0, 1, -10, 1e-10, 1e8, 1e300, -1.7e308, 0.1};
    return {Answer::Kind::Point, {}, {coordinates[choice % 8], coordinates[choice / 8 % 8], coordinates[choice / 64]}};
}

Answer AnswerMaker::longText(const Question&, unsigned choice) const {
    constexpr std::array<wchar_t, 5> letters{L'x', L'灯', L'9', L',', L'\U0001F4A1'};
    constexpr unsigned kShortest = 254;
    constexpr std::array<unsigned, 10> more{0, 1, 2, 4, 5, 6, 7, 20, 46, 800};
    return typed(ZrString(kShortest + more[choice % more.size()], letters[choice / more.size() % letters.size()]));
}

Answer AnswerMaker::number(const Question&, unsigned choice) const { return typed(chosen(numberTexts(), choice)); }
Answer AnswerMaker::point(const Question&, unsigned choice) const { return typed(chosen(pointTexts(), choice)); }
Answer AnswerMaker::name(const Question&, unsigned choice) const { return typed(chosen(nameTexts(), choice)); }
Answer AnswerMaker::selection(const Question&, unsigned choice) const {
    return typed(chosen(selectionTexts(), choice));
}
Answer AnswerMaker::setting(const Question&, unsigned choice) const { return typed(chosen(settingTexts(), choice)); }
Answer AnswerMaker::transparent(const Question&, unsigned choice) const {
    return typed(chosen(transparentTexts(), choice));
}
Answer AnswerMaker::garbage(const Question&, unsigned choice) const { return typed(chosen(garbageTexts(), choice)); }
Answer AnswerMaker::enter(const Question&, unsigned) const { return {Answer::Kind::Enter, {}, {}}; }
Answer AnswerMaker::escape(const Question&, unsigned) const { return {Answer::Kind::Cancel, {}, {}}; }

} // namespace quor::fuzz
