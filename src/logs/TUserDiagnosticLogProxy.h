#pragma once

#include "logs/EDiagnosticComponent.h"
#include "logs/EDiagnosticType.h"
#include "logs/TDiagnosticLogProxy.h"
#include "platform/Export.h"

#include <QMutex>
#include <QString>

/// The way to the user log of Settings, under a lock of its own.
class CABSETTINGS_EXPORT TUserDiagnosticLogProxy : public TDiagnosticLogProxy
{
public:
    TUserDiagnosticLogProxy();
    ~TUserDiagnosticLogProxy() override;

    void Lock() override;
    void Unlock() override;
    static QMutex Mutex;

    using TDiagnosticLogProxy::AddEntry;

    /// Logs one event as "component,type,code,text1,text2" behind date and time. @p code stands in decimal for a
    /// trouble code and else by the name that the host's store gives it. Commas in the two texts become blanks, so that
    /// free text never adds a field; the host's name is taken as it comes. Result as of TDiagnosticLog::AddEntry().
    virtual bool AddEntry(EDiagnosticComponent component, EDiagnosticType type, int code, const QString& text1,
                          const QString& text2);

    /// "," between the fields of a line, and " " which replaces it inside a field.
    static const QString& GetSeparator();
    static const QString& GetSeparatorReplacement();
    static QString GetSeparatorReplacedStr(const QString& text);

    /// The English name in the log; empty for a number that is none. Never translated.
    static QString GetTypeStr(EDiagnosticType type);
    static QString GetComponentStr(EDiagnosticComponent component);
};
