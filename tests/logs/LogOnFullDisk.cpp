#include "../system/TPrivateMounts.h"
#include "CoreTest.h"
#include "TLogRoom.h"

#include <QtTest>

namespace {

const long long NoLimit = 1024 * 1024;
const int PageSize = 4096; // by which the drive in memory is filled
const int DriveSize = 16 * PageSize;
const char* const DriveOptions = "size=64k";

/// A log room whose folder is a small drive of its own.
struct TSmallDriveRoom : TLogRoom
{
    explicit TSmallDriveRoom(const char* options = DriveOptions) : drive(folder.Path(QLatin1String("logs")), options) {}

    /// Takes room away until Release().
    void Fill(int size) const { MakeFile(QLatin1String("ballast"), size, 0); }
    void Release() const { QFile::remove(Path(QLatin1String("ballast"))); }

    TMemoryDrive drive;
};

QByteArray Line(int number) { return QByteArray::number(number).rightJustified(998, '.') + "\r\n"; }

} // namespace

class LogOnFullDisk : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aFullDiskLosesNoEarlierLine_data();
    void aFullDiskLosesNoEarlierLine();
    void entriesOnAFullDiskAreRefused();
    void whatIsStagedDoesNotFitOnAFullDisk();
    void aFullDiskKeepsTheOtherFiles();
    void anExportToAFullDiskIsTold();

    void aReadOnlyDiskKeepsTheLogClosed();
    void withoutRoomForAnotherFileTheLogCloses();
    void theRoomOfTheOldestFileServesTheNextOne();
    void aPulledStickTakesNoMoreFiles();
};

void LogOnFullDisk::init()
{
    if (!PrivateMounts::ArePermitted())
        QSKIP("Mounting is not permitted here.", SkipAll);
}

void LogOnFullDisk::aFullDiskLosesNoEarlierLine_data()
{
    QTest::addColumn<int>("stagingSize");
    QTest::newRow("no buffer") << 0;
    QTest::newRow("buffer shorter than a line") << 600;
}

void LogOnFullDisk::aFullDiskLosesNoEarlierLine()
{
    QFETCH(int, stagingSize);
    const TSmallDriveRoom room;
    QVERIFY(room.drive.IsMounted());
    room.Fill(DriveSize / 2);
    TDiagnosticLog log(stagingSize, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));

    QByteArray logged;
    int number = 0;
    for (; Log(log, Line(number)); ++number)
        logged += Line(number);
    QVERIFY(number > 30);
    QVERIFY(!Log(log, Line(number)));
    QVERIFY(!log.WriteToLog("x", 1));
    QVERIFY(!log.Open()); // is open all the time

    // What there was room for of the line that was refused, and nothing else, follows the lines before it.
    QVERIFY(room.Content(1).startsWith(logged));
    const QByteArray rest = room.Content(1).mid(logged.size());
    QVERIFY(Line(number).startsWith(rest));
    QVERIFY(rest.size() < Line(number).size());

    room.Release();
    QVERIFY(Log(log, "room again"));
    log.Close();
    QCOMPARE(room.Content(1), QByteArray(logged + rest + "room again"));
}

void LogOnFullDisk::entriesOnAFullDiskAreRefused()
{
    const TSmallDriveRoom room;
    TDiagnosticLog log(0, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    room.Fill(DriveSize);
    QVERIFY(!log.AddEntry(QLatin1String("lost")));
    QCOMPARE(room.Content(1), QByteArray());
    room.Release();
    QVERIFY(log.AddEntry(QLatin1String("kept")));
    QCOMPARE(room.Content(1), QByteArray("2024.03.05-14:05:09:042,kept\r\n"));
}

void LogOnFullDisk::whatIsStagedDoesNotFitOnAFullDisk()
{
    const TSmallDriveRoom room;
    TDiagnosticLog log(100, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    room.Fill(DriveSize);
    QVERIFY(Log(log, "lost"));
    QVERIFY(!log.FlushTempBuffer());
    room.Release();
    QVERIFY(!log.FlushTempBuffer()); // given up
    QVERIFY(Log(log, "kept"));
    QVERIFY(log.FlushTempBuffer());
    QCOMPARE(room.Content(1), QByteArray("kept"));
}

void LogOnFullDisk::aFullDiskKeepsTheOtherFiles()
{
    const TSmallDriveRoom room;
    TDiagnosticLog log(0, 100, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    for (int number = 1; number <= 5; ++number)
        QVERIFY(Log(log, QByteArray(101, 'x')));
    const QString files = QLatin1String("user00003.log user00004.log user00005.log user00006.log");
    QCOMPARE(room.FileList(), files);
    room.Fill(DriveSize - 3 * PageSize); // all that is left
    for (int number = 1; number <= 5; ++number)
        QVERIFY(!Log(log, QByteArray(101, 'x')));
    room.Release();
    QCOMPARE(room.FileList(), files);
    for (int number = 3; number <= 5; ++number)
        QCOMPARE(room.Content(number), QByteArray(101, 'x'));
    QCOMPARE(room.Content(6), QByteArray());
}

void LogOnFullDisk::anExportToAFullDiskIsTold()
{
    const TLogRoom room;
    room.folder.MakeFolder(QLatin1String("stick"));
    const QString folder = room.folder.Path(QLatin1String("stick"));
    const TMemoryDrive stick(folder, DriveOptions);
    QVERIFY(stick.IsMounted());
    room.MakeFile(1, DriveSize / 2, 1);
    room.MakeFile(2, DriveSize, 2);
    room.MakeFile(3, 5, 3);
    TDiagnosticLog log(0, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    const TDiagnosticLog::tagExportResult result = log.Export(folder);
    QCOMPARE(result.filesFound, 3);
    QCOMPARE(result.filesHandled, 3);
    QVERIFY(!result.allCopied);
    QVERIFY(Log(log, "goes on"));
    QCOMPARE(room.Content(3), QByteArray("xxxxxgoes on"));
    QCOMPARE(static_cast<int>(room.Content(2).size()), DriveSize);
}

void LogOnFullDisk::aReadOnlyDiskKeepsTheLogClosed()
{
    const TSmallDriveRoom room;
    TDiagnosticLog log(100, NoLimit, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "before"));
    log.Close();
    QVERIFY(room.drive.MountAgain(MS_RDONLY, DriveOptions));
    QVERIFY(!log.Open());
    QVERIFY(!log.Restore(room.Base(), 0, 0));
    QVERIFY(!log.Restore(room.Base(), 1, 0));
    QVERIFY(!Log(log, "lost"));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log"));

    QVERIFY(room.drive.MountAgain(0, DriveOptions));
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, " after"));
    log.Close();
    QCOMPARE(room.Content(1), QByteArray("before after"));
}

void LogOnFullDisk::withoutRoomForAnotherFileTheLogCloses()
{
    const TSmallDriveRoom room("size=64k,nr_inodes=2"); // one for the drive's folder, one for a file
    QVERIFY(room.drive.IsMounted());
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(!Log(log, "past the limit")); // is written, but there is no next file
    QCOMPARE(room.Content(1), QByteArray("past the limit"));
    QVERIFY(!Log(log, "lost"));
    QVERIFY(!log.Open());
    QVERIFY(!log.Restore(room.Base(), 0, 0));

    QVERIFY(room.drive.MountAgain(0, "size=64k,nr_inodes=10"));
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "kept"));
    QCOMPARE(room.Content(1), QByteArray("past the limit"));
    QCOMPARE(room.Content(room.Files().last()), QByteArray("kept"));
    QCOMPARE(static_cast<int>(room.Files().size()), 2);
}

void LogOnFullDisk::theRoomOfTheOldestFileServesTheNextOne()
{
    const TSmallDriveRoom room("size=64k,nr_inodes=3");
    QVERIFY(room.drive.IsMounted());
    TDiagnosticLog log(0, 10, 2, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    for (int number = 1; number <= 5; ++number)
        QVERIFY(Log(log, "past the limit"));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00005.log user00006.log"));
}

void LogOnFullDisk::aPulledStickTakesNoMoreFiles()
{
    TSmallDriveRoom room;
    TDiagnosticLog log(0, 10, 4, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "on stick"));
    room.drive.Pull();
    QVERIFY(Log(log, ".."));         // to the file that is still open
    QVERIFY(Log(log, "past limit")); // the next file lies in the folder that is left
    QVERIFY(Log(log, "kept"));
    QCOMPARE(static_cast<int>(room.Files().size()), 1);
    QCOMPARE(room.Content(room.Files().last()), QByteArray("kept"));
}

int main(int argc, char** argv)
{
    PrivateMounts::Enter();
    return RunCoreTest<LogOnFullDisk>(argc, argv);
}

#include "LogOnFullDisk.moc"
