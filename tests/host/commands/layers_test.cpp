// LAYERS where there is a palette; that it lists where there is none is a transcript.
#include "host/document.h"
#include "host/ed/input_stack.h"
#include "host/ed/script_run.h"
#include "host/ed/script_source.h"
#include "host/session.h"
#include "tests/support/silent_front_end.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

class FrontEndWithPalette final : public test::SilentFrontEnd {
public:
    bool showLayers() override {
        ++shown;
        return true;
    }
    void print(std::wstring_view text) override { printed += text; }

    int shown = 0;
    ZrString printed;
};

TEST(Layers, AreShownInThePalette) {
    const test::TemporaryFolder folder;
    FrontEndWithPalette front;
    Session session(
        front,
        {.settingsFile = folder.path() / "settings.ini", .resourceFolder = {}, .moduleFolders = {}, .language = L"en"});
    session.documents().newDocument();

    session.input().push(std::make_unique<ed::ScriptSource>("LAYERS\n"));
    ed::runSources(session, false);

    EXPECT_EQ(front.shown, 1);
    EXPECT_EQ(front.printed.find(L"White"), ZrString::npos);
}

} // namespace
} // namespace quor
