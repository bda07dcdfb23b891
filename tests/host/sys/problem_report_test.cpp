#include "host/sys/problem_report.h"

#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <vector>

namespace quor {
namespace {

TEST(ProblemReport, ReachesTheReporterThatWasSetLast) {
    std::vector<ZrString> first;
    std::vector<ZrString> second;
    setProblemReporter([&](const ZrString& message) { first.push_back(message); });
    reportProblem(L"one");
    setProblemReporter([&](const ZrString& message) { second.push_back(message); });
    reportProblem(L"two");
    setProblemReporter(nullptr);

    EXPECT_EQ(first, std::vector<ZrString>{L"one"});
    EXPECT_EQ(second, std::vector<ZrString>{L"two"});
}

TEST(ProblemReport, ReachesTheCommandLineOfASessionAndNobodyBehindItsEnd) {
    test::ScriptedFrontEnd front;
    {
        const test::TemporaryFolder folder;
        const Session session(front, {.settingsFile = folder.path() / "settings.ini",
                                      .resourceFolder = folder.path(),
                                      .moduleFolders = {},
                                      .language = L"en"});
        reportProblem(L"worn");
    }
    reportProblem(L"torn");

    EXPECT_EQ(front.screen(), L"worn");
}

} // namespace
} // namespace quor
