#include "CoreTest.h"
#include "TLogRoom.h"

#include <QtTest>

namespace {

using tagExportResult = TDiagnosticLog::tagExportResult;

/// A log room with a folder "stick" to export to.
struct TExportRoom : TLogRoom
{
    TExportRoom() { folder.MakeFolder(QLatin1String("stick")); }

    QString Stick() const { return folder.Path(QLatin1String("stick")); }

    QByteArray OnStick(const QString& file) const { return folder.Content(QLatin1String("stick/") + file); }

    QStringList StickFiles() const { return QDir(Stick()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
};

/// "found handled all".
QByteArray Text(const tagExportResult& result)
{
    return QByteArray::number(result.filesFound) + ' ' + QByteArray::number(result.filesHandled) +
           (result.allCopied ? " all" : " not all");
}

QStringList FileNames(const char* names) { return QString::fromLatin1(names).split(QLatin1Char(' ')); }

} // namespace

class LogExport : public QObject
{
    Q_OBJECT

private slots:
    void everyFileOfTheSeriesIsCopied();
    void filesGoOldestFirst_data();
    void filesGoOldestFirst();
    void filesThereAlreadyAreReplaced();
    void filesThatFailAreTold_data();
    void filesThatFailAreTold();
    void aMissingTargetFailsForEveryFile();

    void whatIsStagedIsExportedToo();
    void theLogGoesOnAfterAnExport();
    void anExportOpensAClosedLog();
    void copyingAloneLeavesTheLogAsItIs();

    void anEmptyFolderIsExportedAsAWhole();
    void aMissingFolderIsNot();
    void aLogThatWasNeverRestoredIsNot();
    void aSingleFileIsExported();
};

void LogExport::everyFileOfTheSeriesIsCopied()
{
    const TExportRoom room;
    TDiagnosticLog log(0, 10, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    for (int number = 1; number <= 5; ++number)
        QVERIFY(Log(log, Bytes(20 * number)));
    room.MakeFile(QLatin1String("other.log"), 5, 1);
    room.MakeFile(QLatin1String("userguide.log"), 5, 1); // belongs to the series as well
    QCOMPARE(Text(log.Export(room.Stick())), QByteArray("4 4 all"));
    QCOMPARE(room.StickFiles(), FileNames("user00004.log user00005.log user00006.log userguide.log"));
    for (const QString& file : room.StickFiles())
        QCOMPARE(room.OnStick(file), room.Content(file));
    QCOMPARE(room.OnStick(room.Numbered(5)), Bytes(100));
    for (bool overwrite : TTestFiles::overwrites)
        QVERIFY(overwrite);
}

void LogExport::filesGoOldestFirst_data()
{
    QTest::addColumn<QStringList>("oldestFirst");
    QTest::addColumn<bool>("atEqualTimes");
    QTest::newRow("by time") << FileNames("user00005.log user00009.log user00002.log user00007.log") << false;
    QTest::newRow("by time, round") << FileNames("user99998.log user99999.log user00001.log") << false;
    QTest::newRow("by time, against the numbers") << FileNames("user00003.log user00002.log user00001.log") << false;
    QTest::newRow("by number") << FileNames("user00002.log user00003.log user00010.log") << true;
    QTest::newRow("by number, round") << FileNames("user99998.log user99999.log user00001.log user00002.log") << true;
    QTest::newRow("by number, no number first") << FileNames("userguide.log user00001.log user00002.log") << true;
}

void LogExport::filesGoOldestFirst()
{
    QFETCH(QStringList, oldestFirst);
    QFETCH(bool, atEqualTimes);
    const TExportRoom room;
    for (int index = 0; index < static_cast<int>(oldestFirst.size()); ++index)
        room.MakeFile(oldestFirst[index], 1, atEqualTimes ? 0 : index);
    TDiagnosticLog log(0, 100, 9, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    log.ExportFile(room.Stick());
    QCOMPARE(QStringList(TTestFiles::copiedNames), oldestFirst);
}

void LogExport::filesThereAlreadyAreReplaced()
{
    const TExportRoom room;
    TDiagnosticLog log(0, 100, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "first"));
    QCOMPARE(Text(log.Export(room.Stick())), QByteArray("1 1 all"));
    QVERIFY(Log(log, "second"));
    QCOMPARE(Text(log.Export(room.Stick())), QByteArray("1 1 all"));
    QCOMPARE(room.OnStick(room.Numbered(1)), QByteArray("firstsecond"));
}

void LogExport::filesThatFailAreTold_data()
{
    QTest::addColumn<QStringList>("failing");
    QTest::addColumn<QByteArray>("result");
    QTest::newRow("none") << QStringList() << QByteArray("3 3 all");
    QTest::newRow("first") << FileNames("user00001.log") << QByteArray("3 3 not all");
    QTest::newRow("middle") << FileNames("user00002.log") << QByteArray("3 3 not all");
    QTest::newRow("last") << FileNames("user00003.log") << QByteArray("3 3 not all");
    QTest::newRow("all") << FileNames("user00001.log user00002.log user00003.log") << QByteArray("3 3 not all");
}

void LogExport::filesThatFailAreTold()
{
    QFETCH(QStringList, failing);
    QFETCH(QByteArray, result);
    const TExportRoom room;
    for (int number = 1; number <= 3; ++number)
        room.MakeFile(number, number, number);
    TDiagnosticLog log(0, 100, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    TTestFiles::failingNames = failing;
    QCOMPARE(Text(log.Export(room.Stick())), result);

    // One that fails does not keep the others from being copied.
    QStringList copied = FileNames("user00001.log user00002.log user00003.log");
    QCOMPARE(QStringList(TTestFiles::copiedNames), copied);
    for (const QString& file : failing)
        copied.removeAll(file);
    QCOMPARE(room.StickFiles(), copied);
    QVERIFY(Log(log, "goes on"));
}

void LogExport::aMissingTargetFailsForEveryFile()
{
    const TExportRoom room;
    room.MakeFile(1, 10, 1);
    room.MakeFile(2, 10, 2);
    TDiagnosticLog log(0, 100, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QCOMPARE(Text(log.Export(room.folder.Path(QLatin1String("missing")))), QByteArray("2 2 not all"));
    QVERIFY(!room.folder.Exists(QLatin1String("missing")));
    QVERIFY(Log(log, "goes on"));
    QCOMPARE(room.Content(2), QByteArray(10, 'x') + "goes on");
}

void LogExport::whatIsStagedIsExportedToo()
{
    const TExportRoom room;
    TDiagnosticLog log(1024, 100, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "staged"));
    QCOMPARE(room.Content(1), QByteArray());
    log.Export(room.Stick());
    QCOMPARE(room.OnStick(room.Numbered(1)), QByteArray("staged"));
}

void LogExport::theLogGoesOnAfterAnExport()
{
    const TExportRoom room;
    TDiagnosticLog log(0, 10, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "01234"));
    log.Export(room.Stick());
    QVERIFY(!log.Open()); // is open
    QVERIFY(Log(log, "56789"));
    QCOMPARE(room.Content(1), QByteArray("0123456789"));
    log.Export(room.Stick());
    QVERIFY(Log(log, "x"));
    QCOMPARE(room.FileList(), QString::fromLatin1("user00001.log user00002.log"));
}

void LogExport::anExportOpensAClosedLog()
{
    const TExportRoom room;
    TDiagnosticLog log(0, 100, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "first"));
    log.Close();
    QCOMPARE(Text(log.Export(room.Stick())), QByteArray("1 1 all"));
    QVERIFY(Log(log, "second"));
    QCOMPARE(room.Content(1), QByteArray("firstsecond"));
}

void LogExport::copyingAloneLeavesTheLogAsItIs()
{
    const TExportRoom room;
    TDiagnosticLog log(1024, 100, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    QVERIFY(Log(log, "first"));
    QVERIFY(log.FlushTempBuffer());
    QVERIFY(Log(log, "second"));
    QCOMPARE(Text(log.ExportFile(room.Stick())), QByteArray("1 1 all"));
    QCOMPARE(room.OnStick(room.Numbered(1)), QByteArray("first"));
    QVERIFY(log.FlushTempBuffer()); // still open, still staged
    log.Close();
    QCOMPARE(Text(log.ExportFile(room.Stick())), QByteArray("1 1 all"));
    QCOMPARE(room.OnStick(room.Numbered(1)), QByteArray("firstsecond"));
    QVERIFY(!Log(log, "lost")); // still closed
}

void LogExport::anEmptyFolderIsExportedAsAWhole()
{
    const TExportRoom room;
    TDiagnosticLog log(0, 100, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 0, 0));
    log.Close();
    QVERIFY(QFile::remove(room.Path(room.Numbered(1))));
    QCOMPARE(Text(log.ExportFile(room.Stick())), QByteArray("0 0 all"));
    QVERIFY(room.StickFiles().isEmpty());
}

void LogExport::aMissingFolderIsNot()
{
    const TExportRoom room;
    TDiagnosticLog log(0, 100, 3, room.parameter);
    QVERIFY(!log.Restore(room.Path(QLatin1String("missing/user.log")), 0, 0));
    QCOMPARE(Text(log.Export(room.Stick())), QByteArray("0 0 not all"));
    QVERIFY(!Log(log, "lost"));
    QVERIFY(TTestFiles::copiedNames.isEmpty());
}

void LogExport::aLogThatWasNeverRestoredIsNot()
{
    const TExportRoom room;
    TDiagnosticLog log(0, 100, 3, room.parameter);
    QCOMPARE(Text(log.ExportFile(room.Stick())), QByteArray("0 0 not all"));
    QCOMPARE(Text(log.Export(room.Stick())), QByteArray("0 0 not all"));
    QVERIFY(!Log(log, "lost"));
    QVERIFY(TTestFiles::copiedNames.isEmpty());
}

void LogExport::aSingleFileIsExported()
{
    const TExportRoom room;
    TDiagnosticLog log(0, 100, 3, room.parameter);
    QVERIFY(log.Restore(room.Base(), 1, 0));
    QVERIFY(Log(log, "single"));
    QCOMPARE(Text(log.Export(room.Stick())), QByteArray("1 1 all"));
    QCOMPARE(room.OnStick(QLatin1String("user.log")), QByteArray("single"));
    QVERIFY(Log(log, " goes on"));
    QCOMPARE(room.Content(QLatin1String("user.log")), QByteArray("single goes on"));
}

int main(int argc, char** argv) { return RunCoreTest<LogExport>(argc, argv); }

#include "LogExport.moc"
