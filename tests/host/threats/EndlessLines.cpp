#include "Memory.h"
#include "Obstacles.h"
#include "TestLength.h"
#include "TestResults.h"

#include "diagnostics/TLogTail.h"
#include "nmea/LoggedPosition.h"
#include "nmea/RecordedTime.h"
#include "nmea/TNmeaInput.h"
#include "profiles/TProfile.h"
#include "stores/TSqliteStore.h"
#include "support/SupportBundle.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/TTerminal.h"

#include <QEventLoop>
#include <QtTest>

#include <algorithm>
#include <memory>

namespace {

constexpr qint64 MostKilobytes = 16 * 1024;

/// What reads a file line by line. Returns what is wrong; empty when nothing is.
struct tagLineReader
{
    const char* name;
    const char* file; ///< in the data folder of a terminal
    QByteArray (*read)(TSqliteStore& store, const QString& path, qint64 bytes);
};

QByteArray ReadProfile(TSqliteStore&, const QString& path, qint64)
{
    QStringList problems;
    return TProfile::Read(path, PROFILE_EDITS_ACCEPTED, &problems) ? "a profile was read" : QByteArray();
}

QByteArray ReadRecording(TSqliteStore&, const QString& path, qint64 bytes)
{
    TNmeaInput input(tagFileAddress{path}, 0);
    qint64 received = 0;
    qint64 longest = 0;
    QEventLoop loop;
    QObject::connect(&input, &TNmeaInput::LineReceived, &input, [&](const QByteArray& line) {
        received += line.size();
        longest = std::max<qint64>(longest, line.size());
    });
    QObject::connect(&input, &TNmeaInput::Finished, &loop, &QEventLoop::quit);
    input.Start();
    loop.exec();
    return received == bytes && longest == 4096 ? QByteArray() : "lines are missing or too long";
}

QByteArray ReadFirstTime(TSqliteStore&, const QString& path, qint64)
{
    return FirstRecordedTime(tagFileAddress{path}).isValid() ? "a time was read" : QByteArray();
}

QByteArray ReadPosition(TSqliteStore&, const QString&, qint64)
{
    return LastLoggedPosition(TSystemSettingsProxy().GetInternalNemaLogPath()) ? "a position was read" : QByteArray();
}

QByteArray ReadTail(TSqliteStore&, const QString&, qint64)
{
    TLogTail tail(TSystemSettingsProxy().GetInternalNemaLogPath());
    QString error;
    const bool isEmpty = tail.Read(&error).isEmpty();
    const QString text = tail.Unfinished().text;
    return isEmpty && text.size() == TLogTail::LongestLine + 1 && text.endsWith(TLogTail::CutMark)
               ? QByteArray()
               : "not one long line";
}

QByteArray WriteBundle(TSqliteStore& store, const QString& path, bool isAnonymous)
{
    const QString folder = QFileInfo(store.Path()).path();
    tagSupportBundle bundle;
    QString error;
    WriteSupportBundle(store, folder + QLatin1String("/support.zip"), {folder, QString(), isAnonymous}, {}, &bundle,
                       &error);
    if (!bundle.members.contains(QLatin1String("logs/") + QFileInfo(path).fileName()))
        error += QLatin1String("the log is not in the bundle");
    return error.toUtf8();
}

QByteArray WriteWhole(TSqliteStore& store, const QString& path, qint64) { return WriteBundle(store, path, false); }
QByteArray WriteBlanked(TSqliteStore& store, const QString& path, qint64) { return WriteBundle(store, path, true); }

constexpr tagLineReader Readers[] = {
    {"profile", "tractor.profile", &ReadProfile},
    {"recording", "drive.nmea", &ReadRecording},
    {"first time of a recording", "drive.nmea", &ReadFirstTime},
    {"last logged position", "internal/Diagnostics/NMEA00001.csv", &ReadPosition},
    {"tail of a log", "internal/Diagnostics/NMEA00001.csv", &ReadTail},
    {"support bundle", "internal/Diagnostics/NMEA00001.csv", &WriteWhole},
    {"anonymous support bundle", "internal/Diagnostics/User00099.csv", &WriteBlanked},
};

} // namespace

/// A line of 128 MB, and of 2 GB in a longer run, is read in the memory of a short one.
class EndlessLines : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { alarm(3 * SecondsToStop * static_cast<unsigned>(TestLength())); }

    void aLineThatNeverEndsFillsNoMemory_data();
    void aLineThatNeverEndsFillsNoMemory();
};

Q_DECLARE_METATYPE(const tagLineReader*)

void EndlessLines::aLineThatNeverEndsFillsNoMemory_data()
{
    QTest::addColumn<const tagLineReader*>("reader");
    for (const tagLineReader& reader : Readers)
        QTest::newRow(reader.name) << &reader;
}

/// The file is a hole, and takes no space.
void EndlessLines::aLineThatNeverEndsFillsNoMemory()
{
    QFETCH(const tagLineReader*, reader);
    const qint64 bytes = TestLength() > 1 ? qint64{2} << 30 : qint64{128} << 20;
    const TTemporaryFolder folder;
    QString error;
    const auto store = TSqliteStore::Open(folder.Path(QLatin1String("settings.db")), &error);
    QVERIFY2(store != nullptr, qPrintable(error));
    TTerminal terminal(*store);
    QVERIFY2(terminal.Start(folder.Path(), &error), qPrintable(error));
    folder.MakeFile(QLatin1String(reader->file));
    const QString path = folder.Path(QLatin1String(reader->file));
    QVERIFY(QFile::resize(path, bytes));

    const qint64 before = KilobytesOf("VmHWM:");
    QCOMPARE(reader->read(*store, path, bytes), QByteArray());
    const qint64 grown = KilobytesOf("VmHWM:") - before;
    QVERIFY2(grown <= MostKilobytes * MemoryFactor, qPrintable(QString::number(grown)));
    AppendTestResult("endless-lines", {reader->name, QByteArray::number(bytes), QByteArray::number(grown)});
}

QTEST_GUILESS_MAIN(EndlessLines)
#include "EndlessLines.moc"
