#pragma once

/// Milliseconds, for a busy machine: nothing takes that long.
const int Deadline = 60000;
