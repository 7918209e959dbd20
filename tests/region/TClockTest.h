#pragma once

#include "CoreTest.h"
#include "TJournal.h"

#include "region/TRegionSettings.h"

#include <QScopedPointer>
#include <QtTest>

/// What tests of the clock share: the settings of a display, and a store that keeps a journal.
class TClockTest
{
protected:
    void MakeDisplay();
    void RemoveDisplay();
    void StoreOffset(int hours, int minutes, bool isUsers = false);
    void ReceiveGPSTime(const QTime& utc, const QDate& utcDate);

    /// A display that has received GPS time and stands at a given local time.
    void BeInGPSTime(const QTime& local, const QDate& localDate, int offsetHours, int offsetMinutes);

    int Stored(EParamID id) const { return m_Store->values[id].toInt(); }

    QScopedPointer<TJournal> m_Store;
    QScopedPointer<TRegionSettings> m_Region;
};
