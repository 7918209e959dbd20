#pragma once

#include "HostExport.h"
#include "logs/TUserLogAccessor.h"

/// The user log as a QObject, with AddUserLogEntry() behind it: a text with line breaks stays one line of the log.
/// TTerminal publishes one as UserLogAccessorPtr.
///
/// \code
/// UserLogAccessorPtr->AddEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_PARAM, PARAM_ACTIVE_JOB, oldName, newName);
/// \endcode
///
/// May be used from any thread while a terminal is started.
class CABHOST_EXPORT TOneLineLogAccessor : public TUserLogAccessor
{
public:
    TOneLineLogAccessor();
    ~TOneLineLogAccessor() override;

    bool AddEntry(EDiagnosticComponent component, EDiagnosticType type, int code, const QString& text1,
                  const QString& text2) override;
};
