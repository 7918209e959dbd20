#pragma once

#include <QString>

/// What the name of a store's file refers to.
enum EStoreFileState : int
{
    STORE_FILE_CLEAN,
    STORE_FILE_MISSING,
    STORE_FILE_EMPTY,        ///< a file of zero bytes
    STORE_FILE_DAMAGED,      ///< a store that is damaged
    STORE_FILE_FOREIGN,      ///< not a store
    STORE_FILE_NEWER,        ///< a store that a later version of this program has written
    STORE_FILE_INACCESSIBLE, ///< cannot be read at present; its state is not known
};

/// The state of a file and, unless it is clean, a text that can follow its name in a message.
struct tagStoreFinding
{
    EStoreFileState state;
    QString words;
};
