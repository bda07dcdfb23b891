#include "host/dxf/tag_reader.h"

#include "tests/host/dxf/samples.h"

#include <gtest/gtest.h>
#include <vector>

namespace quor::dxf {
namespace {

std::vector<Tag> allTags(std::string_view file, Form form, std::size_t begin = 0) {
    TagReader reader(file, form, begin, file.size());
    std::vector<Tag> tags;
    for (Tag tag; reader.next(tag);) {
        tags.push_back(tag);
    }
    return tags;
}

TEST(TagReader, KeepsLeadingBlanksOfValuesAndDropsLineEnds) {
    const auto tags = allTags("  1\r\n  text \r\n 40\n1.5\n", Form::Ascii);
    ASSERT_EQ(tags.size(), 2U);
    EXPECT_EQ(tags[0].code, 1);
    EXPECT_EQ(tags[0].raw, "  text ");
    EXPECT_EQ(tags[0].begin, 0U);
    EXPECT_EQ(tags[0].end, 14U);
    EXPECT_EQ(tags[1].begin, 14U);
    EXPECT_EQ(tags[1].asDouble(), 1.5);
}

TEST(TagReader, TakesAValueThatTheFileEndsIn) {
    const auto tags = allTags("0\nEOF", Form::Ascii);
    ASSERT_EQ(tags.size(), 1U);
    EXPECT_TRUE(tags[0].is(0, "EOF"));
    EXPECT_EQ(tags[0].end, 5U);
}

TEST(TagReader, StopsAtABadGroupCodeAndSaysWhere) {
    const std::string_view file = "  1\na\nrubbish\nb\n";
    TagReader reader(file, Form::Ascii, 0, file.size());
    Tag tag;
    EXPECT_TRUE(reader.next(tag));
    EXPECT_FALSE(reader.next(tag));
    EXPECT_TRUE(reader.damaged());
    EXPECT_EQ(reader.position(), 6U);
    EXPECT_EQ(lineOf(file, reader.position()), 3U);
}

TEST(TagReader, ACodeWithoutValueIsDamage) {
    TagReader reader("  1\n", Form::Ascii, 0, 4);
    Tag tag;
    EXPECT_FALSE(reader.next(tag));
    EXPECT_TRUE(reader.damaged());
}

TEST(TagReader, NothingIsNoDamage) {
    TagReader reader("", Form::Ascii, 0, 0);
    Tag tag;
    EXPECT_FALSE(reader.next(tag));
    EXPECT_FALSE(reader.damaged());
}

class EveryForm : public testing::TestWithParam<Form> {};

TEST_P(EveryForm, GivesTheSameValues) {
    const std::string file = samples::written(GetParam());
    const auto tags = allTags(file, GetParam(), GetParam() == Form::Ascii ? 0 : binarySentinel().size());

    ASSERT_EQ(tags.size(), 26U);
    EXPECT_EQ(tags[5].asHandle(), 0x2F0U);
    EXPECT_EQ(tags[12].asInt(), 1);
    EXPECT_EQ(tags[13].asInt(), -70000);
    EXPECT_EQ(tags[14].asInt(), 0x123456789A);
    EXPECT_EQ(tags[15].asBool(), true);
    EXPECT_EQ(tags[17].asDouble(), 1.0);
    EXPECT_EQ(tags[18].asDouble(), -2.5);
    EXPECT_EQ(tags[19].asDouble(), 1e-9);
    EXPECT_EQ(tags[20].raw, "extended");
    EXPECT_EQ(tags[21].code, 1070);
    EXPECT_EQ(tags[21].asInt(), -3);
    EXPECT_TRUE(tags.back().is(0, "EOF"));
    EXPECT_EQ(tags.back().end, file.size());
}

INSTANTIATE_TEST_SUITE_P(TagReader, EveryForm, testing::Values(Form::Ascii, Form::Binary16, Form::Binary8));

TEST_P(EveryForm, GivesOnlyTheTagsThatAreWantedAndExtendedData) {
    const std::string file = samples::written(GetParam());
    TagReader reader(file, GetParam(), GetParam() == Form::Ascii ? 0 : binarySentinel().size(), file.size());
    const CodeSet wanted{67, 330};
    std::vector<int> codes;
    for (Tag tag; reader.next(tag, wanted);) {
        codes.push_back(tag.code);
    }
    EXPECT_EQ(codes, (std::vector<int>{330, 67, 1000, 1070}));
    EXPECT_FALSE(reader.damaged());
    EXPECT_EQ(reader.position(), file.size());
}

TEST(TagReader, StopsAtABadGroupCodeAmongTagsThatNobodyWants) {
    const std::string_view file = "  1\na\nrubbish\nb\n 40\n1.0\n";
    TagReader reader(file, Form::Ascii, 0, file.size());
    Tag tag;
    EXPECT_FALSE(reader.next(tag, CodeSet{40}));
    EXPECT_TRUE(reader.damaged());
    EXPECT_EQ(reader.position(), 6U);
}

TEST(TagReader, FindsLinesOfAnyLength) {
    for (std::size_t length = 0; length < 200; ++length) {
        const std::string value(length, 'x');
        const std::string file = "1\n" + value + "\n2\nend\n";
        const auto tags = allTags(file, Form::Ascii);
        ASSERT_EQ(tags.size(), 2U);
        EXPECT_EQ(tags[0].raw, value);
        EXPECT_EQ(tags[1].raw, "end");
    }
}

TEST(TagReader, GoesOnWhereItIsSetTo) {
    const std::string_view file = "  1\na\nrubbish\nb\n 40\n1.0\n";
    TagReader reader(file, Form::Ascii, 0, file.size());
    Tag tag;
    EXPECT_TRUE(reader.next(tag));
    EXPECT_FALSE(reader.next(tag));
    reader.seek(16);
    EXPECT_TRUE(reader.next(tag));
    EXPECT_TRUE(tag.is(40, "1.0"));
    reader.seek(0);
    EXPECT_TRUE(reader.next(tag));
    EXPECT_TRUE(tag.is(1, "a"));
}

TEST(TagReader, ReadsNoFurtherThanItsEnd) {
    const std::string_view file = "1\nabc\n2\nd\n";
    TagReader reader(file, Form::Ascii, 0, 4);
    Tag tag;
    EXPECT_TRUE(reader.next(tag));
    EXPECT_EQ(tag.raw, "ab");
    EXPECT_EQ(tag.end, 4U);
    EXPECT_FALSE(reader.next(tag));
    EXPECT_FALSE(reader.damaged());
}

TEST(TagReader, BinaryDataStandsBehindItsLength) {
    const std::string file = samples::written(Form::Binary16);
    EXPECT_EQ(allTags(file, Form::Binary16, binarySentinel().size())[16].raw, std::string_view("\x08\x00\xFF", 3));
}

} // namespace
} // namespace quor::dxf
