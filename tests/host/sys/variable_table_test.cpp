#include "host/sys/system_variables.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace quor::sys;

class VariableCatalogue : public testing::TestWithParam<const VariableRow*> {
protected:
    const VariableRow& row() const { return *GetParam(); }
};

namespace {

std::vector<const VariableRow*> allRows() {
    std::vector<const VariableRow*> all;
    for (const VariableRow& row : variableRows())
        all.push_back(&row);
    return all;
}

std::string nameOf(const testing::TestParamInfo<const VariableRow*>& info) {
    const ZrString name = info.param->name;
    return {name.begin(), name.end()};
}

} // namespace

INSTANTIATE_TEST_SUITE_P(All, VariableCatalogue, testing::ValuesIn(allRows()), nameOf);

TEST_P(VariableCatalogue, NameIsInCapitals) {
    EXPECT_EQ(ZrString(row().name).find_first_not_of(L"ABCDEFGHIJKLMNOPQRSTUVWXYZ"), ZrString::npos);
    EXPECT_NE(*row().name, L'\0');
}

TEST_P(VariableCatalogue, BoundsAreInOrderAndOnNumbersOnly) {
    EXPECT_LE(row().low, row().high);
    EXPECT_TRUE(!row().hasBounds() || row().type == VariableType::Short || row().type == VariableType::Real);
}

TEST_P(VariableCatalogue, WholeNumberThatCanBeSetHasBounds) {
    EXPECT_TRUE(row().readOnly || row().type != VariableType::Short || row().hasBounds());
}

TEST_P(VariableCatalogue, HeaderVariableHasAGroupCode) {
    EXPECT_EQ(row().headerCode != 0, row().home == VariableHome::Header);
}

TEST_P(VariableCatalogue, InitialValueIsOfTheTypeOfTheVariable) {
    EXPECT_TRUE(row().read != nullptr || row().initial.index() == static_cast<std::size_t>(row().type));
}

TEST_P(VariableCatalogue, InitialValueIsWithinTheBounds) {
    const auto* initial = std::get_if<short>(&row().initial);
    EXPECT_TRUE(row().read != nullptr || initial == nullptr || (*initial >= row().low && *initial <= row().high));
}

TEST_P(VariableCatalogue, VariableOfTheDrawingHasItsOwnFunctions) {
    const bool needsFunctions = row().home == VariableHome::Drawing || row().home == VariableHome::Viewport;
    EXPECT_TRUE(!needsFunctions || row().read != nullptr);
    EXPECT_TRUE(!needsFunctions || row().readOnly == (row().write == nullptr));
}

TEST(VariableTable, NamesAreSortedAndUnique) {
    const auto rows = variableRows();
    const bool sorted = std::is_sorted(rows.begin(), rows.end(), [](const VariableRow& a, const VariableRow& b) {
        return ZrString(a.name) <= b.name;
    });
    EXPECT_TRUE(sorted);
}
