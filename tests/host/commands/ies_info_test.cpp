#include "host/sys/path_text.h"
#include "host/sys/system_variables.h"
#include "sdk/rx/result_codes.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <fstream>

#include <sys/stat.h>

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
    EXPECT_TRUE(host.front().shows(L"1, 500 lm each"));
    EXPECT_TRUE(host.front().shows(L"1359.9 lm"));
    EXPECT_TRUE(host.front().shows(L"3300 cd"));
    EXPECT_TRUE(host.front().shows(L"0° to 90°, 37 angles"));
    EXPECT_TRUE(host.front().shows(L"axial"));
    EXPECT_TRUE(host.front().shows(L"0°, 1 plane"));
    EXPECT_TRUE(host.front().shows(L"disk, diameter 0.12 m"));
}

TEST_F(IesInfo, TellsTheTiltAndTheNoticesOfTheReader) {
    host.run({L"IESINFO", textOf(webs / "pp_tilt_include_geometry2.ies"), L"IESINFO",
              textOf(webs / "derived" / "m06_trailing_text.ies")});

    EXPECT_TRUE(host.front().shows(L"lamp position 2, 13 angles"));
    EXPECT_TRUE(host.front().shows(L"the text after the data is ignored"));
}

TEST_F(IesInfo, JoinsTheLinesOfAKeyword) {
    host.run({L"IESINFO", textOf(webs / "dl_label_lines.ies")});

    EXPECT_FALSE(host.front().shows(L"^J"));
}

TEST_F(IesInfo, TellsTheLineAndTheReasonOfAFileThatCannotBeUsed) {
    const ed::Verdict verdict = host.run({L"IESINFO", textOf(webs / "derived" / "m02_truncated_candela.ies")});

    EXPECT_EQ(verdict.result, RTERROR);
    EXPECT_TRUE(host.front().shows(L"ends after line 20"));
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

// What has the name and cannot be used is not "not found".
TEST_F(IesInfo, SaysWhatIsWrongWithAFolderOfThatName) {
    host.session().variables().set(L"SUPPORTPATH", textOf(host.folder()));
    std::filesystem::create_directory(host.folder() / "folder.ies");

    const ed::Verdict verdict = host.run({L"IESINFO", L"folder.ies"});

    EXPECT_EQ(verdict.result, RTERROR);
    EXPECT_TRUE(host.front().shows(L"folder.ies\": it is a folder"));
}

TEST_F(IesInfo, SaysWhatIsWrongWithALinkThatLeadsToItself) {
    host.session().variables().set(L"SUPPORTPATH", textOf(host.folder()));
    std::filesystem::create_symlink(host.folder() / "loop.ies", host.folder() / "loop.ies");

    host.run({L"IESINFO", L"loop.ies"});

    EXPECT_TRUE(host.front().shows(L"Cannot read the photometric web file"));
}

TEST_F(IesInfo, SaysThatAPipeIsNoFile) {
    host.session().variables().set(L"SUPPORTPATH", textOf(host.folder()));
    ASSERT_EQ(::mkfifo((host.folder() / "pipe.ies").c_str(), 0600), 0);

    host.run({L"IESINFO", L"pipe.ies"});

    EXPECT_TRUE(host.front().shows(L"pipe.ies\" is not a regular file"));
}

// A web of one intensity down to 90 degrees.
std::string webOf(const std::string& label, const std::string& candela, const std::string& sizes = "0 0 0") {
    return label + "TILT=NONE\n1 -1 1 2 1 1 2 " + sizes + " 1 1 10\n0 90\n0\n" + candela + "\n";
}

TEST_F(IesInfo, ShowsASmallFluxWithItsDigits) {
    std::ofstream(host.folder() / "a.ies") << webOf("IESNA:LM-63-2002\n", "0.00001 0.00001");

    host.run({L"IESINFO", textOf(host.folder() / "a.ies")});

    EXPECT_TRUE(host.front().shows(L"0.000062832 lm\n"));
    EXPECT_TRUE(host.front().shows(L"0.00001 cd\n"));
}

TEST_F(IesInfo, ShowsAFluxToFiveDigits) {
    host.run({L"IESINFO", textOf(webs / "gc_nukit_torch.ies")});

    EXPECT_TRUE(host.front().shows(L"12.724 lm\n"));
}

TEST_F(IesInfo, ShowsALargeFluxInFull) {
    std::ofstream(host.folder() / "a.ies") << webOf("IESNA:LM-63-2002\n", "1234567.8 1234567.8");

    host.run({L"IESINFO", textOf(host.folder() / "a.ies")});

    EXPECT_TRUE(host.front().shows(L"7757018 lm\n"));
    EXPECT_TRUE(host.front().shows(L"1234568 cd\n"));
}

TEST_F(IesInfo, TellsThatTheCountsMayBeTooSmall) {
    std::ofstream(host.folder() / "a.ies") << webOf("IESNA:LM-63-2002\n", "3 2 1 0");

    host.run({L"IESINFO", textOf(host.folder() / "a.ies")});

    EXPECT_TRUE(host.front().shows(L"line 6: extra numbers: 2; the angle counts may be wrong"));
}

TEST_F(IesInfo, TellsByWhichRulesAFileOfAnUnknownEditionWasRead) {
    std::ofstream(host.folder() / "a.ies") << webOf("IES:LM-63-2020\n[TEST] 1\n", "1 1");

    host.run({L"IESINFO", textOf(host.folder() / "a.ies")});

    EXPECT_TRUE(host.front().shows(L"line 1: no recognized version line; read by the rules of LM-63-1995"));
}

TEST_F(IesInfo, CutsLongKeywords) {
    const std::string label = "IESNA91\n[" + std::string(5000, 'K') + "] a\n[TEST] " + std::string(3000, 't') + "\n" +
                              std::string(201, 'f') + "\n[A] " + std::string(200, 'u') + "\n";
    std::ofstream(host.folder() / "a.ies") << webOf(label, "1 1");

    host.run({L"IESINFO", textOf(host.folder() / "a.ies")});

    EXPECT_TRUE(host.front().shows(L"\n  [" + ZrString(24, L'K') + L"…]  a\n"));
    EXPECT_TRUE(host.front().shows(L"  " + ZrString(200, L't') + L"…\n"));
    EXPECT_TRUE(host.front().shows(L"  " + ZrString(200, L'f') + L"…\n"));
    EXPECT_TRUE(host.front().shows(L"  " + ZrString(200, L'u') + L"\n"));
}

TEST_F(IesInfo, CutsWideAndWeightlessCharactersToo) {
    std::string wide;
    std::string weightless;
    for (int i = 0; i < 300; ++i) {
        wide += "\xE7\x81\xAF";
        weightless += "\xCC\x81";
    }
    std::ofstream(host.folder() / "a.ies") << webOf("IESNA91\n[A] " + wide + "\n[B] " + weightless + "\n", "1 1");

    host.run({L"IESINFO", textOf(host.folder() / "a.ies")});

    EXPECT_TRUE(host.front().shows(L"  " + ZrString(100, L'灯') + L"…\n"));
    EXPECT_TRUE(host.front().shows(L"  " + ZrString(200, L'\x301') + L"…\n"));
}

struct OpeningInWords {
    const char* label;
    const char* sizes;
    const wchar_t* words;
};

class Openings : public IesInfo, public testing::WithParamInterface<OpeningInWords> {};

TEST_P(Openings, AreToldInWords) {
    std::ofstream(host.folder() / "a.ies") << webOf(GetParam().label, "1 1", GetParam().sizes);

    host.run({L"IESINFO", textOf(host.folder() / "a.ies")});

    EXPECT_TRUE(host.front().shows(ZrString(L"  Luminous opening   ") + GetParam().words + L"\n"));
}

constexpr const char* k1991 = "IESNA91\n";
constexpr const char* k1995 = "IESNA:LM-63-1995\n";
constexpr const char* k2002 = "IESNA:LM-63-2002\n";

INSTANTIATE_TEST_SUITE_P(
    All, Openings,
    testing::Values(
        OpeningInWords{k2002, "0 0 0", L"point"},
        OpeningInWords{k2002, ".1 .6 0", L"rectangle, width 0.1, length 0.6 m"},
        OpeningInWords{k2002, ".1 .6 .05", L"box, width 0.1, length 0.6, height 0.05 m"},
        OpeningInWords{k2002, "-.2 -.2 0", L"disk, diameter 0.2 m"},
        OpeningInWords{k2002, "-.2 0 -.2", L"vertical disk, diameter 0.2 m"},
        OpeningInWords{k2002, "-.2 -.3 0", L"ellipse, width 0.2, length 0.3 m"},
        OpeningInWords{k1995, "-.2 0 1", L"vertical cylinder, diameter 0.2, height 1 m"},
        OpeningInWords{k2002, "-.2 -.3 1", L"vertical elliptical cylinder, width 0.2, length 0.3, height 1 m"},
        OpeningInWords{k1995, "0 1 -.2", L"horizontal cylinder along the luminaire, diameter 0.2, length 1 m"},
        OpeningInWords{k2002, "1 -.2 -.2", L"horizontal cylinder across the luminaire, diameter 0.2, length 1 m"},
        OpeningInWords{k2002, "-.2 -.2 -.2", L"sphere, diameter 0.2 m"},
        OpeningInWords{k1991, "-.2 .3 .4", L"ellipsoid, width 0.2, length 0.3, height 0.4 m"},
        OpeningInWords{k2002, "-.2 0 0", L"undefined shape, width -0.2, length 0, height 0 m"}));

TEST_F(IesInfo, TellsTheOpeningInFeetWhereTheFileHasThem) {
    host.run({L"IESINFO", textOf(webs / "dl_imperial_units.ies")});

    EXPECT_TRUE(host.front().shows(L" ft\n"));
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
