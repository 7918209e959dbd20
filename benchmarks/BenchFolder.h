#pragma once

#include <QString>

/// Where the rows write: a folder of this run's own, in the folder of temporary files, gone when the program ends.
namespace BenchFolder {

/// Without "/" at its end.
QString Path();

/// The folder @p name in it, made and emptied.
QString Fresh(const char* name);

} // namespace BenchFolder
