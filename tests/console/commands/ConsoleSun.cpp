#include "ConsoleTest.h"

#include "nmea/NmeaChecksum.h"

using namespace ConsoleTest;

namespace {

/// A fix at 52.2 N, 10.5 E, or its loss.
QByteArray Rmc(const char* time, const char* date, char status = 'A')
{
    const QByteArray body =
        QByteArray("GPRMC,") + time + ',' + status + ",5212.0,N,01030.0,E,10.0,90.0," + date + ",,,A";
    return '$' + body + NmeaChecksum(body) + "\r\n";
}

} // namespace

class ConsoleSun : public QObject
{
    Q_OBJECT

private slots:
    void theTimesOfAPlaceArePrinted();
    void aSunThatStaysIsSaid_data();
    void aSunThatStaysIsSaid();
    void theTimesCanBeHadAsJson();
    void thePlaceIsTheLastOneInTheLog();
    void withoutAPlaceThereIsNothingToTell();
    void theSchemeFollowsALiveReceiver_data();
    void theSchemeFollowsALiveReceiver();
    void aRecordingSwitchesOnlyWhileItRuns();
    void theOperatorsChoiceWinsUntilTheNextSwitch();
    void wrongUsageSaysWhatIsAcceptedAndTouchesNothing_data();
    void wrongUsageSaysWhatIsAcceptedAndTouchesNothing();
};

void ConsoleSun::theTimesOfAPlaceArePrinted()
{
    const TConsole console;
    const TConsole::tagResult result = Run(console, "sun --at 52.2,10.5 --date 2026-03-05");
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output, Utf8("2026-03-05 at 52.2000000, 10.5000000\n"
                                 "\n"
                                 "          rise                  set\n"
                                 "sun       2026-03-05T05:55:21Z  2026-03-05T17:04:32Z\n"
                                 "twilight  2026-03-05T05:21:30Z  2026-03-05T17:38:27Z\n"));
    QVERIFY(!QFile::exists(console.DataFolder()));
}

void ConsoleSun::aSunThatStaysIsSaid_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("rows");
    QTest::newRow("midnight sun") << Utf8("2026-06-21") << Utf8("sun       stays up\ntwilight  stays up\n");
    QTest::newRow("polar night") << Utf8("2026-12-21") << Utf8("sun       stays down\ntwilight  stays down\n");
}

void ConsoleSun::aSunThatStaysIsSaid()
{
    QFETCH(QString, date);
    QFETCH(QString, rows);
    const TConsole console;
    const TConsole::tagResult result =
        console.Run({Utf8("sun"), Utf8("--at"), Utf8("78.2,15.6"), Utf8("--date"), date});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output.section(QLatin1Char('\n'), 3), rows);
}

void ConsoleSun::theTimesCanBeHadAsJson()
{
    const TConsole console;
    const QJsonObject object = Object(Run(console, "sun --at -80,-150 --date 2019-08-28 --json"));
    QCOMPARE(Fields(object),
             (QStringList{Utf8("date"), Utf8("latitude"), Utf8("longitude"), Utf8("sun"), Utf8("twilight")}));
    QCOMPARE(object.value(Utf8("date")).toString(), Utf8("2019-08-28"));
    QCOMPARE(object.value(Utf8("latitude")).toDouble(), -80.0);
    const QJsonObject sun = object.value(Utf8("sun")).toObject();
    QCOMPARE(sun.value(Utf8("day")).toString(), Utf8("rises or sets"));
    QVERIFY(sun.value(Utf8("rise")).toString().startsWith(Utf8("2019-08-28T20:0")));
    QVERIFY(sun.value(Utf8("set")).isNull());
}

void ConsoleSun::thePlaceIsTheLastOneInTheLog()
{
    const TConsole console;
    WriteFile(console.Path("field.nmea"), Rmc("120000.00", "050326") + Rmc("120001.00", "050326", 'V'));
    QCOMPARE(console.Run({Utf8("run"), Utf8("--nmea"), console.Path("field.nmea")}).status, 0);
    const TConsole::tagResult result = Run(console, "sun");
    QCOMPARE(result.errors, QString());
    QVERIFY2(result.output.startsWith(Utf8("2026-03-05 at 52.2000000, 10.5000000\n")), qPrintable(result.output));
}

void ConsoleSun::withoutAPlaceThereIsNothingToTell()
{
    const TConsole console;
    const TConsole::tagResult result = Run(console, "sun");
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors, Utf8("cabsettings: sun: no position in the NMEA log; --at LAT,LON gives one\n"));
}

void ConsoleSun::theSchemeFollowsALiveReceiver_data()
{
    QTest::addColumn<QString>("switching");
    QTest::addColumn<QByteArray>("time");
    QTest::addColumn<QString>("day");
    QTest::newRow("noon") << Utf8("sunset") << QByteArray("120000.00") << Utf8("true");
    QTest::newRow("between sunset and twilight") << Utf8("sunset") << QByteArray("172000.00") << Utf8("false");
    QTest::newRow("before the end of twilight") << Utf8("twilight") << QByteArray("172000.00") << Utf8("true");
    QTest::newRow("after twilight") << Utf8("twilight") << QByteArray("175000.00") << Utf8("false");
    QTest::newRow("by hand") << Utf8("by-hand") << QByteArray("220000.00") << Utf8("true");
}

void ConsoleSun::theSchemeFollowsALiveReceiver()
{
    QFETCH(QString, switching);
    QFETCH(QByteArray, time);
    QFETCH(QString, day);
    const TConsole console;
    Store(console, Utf8("display.day-switching=") + switching);
    const TConsole::tagResult result = console.Run(Words("run --nmea -"), Rmc(time.constData(), "050344"));
    QCOMPARE(result.errors, QString());
    QCOMPARE(Get(console, "display.day"), day);
}

void ConsoleSun::aRecordingSwitchesOnlyWhileItRuns()
{
    const TConsole console;
    WriteFile(console.Path("field.nmea"), Rmc("220000.00", "050344"));
    const QJsonObject summary =
        Object(console.Run({Utf8("run"), Utf8("--nmea"), console.Path("field.nmea"), Utf8("--json")}));
    QCOMPARE(summary.value(Utf8("scheme")).toString(), Utf8("night"));
    QCOMPARE(Get(console, "display.day"), Utf8("true"));
    QCOMPARE(Get(console, "display.day-switched"), QString());
}

void ConsoleSun::theOperatorsChoiceWinsUntilTheNextSwitch()
{
    const TConsole console;
    console.Run(Words("run --nmea -"), Rmc("200000.00", "050344"));
    QCOMPARE(Get(console, "display.day"), Utf8("false"));
    QCOMPARE(Run(console, "set display.day true").status, 0);
    console.Run(Words("run --nmea -"), Rmc("220000.00", "050344"));
    QCOMPARE(Get(console, "display.day"), Utf8("true"));
    console.Run(Words("run --nmea -"), Rmc("193000.00", "060344"));
    QCOMPARE(Get(console, "display.day"), Utf8("false"));
}

void ConsoleSun::wrongUsageSaysWhatIsAcceptedAndTouchesNothing_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("accepted");
    const auto row = [](const char* name, const char* arguments, const char* named, const char* accepted) {
        QTest::newRow(name) << Words(arguments) << Utf8(named) << Utf8(accepted);
    };
    row("a word", "today", "\"today\"", "no arguments");
    row("beyond the pole", "--at 91,0", "\"91,0\"", "from -90 to 90");
    row("beyond the date line", "--at 0,181", "\"0,181\"", "from -180 to 180");
    row("one number", "--at 52", "\"52\"", "LAT,LON");
    row("three numbers", "--at 1,2,3", "\"1,2,3\"", "LAT,LON");
    row("no number", "--at here,there", "\"here,there\"", "LAT,LON");
    row("no finite number", "--at nan,0", "\"nan,0\"", "LAT,LON");
    row("no place", "--at", "--at", "LAT,LON");
    row("no day of the calendar", "--at 1,2 --date 2026-02-29", "\"2026-02-29\"", "YYYY-MM-DD");
    row("short date", "--at 1,2 --date 2026-2-3", "\"2026-2-3\"", "YYYY-MM-DD");
    row("another order", "--date 05.03.2026", "\"05.03.2026\"", "YYYY-MM-DD");
}

void ConsoleSun::wrongUsageSaysWhatIsAcceptedAndTouchesNothing()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    QFETCH(QString, accepted);
    const TConsole console;
    VerifyMisused(console.Run(QStringList{Utf8("sun")} + arguments), named, accepted);
    QVERIFY(!QFile::exists(console.DataFolder()));
}

QTEST_GUILESS_MAIN(ConsoleSun)
#include "ConsoleSun.moc"
