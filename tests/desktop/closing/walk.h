// Goes through every question of a command, each way that its answers lead, and leaves the program at each.
#pragma once

#include "tests/desktop/support/leaving.h"

#include <QStringList>

#include <set>
#include <vector>

namespace quor::desktop::test {

// The answers to the first questions of a command.
using Path = QStringList;

// A place where a command waits: a question, or a dialog.
struct Place {
    QString name;                 // the prompt without values, or what the dialog is called; empty: the command ended
    std::vector<QString> answers; // that lead on from there
};

// Where a walk stops: what leads there, and the place.
struct Stop {
    QString command;
    Path path;
    QString place;
};

class Walk {
public:
    // In a small window, which is painted fast.
    explicit Walk(Person& person);

    // Starts the command in a new drawing with one line in it and unsaved changes, and answers.
    Place go(const QString& command, const Path& path);
    // Comes to every place of a command that was not seen before; `arrived` is told of each, with the program waiting
    // there, and has to lead back to the command prompt.
    void everyPlace(const QString& command, const std::function<void(const Stop&)>& arrived);

private:
    void startAnew();
    void answer(const QString& given);
    void giveUp();
    [[nodiscard]] Place here();
    // What a command asks at first is its own; what stands behind its options is asked by several.
    [[nodiscard]] bool isNew(const QString& command, const Place& place, qsizetype depth);

    Person& person_;
    std::set<QString> seen_;
};

// The global names of all commands, those of modules or those of the host.
[[nodiscard]] std::vector<QString> commandsOf(Person& person, bool host);

} // namespace quor::desktop::test
