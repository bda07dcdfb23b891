// A host with the light module and one drawing, for the benchmarks that make lights from scripts.
#pragma once

#include "bench/support/drawing_maker.h"
#include "host/session.h"
#include "tests/support/silent_front_end.h"

#include <string>

namespace quor::bench {

// Shows nothing and has no person behind it. Its drawing is without default lighting, so that no command asks about it.
class LightSession {
public:
    LightSession();

    // Opens a new drawing; false when that, or the module, did not come up.
    [[nodiscard]] bool openNew();
    // Opens a drawing with that many lines in its model space, from a file.
    [[nodiscard]] bool openWithLines(std::size_t lines);

    // Runs a script; false when a command failed.
    [[nodiscard]] bool run(const std::string& script);
    // The same; answers the seconds that it took, less than 0 when a command failed.
    [[nodiscard]] double secondsFor(const std::string& script);

private:
    [[nodiscard]] bool prepare();

    ScratchFolder folder_;
    test::SilentFrontEnd front_;
    Session session_;
};

// A script of POINTLIGHT commands with a name each and the answers of `options`. Every light is given a name: default
// names end in a 16-bit number, so that a drawing has 65,536 of them at most.
[[nodiscard]] std::string lightScript(std::size_t first, std::size_t count, const std::string& options = {});

// A script of LINE commands, one line each.
[[nodiscard]] std::string lineScript(std::size_t count);

// Bytes of memory that the program has taken and not given back.
[[nodiscard]] std::size_t memoryInUse();

} // namespace quor::bench
