#pragma once

#include "HostExport.h"

/// Takes the permission to write from others in all files and folders that this program makes from now on, whatever
/// umask it was started with. The host does so in each file that it writes by itself; folders, and what the library
/// makes, follow the umask of the program. Call it at the start, before there are threads.
///
/// @code
/// int main(int argc, char* argv[])
/// {
///     DenyWritingByOthers();
/// @endcode
CABHOST_EXPORT void DenyWritingByOthers();
