#pragma once

#include "HostExport.h"
#include "logs/EDiagnosticComponent.h"
#include "logs/EDiagnosticType.h"

#include <QString>

/// The name of an event in the user log; the number itself for one that has no name. The reference stays valid for the
/// life of the process. Safe from any thread.
CABHOST_EXPORT const QString& DiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code);
