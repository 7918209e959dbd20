#pragma once

#include "TCallThread.h"

#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "region/TRegionSettingsProxy.h"
#include "system/TSystemSettingsProxy.h"

#include <QStringList>

/// The lock of one façade class.
struct tagLock
{
    const char* name;
    QMutex* mutex;
};

/// Every lock of the library.
const tagLock Locks[] = {
    {"system", &TSystemSettingsProxy::Mutex},
    {"region", &TRegionSettingsProxy::Mutex},
    {"user log", &TUserDiagnosticLogProxy::Mutex},
    {"NMEA log", &TNEMADiagnosticLogProxy::Mutex},
};

/// The names of those that somebody holds, as another thread finds them.
inline QStringList HeldLocks()
{
    QStringList held;
    TCallThread finder([&held] {
        for (const tagLock& lock : Locks) {
            if (lock.mutex->tryLock())
                lock.mutex->unlock();
            else
                held.append(QString::fromLatin1(lock.name));
        }
    });
    finder.wait();
    return held;
}

/// Releases what a failed test may have left locked, so that the next one does not wait for ever.
inline void ReleaseLocks()
{
    for (const tagLock& lock : Locks) {
        static_cast<void>(lock.mutex->tryLock()); // locked now, by whomever
        lock.mutex->unlock();
    }
}
