#pragma once

#include "logs/EDiagnosticComponent.h"
#include "logs/EDiagnosticType.h"
#include "logs/TDiagnosticLogProxy.h"
#include "platform/Export.h"

#include <QMutex>
#include <QString>

/// Façade of the user log of Settings. Safe from any thread: each call holds Mutex, which is not recursive.
///
///     TUserDiagnosticLogProxy log;
///     log.AddEntry(DIAG_COMPONENT_IMPLEMENT, DIAG_TYPE_DTC, 512, nozzleName, QLatin1String("blocked"));
class CABSETTINGS_EXPORT TUserDiagnosticLogProxy : public TDiagnosticLogProxy
{
public:
    TUserDiagnosticLogProxy();
    ~TUserDiagnosticLogProxy() override;

    void Lock() override;
    void Unlock() override;
    static QMutex Mutex;

    using TDiagnosticLogProxy::AddEntry;

    /// Logs one event: date and time, then "component,type,code,text1,text2". The code of DIAG_TYPE_DTC is written in
    /// decimal; for the other types the host's store gives a name, which is written unchanged. Commas in the two texts
    /// become blanks, so that a text never adds a field. Line breaks are not replaced. Result as of
    /// TDiagnosticLog::AddEntry().
    virtual bool AddEntry(EDiagnosticComponent component, EDiagnosticType type, int code, const QString& text1,
                          const QString& text2);

    /// "," between the fields of a line, and " " which replaces it inside a field.
    static const QString& GetSeparator();
    static const QString& GetSeparatorReplacement();
    static QString GetSeparatorReplacedStr(const QString& text);

    /// The English name in the log, never translated; empty for a number that is not in the enumeration.
    static QString GetTypeStr(EDiagnosticType type);
    static QString GetComponentStr(EDiagnosticComponent component);
};
