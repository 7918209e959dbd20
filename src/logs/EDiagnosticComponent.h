#pragma once

/// The part of the machine that a user-log entry is about. Logs and hosts use the numbers: they never change.
enum EDiagnosticComponent : int
{
    DIAG_COMPONENT_CONSOLE = 0,
    DIAG_COMPONENT_GPS_RECEIVER = 1,
    DIAG_COMPONENT_STEERING_CONTROLLER = 2,
    DIAG_COMPONENT_IMPLEMENT = 3,
    DIAG_COMPONENT_NONE = 4,
};
