#include "nmea/TNmeaStreamTime.h"

#include "nmea/NmeaChecksum.h"

#include <QtTest>

class NmeaStreamTime : public QObject
{
    Q_OBJECT

private slots:
    void linesStandWhereTheirTimesSay_data();
    void linesStandWhereTheirTimesSay();
};

void NmeaStreamTime::linesStandWhereTheirTimesSay_data()
{
    QTest::addColumn<QList<QByteArray>>("bodies");
    QTest::addColumn<QList<qint64>>("milliseconds");

    const auto row = [](const char* name, const QList<QByteArray>& bodies, const QList<qint64>& milliseconds) {
        QTest::newRow(name) << bodies << milliseconds;
    };
    row("no times", {"GPGSA,A,1,,,,,,,,,,,,,,,", "GPRMC,,V,,,,,,,,,,N", "noise"}, {0, 0, 0});
    row("seconds", {"GPZDA,120000.00,01,05,2024,,", "GPZDA,120001.00,01,05,2024,,", "GPZDA,120003.50,01,05,2024,,"},
        {0, 1000, 3500});
    row("sentences of one epoch",
        {"GPRMC,120000.00,A,,,,,,,010524,,,A", "GPVTG,,T,,M,0.0,N,0.0,K,A", "GPGGA,120000.00,,,,,0,,,,M,,M,,",
         "GPRMC,120000.20,A,,,,,,,010524,,,A", "GPGGA,120000.20,,,,,0,,,,M,,M,,"},
        {0, 0, 0, 200, 200});
    row("times without a date", {"GPGGA,120000.00,,,,,0,,,,M,,M,,", "GPGLL,,,,,120002.00,V,N"}, {0, 2000});
    row("lines before the first time", {"GPRMC,,V,,,,,,,,,,N", "GPZDA,120000.00,01,05,2024,,"}, {0, 0});
    row("midnight", {"GPGGA,235959.50,,,,,0,,,,M,,M,,", "GPGGA,000000.50,,,,,0,,,,M,,M,,"}, {0, 1000});
    row("backwards", {"GPZDA,120010.00,01,05,2024,,", "GPZDA,120005.00,01,05,2024,,", "GPZDA,120006.00,01,05,2024,,"},
        {0, 0, 1000});
    row("a minute's gap", {"GPZDA,120000.00,01,05,2024,,", "GPZDA,120100.00,01,05,2024,,"}, {0, 60000});
    row("a longer gap", {"GPZDA,120000.00,01,05,2024,,", "GPZDA,120100.01,01,05,2024,,"}, {0, 0});
}

void NmeaStreamTime::linesStandWhereTheirTimesSay()
{
    QFETCH(QList<QByteArray>, bodies);
    QFETCH(QList<qint64>, milliseconds);
    TNmeaStreamTime time;
    QList<qint64> told;
    for (const QByteArray& body : bodies)
        told.append(time.Advance('$' + body + NmeaChecksum(body) + "\r\n"));
    QCOMPARE(told, milliseconds);
}

QTEST_GUILESS_MAIN(NmeaStreamTime)
#include "NmeaStreamTime.moc"
