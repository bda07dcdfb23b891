// The same lights in every form and version of a file.
#include "host/dxf/binary_tags.h"
#include "host/dxf/tag_writer.h"
#include "tests/host/db/light_summaries.h"

namespace quor::db {
namespace {

using namespace drawings;
using dxf::Form;
using dxf::LineEnd;
using dxf::TagWriter;

struct FileForm {
    const char* what;
    const char* version;
    const char* codePage;
    const char* name; // bytes of 光
    Form form = Form::Ascii;
    dxf::TextStyle style = {};
};

// Its extension dictionary is 0 where it has none.
void light(TagWriter& out, std::uint64_t handle, std::uint64_t dictionary, std::string_view name, int type) {
    out.text(0, "LIGHT");
    out.handle(5, handle);
    if (dictionary != 0) {
        out.text(102, "{ACAD_XDICTIONARY");
        out.handle(360, dictionary);
        out.text(102, "}");
    }
    out.text(100, "AcDbEntity");
    out.text(8, "0");
    out.text(100, "AcDbLight");
    out.integer(90, 1);
    out.text(1, name);
    out.integer(70, type);
    out.boolean(290, true);
}

// An entry of another name stands before.
void dictionary(TagWriter& out, std::uint64_t handle, int entryCode, std::uint64_t photometry) {
    out.text(0, "DICTIONARY");
    out.handle(5, handle);
    out.text(100, "AcDbDictionary");
    out.text(3, "OTHER");
    out.handle(360, 0x99);
    out.text(3, "ADSK_XREC_PHOTOMETRICLIGHTINFO");
    out.handle(entryCode, photometry);
}

void photometry(TagWriter& out, std::uint64_t handle, bool hasWeb) {
    out.text(0, "XRECORD");
    out.handle(5, handle);
    out.text(102, "{ACAD_REACTORS");
    out.handle(330, handle - 1);
    out.text(102, "}");
    out.text(100, "AcDbXrecord");
    out.integer(280, 1);
    out.boolean(290, hasWeb);
    out.text(300, "lamp.ies");
}

void beginSection(TagWriter& out, std::string_view name) {
    out.text(0, "SECTION");
    out.text(2, name);
}

// The handles of the objects fall and rise.
std::string fileOf(const FileForm& file) {
    TagWriter out(file.form, file.style);
    beginSection(out, "HEADER");
    out.text(9, "$ACADVER");
    out.text(1, file.version);
    out.text(9, "$DWGCODEPAGE");
    out.text(3, file.codePage);
    out.text(0, "ENDSEC");
    beginSection(out, "ENTITIES");
    light(out, 0x30, 0x41, "Web", 2);
    light(out, 0x31, 0x51, "Point", 2);
    light(out, 0x32, 0x41, "Spot", 3);
    light(out, 0x33, 0, "NoDictionary", 2);
    light(out, 0x34, 0x77, "DictionaryIsMissing", 2);
    light(out, 0x35, 0x61, "RecordIsMissing", 2);
    light(out, 0x36, 0x71, "RecordIsNone", 2);
    light(out, 0x37, 0x42, "DictionaryIsNone", 2);
    light(out, 0x38, 0x21, file.name, 2);
    light(out, 0x39, 0x31, "\\U+5149^J", 1);
    out.text(0, "ENDSEC");
    beginSection(out, "OBJECTS");
    photometry(out, 0x52, false);
    dictionary(out, 0x51, 360, 0x52);
    dictionary(out, 0x41, 360, 0x42);
    dictionary(out, 0x61, 360, 0x88);
    dictionary(out, 0x71, 360, 0x41);
    photometry(out, 0x42, true);
    photometry(out, 0x42, false);
    photometry(out, 0x91, true);
    dictionary(out, 0x21, 350, 0x91);
    out.text(0, "ENDSEC");
    out.text(0, "EOF");
    return (file.form == Form::Ascii ? std::string() : std::string(dxf::binarySentinel())) + out.take();
}

class SummariesInAFile : public testing::TestWithParam<FileForm> {};

TEST_P(SummariesInAFile, AreOfEachLight) {
    const auto database = parsed(fileOf(GetParam()));
    std::vector<std::pair<ZrString, int>> summaries;
    for (const ZrDbObjectId id : lightsOf(*database)) {
        const ZrDbLightSummary summary = summaryOf(id);
        summaries.emplace_back(summary.name, summary.type);
    }
    EXPECT_EQ(summaries, (std::vector<std::pair<ZrString, int>>{{L"Web", 10},
                                                                {L"Point", 2},
                                                                {L"Spot", 3},
                                                                {L"NoDictionary", 2},
                                                                {L"DictionaryIsMissing", 2},
                                                                {L"RecordIsMissing", 2},
                                                                {L"RecordIsNone", 2},
                                                                {L"DictionaryIsNone", 2},
                                                                {L"光", 10},
                                                                {L"光\n", 1}}));
}

TEST_P(SummariesInAFile, AreWhatOpeningTheLightsTells) {
    const auto database = parsed(fileOf(GetParam()));
    ASSERT_EQ(lightsOf(*database).size(), 10U);
    expectSummariesToEqualTheLights(*database);
}

TEST_P(SummariesInAFile, AreTheSameWhenTheLightsAreAskedBackwards) {
    const auto database = parsed(fileOf(GetParam()));
    const std::vector<ZrDbObjectId> lights = lightsOf(*database);
    EXPECT_EQ(summaryOf(lights[8]).type, 10);
    EXPECT_EQ(summaryOf(lights[1]).type, 2);
    EXPECT_EQ(summaryOf(lights[0]).type, 10);
}

constexpr const char* kUtf8 = "\xE5\x85\x89";
constexpr const char* kGbk = "\xB9\xE2";
constexpr dxf::TextStyle kPadded{LineEnd::Lf, true, true};
constexpr dxf::TextStyle kPaddedCrLf{LineEnd::CrLf, true, true};
constexpr dxf::TextStyle kCrLf{LineEnd::CrLf, false, false};

INSTANTIATE_TEST_SUITE_P(Files, SummariesInAFile,
                         testing::Values(FileForm{"AC1009Binary", "AC1009", "ANSI_936", kGbk, Form::Binary8},
                                         FileForm{"AC1012", "AC1012", "ANSI_936", kGbk, Form::Ascii, kCrLf},
                                         FileForm{"AC1014", "AC1014", "ANSI_936", kGbk, Form::Ascii, kPadded},
                                         FileForm{"AC1015", "AC1015", "ANSI_936", kGbk, Form::Ascii, kPaddedCrLf},
                                         FileForm{"AC1015Binary", "AC1015", "ANSI_936", kGbk, Form::Binary16},
                                         FileForm{"AC1018", "AC1018", "ANSI_936", kGbk},
                                         FileForm{"AC1021", "AC1021", "ANSI_936", kUtf8, Form::Ascii, kPadded},
                                         FileForm{"AC1024", "AC1024", "ANSI_1252", kUtf8, Form::Ascii, kPaddedCrLf},
                                         FileForm{"AC1027", "AC1027", "ANSI_936", kUtf8, Form::Ascii, kCrLf},
                                         FileForm{"AC1032", "AC1032", "ANSI_936", kUtf8},
                                         FileForm{"AC1032Binary", "AC1032", "ANSI_936", kUtf8, Form::Binary16}),
                         [](const auto& info) { return info.param.what; });

} // namespace
} // namespace quor::db
