#include "tests/host/ies/web_text.h"

#include <vector>

namespace quor::ies {
namespace {

struct Known {
    const char* firstLine;
    Edition edition;
};

class VersionLine : public testing::TestWithParam<Known> {};

TEST_P(VersionLine, TellsTheEdition) {
    const PhotometricWeb web = sound({.label = std::string(GetParam().firstLine) + "\n[TEST] 1\n"});

    EXPECT_EQ(web.edition, GetParam().edition);
    EXPECT_TRUE(web.warnings.empty());
}

INSTANTIATE_TEST_SUITE_P(Editions, VersionLine,
                         testing::Values(Known{"IESNA91", Edition::Lm1991}, Known{"IESNA:LM-63-1995", Edition::Lm1995},
                                         Known{"IESNA:LM-63-2002", Edition::Lm2002},
                                         Known{"IES:LM-63-2019", Edition::Lm2019},
                                         Known{"  iesna:lm-63-2002  ", Edition::Lm2002},
                                         Known{"\xEF\xBB\xBFIES:LM-63-2019", Edition::Lm2019},
                                         Known{"\nIES:LM-63-2019", Edition::Lm2019}));

class UnknownVersionLine : public testing::TestWithParam<const char*> {};

TEST_P(UnknownVersionLine, WithKeywordsIsReadAs1995WithAWarning) {
    const PhotometricWeb web = sound({.label = std::string(GetParam()) + "\n[TEST] 1\n"});

    EXPECT_EQ(web.edition, Edition::Lm1995);
    ASSERT_EQ(web.warnings.size(), 1U);
    EXPECT_EQ(web.warnings[0].kind, Warning::Kind::UnknownVersionLine);
    EXPECT_EQ(web.warnings[0].line, 1U);
    EXPECT_EQ(web.warnings[0].number, 1995U);
}

TEST_P(UnknownVersionLine, WithoutKeywordsIsReadAs1986) {
    EXPECT_EQ(sound({.label = std::string(GetParam()) + "\nfree text\n"}).edition, Edition::Lm1986);
}

INSTANTIATE_TEST_SUITE_P(Tags, UnknownVersionLine,
                         testing::Values("IESNA95", "IESNA:LM-63-1986", "IESNA:LM-63-1991", "IESNA:LM-63-2002x",
                                         "IES:LM-63-2031", "Lampworks Inc."));

TEST(Label, KeywordsWithoutAVersionLineAreReadAs1995WithAWarning) {
    const PhotometricWeb web = sound({.label = "\n[TEST] 1\n"});

    EXPECT_EQ(web.edition, Edition::Lm1995);
    ASSERT_EQ(web.warnings.size(), 1U);
    EXPECT_EQ(web.warnings[0].line, 2U);
}

TEST(Label, OfFreeTextIsThatOf1986) {
    const PhotometricWeb web = sound({.label = "Lampworks Inc.\nOne lamp of 15 W\n"});

    EXPECT_EQ(web.edition, Edition::Lm1986);
    EXPECT_TRUE(web.warnings.empty());
    ASSERT_EQ(web.keywords.size(), 2U);
    EXPECT_EQ(web.keywords[1].name, L"");
    EXPECT_EQ(web.keywords[1].text, L"One lamp of 15 W");
}

TEST(Label, MayBeMissing) {
    const PhotometricWeb web = sound({.label = ""});

    EXPECT_EQ(web.edition, Edition::Lm1986);
    EXPECT_TRUE(web.keywords.empty());
    EXPECT_TRUE(web.warnings.empty());
}

TEST(Label, KeepsTheKeywordsInTheirOrder) {
    const std::vector<Keyword> keywords =
        sound({.label = "IES:LM-63-2019\n[TEST] 4711\n [ _OWN ]  a [b] c \n[LAMP]\n"}).keywords;

    ASSERT_EQ(keywords.size(), 3U);
    EXPECT_EQ(keywords[0].name, L"TEST");
    EXPECT_EQ(keywords[0].text, L"4711");
    EXPECT_EQ(keywords[1].name, L"_OWN");
    EXPECT_EQ(keywords[1].text, L"a [b] c");
    EXPECT_EQ(keywords[2].name, L"LAMP");
    EXPECT_EQ(keywords[2].text, L"");
}

TEST(Label, JoinsWhatMoreContinues) {
    const std::vector<Keyword> keywords =
        sound({.label = "IESNA91\n[OTHER] one\n[MORE] two\n[more] three\n[LAMP] four\n"}).keywords;

    ASSERT_EQ(keywords.size(), 2U);
    EXPECT_EQ(keywords[0].text, L"one\ntwo\nthree");
    EXPECT_EQ(keywords[1].text, L"four");
}

TEST(Label, MoreWithNothingToContinueIsAKeyword) {
    const std::vector<Keyword> keywords = sound({.label = "IESNA91\n[MORE] two\n"}).keywords;

    ASSERT_EQ(keywords.size(), 1U);
    EXPECT_EQ(keywords[0].name, L"MORE");
}

TEST(Label, BracketThatIsNotClosedIsFreeText) {
    const std::vector<Keyword> keywords = sound({.label = "IESNA91\n[TEST 4711\n"}).keywords;

    ASSERT_EQ(keywords.size(), 1U);
    EXPECT_EQ(keywords[0].name, L"");
    EXPECT_EQ(keywords[0].text, L"[TEST 4711");
}

TEST(Label, TextIsReadAsUtf8) {
    EXPECT_EQ(sound({.label = "IESNA91\n[MANUFAC] \xE7\x81\xAF\xE5\x85\xB7\n"}).keywords.at(0).text, L"灯具");
}

TEST(Label, TextThatIsNoUtf8IsReadAsGbk) {
    EXPECT_EQ(sound({.label = "IESNA91\n[MANUFAC] \xB5\xC6\xBE\xDF LED\n"}).keywords.at(0).text, L"灯具 LED");
}

TEST(Label, TextInGbkMayHaveCharactersWithAByteOfAscii) {
    EXPECT_EQ(sound({.label = "IESNA91\n[OTHER] \xB5\xC6\xBE\xDF\xE9\x46\n"}).keywords.at(0).text, L"灯具镕");
}

// Most pairs of such bytes are characters of GBK, which nobody meant.
TEST(Label, TextInLatin1WithLettersBehindItsSignsIsNoGbk) {
    EXPECT_EQ(sound({.label = "IESNA91\n[OTHER] 25\xB0"
                              "C \xFC"
                              "ber\n"})
                  .keywords.at(0)
                  .text,
              L"25°C über");
}

// Two accented letters side by side make a pair of GBK, though none of those that people write every day.
TEST(Label, TextInLatin1WithTwoLettersSideBySideIsNoGbk) {
    EXPECT_EQ(sound({.label = "IESNA91\n[LUMINAIRE] Leuchte Gr\xF6\xDF"
                              "e 3\n"})
                  .keywords.at(0)
                  .text,
              L"Leuchte Größe 3");
    EXPECT_EQ(sound({.label = "IESNA91\n[MANUFAC] Cora\xE7\xE3o\n"}).keywords.at(0).text, L"Coração");
}

TEST(Label, TextThatIsNeitherIsReadAsLatin1) {
    EXPECT_EQ(sound({.label = "IESNA91\n[MANUFAC] M\xFCller\n"}).keywords.at(0).text, L"Müller");
}

TEST(Label, KeepsAThousandKeywordsAndReadsOn) {
    std::string label = "IESNA91\n";
    for (int i = 0; i < 3000; ++i)
        label += "[A]\n";

    EXPECT_EQ(sound({.label = label}).keywords.size(), 1000U);
}

class TiltLine : public testing::TestWithParam<const char*> {};

TEST_P(TiltLine, IsUnderstood) { EXPECT_FALSE(sound({.tilt = GetParam()}).tilt.has_value()); }

INSTANTIATE_TEST_SUITE_P(Forms, TiltLine,
                         testing::Values("TILT=NONE\n", "tilt = none \n", "\tTilt=\tNone\n", "TILT=NONE\r\n",
                                         "TILT=NONE\r", "\n\nTILT=NONE\n\n", "TILT=NONE "));

TEST(Label, TiltInTheTextOfAKeywordIsNoTiltLine) {
    const PhotometricWeb web = sound({.label = "IESNA91\n[LAMP] TILT=INCLUDE lamp\nTILTED = no\n"});

    EXPECT_FALSE(web.tilt.has_value());
    EXPECT_EQ(web.keywords.size(), 2U);
}

TEST(Label, WithoutTiltLineIsRefused) {
    const Error error = refused({.tilt = ""});

    EXPECT_EQ(error.kind, Error::Kind::NoTilt);
    EXPECT_EQ(error.line, 0U);
}

TEST(Label, TiltLineWithNothingBehindItIsRefused) {
    const Error error = refused({.tilt = "TILT= \n"});

    EXPECT_EQ(error.kind, Error::Kind::NoTilt);
    EXPECT_EQ(error.line, 4U);
}

TEST(Label, TiltInAnotherFileIsRefusedWithItsName) {
    const Error error = refused({.tilt = "TILT=my lamps.tlt\n"});

    EXPECT_EQ(error.kind, Error::Kind::TiltFile);
    EXPECT_EQ(error.line, 4U);
    EXPECT_EQ(error.excerpt, L"my lamps.tlt");
}

TEST(Label, LineOfTheLabelThatLooksLikeATiltLineIsPassedOver) {
    const PhotometricWeb web = sound({.label = "IESNA91\nTilt=15 degrees optic\nTILT=\n[TEST] 1\n"});

    EXPECT_FALSE(web.tilt.has_value());
    ASSERT_EQ(web.keywords.size(), 3U);
    EXPECT_EQ(web.keywords[0].text, L"Tilt=15 degrees optic");
    EXPECT_TRUE(web.warnings.empty());
}

TEST(Label, LineThatLooksLikeATiltLineMayComeBeforeTheFactors) {
    EXPECT_TRUE(sound({.label = "tilt = any\n", .tilt = "TILT=INCLUDE 1 2 0 90 1 1\n"}).tilt.has_value());
}

TEST(Label, OfSeveralTiltLinesWithoutFactorsTheLastIsTold) {
    const Error error = refused({.label = "Tilt=15 degrees optic\n", .tilt = "TILT=my.tlt\n"});

    EXPECT_EQ(error.kind, Error::Kind::TiltFile);
    EXPECT_EQ(error.line, 2U);
    EXPECT_EQ(error.excerpt, L"my.tlt");
}

TEST(Label, NameThatOnlyBeginsWithNoneIsAFile) {
    EXPECT_EQ(refused({.tilt = "TILT=NONE.TLT\n"}).kind, Error::Kind::TiltFile);
    EXPECT_EQ(refused({.tilt = "TILT=INCLUDED\n"}).kind, Error::Kind::TiltFile);
}

class BlankFile : public testing::TestWithParam<const char*> {};

TEST_P(BlankFile, IsEmpty) { EXPECT_EQ(refusedText(GetParam()).kind, Error::Kind::Empty); }

INSTANTIATE_TEST_SUITE_P(Texts, BlankFile,
                         testing::Values("", " ", "\r\n\t\n", "\xEF\xBB\xBF", "\xEF\xBB\xBF\n", "\x1A"));

} // namespace
} // namespace quor::ies
