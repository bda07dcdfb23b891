// The tags of an object as a person reads them.
#include "tests/host/db/drawings.h"

#include <gmock/gmock.h>

namespace quor::db {
namespace {

using namespace drawings;
using testing::Each;
using testing::Not;
using testing::SizeIs;

// The values of the group code in all entities of model space.
std::vector<ZrString> valuesOf(Database& database, int code) {
    std::vector<ZrString> values;
    for (const ZrDbObjectId id : database.entities(database.interface().modelSpaceId()))
        for (const auto& [tagCode, value] : database.tags(id))
            if (tagCode == code)
                values.push_back(value);
    return values;
}

MATCHER(IsHexadecimal, "") { return !arg.empty() && arg.find_first_not_of(L"0123456789ABCDEF") == ZrString::npos; }

TEST(TagText, BytesOfABinaryDrawingAreHexadecimal) {
    constexpr int bytes = 310;
    const auto database = opened("as_sample_AC1032_binary.dxf");

    const std::vector<ZrString> values = valuesOf(*database, bytes);

    EXPECT_THAT(values, Not(SizeIs(0)));
    EXPECT_THAT(values, Each(IsHexadecimal()));
}

} // namespace
} // namespace quor::db
