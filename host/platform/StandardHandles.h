#pragma once

#include "HostExport.h"

/// Takes the numbers of standard input, output and error where the program was started without them, as a plain
/// launcher may do. A file that is opened later would get such a number, and what is printed would be written into it.
/// Reading and printing fail as without this call. Call it at the start, before anything opens a file.
///
/// @code
/// int main(int argc, char* argv[])
/// {
///     ReserveStandardHandles();
/// @endcode
CABHOST_EXPORT void ReserveStandardHandles();
