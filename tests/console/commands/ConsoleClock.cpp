#include "ConsoleTest.h"

#include "region/ELanguage.h"

#include <QDateTime>

#include <cmath>

using namespace ConsoleTest;

namespace {

/// How long the commands of a test may take on a busy machine, in seconds; less than anything that they could mistake.
const int Patience = 50;

QDateTime Utc(const QString& text) { return QDateTime::fromString(text + QLatin1Char('Z'), Qt::ISODate); }

} // namespace

class ConsoleClock : public QObject
{
    Q_OBJECT

private slots:
    void aFirstStartShowsTheMachinesTime_data();
    void aFirstStartShowsTheMachinesTime();
    void theClockIsSetByHand_data();
    void theClockIsSetByHand();
    void whatIsNotGivenStays();
    void theClockIsSetFromUtc_data();
    void theClockIsSetFromUtc();
    void settingByHandEndsTheOffset();
    void theClockIsShownAsOnTheDisplay_data();
    void theClockIsShownAsOnTheDisplay();
    void theSourceIsTold_data();
    void theSourceIsTold();
    void wrongUsageSaysWhatIsAcceptedAndTouchesNothing_data();
    void wrongUsageSaysWhatIsAcceptedAndTouchesNothing();
    void aFolderThatCannotBeMadeIsAFailure();

private:
    static QJsonObject Clock(const TConsole& console)
    {
        const TConsole::tagResult result = Run(console, "clock --json");
        return result.status == 0 && result.errors.isEmpty() ? Object(result) : QJsonObject();
    }

    static void VerifyAbout(const QString& shown, const QString& expected, int earliest = 0)
    {
        const qint64 lag = Utc(expected).secsTo(Utc(shown));
        QVERIFY2(lag >= earliest && lag <= Patience, qPrintable(shown + Utf8(" instead of ") + expected));
    }

    static void VerifyOffset(const TConsole& console, int hours, int minutes, bool isByOperator)
    {
        const QJsonArray stored = Array(Run(console, "list clock --json"));
        QCOMPARE(Find(stored, "name", Utf8("clock.offset-hours")).value(Utf8("value")).toInt(-1000), hours);
        QCOMPARE(Find(stored, "name", Utf8("clock.offset-minutes")).value(Utf8("value")).toInt(-1000), minutes);
        QCOMPARE(Find(stored, "name", Utf8("clock.offset-by-operator")).value(Utf8("value")), QJsonValue(isByOperator));
        const QJsonObject clock = Clock(console);
        QCOMPARE(clock.value(Utf8("offsetHours")).toInt(), hours);
        QCOMPARE(clock.value(Utf8("offsetMinutes")).toInt(), minutes);
    }
};

void ConsoleClock::aFirstStartShowsTheMachinesTime_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("offset");
    QTest::newRow("UTC") << QByteArray("UTC") << 0;
    QTest::newRow("east") << QByteArray("<+0530>-5:30") << 19800;
    QTest::newRow("west") << QByteArray("<-03>3") << -10800;
}

void ConsoleClock::aFirstStartShowsTheMachinesTime()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, offset);
    const TConsole console;
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", zone);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QJsonObject clock = Clock(console);
    const QString table = Run(console, "clock").output;
    qputenv("TZ", before);
    VerifyAbout(clock.value(Utf8("local")).toString(),
                QLocale::c().toString(now.addSecs(offset), Utf8("yyyy-MM-dd'T'HH:mm:ss")));
    VerifyAbout(clock.value(Utf8("utc")).toString().remove(QLatin1Char('Z')),
                QLocale::c().toString(now, Utf8("yyyy-MM-dd'T'HH:mm:ss")));
    QCOMPARE(clock.value(Utf8("utcFrom")).toString(), Utf8("machine"));
    QCOMPARE(clock.value(Utf8("source")).toString(), Utf8("none"));
    QVERIFY(clock.value(Utf8("since")).isNull());
    QCOMPARE(clock.value(Utf8("offsetSetBy")).toString(), Utf8("nobody"));
    QCOMPARE(clock.value(Utf8("machineOffset")).toInt(), offset);
    QVERIFY2(table.contains(Utf8("none: the machine's clock, which nothing has set\n")), qPrintable(table));
}

void ConsoleClock::theClockIsSetByHand_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("local");
    QTest::newRow("date and minutes") << Utf8("2026-03-05 14:05") << Utf8("2026-03-05T14:05:00");
    QTest::newRow("date and seconds") << Utf8("2024-02-29 23:58:07") << Utf8("2024-02-29T23:58:07");
    QTest::newRow("in one word") << Utf8("2031-12-31T00:00:01") << Utf8("2031-12-31T00:00:01");
    QTest::newRow("long ago") << Utf8("1999-12-31 06:00") << Utf8("1999-12-31T06:00:00");
}

void ConsoleClock::theClockIsSetByHand()
{
    QFETCH(QString, arguments);
    QFETCH(QString, local);
    const TConsole console;
    const TConsole::tagResult set = console.Run(Words("clock set") + arguments.split(QLatin1Char(' ')));
    QCOMPARE(set.errors, QString());
    QCOMPARE(set.output, QString());
    QCOMPARE(set.status, 0);
    const QJsonObject clock = Clock(console);
    VerifyAbout(clock.value(Utf8("local")).toString(), local);
    QCOMPARE(clock.value(Utf8("source")).toString(), Utf8("operator"));
    VerifyAbout(clock.value(Utf8("since")).toString().remove(QLatin1Char('Z')), local);
    VerifyOffset(console, 0, 0, false);
    // What is stored is the distance from the machine's clock.
    const qint64 distance = QDateTime::currentDateTimeUtc().secsTo(Utc(local));
    QVERIFY(std::abs(Get(console, "clock.offset").toLongLong() - distance) <= Patience);
    QCOMPARE(clock.value(Utf8("machineOffset")).toInt(), Get(console, "clock.offset").toInt());
}

void ConsoleClock::whatIsNotGivenStays()
{
    const TConsole console;
    QCOMPARE(Run(console, "clock set 2026-03-05 14:05:00").status, 0);
    QCOMPARE(Run(console, "clock set 2027-01-31").status, 0);
    VerifyAbout(Clock(console).value(Utf8("local")).toString(), Utf8("2027-01-31T14:05:00"));
    QCOMPARE(Run(console, "clock set 09:30").status, 0);
    VerifyAbout(Clock(console).value(Utf8("local")).toString(), Utf8("2027-01-31T09:30:00"));
}

void ConsoleClock::theClockIsSetFromUtc_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("before"); ///< the clock by hand
    QTest::addColumn<QString>("utc");
    QTest::addColumn<QString>("local");
    QTest::addColumn<int>("hours");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QString>("setBy");
    const auto row = [](const char* name, const char* settings, const char* before, const char* utc, const char* local,
                        int hours, int minutes, const char* setBy) {
        QTest::newRow(name) << Utf8(settings) << Utf8(before) << Utf8(utc) << Utf8(local) << hours << minutes
                            << Utf8(setBy);
    };
    const char* const chosen = "clock.offset-hours=-5|clock.offset-minutes=-30|clock.offset-by-operator=true";
    row("the clock tells the offset", "", "2026-03-05T15:30", "2026-03-05T10:00:00Z", "2026-03-05T15:30:00", 5, 30,
        "receiver");
    row("the nearer way round midnight", "", "2026-03-05T00:10", "2026-03-04T23:50:00Z", "2026-03-05T00:10:00", 0, 20,
        "receiver");
    row("west", "", "2026-03-05T08:00", "2026-03-05T13:00:00Z", "2026-03-05T08:00:00", -5, 0, "receiver");
    row("without seconds", "", "2026-03-05T15:30", "2026-03-05T14:30Z", "2026-03-05T15:30:00", 1, 0, "receiver");
    row("the operator's offset, in a leap year", chosen, "", "2024-03-01T02:10:00Z", "2024-02-29T20:40:00", -5, -30,
        "operator");
    row("the operator's offset, in another year", chosen, "", "2026-03-01T02:10:00Z", "2026-02-28T20:40:00", -5, -30,
        "operator");
}

void ConsoleClock::theClockIsSetFromUtc()
{
    QFETCH(QString, settings);
    QFETCH(QString, before);
    QFETCH(QString, utc);
    QFETCH(QString, local);
    QFETCH(int, hours);
    QFETCH(int, minutes);
    QFETCH(QString, setBy);
    const TConsole console;
    Store(console, settings);
    if (!before.isEmpty())
        QCOMPARE(console.Run({Utf8("clock"), Utf8("set"), before}).status, 0);
    const TConsole::tagResult set = console.Run({Utf8("clock"), Utf8("utc"), utc});
    QCOMPARE(set.errors, QString());
    QCOMPARE(set.status, 0);
    const QJsonObject clock = Clock(console);
    VerifyAbout(clock.value(Utf8("local")).toString(), local);
    QCOMPARE(clock.value(Utf8("source")).toString(), Utf8("receiver"));
    VerifyAbout(clock.value(Utf8("since")).toString().remove(QLatin1Char('Z')),
                clock.value(Utf8("utc")).toString().remove(QLatin1Char('Z')), -Patience);
    QCOMPARE(clock.value(Utf8("offsetSetBy")).toString(), setBy);
    QCOMPARE(clock.value(Utf8("utcFrom")).toString(), Utf8("offset"));
    QCOMPARE(Utc(clock.value(Utf8("utc")).toString().remove(QLatin1Char('Z')))
                 .secsTo(Utc(clock.value(Utf8("local")).toString())),
             static_cast<qint64>(hours * 3600 + minutes * 60));
    VerifyOffset(console, hours, minutes, setBy == Utf8("operator"));
}

void ConsoleClock::settingByHandEndsTheOffset()
{
    const TConsole console;
    Store(console, Utf8("clock.offset-hours=2|clock.offset-by-operator=true"));
    QCOMPARE(Run(console, "clock utc 2026-03-05T10:00:00Z").status, 0);
    VerifyOffset(console, 2, 0, true);
    QCOMPARE(Run(console, "clock set 07:45").status, 0);
    VerifyAbout(Clock(console).value(Utf8("local")).toString(), Utf8("2026-03-05T07:45:00"));
    VerifyOffset(console, 0, 0, false);
}

void ConsoleClock::theClockIsShownAsOnTheDisplay_data()
{
    QTest::addColumn<bool>("is24Hours");
    QTest::addColumn<bool>("isMonthFirst");
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("time");
    QTest::newRow("day first") << true << false << int(LANGUAGE_ENGLISH) << Utf8("5 Mar, 2026") << Utf8("14:05:");
    QTest::newRow("am and pm") << false << true << int(LANGUAGE_ENGLISH) << Utf8("Mar 5, 2026") << Utf8("02:05:");
    QTest::newRow("German") << true << false << int(LANGUAGE_GERMAN) << Utf8("5 Mär, 2026") << Utf8("14:05:");
}

void ConsoleClock::theClockIsShownAsOnTheDisplay()
{
    QFETCH(bool, is24Hours);
    QFETCH(bool, isMonthFirst);
    QFETCH(int, language);
    QFETCH(QString, date);
    QFETCH(QString, time);
    const TConsole console;
    Store(console, QMap<EParamID, QVariant>{{PARAM_24_HOUR_CLOCK, is24Hours},
                                            {PARAM_MONTH_FIRST, isMonthFirst},
                                            {PARAM_LANGUAGE, language}});
    QCOMPARE(Run(console, "clock set 2026-03-05 14:05").status, 0);
    const QJsonObject clock = Clock(console);
    QCOMPARE(clock.value(Utf8("date")).toString(), date);
    QVERIFY2(clock.value(Utf8("time")).toString().startsWith(time), qPrintable(clock.value(Utf8("time")).toString()));
    QCOMPARE(clock.value(Utf8("time")).toString().endsWith(Utf8(" pm")), !is24Hours);
    const QString table = Run(console, "clock").output;
    QVERIFY2(table.startsWith(Utf8("local   ") + date + QLatin1Char(' ') + time), qPrintable(table));
    QCOMPARE(Run(console, "clock show").output.section(QLatin1Char('\n'), 2), table.section(QLatin1Char('\n'), 2));
}

void ConsoleClock::theSourceIsTold_data()
{
    QTest::addColumn<QStringList>("commands");
    QTest::addColumn<QString>("lines"); ///< beginnings
    const QString set = Utf8("clock set 2026-03-05 14:05");
    const QString utc = Utf8("clock utc 2026-03-05T17:35:00Z");
    QTest::newRow("by hand") << QStringList{set}
                             << Utf8("offset  +00:00 (not set)\nsource  operator, since 2026-03-05T14:0");
    QTest::newRow("by GPS") << QStringList{set, utc}
                            << Utf8("offset  -03:30 (clock less UTC when the first GPS time came)\n"
                                    "source  receiver, since 2026-03-05T17:3");
    QTest::newRow("by GPS, without an offset") << QStringList{Utf8("clock set 2026-03-05 17:35"), utc}
                                               << Utf8("offset  +00:00 (clock less UTC when the first GPS time came)\n"
                                                       "source  receiver, since 2026-03-05T17:3");
    QTest::newRow("by GPS, then by hand")
        << QStringList{utc, set} << Utf8("offset  +00:00 (not set)\nsource  operator, since 2026-03-05T14:0");
    QTest::newRow("an offset alone") << QStringList{Utf8("set clock.offset-hours 10"),
                                                    Utf8("set clock.offset-by-operator true")}
                                     << Utf8("offset  +10:00 (chosen by the operator)\n"
                                             "source  none: the machine's clock, which nothing has set\n");
    QTest::newRow("since the first of a row")
        << QStringList{set, Utf8("clock set 2026-04-05 14:05")}
        << Utf8("offset  +00:00 (not set)\nsource  operator, since 2026-03-05T14:0");
}

void ConsoleClock::theSourceIsTold()
{
    QFETCH(QStringList, commands);
    QFETCH(QString, lines);
    const TConsole console;
    for (const QString& command : commands)
        QCOMPARE(console.Run(command.split(QLatin1Char(' '))).status, 0);
    const QString told = Run(console, "clock").output.section(QLatin1Char('\n'), 2);
    QVERIFY2(told.startsWith(lines), qPrintable(told));
}

void ConsoleClock::wrongUsageSaysWhatIsAcceptedAndTouchesNothing_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("accepted");
    const auto row = [](const char* name, const char* arguments, const char* named, const char* accepted) {
        QTest::newRow(name) << Words(arguments) << Utf8(named) << Utf8(accepted);
    };
    row("unknown command", "wind", "\"wind\"", "show, set or utc");
    row("unknown option", "--utc", "\"--utc\"", "show, set or utc");
    row("show with a word", "show now", "\"now\"", "clock show --help");
    row("nothing to set", "set", "missing", "[DATE] [TIME]");
    row("too much", "set 2026-03-05 14:05 00", "\"00\"", "[DATE] [TIME]");
    row("too much in one word", "set 2026-03-05T14:05 15:00", "\"15:00\"", "[DATE] [TIME]");
    row("no day of the calendar", "set 2026-02-30", "\"2026-02-30\"", "YYYY-MM-DD");
    row("no leap year", "set 2100-02-29 12:00", "\"2100-02-29\"", "YYYY-MM-DD");
    row("month 13", "set 2026-13-01", "\"2026-13-01\"", "YYYY-MM-DD");
    row("short date", "set 2026-3-5", "\"2026-3-5\"", "YYYY-MM-DD");
    row("another order", "set 05.03.2026", "\"05.03.2026\"", "YYYY-MM-DD");
    row("time before date", "set 14:05 2026-03-05", "\"14:05\"", "YYYY-MM-DD");
    row("hour 24", "set 24:00", "\"24:00\"", "from 00:00 to 23:59:59");
    row("minute 60", "set 2026-03-05 12:60", "\"12:60\"", "HH:MM");
    row("second 60", "set 12:00:60", "\"12:00:60\"", "HH:MM:SS");
    row("short time", "set 9:30", "\"9:30\"", "HH:MM");
    row("fractions", "set 09:30:00.5", "\"09:30:00.5\"", "HH:MM:SS");
    row("the year of a wrong century", "set 1776-07-04", "\"1776-07-04\"", "68 years");
    row("a far future", "set 9999-12-31 12:00", "\"9999-12-31\"", "68 years");
    row("no UTC to set", "utc", "missing", "DATETIME");
    row("UTC without Z", "utc 2026-03-05T14:05:00", "\"2026-03-05T14:05:00\"", "YYYY-MM-DDTHH:MM:SSZ");
    row("UTC without date", "utc 14:05:00Z", "\"14:05:00Z\"", "YYYY-MM-DDTHH:MM:SSZ");
    row("UTC of no day", "utc 2026-02-30T14:05:00Z", "\"2026-02-30\"", "YYYY-MM-DD");
    row("UTC of no time", "utc 2026-03-05T14:65:00Z", "\"14:65:00\"", "HH:MM:SS");
    row("UTC of another century", "utc 2126-03-05T14:05:00Z", "\"2126-03-05\"", "68 years");
    row("UTC in two words", "utc 2026-03-05 14:05:00Z", "\"14:05:00Z\"", "DATETIME");
}

void ConsoleClock::wrongUsageSaysWhatIsAcceptedAndTouchesNothing()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    QFETCH(QString, accepted);
    const TConsole console;
    VerifyMisused(console.Run(QStringList{Utf8("clock")} + arguments), named, accepted);
    QVERIFY(!QFile::exists(console.DataFolder()));
}

void ConsoleClock::aFolderThatCannotBeMadeIsAFailure()
{
    const TConsole console;
    WriteFile(console.DataFolder(), "a file where the folder should be");
    for (const char* command : {"clock", "clock set 12:00", "clock utc 2026-03-05T14:05:00Z"}) {
        const TConsole::tagResult result = Run(console, command);
        QCOMPARE(result.status, 1);
        QVERIFY2(result.errors.contains(console.DataFolder()), qPrintable(result.errors));
    }
}

QTEST_GUILESS_MAIN(ConsoleClock)
#include "ConsoleClock.moc"
