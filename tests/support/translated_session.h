// A session in a language of its own, whose pack is one file of given texts. A keyword list of a pack may hold words
// that no prompt knows.
#pragma once

#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/rx/module_loader.h"
#include "sdk/db/light.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "tests/support/test_session.h"

#include <fstream>
#include <gtest/gtest.h>
#include <optional>

namespace quor::test {

class TranslatedSession {
public:
    // `file` is that of a resource module; `texts` its lines.
    TranslatedSession(const char* file, const std::string& texts)
        : session_(front_, {.settingsFile = folder_.path() / "settings.ini",
                            .resourceFolder = withPack(folder_.path(), file, texts),
                            .moduleFolders = {QUOR_BUILD_DIR "/lib/quor/modules"},
                            .language = L"en"}) {
        session_.documents().newDocument();
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
    }

    [[nodiscard]] Session& session() { return session_; }
    [[nodiscard]] ScriptedFrontEnd& front() { return front_; }

private:
    static const std::filesystem::path& withPack(const std::filesystem::path& folder, const char* file,
                                                 const std::string& texts) {
        const std::filesystem::path language = folder / "lang" / "en";
        std::filesystem::create_directories(language);
        std::ofstream(language / file) << texts;
        return folder;
    }

    TemporaryFolder folder_;
    ScriptedFrontEnd front_;
    Session session_;
};

// Tests of the module as it is loaded into such a session: it reads its keyword lists when it is loaded.
class TranslatedModuleTest : public testing::Test {
protected:
    void start(const char* file, const std::string& texts) {
        session_.emplace(file, texts);
        ASSERT_EQ(session_->session().modules().loadModule(L"light.so"), Quor::eOk);
    }
    // Makes a light that is kept; the lines answer its options.
    void pointLight(std::initializer_list<ZrString> lines) {
        front().type(L"0,0,0");
        front().type(lines);
        front().type(L"X");
        ASSERT_EQ(session_->session().processor().run(L"POINTLIGHT", false).result, RTNORM);
    }
    [[nodiscard]] ScriptedFrontEnd& front() { return session_->front(); }

    std::optional<TranslatedSession> session_;
};

} // namespace quor::test
