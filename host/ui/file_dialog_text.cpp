#include "host/ui/file_dialog_text.h"

#include "host/sys/path_text.h"
#include "host/texts/input.h"

namespace quor::ui {

ZrString filePrompt(const FileQuestion& file) {
    ZrString patterns;
    for (const FileQuestion::Filter& filter : file.filters) {
        if (!patterns.empty())
            patterns += L';';
        patterns += filter.pattern;
    }
    return fill(texts::kFilePrompt, file.caption, patterns);
}

FileAnswer askFile(const FileQuestion& file, const std::function<Answer(const Question&)>& ask) {
    const ZrString prompt = filePrompt(file);
    Question question;
    question.kind = Question::Kind::Text;
    question.prompt = prompt;
    question.acceptsBlanks = true;
    const Answer answer = ask(question);
    if (answer.kind == Answer::Kind::End || answer.kind == Answer::Kind::Broken)
        return {std::nullopt, true};
    const std::filesystem::path path = pathFromText(answer.text);
    if (path.empty())
        return {};
    return {textOf(absolutePath(path)), false};
}

} // namespace quor::ui
