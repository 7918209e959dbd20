#include "NmeaCatch.h"
#include "TStandardInput.h"

#include "nmea/NmeaChecksum.h"
#include "nmea/RecordedTime.h"

#include <sys/stat.h>

namespace {

QByteArray Line(const QByteArray& body) { return '$' + body + NmeaChecksum(body) + "\r\n"; }

QByteArray Rmc(const char* time, char status = 'A', const char* date = "010524")
{
    return Line(QByteArray("GPRMC,") + time + ',' + status + ",5212.0,N,01030.0,E,10.0,90.0," + date + ",,,A");
}

QDateTime Utc(int hour, int minute, int second)
{
    return QDateTime(QDate(2024, 5, 1), QTime(hour, minute, second), Qt::UTC);
}

} // namespace

class RecordedTimes : public QObject
{
    Q_OBJECT

private slots:
    void theFirstValidTimeCounts_data();
    void theFirstValidTimeCounts();
    void onlyFilesAreRecordings_data();
    void onlyFilesAreRecordings();
    void aFileOnStandardInputIsReadFromTheSamePlace();

private:
    QString Write(const QByteArray& stream) const
    {
        QString path = m_Folder.filePath(QLatin1String("stream.nmea"));
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(stream) == stream.size() ? path : QString();
    }

    QTemporaryDir m_Folder;
};

void RecordedTimes::theFirstValidTimeCounts_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<QDateTime>("utc");
    const auto row = [](const char* name, const QByteArray& stream, const QDateTime& utc = QDateTime()) {
        QTest::newRow(name) << stream << utc;
    };
    const QByteArray rmc = Rmc("120000.25");
    row("empty", QByteArray());
    row("no text", QByteArray(100000, '\0'));
    row("one line", rmc, Utc(12, 0, 0));
    row("without a line end", rmc.left(rmc.size() - 2), Utc(12, 0, 0));
    row("the first of several", rmc + Rmc("120001.00"), Utc(12, 0, 0));
    row("no fix at first", Rmc("115959.00", 'V') + rmc, Utc(12, 0, 0));
    row("no fix ever", Rmc("115959.00", 'V').repeated(3));
    row("no date at first", Rmc("115959.00", 'A', "") + rmc, Utc(12, 0, 0));
    row("a wrong checksum at first", Rmc("115959.00").replace("5212", "5213") + rmc, Utc(12, 0, 0));
    row("behind much else", QByteArray("{\"class\":\"VERSION\"}\r\n").repeated(10000) + rmc, Utc(12, 0, 0));
    row("of a ZDA", Rmc("115959.00", 'A', "") + Line("GPZDA,120001.00,01,05,2024,00,00"), Utc(12, 0, 1));
}

void RecordedTimes::theFirstValidTimeCounts()
{
    QFETCH(QByteArray, stream);
    QFETCH(QDateTime, utc);
    const QDateTime found = FirstRecordedTime(tagFileAddress{Write(stream)});
    QCOMPARE(found.isValid(), utc.isValid());
    if (utc.isValid()) {
        QCOMPARE(found.toSecsSinceEpoch(), utc.toSecsSinceEpoch());
        QCOMPARE(found.timeSpec(), Qt::UTC);
    }
}

void RecordedTimes::onlyFilesAreRecordings_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("missing file") << "/no/such/stream.nmea";
    QTest::newRow("folder") << "/";
    QTest::newRow("device") << "/dev/zero";
    QTest::newRow("pipe without a writer") << "pipe";
    QTest::newRow("server") << "tcp://127.0.0.1:1";
    QTest::newRow("serial line") << "serial:///dev/null";
}

void RecordedTimes::onlyFilesAreRecordings()
{
    QFETCH(QString, text);
    if (text == QLatin1String("pipe")) {
        text = m_Folder.filePath(text);
        QCOMPARE(mkfifo(QFile::encodeName(text).constData(), S_IRUSR | S_IWUSR), 0);
    }
    QString error;
    const auto address = ReadNmeaAddress(text, &error);
    QVERIFY2(address, qPrintable(error));
    QVERIFY(!FirstRecordedTime(*address).isValid());
    QVERIFY(!IsRecording(*address));
}

void RecordedTimes::aFileOnStandardInputIsReadFromTheSamePlace()
{
    const QByteArray rest = Rmc("120000.00") + Rmc("120001.00");
    const QByteArray read = Rmc("115959.00");
    QFile file(Write(read + rest));
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    QCOMPARE(file.read(read.size()), read); // by whoever had it before
    const TStandardInput standardInput(file.handle());
    const NmeaAddress address = tagFileAddress{QLatin1String("-")};
    QVERIFY(IsRecording(address));
    QCOMPARE(FirstRecordedTime(address).toSecsSinceEpoch(), Utc(12, 0, 0).toSecsSinceEpoch());

    TNmeaInput input(address);
    tagCatch caught(input);
    input.Start();
    QVERIFY(caught.WaitForEnd());
    QCOMPARE(caught.Stream(), rest);
}

QTEST_GUILESS_MAIN(RecordedTimes)
#include "RecordedTimes.moc"
