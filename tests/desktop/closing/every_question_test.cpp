// The person leaves the program in the middle of every command, at every question of it.
#include "tests/desktop/closing/walk.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

namespace quor::desktop::test {
namespace {

// Commands write files of the names that they are given: into a folder that goes.
class EveryQuestionTest : public testing::Test {
protected:
    EveryQuestionTest() { QDir::setCurrent(folder_.path()); }
    ~EveryQuestionTest() override { QDir::setCurrent(before_); }

    QString before_ = QDir::currentPath();
    QTemporaryDir folder_;
};

std::string nameOf(const Stop& stop) {
    return (stop.command + " " + stop.path.join("|") + ": " + stop.place).toStdString();
}

// There are unsaved changes: the question what is to become of them comes, and Cancel leads on.
void leaveAndStay(Person& person, const Stop& stop) {
    SCOPED_TRACE(nameOf(stop));
    closeWindowAndWait(person);
    EXPECT_EQ(openDialog(person), "save");
    chooses(person, Choice::Cancel);
    EXPECT_TRUE(isAtCommandPrompt(person));
    EXPECT_EQ(wrongWithDrawing(person), "");
}

// Comes to every place of these commands, and leaves the program there.
std::vector<Stop> leaveEverywhere(bool ofTheHost) {
    std::vector<Stop> stops;
    withProgram(usualOptions(), [&](Person& person) {
        Walk walk(person);
        for (const QString& command : commandsOf(person, ofTheHost))
            walk.everyPlace(command, [&](const Stop& stop) {
                leaveAndStay(person, stop);
                stops.push_back(stop);
            });
    });
    return stops;
}

void leaveForGood(const Stop& stop) {
    SCOPED_TRACE(nameOf(stop));
    const int status = withProgram(usualOptions(), [&](Person& person) {
        EXPECT_FALSE(Walk(person).go(stop.command, stop.path).name.isEmpty());
        closeWindowAndWait(person);
        EXPECT_EQ(openDialog(person), "save");
        choosesAndLeaves(person, Choice::Discard);
        EXPECT_TRUE(person.sawItEnd());
    });
    EXPECT_EQ(status, 0);
}

TEST_F(EveryQuestionTest, OfTheHostLetsThePersonLeave) { EXPECT_GT(leaveEverywhere(true).size(), 60U); }

TEST_F(EveryQuestionTest, OfTheModuleLetsThePersonLeaveForGood) {
    const std::vector<Stop> stops = leaveEverywhere(false);
    EXPECT_GT(stops.size(), 50U);
    for (const Stop& stop : stops)
        leaveForGood(stop);
}

} // namespace
} // namespace quor::desktop::test
