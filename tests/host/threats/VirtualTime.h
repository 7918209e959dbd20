#pragma once

#include <cstdint>

/// The steady clock of this program, which waits for nothing: where its main thread would wait for a time, that time
/// has passed. The wall clock stays as it is.
namespace VirtualTime {

/// To be called before the application is made.
void Begin();

/// Milliseconds that were not waited for.
std::int64_t Skipped();

} // namespace VirtualTime
