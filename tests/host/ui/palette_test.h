// A session with a palette of the test's own, and commands that do something to a light.
#pragma once

#include "host/ui/user_interface.h"
#include "sdk/db/database.h"
#include "sdk/rx/command.h"
#include "sdk/rx/result_codes.h"
#include "tests/host/ui/logging_palette.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <memory>

namespace quor::test {

class PaletteTest : public testing::Test {
protected:
    static CZrRxPaletteSetManager& palettes() { return *Singleton<CZrRxPaletteSetManager>::instancePtr(true); }
    static CZrMainFrame& frame() { return *zredGetQuorFrame(); }

    LoggingPalette& append(const ZrString& title = L"Lamps", const std::string& name = {}) {
        auto palette = std::make_unique<LoggingPalette>(log_, name);
        LoggingPalette& appended = *palette;
        palettes().Append(std::move(palette), title);
        return appended;
    }
    // A light named "Lamp", in the current drawing.
    static ZrDbObjectId addLight() {
        auto light = std::make_unique<ZrDbLight>();
        light->setName(L"Lamp");
        const ZrDbObjectId id = RxCommand::postToDb(*light, nullptr, nullptr, true);
        (void)light.release(); // the drawing owns it now
        return id;
    }
    ScriptedFrontEnd& front() { return test_.front(); }

    Log log_;
    TestSession test_;
};

} // namespace quor::test
