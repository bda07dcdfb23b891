#include "tests/desktop/closing/walk.h"

#include "desktop/dialogs/task_dialog.h"
#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "desktop/window/main_window.h"
#include "host/document.h"
#include "host/ed/command_table.h"

#include <QApplication>
#include <QDialog>
#include <QRegularExpression>
#include <QTest>

#include <deque>
#include <map>

namespace quor::desktop::test {

namespace {

constexpr qsizetype kLongestPath = 6;
// From here on a question may be one that several commands ask alike.
constexpr qsizetype kFirstCommonDepth = 4;

// An answer that fits, by what is asked.
QString fittingAnswer(Question::Kind kind) {
    static const std::map<Question::Kind, QString> kAnswers{
        {Question::Kind::Text, "name"},      {Question::Kind::Number, "1"},   {Question::Kind::Point, "2,3"},
        {Question::Kind::Angle, "30"},       {Question::Kind::Distance, "4"}, {Question::Kind::Selection, "_ALL"},
        {Question::Kind::Keyword, QString()}};
    return kAnswers.at(kind);
}

std::vector<QString> answersTo(const Question& question) {
    std::vector<QString> answers{fittingAnswer(question.kind)};
    if (question.kind != Question::Kind::Keyword)
        answers.emplace_back();
    for (const ZrString& keyword : question.keywords)
        answers.push_back(toQt(keyword));
    return answers;
}

// The keys of the links of a task dialog; other dialogs are left as they come.
std::vector<QString> answersTo(const QWidget& dialog) {
    return qobject_cast<const TaskDialog*>(&dialog) != nullptr ? std::vector<QString>{"1", "2"}
                                                               : std::vector<QString>{};
}

// Defaults change with what was answered before.
QString withoutValues(QString prompt) {
    static const QRegularExpression kValues("<[^>]*>|[0-9]+");
    return prompt.remove(kValues).trimmed();
}

} // namespace

Walk::Walk(Person& person) : person_(person) {
    person.does([&] { person.program().window().resize(500, 400); });
}

void Walk::startAnew() {
    person_.does([&] {
        DocumentManager& documents = person_.program().session().documents();
        documents.closeAll();
        documents.newDocument();
        person_.program().front().giveText(L"._LINE 0,0 5,5 ");
    });
}

void Walk::answer(const QString& given) {
    person_.does([&] {
        if (QWidget* const dialog = QApplication::activeModalWidget())
            QTest::keyClicks(dialog, given);
        else
            person_.program().front().giveText(fromQt(given));
    });
}

void Walk::giveUp() {
    while (!isAtCommandPrompt(person_))
        person_.does([&] {
            if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                dialog->reject();
            else
                person_.program().front().escape();
        });
}

Place Walk::here() {
    return person_.sees([&]() -> Place {
        if (const QWidget* const dialog = QApplication::activeModalWidget())
            return {"dialog " + dialog->objectName() + dialog->windowTitle(), answersTo(*dialog)};
        const Question* const open = person_.program().front().question();
        if (open == nullptr || open->kind == Question::Kind::Command)
            return {};
        return {withoutValues(toQt(open->prompt)), answersTo(*open)};
    });
}

Place Walk::go(const QString& command, const Path& path) {
    startAnew();
    answer("_" + command);
    for (const QString& given : path)
        if (!here().name.isEmpty())
            answer(given);
    return here();
}

bool Walk::isNew(const QString& command, const Place& place, qsizetype depth) {
    if (place.name.isEmpty())
        return false;
    const bool isCommon = depth >= kFirstCommonDepth;
    if (isCommon && seen_.contains("\n" + place.name))
        return false;
    seen_.insert("\n" + place.name);
    return seen_.insert(command + "\n" + place.name).second;
}

void Walk::everyPlace(const QString& command, const std::function<void(const Stop&)>& arrived) {
    std::deque<Path> paths{{}};
    while (!paths.empty()) {
        const Path path = std::move(paths.front());
        paths.pop_front();
        const Place place = go(command, path);
        if (!isNew(command, place, path.size())) {
            giveUp();
            continue;
        }
        arrived({command, path, place.name});
        for (const QString& answer : place.answers)
            if (path.size() < kLongestPath) {
                paths.push_back(path);
                paths.back().push_back(answer);
            }
    }
}

std::vector<QString> commandsOf(Person& person, bool host) {
    return person.sees([&] {
        std::vector<QString> names;
        for (const ed::Command* const command : person.program().session().commands().all())
            if (command->isHost == host)
                names.push_back(toQt(command->globalName));
        return names;
    });
}

} // namespace quor::desktop::test
