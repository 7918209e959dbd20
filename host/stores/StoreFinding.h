#pragma once

#include <QString>

/// What stands under the name of a store's file.
enum EStoreFileState : int
{
    STORE_FILE_CLEAN,
    STORE_FILE_MISSING,
    STORE_FILE_EMPTY,        ///< zero bytes
    STORE_FILE_DAMAGED,      ///< ours, but not in order
    STORE_FILE_FOREIGN,      ///< not recognisable as ours
    STORE_FILE_NEWER,        ///< ours, written by a later version of this program
    STORE_FILE_INACCESSIBLE, ///< cannot be looked at now; nothing is known about it
};

/// The state of a file and, unless it is clean, what was found, in words that can follow its name.
struct tagStoreFinding
{
    EStoreFileState state;
    QString words;
};
