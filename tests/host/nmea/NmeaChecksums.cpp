#include "nmea/NmeaChecksum.h"

#include <QtTest>

class NmeaChecksums : public QObject
{
    Q_OBJECT

private slots:
    void aBodyHasAChecksum_data();
    void aBodyHasAChecksum();
    void aLineIsJudged_data();
    void aLineIsJudged();
    void everyFlippedBitIsFound();
};

void NmeaChecksums::aBodyHasAChecksum_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("checksum");

    QTest::newRow("empty") << QByteArray() << QByteArray("*00");
    QTest::newRow("one letter") << QByteArray("A") << QByteArray("*41");
    QTest::newRow("leading zero") << QByteArray("AD") << QByteArray("*05");
    QTest::newRow("capitals") << QByteArray("o") << QByteArray("*6F");
    QTest::newRow("high byte") << QByteArray("\xff") << QByteArray("*FF");
    QTest::newRow("sentence") << QByteArray("GPGLL,,,,,,V,N") << QByteArray("*64");
}

void NmeaChecksums::aBodyHasAChecksum()
{
    QFETCH(QByteArray, body);
    QTEST(NmeaChecksum(body), "checksum");
}

void NmeaChecksums::aLineIsJudged_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("verdict");

    const auto row = [](const char* name, const QByteArray& line, ENmeaVerdict verdict) {
        QTest::newRow(name) << line << static_cast<int>(verdict);
    };
    row("right", "$GPGLL,,,,,,V,N*64\r\n", NMEA_RIGHT_CHECKSUM);
    row("line feed alone", "$GPGLL,,,,,,V,N*64\n", NMEA_RIGHT_CHECKSUM);
    row("no line end", "$GPGLL,,,,,,V,N*64", NMEA_RIGHT_CHECKSUM);
    row("small letters", "$o*6f\r\n", NMEA_RIGHT_CHECKSUM);
    row("encapsulated", "!o*6F\r\n", NMEA_RIGHT_CHECKSUM);
    row("wrong", "$GPGLL,,,,,,V,N*65\r\n", NMEA_WRONG_CHECKSUM);
    row("damaged body", "$GPGLL,,,,,V,N*64\r\n", NMEA_WRONG_CHECKSUM);
    row("no digits", "$A*\r\n", NMEA_WRONG_CHECKSUM);
    row("one digit", "$A*4\r\n", NMEA_WRONG_CHECKSUM);
    row("three digits", "$A*411\r\n", NMEA_WRONG_CHECKSUM);
    row("no hexadecimal digits", "$A*4G\r\n", NMEA_WRONG_CHECKSUM);
    row("sign for a digit", "$\1*+1\r\n", NMEA_WRONG_CHECKSUM);
    row("blank behind", "$A*41 \r\n", NMEA_WRONG_CHECKSUM);
    row("two line ends", "$A*41\r\r\n", NMEA_WRONG_CHECKSUM);
    row("two sentences run together", "$A*41$B*42\r\n", NMEA_WRONG_CHECKSUM);
    row("none", "$GPGLL,,,,,,V,N\r\n", NMEA_NO_CHECKSUM);
    row("empty", "", NMEA_NO_SENTENCE);
    row("line end alone", "\r\n", NMEA_NO_SENTENCE);
    row("dollar alone", "$\r\n", NMEA_NO_SENTENCE);
    row("no body", "$*00\r\n", NMEA_NO_SENTENCE);
    row("beginning lost", "LL,,,,,,V,N*64\r\n", NMEA_NO_SENTENCE);
    row("noise before", " $A*41\r\n", NMEA_NO_SENTENCE);
    row("zeros", QByteArray(100, '\0'), NMEA_NO_SENTENCE);
    row("zero within", QByteArray("$\0*00\r\n", 7), NMEA_RIGHT_CHECKSUM);
}

void NmeaChecksums::aLineIsJudged()
{
    QFETCH(QByteArray, line);
    QFETCH(int, verdict);
    QCOMPARE(static_cast<int>(CheckNmeaLine(line)), verdict);
}

void NmeaChecksums::everyFlippedBitIsFound()
{
    const QByteArray line = "$GPGLL,5050.4126,N,00420.8228,E,105459.408,A,A*5E";
    QCOMPARE(CheckNmeaLine(line), NMEA_RIGHT_CHECKSUM);
    for (int at = 0; at < line.size(); ++at) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray damaged = line;
            damaged[at] = static_cast<char>(damaged.at(at) ^ (1 << bit));
            if (damaged.toUpper() != line) // the case of the checksum's letter is free
                QVERIFY2(CheckNmeaLine(damaged) != NMEA_RIGHT_CHECKSUM, damaged.constData());
        }
    }
}

QTEST_APPLESS_MAIN(NmeaChecksums)
#include "NmeaChecksums.moc"
