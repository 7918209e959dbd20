#pragma once

#include "HostExport.h"

#include <QString>

/// Who changes a parameter.
enum EChangeAuthor : int
{
    CHANGE_AUTHOR_LIBRARY,  ///< the library, or a display that does not say who changes
    CHANGE_AUTHOR_OPERATOR, ///< the operator, on the display
    CHANGE_AUTHOR_TOOL,     ///< a command of the command-line tool
    CHANGE_AUTHOR_IMPORT,   ///< the import of a profile
    CHANGE_AUTHOR_RESTORE,  ///< the restoring of a copy of the store
    CHANGE_AUTHOR_UNDO,     ///< the undoing of a change
    CHANGE_AUTHOR_REPAIR,   ///< the store: the row of the parameter was damaged
};

/// "library", "operator" and so on, as the journal names the author.
CABHOST_EXPORT QString ChangeAuthorName(EChangeAuthor author);

/// Says for a scope, and for one thread, who changes parameters. The store notes it in its journal; see ChangeJournal.
/// Scopes nest. Without one the author is CHANGE_AUTHOR_LIBRARY.
///
/// @code
/// const TChangeAuthor author(CHANGE_AUTHOR_OPERATOR);
/// store.SetParameter(PARAM_METRIC, true, true);
/// @endcode
class CABHOST_EXPORT TChangeAuthor
{
public:
    explicit TChangeAuthor(EChangeAuthor author);
    ~TChangeAuthor();

    TChangeAuthor(const TChangeAuthor&) = delete;
    TChangeAuthor& operator=(const TChangeAuthor&) = delete;

    /// The author of what this thread changes now.
    static EChangeAuthor Current();

private:
    const EChangeAuthor m_Outer;
};
