// The check that fuzzed properties are stated with; unlike assert it holds in every build.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace sonavel {

/// Ends the program when a property does not hold, so that the fuzzer keeps the input.
inline void require(bool holds, const char* property)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", property);
    std::abort();
}

} // namespace sonavel
