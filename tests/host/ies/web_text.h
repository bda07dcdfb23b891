// Small web files for the tests, to be changed in one part each.
#pragma once

#include "host/ies/reader.h"

#include <gtest/gtest.h>

#include <string>

namespace quor::ies {

// Lines 1 to 3 are the label, 4 TILT, 5 and 6 the header, 7 the vertical angles, 8 the horizontal ones, 9 the candela.
struct WebText {
    std::string label = "IESNA:LM-63-2002\n[TEST] 4711\n[MANUFAC] Lampworks\n";
    std::string tilt = "TILT=NONE\n";
    std::string header = "1 -1 1 3 1 1 2 0 0 0\n";
    std::string factors = "1 1 10\n";
    std::string vertical = "0 45 90\n";
    std::string horizontal = "0\n";
    std::string candela = "100 80 20\n";

    [[nodiscard]] std::string text() const { return label + tilt + header + factors + vertical + horizontal + candela; }
};

// The web in a text that must be one.
inline PhotometricWeb soundText(const std::string& text) {
    auto web = readWeb(text);
    EXPECT_TRUE(web.ok()) << text;
    return web.ok() ? std::move(web).value() : PhotometricWeb{};
}

inline PhotometricWeb sound(const WebText& parts) { return soundText(parts.text()); }

// The error of a text that must be none.
inline Error refusedText(const std::string& text) {
    const auto web = readWeb(text);
    EXPECT_FALSE(web.ok()) << text;
    return web.ok() ? Error{} : web.error();
}

inline Error refused(const WebText& parts) { return refusedText(parts.text()); }

} // namespace quor::ies
