#include "sdk/ui/resource_templates.h"

#include "host/texts/text.h"
#include "host/ui/host_resources.h"
#include "host/ui/resource_lookup.h"
#include "sdk/ui/image_list.h"
#include "tests/support/translated_session.h"

#include <gtest/gtest.h>

using namespace quor;
using ui::DialogTemplate;
using ui::PictureResource;

namespace {

constexpr DialogTemplate dialogs[] = {{7, {100, 50}, {}}};
constexpr PictureResource pictures[] = {{31, {0, L"圆"}, {21, 21}, "<svg/>"}, {32, {0, L"方"}, {16, 16}, "<svg/>"}};
constexpr ZwUiResources own{{}, dialogs, pictures};

TEST(ResourcesInUse, AreTheHostsUntilOthersAreSet) {
    EXPECT_EQ(zwGetResourceInstance(), nullptr);
    EXPECT_NE(ui::findPicture(zwGetResourceInstance(), 58013), nullptr);
}

TEST(ResourcesInUse, AnswerWhatTheyWereWhenOthersAreSet) {
    EXPECT_EQ(zwSetResourceInstance(&own), nullptr);
    EXPECT_EQ(zwGetResourceInstance(), &own);
    EXPECT_EQ(zwSetResourceInstance(nullptr), &own);
}

TEST(ResourcesInUse, AreTheOnesBeforeAgainBehindABlock) {
    const ZwUiResources inner{};
    const ZwResourceScope outerBlock(&own);
    {
        const ZwResourceScope innerBlock(&inner);
        EXPECT_EQ(zwGetResourceInstance(), &inner);
    }
    EXPECT_EQ(zwGetResourceInstance(), &own);
}

TEST(ResourcesInUse, FindDialogsByNumber) {
    const ZwResourceScope scope(&own);

    EXPECT_EQ(ui::findDialog(7), &dialogs[0]);
    EXPECT_EQ(ui::findDialog(8), nullptr);
}

TEST(Bitmap, IsLoadedFromTheResourcesInUse) {
    const ZwResourceScope scope(&own);
    CBitmap bitmap;

    EXPECT_TRUE(bitmap.LoadBitmap(32));
    EXPECT_EQ(bitmap.picture(), &pictures[1]);
}

TEST(Bitmap, ThatIsNotThereLeavesNoPicture) {
    const ZwResourceScope scope(&own);
    CBitmap bitmap;
    bitmap.LoadBitmap(32);

    EXPECT_FALSE(bitmap.LoadBitmap(33));
    EXPECT_EQ(bitmap.picture(), nullptr);
}

TEST(Icon, IsLoadedFromTheGivenResourcesWhateverIsInUse) {
    const ZwUiResources inUse{};
    const ZwResourceScope scope(&inUse);
    CIcon icon;

    EXPECT_TRUE(icon.LoadIcon(&own, 31));
    EXPECT_EQ(icon.picture(), &pictures[0]);
    EXPECT_FALSE(icon.LoadIcon(&own, 58013));
    EXPECT_EQ(icon.picture(), nullptr);
}

class HostResources : public testing::Test {
protected:
    HostResources() { setLanguage(Language::Chinese); }
    ~HostResources() override { setLanguage(Language::Chinese); }
    static const PictureResource* lightList() { return ui::findPicture(nullptr, ui::kLightListIcon); }
};

TEST_F(HostResources, HoldTheIconOfAListOfLights) {
    ASSERT_NE(lightList(), nullptr);
    EXPECT_EQ(lightList()->size, (CSize{16, 16}));
    EXPECT_TRUE(lightList()->svg.starts_with("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"16\" height=\"16\""));
    EXPECT_TRUE(lightList()->svg.ends_with("</svg>\n"));
    EXPECT_EQ(zwResourceText(lightList()->name), L"光源列表");
}

TEST_F(HostResources, NameTheirPicturesInEnglishToo) {
    setLanguage(Language::English);
    EXPECT_EQ(zwResourceText(lightList()->name), L"List of lights");
}

// A session whose command library has one text, 900.
class ResourceText : public testing::Test {
protected:
    ~ResourceText() override { setLanguage(Language::Chinese); }
    void translate(const char* translation) {
        session_.emplace("quorcmdres.txt", "900 = \"" + std::string(translation) + "\"\n");
    }

private:
    std::optional<test::TranslatedSession> session_;
};

TEST_F(ResourceText, IsTheBuiltInOneWithoutASession) { EXPECT_EQ(zwResourceText({900, L"关闭"}), L"关闭"); }

TEST_F(ResourceText, IsThatOfTheCommandLibrary) {
    translate("Close");
    EXPECT_EQ(zwResourceText({900, L"关闭"}), L"Close");
}

TEST_F(ResourceText, OfWhichTheCommandLibraryHasNoneIsTheBuiltInOne) {
    translate("Close");
    EXPECT_EQ(zwResourceText({901, L"打开"}), L"打开");
}

TEST_F(ResourceText, ThatIsEmptyThereIsTheBuiltInOne) {
    translate("");
    EXPECT_EQ(zwResourceText({900, L"关闭"}), L"关闭");
}

TEST_F(ResourceText, WithoutANumberIsTheBuiltInOne) { EXPECT_EQ(zwResourceText({0, L"圆"}), L"圆"); }

} // namespace
