#pragma once

#include "HostExport.h"
#include "logs/EDiagnosticComponent.h"
#include "logs/EDiagnosticType.h"

#include <QString>

/// The third field of a user-log entry: the name of an event, or for DIAG_TYPE_PARAM the parameter's name in
/// TParameterCatalogue. A code without a name gives the code itself in decimal. Never empty.
///
/// The reference is valid until the same thread calls the function again. May be called from any thread.
///
/// \code
/// DiagnosticText(DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_FIX_LOST); // "Fix lost"
/// DiagnosticText(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_PARAM, PARAM_METRIC);                 // "units.metric"
/// DiagnosticText(DIAG_COMPONENT_IMPLEMENT, DIAG_TYPE_EVENT, 77);                         // "77"
/// \endcode
CABHOST_EXPORT const QString& DiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code);
