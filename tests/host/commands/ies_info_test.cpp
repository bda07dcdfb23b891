#include "host/sys/path_text.h"
#include "host/sys/system_variables.h"
#include "sdk/rx/result_codes.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

const std::filesystem::path webs = std::filesystem::path(QUOR_TEST_DATA) / "ies";

struct IesInfo : testing::Test {
    test::TestSession host{{.language = L"en"}};
};

TEST_F(IesInfo, TellsWhatAFileHolds) {
    const ed::Verdict verdict = host.run({L"IESINFO", textOf(webs / "dl_relative_photometry_with_multiplier.ies")});

    EXPECT_EQ(verdict.result, RTNORM);
    EXPECT_TRUE(host.front().shows(L"LM-63-1995"));
    EXPECT_TRUE(host.front().shows(L"type C"));
    EXPECT_TRUE(host.front().shows(L"1 of 500 lm"));
    EXPECT_TRUE(host.front().shows(L"1359.9 lm"));
    EXPECT_TRUE(host.front().shows(L"3300 cd"));
    EXPECT_TRUE(host.front().shows(L"0 to 90 degrees, 37 of them"));
    EXPECT_TRUE(host.front().shows(L"axial"));
    EXPECT_TRUE(host.front().shows(L"width -0.12, length 0, height 0 m (negative: round)"));
}

TEST_F(IesInfo, TellsTheTiltAndTheNoticesOfTheReader) {
    host.run({L"IESINFO", textOf(webs / "pp_tilt_include_geometry2.ies"), L"IESINFO",
              textOf(webs / "derived" / "m06_trailing_text.ies")});

    EXPECT_TRUE(host.front().shows(L"lamp position 2, 13 angles"));
    EXPECT_TRUE(host.front().shows(L"what stands behind the data is ignored"));
}

TEST_F(IesInfo, JoinsTheLinesOfAKeyword) {
    host.run({L"IESINFO", textOf(webs / "dl_label_lines.ies")});

    EXPECT_FALSE(host.front().shows(L"^J"));
}

TEST_F(IesInfo, TellsTheLineAndTheReasonOfAFileThatCannotBeUsed) {
    const ed::Verdict verdict = host.run({L"IESINFO", textOf(webs / "derived" / "m02_truncated_candela.ies")});

    EXPECT_EQ(verdict.result, RTERROR);
    EXPECT_TRUE(host.front().shows(L"breaks off behind line 20"));
}

TEST_F(IesInfo, LooksForANameInTheSupportFolders) {
    host.session().variables().set(L"SUPPORTPATH", textOf(webs));

    const ed::Verdict verdict = host.run({L"IESINFO", L"gc_B1_module.ies"});

    EXPECT_EQ(verdict.result, RTNORM);
    EXPECT_TRUE(host.front().shows(textOf(webs / "gc_B1_module.ies")));
}

TEST_F(IesInfo, SaysWhereANameWasLookedFor) {
    const ed::Verdict verdict = host.run({L"IESINFO", L"no such lamp.ies"});

    EXPECT_EQ(verdict.result, RTERROR);
    EXPECT_TRUE(host.front().shows(L"no such lamp.ies was not found"));
    EXPECT_TRUE(host.front().shows(L"SUPPORTPATH"));
}

TEST_F(IesInfo, LetsAPersonChooseAFile) {
    host.front().choose(textOf(webs / "gc_B1_module.ies"));

    const ed::Verdict verdict = host.run({L"IESINFO", L""});

    EXPECT_EQ(verdict.result, RTNORM);
    EXPECT_TRUE(host.front().shows(L"LM-63-2002"));
}

TEST_F(IesInfo, EndsWhereNothingIsChosen) {
    host.front().choose(std::nullopt);

    EXPECT_EQ(host.run({L"IESINFO", L""}).result, RTCAN);
}

TEST_F(IesInfo, EndsAtEsc) { EXPECT_EQ(host.run({L"IESINFO", L"^C"}).result, RTCAN); }

TEST_F(IesInfo, WorksWithoutADrawing) {
    host.run({L"CLOSE", L"IESINFO", textOf(webs / "gc_B1_module.ies")});

    EXPECT_TRUE(host.front().shows(L"LM-63-2002"));
}

} // namespace
} // namespace quor
