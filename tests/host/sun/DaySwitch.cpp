#include "parameters/HostParameters.h"
#include "stores/TMemoryStore.h"
#include "sun/EDaySwitching.h"
#include "sun/TDaySwitch.h"

#include <QtTest>

#include <limits>

namespace {

const tagSunPlace Field = {52.2, 10.5};
const QDate Date(2026, 3, 5);
const int Minute = 60;
const int Hour = 60 * Minute;

/// Counts what is stored.
class TCountingStore : public TParameterStore
{
public:
    int transactions = 0;

protected:
    bool Persist(const QMap<int, QVariant>&) override
    {
        ++transactions;
        return true;
    }
};

} // namespace

/// The scheme follows the sun, and the operator's own choice wins until the next switch.
class DaySwitch : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void theSchemeFollowsTheSun_data();
    void theSchemeFollowsTheSun();
    void theOperatorsChoiceStaysUntilTheNextSwitch();
    void aRestartKeepsTheOperatorsChoice();
    void aRestartAfterTheSunsetSwitches();
    void onlySwitchesAreStored();
    void aRecordingStoresNothing();
    void anotherSwitchingBeginsWithTheNextCrossing();
    void whatIsInvalidIsIgnored();

private:
    static QDateTime Rise() { return SunTimes(Field, Date, SUN_LEVEL_HORIZON).rise; }
    static QDateTime Set() { return SunTimes(Field, Date, SUN_LEVEL_HORIZON).set; }

    void Prepare(TParameterStore& store, int switching)
    {
        store.SetParameter(PARAM_DAY_MODE, true, true);
        store.SetParameter(PARAM_DAY_SWITCHING, switching, true);
    }

    /// Looks every second, as a receiver does.
    static void Drive(TDaySwitch& daySwitch, const QDateTime& from, const QDateTime& to)
    {
        for (QDateTime utc = from; utc <= to; utc = utc.addSecs(1))
            daySwitch.Look(Field, utc);
    }

    bool IsDay() const { return m_Store->GetParameter(PARAM_DAY_MODE).toBool(); }

    std::unique_ptr<TCountingStore> m_Store;
};

void DaySwitch::init()
{
    m_Store = std::make_unique<TCountingStore>();
    Prepare(*m_Store, DAY_SWITCHING_SUNSET);
}

void DaySwitch::theSchemeFollowsTheSun_data()
{
    QTest::addColumn<int>("switching");
    QTest::addColumn<bool>("isDayAfterSunset");
    QTest::addColumn<bool>("isDayAfterTwilight");
    QTest::newRow("by hand") << int{DAY_SWITCHING_BY_HAND} << true << true;
    QTest::newRow("sunset") << int{DAY_SWITCHING_SUNSET} << false << false;
    QTest::newRow("twilight") << int{DAY_SWITCHING_TWILIGHT} << true << false;
    QTest::newRow("a number from nowhere") << 7 << true << true;
}

void DaySwitch::theSchemeFollowsTheSun()
{
    QFETCH(int, switching);
    QFETCH(bool, isDayAfterSunset);
    QFETCH(bool, isDayAfterTwilight);
    m_Store->SetParameter(PARAM_DAY_SWITCHING, switching, true);
    const QDateTime twilight = SunTimes(Field, Date, SUN_LEVEL_TWILIGHT).set;
    TDaySwitch daySwitch(*m_Store);
    Drive(daySwitch, Set().addSecs(-5 * Minute), Set().addSecs(-Minute));
    QVERIFY(IsDay());
    Drive(daySwitch, Set(), Set().addSecs(2 * Minute));
    QCOMPARE(IsDay(), isDayAfterSunset);
    Drive(daySwitch, twilight.addSecs(-Minute), twilight.addSecs(2 * Minute));
    QCOMPARE(IsDay(), isDayAfterTwilight);
}

void DaySwitch::theOperatorsChoiceStaysUntilTheNextSwitch()
{
    TDaySwitch daySwitch(*m_Store);
    Drive(daySwitch, Set().addSecs(-5 * Minute), Set().addSecs(5 * Minute));
    QVERIFY(!IsDay());
    m_Store->SetParameter(PARAM_DAY_MODE, true, true);
    Drive(daySwitch, Set().addSecs(5 * Minute), Set().addSecs(2 * Hour));
    QVERIFY(IsDay());
    m_Store->SetParameter(PARAM_DAY_MODE, false, true);
    Drive(daySwitch, Rise().addDays(1).addSecs(-5 * Minute), Rise().addDays(1).addSecs(5 * Minute));
    QVERIFY(IsDay());
}

void DaySwitch::aRestartKeepsTheOperatorsChoice()
{
    {
        TDaySwitch daySwitch(*m_Store);
        Drive(daySwitch, Set().addSecs(-5 * Minute), Set().addSecs(5 * Minute));
    }
    m_Store->SetParameter(PARAM_DAY_MODE, true, true);
    for (const double longitude : {Field.longitude, Field.longitude - 1, Field.longitude + 1}) { // towed in between
        TDaySwitch daySwitch(*m_Store);
        daySwitch.Look({Field.latitude, longitude}, Set().addSecs(5 * Minute));
        daySwitch.Look({Field.latitude, longitude}, Set().addSecs(2 * Hour));
        QVERIFY(IsDay());
    }
}

void DaySwitch::aRestartAfterTheSunsetSwitches()
{
    {
        TDaySwitch daySwitch(*m_Store);
        Drive(daySwitch, Rise(), Rise().addSecs(5 * Minute));
        QVERIFY(IsDay());
    }
    TDaySwitch daySwitch(*m_Store);
    daySwitch.Look(Field, Set().addSecs(3 * Hour));
    QVERIFY(!IsDay());
}

void DaySwitch::onlySwitchesAreStored()
{
    TDaySwitch daySwitch(*m_Store);
    Drive(daySwitch, Rise().addSecs(-Hour), Rise().addSecs(-Hour)); // the first start ever: night
    const int before = m_Store->transactions;
    Drive(daySwitch, Rise().addSecs(-Hour), Rise().addSecs(-Minute));
    QCOMPARE(m_Store->transactions, before);
    Drive(daySwitch, Rise(), Rise().addSecs(Hour));
    QCOMPARE(m_Store->transactions, before + 2); // the scheme and the time of the switch
    QCOMPARE(m_Store->GetParameter(PARAM_DAY_SWITCHED).toString().left(10), Date.toString(Qt::ISODate));
}

void DaySwitch::aRecordingStoresNothing()
{
    const int before = m_Store->transactions;
    TDaySwitch daySwitch(*m_Store, TDaySwitch::TIMES_OF_A_RECORDING);
    Drive(daySwitch, Set().addSecs(-5 * Minute), Set().addSecs(5 * Minute));
    QVERIFY(!IsDay());
    QVERIFY(!m_Store->HasParameter(PARAM_DAY_SWITCHED));
    QCOMPARE(m_Store->transactions, before);
}

void DaySwitch::anotherSwitchingBeginsWithTheNextCrossing()
{
    m_Store->SetParameter(PARAM_DAY_SWITCHING, int{DAY_SWITCHING_BY_HAND}, true);
    TDaySwitch daySwitch(*m_Store);
    Drive(daySwitch, Set().addSecs(-5 * Minute), Set().addSecs(5 * Minute));
    m_Store->SetParameter(PARAM_DAY_SWITCHING, int{DAY_SWITCHING_SUNSET}, true);
    Drive(daySwitch, Set().addSecs(5 * Minute), Set().addSecs(10 * Minute));
    QVERIFY(IsDay()); // the sunset was before
    m_Store->SetParameter(PARAM_DAY_SWITCHING, int{DAY_SWITCHING_TWILIGHT}, true);
    Drive(daySwitch, Set().addSecs(10 * Minute), Set().addSecs(15 * Minute));
    QVERIFY(IsDay());
    Drive(daySwitch, Set().addSecs(15 * Minute), Set().addSecs(Hour));
    QVERIFY(!IsDay());
}

void DaySwitch::whatIsInvalidIsIgnored()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    TDaySwitch daySwitch(*m_Store);
    daySwitch.Look({nan, nan}, Set().addSecs(Hour));
    daySwitch.Look({91, 0}, Set().addSecs(Hour));
    daySwitch.Look(Field, QDateTime());
    QVERIFY(IsDay());
    QVERIFY(!m_Store->HasParameter(PARAM_DAY_SWITCHED));
    daySwitch.Look(Field, Set().addSecs(Hour));
    QVERIFY(!IsDay());
}

QTEST_GUILESS_MAIN(DaySwitch)
#include "DaySwitch.moc"
