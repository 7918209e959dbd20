#pragma once

#include <cstdint>

/// How often the program has allocated memory so far, Qt and the C library included.
std::int64_t AllocationsSoFar();
