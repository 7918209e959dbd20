#pragma once

#include "platform/TConfigManager.h"

#include <QMap>
#include <QReadLocker>
#include <QReadWriteLock>
#include <QWriteLocker>

/// A parameter store in memory. The library calls it from every thread that uses a façade, so all of it is locked.
class TStore : public TConfigManager
{
public:
    bool SetParameter(EParamID id, const QVariant& value, bool) override
    {
        const QWriteLocker lock(&m_Lock);
        m_Values[id] = value;
        return true;
    }

    QVariant GetParameter(EParamID id) override
    {
        const QReadLocker lock(&m_Lock);
        return m_Values.value(id);
    }

    bool HasParameter(EParamID id) override
    {
        const QReadLocker lock(&m_Lock);
        return m_Values.contains(id);
    }

    const QString& GetDiagnosticText(EDiagnosticComponent, EDiagnosticType, int) override { return m_Text; }

private:
    QReadWriteLock m_Lock;
    QMap<int, QVariant> m_Values;
    const QString m_Text = QLatin1String("started");
};
