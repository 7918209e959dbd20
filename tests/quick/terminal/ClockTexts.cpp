#include "TQuickTerminal.h"

#include "parameters/ETimeSource.h"
#include "parameters/HostParameters.h"
#include "region/TRegionSettingsProxy.h"

/// The display's clock in QML.
class ClockTexts : public QObject
{
    Q_OBJECT

private slots:
    void theTextsAreTheFacades_data();
    void theTextsAreTheFacades();
    void theClockGoes();
    void anOperatorSetsIt();
    void whatDoesNotExistIsRefused_data();
    void whatDoesNotExistIsRefused();
    void aReceiverTakesTheDateOver();
    void theOffsetFollowsItsParameters();
    void textsNotifyOnlyWhenTheyChange();
    void partsHaveLeadingZeros();

private:
    static void SetFromReceiver(const QDateTime& utc)
    {
        QTime time = utc.time();
        QDate date = utc.date();
        TRegionSettingsProxy().SetUTCTimeAndDate(time, date, true);
    }
};

void ClockTexts::theTextsAreTheFacades_data()
{
    QTest::addColumn<bool>("is24Hours");
    QTest::addColumn<bool>("isMonthFirst");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("date");
    QTest::newRow("24 hours, day first") << true << false << QString::fromLatin1("14:05")
                                         << QString::fromLatin1("5 Mar, 2026");
    QTest::newRow("12 hours, month first")
        << false << true << QString::fromLatin1("02:05 pm") << QString::fromLatin1("Mar 5, 2026");
}

void ClockTexts::theTextsAreTheFacades()
{
    QFETCH(bool, is24Hours);
    QFETCH(bool, isMonthFirst);
    const TQuickTerminal terminal;
    QVERIFY(terminal.Get("Clock.setDateTime(2026, 3, 5, 14, 5, 9)").toBool());
    terminal.Store().SetParameter(PARAM_24_HOUR_CLOCK, is24Hours, true);
    terminal.Store().SetParameter(PARAM_MONTH_FIRST, isMonthFirst, true);
    QFETCH(QString, time);
    QFETCH(QString, date);
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Clock.shortTime"), time, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Clock.date"), date, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Clock.time"), TRegionSettingsProxy().GetTimeString(), Patience);
    QCOMPARE(terminal.Text("Clock.date + ' ' + Clock.time"), terminal.Text("Clock.dateTime"));
    QCOMPARE(terminal.Get("[Clock.year, Clock.month, Clock.day, Clock.hour, Clock.minute].join()").toString(),
             QLatin1String("2026,3,5,14,5"));
}

void ClockTexts::theClockGoes()
{
    const TQuickTerminal terminal;
    QVERIFY(terminal.Get("Clock.setDateTime(2026, 3, 5, 23, 59, 58)").toBool());
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Clock.shortTime"), QLatin1String("00:00"), Patience);
    QCOMPARE(terminal.Text("Clock.date"), QLatin1String("6 Mar, 2026"));
}

void ClockTexts::anOperatorSetsIt()
{
    const TQuickTerminal terminal;
    QCOMPARE(terminal.Text("Clock.source"), QLatin1String("none"));
    const QString unset = terminal.Text("Clock.sourceText");
    QVERIFY(!unset.isEmpty());
    QVERIFY(terminal.Get("Clock.canSetDate").toBool());
    QVERIFY(terminal.Get("Clock.setDate(2026, 2, 28)").toBool());
    QVERIFY(terminal.Get("Clock.setTime(6, 7, 8)").toBool());
    QCOMPARE(terminal.Text("Clock.shortTime"), QLatin1String("06:07"));
    QCOMPARE(terminal.Text("Clock.date"), QLatin1String("28 Feb, 2026"));
    QCOMPARE(terminal.Text("Clock.source"), QLatin1String("operator"));
    QVERIFY(terminal.Text("Clock.sourceText") != unset);
    QCOMPARE(terminal.Store().GetParameter(PARAM_TIME_SOURCE).toInt(), int(TIME_SOURCE_OPERATOR));
    QVERIFY(terminal.Store().GetParameter(PARAM_TIME_SOURCE_SINCE).toString().startsWith(QLatin1String("2026-02-28T")));
}

void ClockTexts::whatDoesNotExistIsRefused_data()
{
    QTest::addColumn<QByteArray>("call");
    QTest::newRow("day") << QByteArray("Clock.setDate(2026, 2, 29)");
    QTest::newRow("month") << QByteArray("Clock.setDate(2026, 13, 1)");
    QTest::newRow("hour") << QByteArray("Clock.setTime(24, 0, 0)");
    QTest::newRow("second") << QByteArray("Clock.setDateTime(2026, 2, 28, 0, 0, 60)");
    QTest::newRow("too far") << QByteArray("Clock.setDate(2300, 1, 1)");
}

void ClockTexts::whatDoesNotExistIsRefused()
{
    QFETCH(QByteArray, call);
    const TQuickTerminal terminal;
    QVERIFY(terminal.Get("Clock.setDateTime(2026, 3, 5, 14, 5, 9)").toBool());
    QCOMPARE(terminal.Text("Clock.error"), QString());
    QVERIFY(!terminal.Get(call.constData()).toBool());
    QVERIFY(!terminal.Text("Clock.error").isEmpty());
    QCOMPARE(terminal.Text("Clock.date"), QLatin1String("5 Mar, 2026"));
    QVERIFY(terminal.Get("Clock.setTime(15, 0, 0)").toBool());
    QCOMPARE(terminal.Text("Clock.error"), QString());
}

void ClockTexts::aReceiverTakesTheDateOver()
{
    const TQuickTerminal terminal;
    QVERIFY(terminal.Get("Clock.setDateTime(2026, 3, 5, 14, 5, 9)").toBool());
    SetFromReceiver(QDateTime(QDate(2026, 3, 5), QTime(13, 5, 9), Qt::UTC));
    QTRY_VERIFY_WITH_TIMEOUT(!terminal.Get("Clock.canSetDate").toBool(), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Clock.offsetText"), QLatin1String("UTC +01:00"), Patience);
    QVERIFY(terminal.Get("Clock.setTime(16, 35, 0)").toBool());
    QCOMPARE(terminal.Text("Clock.offsetText"), QLatin1String("UTC +03:30"));
    QCOMPARE(terminal.Text("Clock.shortTime"), QLatin1String("16:35"));
}

void ClockTexts::theOffsetFollowsItsParameters()
{
    const TQuickTerminal terminal;
    QSignalSpy changes(terminal.Named("Clock"), SIGNAL(offsetChanged()));
    terminal.Store().SetParameter(PARAM_UTC_OFFSET_HOURS, -9, true);
    terminal.Store().SetParameter(PARAM_UTC_OFFSET_MINUTES, -30, true);
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Clock.offsetText"), QLatin1String("UTC -09:30"), Patience);
    QVERIFY(changes.size() <= 2);
}

void ClockTexts::textsNotifyOnlyWhenTheyChange()
{
    const TQuickTerminal terminal;
    QVERIFY(terminal.Get("Clock.setDateTime(2026, 3, 5, 14, 5, 9)").toBool());
    QSignalSpy times(terminal.Named("Clock"), SIGNAL(timeChanged()));
    QSignalSpy shortTimes(terminal.Named("Clock"), SIGNAL(shortTimeChanged()));
    QSignalSpy dates(terminal.Named("Clock"), SIGNAL(dateChanged()));
    QSignalSpy sources(terminal.Named("Clock"), SIGNAL(sourceChanged()));
    QTRY_COMPARE_WITH_TIMEOUT(times.size(), 2, Patience);
    QCOMPARE(shortTimes.size(), 0);
    QCOMPARE(dates.size(), 0);
    QCOMPARE(sources.size(), 0);
}

void ClockTexts::partsHaveLeadingZeros()
{
    const TQuickTerminal terminal;
    QCOMPARE(terminal.Text("Clock.digits(5, 2)"), QLatin1String("05"));
    QCOMPARE(terminal.Text("Clock.digits(0, 2)"), QLatin1String("00"));
    QCOMPARE(terminal.Text("Clock.digits(59, 2)"), QLatin1String("59"));
    QCOMPARE(terminal.Text("Clock.digits(2026, 4)"), QLatin1String("2026"));
}

QTEST_GUILESS_MAIN(ClockTexts)
#include "ClockTexts.moc"
