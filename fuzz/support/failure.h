// How a check of a fuzz target fails: the reason on standard error, then an abort, which the fuzzer keeps the input of.
#pragma once

#include <string>

namespace quor::fuzz {

[[noreturn]] void fail(const std::string& what);
void require(bool holds, const char* what);

} // namespace quor::fuzz
