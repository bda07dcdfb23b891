// Objects that the host knows no more of than what all have in common.
#include "tests/host/props/selected.h"

#include "host/db/database.h"
#include "tests/host/db/drawings.h"

#include <gmock/gmock.h>

namespace quor::props {
namespace {

using db::drawings::bytesOf;
using db::drawings::drawing;
using db::drawings::parsed;

struct Saved {
    const char* version;
    const char* before;
    const char* after;
};

std::string drawingOf(const char* version, const char* entity) {
    const std::string rest = "70\n0\n62\n7\n6\nContinuous\n";
    const std::string layers = "0\nLAYER\n2\n0\n" + rest + "0\nLAYER\n2\nWalls\n" + rest;
    return drawing(version, {"", "", "0\nTABLE\n2\nLAYER\n70\n2\n" + layers + "0\nENDTAB\n", entity, ""});
}

class OtherKinds : public Selected, public testing::WithParamInterface<Saved> {
protected:
    OtherKinds() {
        host.session().documents().adopt(parsed(drawingOf(GetParam().version, GetParam().before)), "other.dxf");
        select(host.document().drawing().entities(host.document().database()->modelSpaceId()));
    }
};

TEST_P(OtherKinds, HaveTheGeneralRowsAndAreSavedAsTheyWereButForWhatWasChanged) {
    EXPECT_EQ(ids().size(), 7U);
    EXPECT_THAT(text("kind"), testing::AnyOf(L"CIRCLE", L"TEXT"));

    EXPECT_EQ(set("color", L"1"), std::nullopt);
    EXPECT_EQ(set("layer", L"Walls"), std::nullopt);

    EXPECT_EQ(bytesOf(host.document().drawing()), drawingOf(GetParam().version, GetParam().after));
}

INSTANTIATE_TEST_SUITE_P(
    Types, OtherKinds,
    testing::Values(
        Saved{"AC1009", "0\nCIRCLE\n8\n0\n10\n0.0\n20\n0.0\n40\n2.5\n",
              "0\nCIRCLE\n8\nWalls\n10\n0.0\n20\n0.0\n40\n2.5\n62\n1\n"},
        Saved{"AC1015", "0\nCIRCLE\n5\n40\n100\nAcDbEntity\n8\n0\n62\n3\n100\nAcDbCircle\n10\n0.0\n20\n0.0\n40\n2.5\n",
              "0\nCIRCLE\n5\n40\n100\nAcDbEntity\n8\nWalls\n62\n1\n100\nAcDbCircle\n10\n0.0\n20\n0.0\n40\n"
              "2.5\n"},
        Saved{"AC1015",
              "0\nTEXT\n5\n40\n100\nAcDbEntity\n8\n0\n100\nAcDbText\n10\n0.0\n20\n0.0\n40\n2.5\n1\nHi\n100\n"
              "AcDbText\n",
              "0\nTEXT\n5\n40\n100\nAcDbEntity\n8\nWalls\n62\n1\n100\nAcDbText\n10\n0.0\n20\n0.0\n40\n2.5\n1"
              "\nHi\n100\nAcDbText\n"}));

} // namespace
} // namespace quor::props
