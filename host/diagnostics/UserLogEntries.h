#pragma once

#include "HostExport.h"
#include "logs/EDiagnosticComponent.h"
#include "logs/EDiagnosticType.h"

#include <QString>

/// @p text with a blank in place of every character that a program may take for the end of a line: line feed, carriage
/// return, vertical tab, form feed, the separators 1C to 1E, next line, and the line and paragraph separators.
CABHOST_EXPORT QString WithoutLineBreaks(const QString& text);

/// Adds an entry to the user log, as TUserDiagnosticLogProxy::AddEntry() does, with the line breaks of both texts
/// replaced. A text that an operator typed can then not look like another entry.
///
/// \code
/// if (!AddUserLogEntry(DIAG_COMPONENT_IMPLEMENT, DIAG_TYPE_DTC, 512, nozzleName, state))
///     ++lostEntries;
/// \endcode
///
/// If the log had closed because it could not make its file, it is opened again first. False when the entry is lost: it
/// is counted, and the number of lost lines is written to the log as soon as that is possible.
///
/// Settings must be set. May be called from any thread.
CABHOST_EXPORT bool AddUserLogEntry(EDiagnosticComponent component, EDiagnosticType type, int code,
                                    const QString& text1, const QString& text2);
