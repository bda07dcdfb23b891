// What a person is told of a file that is no web.
#include "host/ies/reader.h"
#include "host/texts/text.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace quor::ies {
namespace {

using Kind = Error::Kind;

class Described : public testing::Test {
protected:
    void TearDown() override { setLanguage(Language::Chinese); }

    static std::wstring english(const Error& error) {
        setLanguage(Language::English);
        return describe(error, L"lamp.ies");
    }
    static std::wstring chinese(const Error& error) {
        setLanguage(Language::Chinese);
        return describe(error, L"lamp.ies");
    }
};

TEST_F(Described, SaysWhatWhereAndWhatToDoInEnglish) {
    EXPECT_EQ(english({Kind::BadNumber, 17, 0, L"12x"}),
              L"Photometric web file \"lamp.ies\", line 17: \"12x\" is not a usable number; the file is not used. "
              L"Correct it, or get a new copy of the file.");
}

TEST_F(Described, SaysWhatWhereAndWhatToDoInChinese) {
    EXPECT_EQ(chinese({Kind::BadNumber, 17, 0, L"12x"}),
              L"光域网文件“lamp.ies”第 17 行: “12x”不是可用的数值；文件未使用。请改正该值，或重新获取该文件。");
}

TEST_F(Described, NamesTheFileOfTheTiltFactors) {
    EXPECT_NE(
        english({Kind::TiltFile, 4, 0, L"my.tlt"}).find(L"line 4: the tilt factors are in another file, \"my.tlt\""),
        std::wstring::npos);
}

TEST_F(Described, TellsAnEmptyTiltFromAMissingOne) {
    EXPECT_NE(english({Kind::NoTilt, 0, 0, L""}).find(L"is not a photometric web file"), std::wstring::npos);
    EXPECT_NE(english({Kind::NoTilt, 4, 0, L""}).find(L"line 4: nothing follows \"TILT=\""), std::wstring::npos);
}

TEST_F(Described, SaysWhyTheSystemRefused) {
    EXPECT_NE(english({Kind::Unreadable, 0, EACCES, L""}).find(L"permission denied"), std::wstring::npos);
    EXPECT_NE(english({Kind::Unreadable, 0, 0, L""}).find(L"is not a regular file"), std::wstring::npos);
}

TEST_F(Described, ShowsNoControlCharactersOfAFileName) {
    EXPECT_EQ(describe({Kind::Empty, 0, 0, L""}, L"a\x1B[2J").find(L'\x1B'), std::wstring::npos);
}

TEST_F(Described, PercentSignsOfAFileNameAreNoPlaceholders) {
    setLanguage(Language::English);

    EXPECT_NE(describe({Kind::BadCount, 5, 0, L"%s"}, L"%d.ies").find(L"\"%d.ies\", line 5: the angle count \"%s\""),
              std::wstring::npos);
}

// What looks like a wrong angle is often the number behind the last one.
TEST_F(Described, SaysThatTheCountsMayBeWrongWhereAnglesAre) {
    for (const Kind kind : {Kind::AnglesNotIncreasing, Kind::AnglesOutOfRange}) {
        EXPECT_NE(english({kind, 7, 0, L"0"}).find(L"their counts"), std::wstring::npos);
        EXPECT_NE(chinese({kind, 7, 0, L"0"}).find(L"角度数目"), std::wstring::npos);
    }
}

struct Placed {
    Kind kind;
    bool hasLine;
    bool hasExcerpt;
};

class EachKind : public testing::TestWithParam<Placed> {};

TEST_P(EachKind, NamesTheFileAndWhatIsKnownOfThePlaceInBothLanguages) {
    for (const Language language : {Language::Chinese, Language::English}) {
        setLanguage(language);
        const std::wstring text = describe({GetParam().kind, 4711, EIO, L"excerpt"}, L"lamp.ies");

        EXPECT_NE(text.find(L"lamp.ies"), std::wstring::npos);
        EXPECT_EQ(text.find(L"4711") != std::wstring::npos, GetParam().hasLine);
        EXPECT_EQ(text.find(L"excerpt") != std::wstring::npos, GetParam().hasExcerpt);
        EXPECT_EQ(text.find(L'%'), std::wstring::npos) << "a placeholder is left";
    }
    setLanguage(Language::Chinese);
}

INSTANTIATE_TEST_SUITE_P(All, EachKind,
                         testing::Values(Placed{Kind::NotFound, false, false}, Placed{Kind::Unreadable, false, false},
                                         Placed{Kind::TooLarge, false, false}, Placed{Kind::Empty, false, false},
                                         Placed{Kind::NoTilt, true, false}, Placed{Kind::TiltFile, true, true},
                                         Placed{Kind::MissingNumber, true, false}, Placed{Kind::BadNumber, true, true},
                                         Placed{Kind::BadCount, true, true}, Placed{Kind::BadTilt, true, true},
                                         Placed{Kind::BadType, true, true}, Placed{Kind::BadUnit, true, true},
                                         Placed{Kind::AnglesNotIncreasing, true, true},
                                         Placed{Kind::AnglesOutOfRange, true, true},
                                         Placed{Kind::NegativeIntensity, true, true}));

} // namespace
} // namespace quor::ies
