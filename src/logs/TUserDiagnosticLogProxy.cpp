#include "logs/TUserDiagnosticLogProxy.h"

#include "access/TSettingsMembers.h"
#include "platform/TConfigManager.h"

#include <QStringBuilder>
#include <QStringList>

using Proxy = TUserDiagnosticLogProxy;

QMutex Proxy::Mutex;

Proxy::TUserDiagnosticLogProxy() : TDiagnosticLogProxy(TSettingsMembers::UserLog()) {}
Proxy::~TUserDiagnosticLogProxy() = default;

void Proxy::Lock() { Mutex.lock(); }
void Proxy::Unlock() { Mutex.unlock(); }

bool Proxy::AddEntry(EDiagnosticComponent component, EDiagnosticType type, int code, const QString& text1,
                     const QString& text2)
{
    const auto log = m_Log.By(*this); // also while the line is composed, so that the entries keep their order
    const QString codeField =
        type == DIAG_TYPE_DTC ? QString::number(code) : ConfigManager->GetDiagnosticText(component, type, code);
    return log->AddEntry(GetComponentStr(component) % GetSeparator() % GetTypeStr(type) % GetSeparator() % codeField %
                         GetSeparator() % GetSeparatorReplacedStr(text1) % GetSeparator() %
                         GetSeparatorReplacedStr(text2));
}

const QString& Proxy::GetSeparator()
{
    static const QString separator = QLatin1String(",");
    return separator;
}

const QString& Proxy::GetSeparatorReplacement()
{
    static const QString replacement = QLatin1String(" ");
    return replacement;
}

QString Proxy::GetSeparatorReplacedStr(const QString& text)
{
    if (!text.contains(GetSeparator()))
        return text;
    QString replaced = text;
    return replaced.replace(GetSeparator(), GetSeparatorReplacement());
}

// Indexed by the enumerations; value() answers a number outside them with an empty string.

QString Proxy::GetTypeStr(EDiagnosticType type)
{
    static const QStringList texts = {QLatin1String("Param"), QLatin1String("Event"), QLatin1String("DTC")};
    return texts.value(type);
}

QString Proxy::GetComponentStr(EDiagnosticComponent component)
{
    static const QStringList texts = {QLatin1String("Console"), QLatin1String("GPS Receiver"),
                                      QLatin1String("Steering Controller"), QLatin1String("Implement"), QString()};
    return texts.value(component);
}
