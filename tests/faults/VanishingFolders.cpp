#include "../system/TPrivateMounts.h"
#include "FaultResults.h"
#include "TTemporaryFolder.h"

#include "fields/TOpenDrive.h"
#include "logs/TDiagnosticLog.h"
#include "platform/TFileSystemHelper.h"
#include "stores/TMemoryStore.h"

#include <QDir>
#include <QtTest>

#include <atomic>
#include <dlfcn.h>
#include <memory>

namespace {

constexpr int MostFiles = 6;
constexpr int Files = 5;

/// The stick is pulled at this call of rename(), which ends the copy of a file; before it or after it.
std::atomic<int> renamesLeft{-1};
bool isPulledBefore = false;
TMemoryDrive* stick = nullptr;

QByteArray Content(int number) { return QByteArray(3000, static_cast<char>('a' + number)) + "\r\n"; }

} // namespace

/// Takes the place of the C library's function.
extern "C" __attribute__((visibility("default"))) int rename(const char* from, const char* to) noexcept
{
    static const auto original = reinterpret_cast<int (*)(const char*, const char*)>(dlsym(RTLD_NEXT, "rename"));
    const bool isPulled = renamesLeft >= 0 && renamesLeft-- == 0;
    if (isPulled && isPulledBefore)
        stick->Pull();
    const int result = original(from, to);
    if (isPulled && !isPulledBefore)
        stick->Pull();
    return result;
}

/// The folder of a log goes while the log is open, and the stick goes during an export.
class VanishingFolders : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aLogWhoseFolderIsRemovedGoesOnWhenItIsBack_data();
    void aLogWhoseFolderIsRemovedGoesOnWhenItIsBack();
    void aStickThatIsPulledIsNotReportedAsDone_data();
    void aStickThatIsPulledIsNotReportedAsDone();

private:
    QString Base() const { return m_Folder->Path(QLatin1String("logs/user.log")); }

    std::unique_ptr<TTemporaryFolder> m_Folder;
    std::unique_ptr<TMemoryStore> m_Parameters;
};

void VanishingFolders::init()
{
    m_Folder = std::make_unique<TTemporaryFolder>();
    m_Folder->MakeFolder(QLatin1String("logs"));
    m_Folder->MakeFolder(QLatin1String("stick"));
    m_Parameters = std::make_unique<TMemoryStore>();
    m_Parameters->SetParameter(PARAM_USER_LOG_FILE_NUMBER, 1, true);
    ConfigManager = m_Parameters.get();
}

void VanishingFolders::cleanup()
{
    renamesLeft = -1;
    ConfigManager = nullptr;
}

void VanishingFolders::aLogWhoseFolderIsRemovedGoesOnWhenItIsBack_data()
{
    QTest::addColumn<int>("staging");
    QTest::newRow("each line at once") << 0;
    QTest::newRow("staged lines") << 64;
}

// Lines to a removed file count as written until the log looks, once a second, or goes on to its next file. Then every
// line is refused and counted until the folder is back.
void VanishingFolders::aLogWhoseFolderIsRemovedGoesOnWhenItIsBack()
{
    QFETCH(int, staging);
    TDiagnosticLog log(staging, 100, MostFiles, PARAM_USER_LOG_FILE_NUMBER);
    QVERIFY(log.Restore(Base(), 0, 0));
    QVERIFY(log.AddEntry(QLatin1String("before")));
    QVERIFY(QDir(m_Folder->Path(QLatin1String("logs"))).removeRecursively());
    for (int line = 0; line < 20; ++line)
        log.AddEntry(QLatin1String("nowhere"));
    QVERIFY(!log.GetState().isOpen);
    QVERIFY(log.GetState().hasFailed);
    const long long lost = log.GetState().lostLines;
    QVERIFY(lost > 0);
    QVERIFY(!log.AddEntry(QLatin1String("refused")));
    QCOMPARE(log.GetState().lostLines, lost + 1);
    QVERIFY(!log.Reopen());
    QVERIFY(!m_Folder->Exists(QLatin1String("logs"))); // a log makes no folder

    m_Folder->MakeFolder(QLatin1String("logs"));
    QVERIFY(log.Reopen());
    QVERIFY(log.AddEntry(QLatin1String("after")));
    log.Close();
    const QStringList names = QDir(m_Folder->Path(QLatin1String("logs"))).entryList(QDir::Files);
    QCOMPARE(static_cast<int>(names.size()), 1);
    QVERIFY(m_Folder->Content(QLatin1String("logs/") + names.first()).endsWith("after\r\n"));
    QCOMPARE(log.GetState().lostLines, lost + 1);
    tagFaultResult{"VanishingFolders", QByteArray("log, ") + QTest::currentDataTag(), "folder removed", 1, 1, 0}
        .Append();
}

void VanishingFolders::aStickThatIsPulledIsNotReportedAsDone_data()
{
    QTest::addColumn<int>("file");
    QTest::addColumn<bool>("isBefore");
    for (int file = 0; file < Files; ++file) {
        QTest::addRow("before file %d is done", file + 1) << file << true;
        QTest::addRow("after file %d is done", file + 1) << file << false;
    }
}

void VanishingFolders::aStickThatIsPulledIsNotReportedAsDone()
{
    QVERIFY2(PrivateMounts::ArePermitted(), "this test needs mounts of its own");
    QFETCH(int, file);
    QFETCH(bool, isBefore);
    for (int number = 1; number <= Files; ++number)
        m_Folder->MakeFile(QString::fromLatin1("logs/user0000%1.log").arg(number), Content(number));
    const QString target = m_Folder->Path(QLatin1String("stick"));
    TMemoryDrive mounted(target, "size=1m");
    QVERIFY(mounted.IsMounted());
    stick = &mounted;
    isPulledBefore = isBefore;
    renamesLeft = file;

    TDiagnosticLog log(0, 100, MostFiles, PARAM_USER_LOG_FILE_NUMBER);
    QVERIFY(log.Restore(Base(), 0, 0));
    const TOpenDrive drive(target); // as the tool and the display export
    const TDiagnosticLog::tagExportResult result = log.Export(drive.Path(QLatin1String(".")));
    QCOMPARE(renamesLeft.load(), -1); // it was pulled
    // Restore() has begun a sixth file, because the fifth is full.
    QCOMPARE(result.filesFound, Files + 1);
    QCOMPARE(result.filesHandled, Files + 1);
    QVERIFY2(!result.allCopied || !drive.IsThere(), "files were reported that are not on a stick");
    // Nothing is left in the folder that was the mount point.
    QCOMPARE(QDir(target).entryList(QDir::Files | QDir::Hidden), QStringList());
    for (int number = 1; number <= Files; ++number)
        QCOMPARE(m_Folder->Content(QString::fromLatin1("logs/user0000%1.log").arg(number)), Content(number));
    QVERIFY(log.GetState().isOpen);
    tagFaultResult{
        "VanishingFolders", "export of a log", QByteArray("stick pulled ") + QTest::currentDataTag(), 1, 0, 0}
        .Append();
}

int main(int argc, char** argv)
{
    PrivateMounts::Enter();
    const QCoreApplication application(argc, argv);
    VanishingFolders test;
    return QTest::qExec(&test, argc, argv);
}
#include "VanishingFolders.moc"
