#include "CoreTest.h"
#include "TestHost.h"
#include "TestSeed.h"

#include "region/TRegionSettings.h"

#include <QScopedPointer>
#include <QtTest>

#include <cstdlib>
#include <random>

namespace {

const int SequenceCount = 10000;
const int StepsPerSequence = 25;

const qint64 Second = 1000;
const qint64 Minute = 60 * Second;
const qint64 Day = 1440 * Minute;

/// A moment as milliseconds since the start of Julian day 0, in which all offsets are plain sums.
qint64 Moment(const QDate& date, const QTime& time) { return date.toJulianDay() * Day + QTime(0, 0).msecsTo(time); }
QDate DateOf(qint64 moment) { return QDate::fromJulianDay(int(moment / Day)); }
QTime TimeOf(qint64 moment) { return QTime(0, 0).addMSecs(int(moment % Day)); }
qint64 WithoutMilliseconds(qint64 moment) { return moment - moment % Second; }
int MinuteOfDay(qint64 moment) { return int(moment % Day / Minute); }

/// The display's time as one line of moments: local time is UTC plus an offset.
struct tagModel
{
    qint64 local;
    int offset; ///< minutes
    bool isOffsetUsers;
    bool isGPSKnown;
    int storedClockOffset;
    int clockOffset; ///< in force

    qint64 UTC() const { return local - offset * Minute; }

    /// The offset at which @p utc shows @p minuteOfDay: the nearest of those a day apart, the plain difference where
    /// two are equally near.
    static int NearestOffset(int minuteOfDay, qint64 utc)
    {
        const int difference = minuteOfDay - MinuteOfDay(utc);
        int nearest = difference;
        for (const int other : {difference - 1440, difference + 1440}) {
            if (std::abs(other) < std::abs(nearest))
                nearest = other;
        }
        return nearest;
    }

    void SetLocal(qint64 moment, int newClockOffset)
    {
        local = WithoutMilliseconds(moment);
        storedClockOffset = clockOffset = newClockOffset;
    }

    void ReceiveTime(qint64 utc, bool isFromGPS, int newClockOffset)
    {
        if (isFromGPS && !isGPSKnown && !isOffsetUsers)
            offset = NearestOffset(MinuteOfDay(local), utc);
        isGPSKnown = isGPSKnown || isFromGPS;
        SetLocal(isGPSKnown ? utc + offset * Minute : utc, newClockOffset);
    }

    void SetByHand(qint64 moment, int newClockOffset)
    {
        SetLocal(moment, newClockOffset);
        offset = 0;
        isOffsetUsers = false;
    }

    void ChooseOffset(int minuteOfDay, int newClockOffset)
    {
        const qint64 utc = UTC();
        offset = NearestOffset(minuteOfDay, utc);
        isOffsetUsers = true;
        SetLocal(utc + offset * Minute, newClockOffset);
    }

    void Restart(int hostClockOffset)
    {
        isGPSKnown = false;
        clockOffset = hostClockOffset;
        Restore();
    }

    void Restore()
    {
        if (clockOffset == 0)
            clockOffset = storedClockOffset;
    }
};

} // namespace

/// Compares the clock with a model of it over random lives of a display.
class ClockSequences : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_Random.seed(TestSeed()); }
    void everySequenceFollowsTheModel();

private:
    int Between(int least, int greatest) { return std::uniform_int_distribution<int>(least, greatest)(m_Random); }
    bool IsOneIn(int count) { return Between(1, count) == 1; }
    QDate AnyDate();
    QTime AnyTime();
    QString Start();
    QString Step();
    QString Difference() const;

    std::mt19937 m_Random;
    QScopedPointer<TTestStore> m_Store;
    QScopedPointer<TRegionSettings> m_Region;
    tagModel m_Model;
    QDate m_ReturnedDate; ///< by the last step; invalid when it returned none
};

/// Among the ordinary days many around the ends of months, of leap years' Februaries, and of years.
QDate ClockSequences::AnyDate()
{
    const int year = Between(1996, 2040);
    if (IsOneIn(2))
        return QDate(year, Between(1, 12), Between(1, 28));
    return QDate(year, Between(1, 12), 1).addDays(Between(-2, 1));
}

/// Many around midnight and noon.
QTime ClockSequences::AnyTime()
{
    if (IsOneIn(2))
        return QTime(Between(0, 23), Between(0, 59), Between(0, 59), Between(0, 999));
    const int hours[] = {0, 11, 12, 23};
    return QTime(hours[Between(0, 3)], IsOneIn(2) ? 0 : 59, Between(0, 59), Between(0, 999));
}

/// A display as another run, or another program, has left it.
QString ClockSequences::Start()
{
    const QDate date = AnyDate();
    const QTime time = AnyTime();
    const int offset = Between(-720, 720);
    const bool isOffsetUsers = IsOneIn(2);

    TTestClock::Reset();
    TTestClock::date = date;
    TTestClock::time = time;
    m_Store.reset(); // before its successor becomes the store in use
    m_Store.reset(new TTestStore);
    m_Store->values[8949] = offset / 60;
    m_Store->values[8950] = offset % 60;
    m_Store->values[8952] = isOffsetUsers;
    m_Region.reset(new TRegionSettings);
    m_Model = {Moment(date, time), offset, isOffsetUsers, false, 0, 0};
    return QString::fromLatin1("start at %1 %2, offset %3, user's %4")
        .arg(date.toString(Qt::ISODate), QLocale::c().toString(time, QLatin1String("hh:mm:ss.zzz")))
        .arg(offset)
        .arg(isOffsetUsers);
}

/// Does one thing to the display and to the model, and tells what.
QString ClockSequences::Step()
{
    const QDate givenDate = AnyDate();
    const QTime givenTime = AnyTime();
    const int year = givenDate.year();
    const int month = IsOneIn(10) ? 13 : givenDate.month(); // now and then no date at all
    const int day = givenDate.day();
    const bool isDate = month <= 12;
    const qint64 given = Moment(givenDate, givenTime);
    const int clockOffset = IsOneIn(3) ? 0 : Between(-100000, 100000);
    TTestClock::nextOffset = clockOffset;
    m_ReturnedDate = QDate();

    const QString told = QString::fromLatin1("%1-%2-%3 %4")
                             .arg(year)
                             .arg(month)
                             .arg(day)
                             .arg(QLocale::c().toString(givenTime, QLatin1String("hh:mm:ss.zzz")));
    switch (Between(0, 8)) {
    case 0:
        m_Region->SetUserDate(year, month, day);
        if (!m_Model.isGPSKnown && isDate)
            m_Model.SetByHand(Moment(givenDate, TimeOf(m_Model.local)), clockOffset);
        return QLatin1String("user date ") + told;
    case 1:
        m_Region->SetUserTime(givenTime.hour(), givenTime.minute(), givenTime.second());
        if (m_Model.isGPSKnown)
            m_Model.ChooseOffset(MinuteOfDay(given), clockOffset);
        else
            m_Model.SetByHand(Moment(DateOf(m_Model.local), givenTime), clockOffset);
        return QLatin1String("user time ") + told;
    case 2:
        m_Region->SetUserDateTime(year, month, day, givenTime.hour(), givenTime.minute(), givenTime.second());
        if (m_Model.isGPSKnown)
            m_Model.ChooseOffset(MinuteOfDay(given), clockOffset);
        else if (isDate)
            m_Model.SetByHand(given, clockOffset);
        return QLatin1String("user date and time ") + told;
    case 3:
    case 4:
    case 5: {
        const bool isFromGPS = !IsOneIn(4);
        QTime time = givenTime;
        QDate date = givenDate;
        m_Region->SetUTCTimeAndDate(time, date, isFromGPS);
        m_Model.ReceiveTime(given, isFromGPS, clockOffset);
        m_ReturnedDate = date;
        return QLatin1String(isFromGPS ? "GPS time " : "UTC time ") + told;
    }
    case 6:
        m_Region.reset(new TRegionSettings);
        TTestClock::offset = clockOffset; // what the host may have applied already
        m_Region->Restore();
        m_Model.Restart(clockOffset);
        return QLatin1String("restart");
    case 7:
        m_Region->Restore();
        m_Model.Restore();
        return QLatin1String("restore");
    default:
        m_Model.local += IsOneIn(2) ? Between(0, 2000) : qint64(Between(0, 100000)) * Second;
        TTestClock::date = DateOf(m_Model.local);
        TTestClock::time = TimeOf(m_Model.local);
        return QLatin1String("tick");
    }
}

/// What the display has other than the model; empty when there is nothing.
QString ClockSequences::Difference() const
{
    QStringList differences;
    const auto compare = [&differences](const char* what, qint64 actual, qint64 expected) {
        if (actual != expected)
            differences.append(
                QString::fromLatin1("%1 is %2, not %3").arg(QLatin1String(what)).arg(actual).arg(expected));
    };
    compare("local time", Moment(m_Region->GetDate(), m_Region->GetTime()), m_Model.local);
    compare("offset hours", m_Store->values[8949].toInt(), m_Model.offset / 60);
    compare("offset minutes", m_Store->values[8950].toInt(), m_Model.offset % 60);
    compare("stored clock offset", m_Store->values[8951].toInt(), m_Model.storedClockOffset);
    compare("user's offset", m_Store->values[8952].toBool(), m_Model.isOffsetUsers);
    compare("clock offset", TTestClock::offset, m_Model.clockOffset);
    compare("GPS time received", m_Region->IsGPSTimeRecieved(), m_Model.isGPSKnown);
    compare("persistence of writes", m_Store->allWritesPersist, true);

    if (m_ReturnedDate.isValid())
        compare("returned day", m_ReturnedDate.toJulianDay(), DateOf(m_Model.local).toJulianDay());

    QTime time(1, 2, 3);
    QDate date(1990, 1, 1);
    const qint64 untouched = Moment(date, time);
    compare("UTC known", m_Region->GetUTCTimeAndDate(time, date), m_Model.isGPSKnown);
    compare("UTC", Moment(date, time), m_Model.isGPSKnown ? m_Model.UTC() : untouched);
    return differences.join(QLatin1String("; "));
}

void ClockSequences::everySequenceFollowsTheModel()
{
    for (int sequence = 0; sequence < SequenceCount; ++sequence) {
        QStringList story(Start());
        for (int step = 0; step < StepsPerSequence; ++step) {
            story.append(Step());
            const QString difference = Difference();
            QVERIFY2(difference.isEmpty(),
                     qPrintable(difference + QLatin1String("\nafter ") + story.join(QLatin1String("\n      "))));
        }
    }
}

int main(int argc, char** argv) { return RunCoreTest<ClockSequences>(argc, argv); }
#include "ClockSequences.moc"
