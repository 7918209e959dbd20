#include "nmea/LoggedPosition.h"

#include "nmea/NmeaChecksum.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray Rmc(const char* latitude, char status = 'A')
{
    const QByteArray body = QByteArray("GPRMC,120000.00,") + status + ',' + latitude + ",01030.0,E,,,050326,,,A";
    return '$' + body + NmeaChecksum(body) + "\r\n";
}

} // namespace

/// The last position in a log is found, however many files without one follow.
class LoggedPositions : public QObject
{
    Q_OBJECT

private slots:
    void theLastPositionIsFound_data();
    void theLastPositionIsFound();
};

void LoggedPositions::theLastPositionIsFound_data()
{
    QTest::addColumn<QList<QByteArray>>("files"); ///< from the oldest
    QTest::addColumn<double>("latitude");         ///< 0 when none is found
    const QByteArray north = Rmc("5212.0,N");
    const QByteArray south = Rmc("3351.0,S");
    const QByteArray noFix = Rmc("5212.0,N", 'V');
    QTest::newRow("no file") << QList<QByteArray>{} << 0.0;
    QTest::newRow("an empty file") << QList<QByteArray>{QByteArray()} << 0.0;
    QTest::newRow("no fix") << QList<QByteArray>{noFix} << 0.0;
    QTest::newRow("one position") << QList<QByteArray>{north} << 52.2;
    QTest::newRow("the last of a file") << QList<QByteArray>{north + south} << -33.85;
    QTest::newRow("a lost fix") << QList<QByteArray>{south + noFix} << -33.85;
    QTest::newRow("the newest file") << QList<QByteArray>{north, south} << -33.85;
    QTest::newRow("an older file") << QList<QByteArray>{north, south, noFix, QByteArray()} << -33.85;
    QTest::newRow("a wrong checksum") << QList<QByteArray>{north, QByteArray(south).replace("3351", "3352")} << 52.2;
    QTest::newRow("a line that was cut") << QList<QByteArray>{north + south.left(20)} << 52.2;
}

void LoggedPositions::theLastPositionIsFound()
{
    QFETCH(QList<QByteArray>, files);
    QFETCH(double, latitude);
    const QTemporaryDir folder;
    QDateTime time(QDate(2026, 3, 5), QTime(12, 0), Qt::UTC);
    int number = 0;
    for (const QByteArray& contents : files) {
        QFile file(folder.filePath(QString::fromLatin1("NMEA%1.csv").arg(++number, 5, 10, QLatin1Char('0'))));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QCOMPARE(file.write(contents), static_cast<qint64>(contents.size()));
        file.flush();
        time = time.addSecs(60);
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    }
    const auto position = LastLoggedPosition(folder.filePath(QLatin1String("NMEA.csv")));
    QCOMPARE(position.has_value(), latitude != 0);
    if (position) {
        QCOMPARE(position->latitude, latitude);
        QCOMPARE(position->longitude, 10.5);
    }
}

QTEST_GUILESS_MAIN(LoggedPositions)
#include "LoggedPositions.moc"
