#include "tests/host/db/light_summaries.h"

namespace quor::db {
namespace {

using namespace drawings;

class SummariesOfADrawing : public testing::TestWithParam<const char*> {};

TEST_P(SummariesOfADrawing, AreWhatOpeningTheLightsTells) {
    const auto database = opened(GetParam());
    ASSERT_FALSE(lightsOf(*database).empty());
    expectSummariesToEqualTheLights(*database);
}

TEST_P(SummariesOfADrawing, MakeNoObjects) {
    const auto database = opened(GetParam());
    for (const ZrDbObjectId id : lightsOf(*database)) {
        summaryOf(id);
        EXPECT_EQ(id.entry()->object, nullptr);
    }
}

INSTANTIATE_TEST_SUITE_P(Drawings, SummariesOfADrawing,
                         testing::Values("own/light_2000.dxf", "own/light_2000_binary.dxf", "own/light_2007.dxf",
                                         "own/light_2018.dxf", "own/every_kind.dxf"));

// A drawing with the one light whose tags are given, and the tags of its photometric record.
std::unique_ptr<Database> withLight(const std::string& tags, const std::string& photometry) {
    Sections sections;
    sections.entities = "0\nLIGHT\n5\n30\n102\n{ACAD_XDICTIONARY\n360\n31\n102\n}\n330\n1F\n" + tags;
    sections.objects =
        "0\nDICTIONARY\n5\n31\n330\n30\n100\nAcDbDictionary\n3\nADSK_XREC_PHOTOMETRICLIGHTINFO\n360\n32\n"
        "0\nXRECORD\n5\n32\n330\n31\n" +
        photometry;
    return parsed(drawing("AC1032", sections));
}

constexpr const char* kEntity = "100\nAcDbEntity\n8\n0\n";
constexpr const char* kWeb = "100\nAcDbXrecord\n280\n1\n290\n1\n300\nlamp.ies\n";

struct OddLight {
    const char* what;
    std::string light;
    std::string photometry;
    ZrString name;
    int type;
};

class SummaryOfAnOddLight : public testing::TestWithParam<OddLight> {};

TEST_P(SummaryOfAnOddLight, IsWhatOpeningItTells) {
    const auto database = withLight(GetParam().light, GetParam().photometry);
    const ZrDbLightSummary summary = summaryOf(lightOf(*database));
    EXPECT_EQ(summary.name, GetParam().name);
    EXPECT_EQ(summary.type, GetParam().type);
    expectSummariesToEqualTheLights(*database);
}

const std::string kLight = "100\nAcDbLight\n90\n1\n";

INSTANTIATE_TEST_SUITE_P(
    Lights, SummaryOfAnOddLight,
    testing::Values(
        OddLight{"Web", kEntity + kLight + "1\nLamp\n70\n2\n", kWeb, L"Lamp", 10},
        OddLight{"SpotWithAWeb", kEntity + kLight + "1\nLamp\n70\n3\n", kWeb, L"Lamp", 3},
        OddLight{"PointWithoutAWeb", kEntity + kLight + "1\nLamp\n70\n2\n", "100\nAcDbXrecord\n290\n0\n290\n1\n",
                 L"Lamp", 2},
        OddLight{"PhotometryThatSaysNothing", kEntity + kLight + "1\nLamp\n70\n2\n", "100\nAcDbXrecord\n280\n1\n",
                 L"Lamp", 2},
        OddLight{"PhotometryWithoutMarkers", kEntity + kLight + "1\nLamp\n70\n2\n", "290\n1\n300\nlamp.ies\n", L"Lamp",
                 10},
        OddLight{"PhotometryInAnotherSubclass", kEntity + kLight + "1\nLamp\n70\n2\n", "100\nOther\n290\n1\n", L"Lamp",
                 2},
        OddLight{"TypeBeforeTheName", kEntity + kLight + "70\n3\n1\nLamp\n", kWeb, L"Lamp", 3},
        OddLight{"TypeTwice", kEntity + kLight + "70\n1\n70\n3\n1\nLamp\n1\nOther\n", kWeb, L"Lamp", 1},
        OddLight{"UnknownType", kEntity + kLight + "1\nLamp\n70\n7\n70\n3\n", kWeb, L"Lamp", 10},
        OddLight{"NoNumberAsType", kEntity + kLight + "1\nLamp\n70\nspot\n", "", L"Lamp", 2},
        OddLight{"NoType", kEntity + kLight + "1\nLamp\n", kWeb, L"Lamp", 10},
        OddLight{"NoName", kEntity + kLight + "70\n1\n", kWeb, L"", 1},
        OddLight{"NoMarkers", "8\n0\n90\n1\n1\nLamp\n70\n3\n", "", L"Lamp", 3},
        OddLight{"NameAndTypeBehindTheLastField", kEntity + kLight + "280\n1\n1\nLamp\n70\n3\n", "", L"", 2},
        OddLight{"NameAndTypeInBraces", kEntity + kLight + "102\n{OTHER\n1\nNo\n70\n1\n102\n}\n1\nLamp\n70\n3\n", "",
                 L"Lamp", 3},
        OddLight{"MarkerInBraces",
                 kEntity + kLight + "102\n{OTHER\n100\nOther\n102\n}\n100\nAcDbLight\n1\nLamp\n70\n3\n", "", L"Lamp",
                 3},
        OddLight{"NameInAnotherSubclass", kEntity + ("100\nOther\n1\nNo\n70\n1\n" + kLight) + "1\nLamp\n70\n3\n", "",
                 L"Lamp", 3},
        OddLight{"SubclassInTwoPieces", kEntity + kLight + "1\nLamp\n100\nOther\n70\n1\n100\nAcDbLight\n70\n3\n", "",
                 L"Lamp", 3},
        OddLight{"NameInExtendedData", kEntity + kLight + "70\n3\n1001\nAPP\n1\nLamp\n", "", L"", 3},
        OddLight{"ExtendedDataBeforeItAll", "1001\nAPP\n" + (kEntity + kLight) + "1\nLamp\n70\n3\n", "", L"", 2},
        OddLight{"EmptyMarkerBeforeAnotherDictionary",
                 "100\n\n102\n{ACAD_XDICTIONARY\n360\n99\n102\n}\n" + (kEntity + kLight) + "1\nLamp\n70\n2\n", kWeb,
                 L"Lamp", 10},
        OddLight{"SecondDictionary",
                 "102\n{ACAD_XDICTIONARY\n360\n99\n102\n}\n" + (kEntity + kLight) + "1\nLamp\n70\n2\n", kWeb, L"Lamp",
                 10},
        OddLight{"CodesWithZerosAndSigns", "+100\nAcDbEntity\n08\n0\n0100\nAcDbLight\n 90 \n1\n+1\nLamp\n070\n+3\n", "",
                 L"Lamp", 3},
        OddLight{"CodeThatIsNone", kEntity + kLight + "-1\nx\n1\nLamp\n70\n3\n", "", L"Lamp", 3},
        OddLight{"LongLinesBeforeTheName",
                 kEntity + ("310\n" + std::string(300, 'A') + "\n" + kLight) + "1\n" + std::string(200, 'x') +
                     "\n70\n3\n",
                 "", ZrString(200, L'x'), 3},
        OddLight{"BlanksAroundTheName", kEntity + kLight + "1\n Lamp \n70\n 3\n", "", L" Lamp ", 3},
        OddLight{"EscapesInTheName", kEntity + kLight + "1\n\\U+5149\n70\n3\n", "", L"光", 3}),
    [](const auto& info) { return info.param.what; });

TEST(LightSummary, IsOfTheLightAsItIsNowOnceItWasChanged) {
    const auto database = opened("own/light_2018.dxf");
    const ZrDbObjectId id = lightOf(*database);
    change(id, [](ZrDbLight& light) {
        light.setName(L"other");
        light.setLightType(DrawableType::kWebLight);
    });
    EXPECT_EQ(summaryOf(id).name, L"other");
    EXPECT_EQ(summaryOf(id).type, 10);
    database->journal().undo();
    database->journal().undo();
    expectSummariesToEqualTheLights(*database);
}

TEST(LightSummary, IsOfANewLightToo) {
    const auto database = Database::makeNew();
    const ZrDbLightSummary summary = summaryOf(addLight(*database, L"new"));
    EXPECT_EQ(summary.name, L"new");
    EXPECT_EQ(summary.type, 2);
}

TEST(LightSummary, IsReadWhileOthersRead) {
    const auto database = opened("own/light_2018.dxf");
    const ZrDbObjectPointer<ZrDbLight> reader(lightOf(*database), ZrDb::kForRead);
    EXPECT_EQ(summaryOf(lightOf(*database)).name, L"聚光灯1");
}

TEST(LightSummary, IsRefusedWhereOpeningIs) {
    const auto database = opened("own/light_2018.dxf");
    const ZrDbObjectId id = lightOf(*database);
    ZrDbLightSummary summary{L"before", 7};
    EXPECT_EQ(zrdbLightSummary(ZrDbObjectId(), summary), Quor::eNullObjectId);
    {
        const ZrDbObjectPointer<ZrDbLight> writer(id, ZrDb::kForWrite);
        EXPECT_EQ(zrdbLightSummary(id, summary), Quor::eWasOpenForWrite);
    }
    erase(id);
    EXPECT_EQ(zrdbLightSummary(id, summary), Quor::eWasErased);
    EXPECT_EQ(summary.name, L"before");
    EXPECT_EQ(summary.type, 7);
}

// A class of its own over lights.
class OtherLight final : public ZrDbLight {
public:
    static ZrRxClass* desc() {
        static ZrRxClass description(L"OtherLight", ZrDbLight::desc(), L"LIGHT");
        return &description;
    }
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }
};

TEST(LightSummary, IsOfNothingElseThanALight) {
    const auto database = Database::makeNew();
    ZrDbLightSummary summary;
    EXPECT_EQ(zrdbLightSummary(addLine(*database), summary), Quor::eNotThatKindOfClass);
    EXPECT_EQ(zrdbLightSummary(database->interface().layerZeroId(), summary), Quor::eNotThatKindOfClass);
    const ZrDbObjectId other = append(database->interface().modelSpaceId(), std::make_unique<OtherLight>());
    EXPECT_EQ(zrdbLightSummary(other, summary), Quor::eNotThatKindOfClass);
}

} // namespace
} // namespace quor::db
