#pragma once

/// What a user-log entry records. Logs and hosts use the numbers: they never change.
enum EDiagnosticType : int
{
    DIAG_TYPE_PARAM = 0, ///< a parameter was changed
    DIAG_TYPE_EVENT = 1, ///< an event
    DIAG_TYPE_DTC = 2,   ///< a diagnostic trouble code
};
