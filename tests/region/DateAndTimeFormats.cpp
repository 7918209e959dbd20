#include "CoreTest.h"
#include "Latin1.h"
#include "TBracketTranslator.h"
#include "TJournal.h"

#include "region/TRegionSettings.h"

#include <QScopedPointer>
#include <QtTest>

namespace {

using FFormat = QString (TRegionSettings::*)() const;

} // namespace

Q_DECLARE_METATYPE(FFormat)

class DateAndTimeFormats : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_Store.reset(new TJournal); }
    void cleanup() { m_Store.reset(); }

    void timesForTheOperator_data();
    void timesForTheOperator();
    void datesForTheOperator_data();
    void datesForTheOperator();
    void stampsForFileNames_data();
    void stampsForFileNames();
    void anAbsentSwitchReadsAsFalse();
    void monthsAreTranslated_data();
    void monthsAreTranslated();
    void onlyTheOwnContextTranslates();
    void theHostIsAskedInOrder_data();
    void theHostIsAskedInOrder();

private:
    QScopedPointer<TJournal> m_Store;
};

void DateAndTimeFormats::timesForTheOperator_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QString>("of24Hours");
    QTest::addColumn<QString>("of12Hours");

    QTest::newRow("midnight") << QTime(0, 0) << Latin1("00:00:00") << Latin1("12:00:00 am");
    QTest::newRow("just after midnight") << QTime(0, 0, 1) << Latin1("00:00:01") << Latin1("12:00:01 am");
    QTest::newRow("one o'clock") << QTime(1, 0) << Latin1("01:00:00") << Latin1("01:00:00 am");
    QTest::newRow("morning") << QTime(9, 5, 7) << Latin1("09:05:07") << Latin1("09:05:07 am");
    QTest::newRow("just before noon") << QTime(11, 59, 59, 999) << Latin1("11:59:59") << Latin1("11:59:59 am");
    QTest::newRow("noon") << QTime(12, 0) << Latin1("12:00:00") << Latin1("12:00:00 pm");
    QTest::newRow("one in the afternoon") << QTime(13, 0) << Latin1("13:00:00") << Latin1("01:00:00 pm");
    QTest::newRow("afternoon") << QTime(14, 5, 9) << Latin1("14:05:09") << Latin1("02:05:09 pm");
    QTest::newRow("just before midnight") << QTime(23, 59, 59, 999) << Latin1("23:59:59") << Latin1("11:59:59 pm");
    QTest::newRow("no time") << QTime() << QString() << QString();
}

void DateAndTimeFormats::timesForTheOperator()
{
    QFETCH(QTime, time);
    QFETCH(QString, of24Hours);
    QFETCH(QString, of12Hours);
    const TRegionSettings region;
    TTestClock::time = time;
    m_Store->values[PARAM_24_HOUR_CLOCK] = true;
    QCOMPARE(region.GetTimeString(), of24Hours);
    m_Store->values[PARAM_24_HOUR_CLOCK] = false;
    QCOMPARE(region.GetTimeString(), of12Hours);
}

void DateAndTimeFormats::datesForTheOperator_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("monthFirst");
    QTest::addColumn<QString>("dayFirst");

    const char* const months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    int month = 0;
    for (const char* name : months) {
        ++month;
        QTest::newRow(name) << QDate(2024, month, 5) << Latin1(name) + Latin1(" 5, 2024")
                            << Latin1("5 ") + Latin1(name) + Latin1(", 2024");
        QTest::newRow((QByteArray("late in ") + name).constData())
            << QDate(2024, month, 28) << Latin1(name) + Latin1(" 28, 2024")
            << Latin1("28 ") + Latin1(name) + Latin1(", 2024");
    }
    QTest::newRow("leap day") << QDate(2024, 2, 29) << Latin1("Feb 29, 2024") << Latin1("29 Feb, 2024");
    QTest::newRow("last day of a century") << QDate(1999, 12, 31) << Latin1("Dec 31, 1999") << Latin1("31 Dec, 1999");
    QTest::newRow("early year") << QDate(7, 1, 2) << Latin1("Jan 2, 7") << Latin1("2 Jan, 7");
    QTest::newRow("year beyond four digits") << QDate(12024, 1, 2) << Latin1("Jan 2, 12024") << Latin1("2 Jan, 12024");
    QTest::newRow("no date") << QDate() << Latin1(" 0, 0") << Latin1("0 , 0");
    QTest::newRow("a day that does not exist") << QDate(2023, 2, 29) << Latin1(" 0, 0") << Latin1("0 , 0");
}

void DateAndTimeFormats::datesForTheOperator()
{
    QFETCH(QDate, date);
    QFETCH(QString, monthFirst);
    QFETCH(QString, dayFirst);
    const TRegionSettings region;
    m_Store->values[PARAM_MONTH_FIRST] = true;
    QCOMPARE(region.GetDateString(date), monthFirst);
    m_Store->values[PARAM_MONTH_FIRST] = false;
    QCOMPARE(region.GetDateString(date), dayFirst);

    TTestClock::date = date;
    QCOMPARE(region.GetDateString(), dayFirst);
    m_Store->values[PARAM_MONTH_FIRST] = true;
    QCOMPARE(region.GetDateString(), monthFirst);
}

void DateAndTimeFormats::stampsForFileNames_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QString>("monthFirst");
    QTest::addColumn<QString>("dayFirst");
    QTest::addColumn<QString>("minutes");
    QTest::addColumn<QString>("seconds");

    QTest::newRow("afternoon") << QDate(2024, 3, 5) << QTime(14, 5, 33) << Latin1("030524") << Latin1("050324")
                               << Latin1("1405") << Latin1("140533");
    QTest::newRow("midnight") << QDate(2024, 3, 5) << QTime(0, 0) << Latin1("030524") << Latin1("050324")
                              << Latin1("0000") << Latin1("000000");
    QTest::newRow("morning") << QDate(2024, 3, 5) << QTime(1, 2, 3) << Latin1("030524") << Latin1("050324")
                             << Latin1("0102") << Latin1("010203");
    QTest::newRow("noon") << QDate(2024, 10, 11) << QTime(12, 0) << Latin1("101124") << Latin1("111024")
                          << Latin1("1200") << Latin1("120000");
    QTest::newRow("seconds are cut") << QDate(2024, 3, 5) << QTime(23, 59, 59, 999) << Latin1("030524")
                                     << Latin1("050324") << Latin1("2359") << Latin1("235959");
    QTest::newRow("end of a century") << QDate(1999, 12, 31) << QTime(14, 5) << Latin1("123199") << Latin1("311299")
                                      << Latin1("1405") << Latin1("140500");
    QTest::newRow("start of a century") << QDate(2000, 1, 1) << QTime(14, 5) << Latin1("010100") << Latin1("010100")
                                        << Latin1("1405") << Latin1("140500");
}

void DateAndTimeFormats::stampsForFileNames()
{
    QFETCH(QDate, date);
    QFETCH(QTime, time);
    QFETCH(QString, monthFirst);
    QFETCH(QString, dayFirst);
    QFETCH(QString, minutes);
    QFETCH(QString, seconds);
    const TRegionSettings region;
    TTestClock::date = date;
    TTestClock::time = time;
    for (const bool is24Hours : {false, true}) { // which plays no part in a stamp
        m_Store->values[PARAM_24_HOUR_CLOCK] = is24Hours;
        m_Store->values[PARAM_MONTH_FIRST] = true;
        QCOMPARE(region.GetDateTimeString(), monthFirst + QLatin1Char('_') + minutes);
        QCOMPARE(region.GetDateTimeStringWithSeconds(), monthFirst + QLatin1Char('_') + seconds);
        m_Store->values[PARAM_MONTH_FIRST] = false;
        QCOMPARE(region.GetDateTimeString(), dayFirst + QLatin1Char('_') + minutes);
        QCOMPARE(region.GetDateTimeStringWithSeconds(), dayFirst + QLatin1Char('_') + seconds);
    }
}

void DateAndTimeFormats::anAbsentSwitchReadsAsFalse()
{
    const TRegionSettings region;
    QCOMPARE(region.GetTimeString(), Latin1("02:05:09 pm"));
    QCOMPARE(region.GetDateString(), Latin1("5 Mar, 2024"));
    QCOMPARE(region.GetDateTimeString(), Latin1("050324_1405"));
    QCOMPARE(region.GetDateTimeStringWithSeconds(), Latin1("050324_140509"));
}

void DateAndTimeFormats::monthsAreTranslated_data()
{
    QTest::addColumn<int>("month");
    QTest::addColumn<QString>("translated");

    const char* const months[] = {"[Jan]", "[Feb]", "[Mar]", "[Apr]", "[May]", "[Jun]",
                                  "[Jul]", "[Aug]", "[Sep]", "[Oct]", "[Nov]", "[Dec]"};
    int month = 0;
    for (const char* name : months)
        QTest::newRow(name) << ++month << Latin1(name);
}

void DateAndTimeFormats::monthsAreTranslated()
{
    QFETCH(int, month);
    QFETCH(QString, translated);
    const TBracketTranslator translator("TRegionSettings");
    const TRegionSettings region;
    const QDate date(2024, month, 5);
    m_Store->values[PARAM_MONTH_FIRST] = true;
    QCOMPARE(region.GetDateString(date), translated + Latin1(" 5, 2024"));
    m_Store->values[PARAM_MONTH_FIRST] = false;
    QCOMPARE(region.GetDateString(date), Latin1("5 ") + translated + Latin1(", 2024"));
    QVERIFY(!region.GetDateTimeString().contains(QLatin1Char('[')));
    QVERIFY(!region.GetTimeString().contains(QLatin1Char('[')));
}

void DateAndTimeFormats::onlyTheOwnContextTranslates()
{
    const TBracketTranslator translator("TSystemSettings");
    QCOMPARE(TRegionSettings().GetDateString(), Latin1("5 Mar, 2024"));
}

void DateAndTimeFormats::theHostIsAskedInOrder_data()
{
    QTest::addColumn<FFormat>("format");
    QTest::addColumn<QStringList>("expected");

    const FFormat dateString = &TRegionSettings::GetDateString;
    QTest::newRow("time") << FFormat(&TRegionSettings::GetTimeString)
                          << (QStringList() << Latin1("read 9011") << Latin1("currentTime"));
    QTest::newRow("date") << dateString << (QStringList() << Latin1("currentDate") << Latin1("read 9012"));
    const QStringList stamp = QStringList() << Latin1("currentTime") << Latin1("read 9012") << Latin1("currentDate");
    QTest::newRow("stamp") << FFormat(&TRegionSettings::GetDateTimeString) << stamp;
    QTest::newRow("stamp to the second") << FFormat(&TRegionSettings::GetDateTimeStringWithSeconds) << stamp;
}

void DateAndTimeFormats::theHostIsAskedInOrder()
{
    QFETCH(FFormat, format);
    QFETCH(QStringList, expected);
    const TRegionSettings region;
    (region.*format)();
    QCOMPARE(m_Store->calls, expected);
}

int main(int argc, char** argv) { return RunCoreTest<DateAndTimeFormats>(argc, argv); }
#include "DateAndTimeFormats.moc"
