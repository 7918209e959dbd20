#include "TClockTest.h"

void TClockTest::MakeDisplay()
{
    m_Store.reset(new TJournal);
    m_Region.reset(new TRegionSettings);
}

void TClockTest::RemoveDisplay()
{
    m_Region.reset();
    m_Store.reset();
}

void TClockTest::StoreOffset(int hours, int minutes, bool isUsers)
{
    m_Store->values[PARAM_UTC_OFFSET_HOURS] = hours;
    m_Store->values[PARAM_UTC_OFFSET_MINUTES] = minutes;
    m_Store->values[PARAM_UTC_OFFSET_SET_BY_USER] = isUsers;
}

void TClockTest::ReceiveGPSTime(const QTime& utc, const QDate& utcDate)
{
    QTime time = utc;
    QDate date = utcDate;
    QVERIFY(m_Region->SetUTCTimeAndDate(time, date, true));
}

void TClockTest::BeInGPSTime(const QTime& local, const QDate& localDate, int offsetHours, int offsetMinutes)
{
    ReceiveGPSTime(QTime(0, 0), QDate(2000, 1, 1));
    StoreOffset(offsetHours, offsetMinutes);
    TTestClock::time = local;
    TTestClock::date = localDate;
    m_Store->calls.clear();
    m_Store->writes.clear();
}
