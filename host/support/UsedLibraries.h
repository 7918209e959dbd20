#pragma once

#include "HostExport.h"

#include <QList>
#include <QString>

/// A library of others that the host is made of.
struct tagUsedLibrary
{
    const char* name;
    QString version;     ///< as the library that is loaded tells it; of JsonCpp, the one that was built with; empty for
                         ///< Shapelib
    const char* licence; ///< by its SPDX identifier, or "public domain"
    const char* use;     ///< what it is used for, in English, for translation
};

/// The libraries of others that the host is made of, with their licences.
///
/// @code
/// for (const tagUsedLibrary& library : UsedLibraries())
///     Show(library.name, library.version, library.licence);
/// @endcode
///
/// Needs an application object, for the database driver. May be used from any thread.
CABHOST_EXPORT QList<tagUsedLibrary> UsedLibraries();
