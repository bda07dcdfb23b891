#include "fuzz/support/failure.h"

#include <cstdio>
#include <cstdlib>

namespace quor::fuzz {

void fail(const std::string& what) {
    std::fprintf(stderr, "%s\n", what.c_str());
    std::abort();
}

void require(bool holds, const char* what) {
    if (!holds)
        fail(what);
}

} // namespace quor::fuzz
