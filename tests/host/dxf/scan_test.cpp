#include "tests/host/dxf/samples.h"

#include <gtest/gtest.h>
#include <vector>

namespace quor::dxf {
namespace {

using Kind = Error::Kind;

Layout scanned(std::string_view file) { return std::move(scan(Image::fromBytes(file))).value(); }

Error refused(std::string_view file) {
    const auto result = scan(Image::fromBytes(file));
    return result ? Error{} : result.error();
}

TEST(Scan, FindsSectionsRecordsAndHeader) {
    const std::string file = samples::text();
    const Image image = Image::fromBytes(file);
    const Layout layout = std::move(scan(image)).value();

    ASSERT_EQ(layout.sections.size(), 4U);
    EXPECT_EQ(layout.sections[2].name, "ENTITIES");
    EXPECT_TRUE(layout.sections[2].closed);
    EXPECT_EQ(file.substr(layout.sections[2].bodyBegin, 9), "  0\nLIGHT");
    EXPECT_EQ(file.substr(layout.sections[2].bodyEnd, 10), "  0\nENDSEC");
    EXPECT_EQ(layout.sections[2].end, layout.sections[3].begin);
    EXPECT_EQ(layout.sections[2].firstRecord, 3U);
    EXPECT_EQ(layout.sections[2].lastRecord, 5U);
    ASSERT_EQ(layout.records.size(), 6U);
    EXPECT_EQ(layout.version, "AC1015");
    EXPECT_EQ(layout.codePage, "ANSI_936");
    EXPECT_EQ(layout.handleSeed, 0x2F0U);
    EXPECT_EQ(file.substr(layout.handleSeedTag.begin, layout.handleSeedTag.end - layout.handleSeedTag.begin),
              "  5\n2F0\n");
    EXPECT_EQ(layout.highestHandle, 0x2D0U);
    EXPECT_TRUE(layout.hasEnd);
    EXPECT_EQ(layout.endTag.end, file.size());
}

TEST(Scan, RecordsKnowTheirBytesTypeHandleAndOwner) {
    const std::string file = samples::text();
    const Image image = Image::fromBytes(file);
    const Layout layout = std::move(scan(image)).value();

    const Record& light = layout.records[3];
    EXPECT_EQ(layout.typeName(image, light), "LIGHT");
    EXPECT_EQ(light.type, layout.names.find("LIGHT"));
    EXPECT_EQ(light.handle, 0x2CEU);
    EXPECT_EQ(light.owner, 0x1FU);
    EXPECT_FALSE(light.paper);
    EXPECT_EQ(image.bytes(light.begin, light.end()).substr(0, 10), "  0\nLIGHT\n");
    EXPECT_EQ(light.end(), layout.records[4].begin);
    EXPECT_TRUE(layout.records[4].paper);
    EXPECT_EQ(layout.records[4].owner, 0x1BU);
}

TEST(Scan, TheHandleOfADimensionStyleStandsInGroup105) {
    const Layout layout = scanned(samples::text());
    EXPECT_EQ(layout.records[0].handle, 0xAU);
    EXPECT_EQ(layout.records[1].handle, 0x27U);
}

TEST(Scan, AReferenceBehindASubclassMarkerIsNoOwner) { EXPECT_EQ(scanned(samples::text()).records[5].owner, 0U); }

TEST(Scan, ListsHeaderVariables) {
    const std::string file = samples::text();
    const Layout layout = scanned(file);
    ASSERT_EQ(layout.headerVars.size(), 4U);
    const HeaderVar* units = layout.findVar("$INSUNITS");
    ASSERT_NE(units, nullptr);
    EXPECT_EQ(file.substr(units->begin, units->end - units->begin), "  9\n$INSUNITS\n 70\n     4\n");
    EXPECT_EQ(file.substr(units->valueBegin, 3), " 70");
    EXPECT_EQ(layout.findVar("$NOTTHERE"), nullptr);
}

TEST(Scan, TellsTheStyleOfTheText) {
    const TextStyle padded = scanned(samples::withCrLf(samples::text())).style;
    EXPECT_EQ(padded.lineEnd, LineEnd::CrLf);
    EXPECT_TRUE(padded.padCodes);
    EXPECT_TRUE(padded.padIntegers);
    const TextStyle plain =
        scanned("999\nmade by hand\n0\nSECTION\n2\nENTITIES\n0\nLINE\n62\n1\n0\nENDSEC\n0\nEOF\n").style;
    EXPECT_EQ(plain.lineEnd, LineEnd::Lf);
    EXPECT_FALSE(plain.padCodes);
    EXPECT_FALSE(plain.padIntegers);
}

TEST(Scan, LineEndsMakeNoDifferenceToWhatIsFound) {
    const Layout lf = scanned(samples::text());
    const Layout crLf = scanned(samples::withCrLf(samples::text()));
    EXPECT_EQ(crLf.records.size(), lf.records.size());
    EXPECT_EQ(crLf.records[4].handle, lf.records[4].handle);
    EXPECT_EQ(crLf.version, lf.version);
}

class ScanOfForm : public testing::TestWithParam<Form> {};

TEST_P(ScanOfForm, FindsTheSameRecords) {
    const std::string file = samples::written(GetParam());
    const Image image = Image::fromBytes(file);
    const Layout layout = std::move(scan(image)).value();

    EXPECT_EQ(layout.form, GetParam());
    EXPECT_EQ(layout.version, "AC1015");
    EXPECT_EQ(layout.handleSeed, 0x2F0U);
    ASSERT_EQ(layout.records.size(), 2U);
    EXPECT_EQ(layout.typeName(image, layout.records[0]), "LIGHT");
    EXPECT_EQ(layout.records[0].handle, 0x2CEU);
    EXPECT_EQ(layout.records[0].owner, 0x1FU);
    EXPECT_TRUE(layout.records[0].paper);
    EXPECT_EQ(layout.records[1].end(), layout.sections[1].bodyEnd);
    EXPECT_EQ(layout.endTag.end, file.size());
}

INSTANTIATE_TEST_SUITE_P(Forms, ScanOfForm, testing::Values(Form::Ascii, Form::Binary16, Form::Binary8));

TEST(Scan, SmallFilesWithoutHeaderAreDrawings) {
    EXPECT_EQ(scanned("0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF").sections.size(), 1U);
    EXPECT_TRUE(scanned("0\nEOF\n").sections.empty());
    EXPECT_EQ(scanned("0\nEOF\n").version, "");
}

TEST(Scan, WhatStandsBehindTheEndIsLeftAlone) {
    const std::string file = samples::text() + "rubbish\n\x1A\n  0\nLINE\n";
    const Layout layout = scanned(file);
    EXPECT_EQ(layout.endTag.end, samples::text().size());
    EXPECT_EQ(layout.records.size(), 6U);
}

TEST(Scan, AByteOrderMarkIsAccepted) {
    const Layout layout = scanned("\xEF\xBB\xBF" + samples::text());
    EXPECT_TRUE(layout.byteOrderMark);
    EXPECT_EQ(layout.firstTag, 3U);
    EXPECT_EQ(layout.records.size(), 6U);
}

TEST(Scan, SectionsMayRepeatAndBeUnknown) {
    const std::string section = "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n0\nENDSEC\n";
    const Layout layout = scanned(section + "0\nSECTION\n2\nEXTRAS\n90\n5\n0\nENDSEC\n" + section + "0\nEOF\n");
    ASSERT_EQ(layout.sections.size(), 3U);
    EXPECT_EQ(layout.sections[1].name, "EXTRAS");
    EXPECT_EQ(layout.findSection("ENTITIES"), &layout.sections[0]);
    EXPECT_EQ(layout.sections[2].firstRecord, 1U);
    EXPECT_EQ(layout.records.size(), 2U);
}

TEST(Scan, HandlesMayOccurTwice) {
    const Layout layout = scanned("0\nSECTION\n2\nENTITIES\n0\nLINE\n5\nA\n0\nARC\n5\nA\n0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(layout.records[0].handle, layout.records[1].handle);
}

TEST(Scan, NamesTooLongForTheTableAreReadFromTheFile) {
    const std::string name(NameTable::kMaxLength + 1, 'X');
    const Image image = Image::fromBytes("0\nSECTION\n2\nENTITIES\n0\n" + name + "\n8\n0\n0\nENDSEC\n0\nEOF\n");
    const Layout layout = std::move(scan(image)).value();
    EXPECT_EQ(layout.records[0].type, NameTable::kOther);
    EXPECT_EQ(layout.typeName(image, layout.records[0]), name);
}

TEST(Scan, ProgressRisesToOne) {
    std::vector<double> shares;
    ScanOptions options;
    options.progress = [&shares](double share) { shares.push_back(share); };
    EXPECT_TRUE(scan(Image::fromBytes(samples::text()), options).ok());
    ASSERT_GE(shares.size(), 2U);
    EXPECT_LT(shares.front(), 1.0);
    EXPECT_EQ(shares.back(), 1.0);
}

TEST(ScanRefuses, AnEmptyFile) { EXPECT_EQ(refused("").kind, Kind::Empty); }

TEST(ScanRefuses, WhatDoesNotBeginAsADrawing) {
    EXPECT_EQ(refused("hello\nworld\n").kind, Kind::NotDxf);
    EXPECT_EQ(refused("hello\nworld\n").excerpt, L"hello");
    EXPECT_EQ(refused("\n\n\n").kind, Kind::NotDxf);
    EXPECT_EQ(refused("0\nLIGHT\n5\n2CE\n").kind, Kind::NotDxf);
    EXPECT_EQ(refused("999\nonly a comment\n").kind, Kind::NotDxf);
    EXPECT_EQ(refused(std::string_view("\xFF\xFE\x30\x00\x0A\x00", 6)).kind, Kind::NotDxf);
}

TEST(ScanRefuses, ALineThatIsNoGroupCode) {
    const Error error = refused("0\nSECTION\n2\nENTITIES\n0\nLINE\nabc\x01\n0\n0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(error.kind, Kind::BadGroupCode);
    EXPECT_EQ(error.line, 7U);
    EXPECT_EQ(error.excerpt, L"abc?");
}

TEST(ScanRefuses, AFileThatBreaksOff) {
    const Error error = refused("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n\n");
    EXPECT_EQ(error.kind, Kind::NoEnd);
    EXPECT_EQ(error.line, 9U);
    const Error inTag = refused("0\nSECTION\n2\nENTITIES\n0\nLINE\n  8\n");
    EXPECT_EQ(inTag.kind, Kind::MissingValue);
    EXPECT_EQ(inTag.line, 7U);
    EXPECT_EQ(inTag.excerpt, L"8");
}

TEST(ScanRefuses, ASectionWithoutEnd) {
    const Error error = refused("0\nSECTION\n2\nTABLES\n0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(error.kind, Kind::SectionWithoutEnd);
    EXPECT_EQ(error.line, 5U);
    EXPECT_EQ(error.excerpt, L"TABLES");
    EXPECT_EQ(refused("0\nSECTION\n2\nTABLES\n0\nEOF\n").kind, Kind::SectionWithoutEnd);
}

TEST(ScanRefuses, DamagedBinaryFilesWithTheOffset) {
    const std::string file = samples::written(Form::Binary16);
    const Error cut = refused(std::string_view(file).substr(0, file.size() - 1));
    EXPECT_EQ(cut.kind, Kind::BinaryTruncated);
    EXPECT_TRUE(cut.binary);
    EXPECT_EQ(cut.line, 0U);
    EXPECT_EQ(cut.offset, file.size() - 6);
    const Error code = refused(file.substr(0, file.size() - 6) + std::string("\x51\0x\0", 4));
    EXPECT_EQ(code.kind, Kind::BadGroupCode);
    EXPECT_EQ(code.excerpt, L"81");
}

class ScanOfPrefix : public testing::TestWithParam<std::string> {};

TEST_P(ScanOfPrefix, IsAnErrorAndNeverACrash) {
    const std::string file = GetParam();
    const std::size_t whole = file.size() - 1; // the last line end may be missing
    for (std::size_t length = 0; length < whole; ++length) {
        const Image image = Image::fromBytes(std::string_view(file).substr(0, length));
        EXPECT_FALSE(scan(image).ok()) << length;
        const auto recovered = scan(image, {true, {}});
        EXPECT_TRUE(!recovered || (!recovered->problems.empty() && recovered->endTag.end <= length)) << length;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Forms, ScanOfPrefix,
    testing::Values(samples::text(),
                    samples::withCrLf(samples::text()).substr(0, samples::withCrLf(samples::text()).size() - 1),
                    samples::written(Form::Ascii), samples::written(Form::Binary16), samples::written(Form::Binary8)));

TEST(Scan, AnyByteMayBeWrongWithoutACrash) {
    const Form forms[] = {Form::Ascii, Form::Binary16, Form::Binary8};
    for (const Form form : forms) {
        std::string file = samples::written(form);
        for (char& byte : file) {
            const char before = std::exchange(byte, static_cast<char>(byte ^ 0x55));
            const auto recovered = scan(Image::fromBytes(file), {true, {}});
            EXPECT_TRUE(!recovered || recovered->endTag.end <= file.size());
            byte = before;
        }
    }
}

} // namespace
} // namespace quor::dxf
