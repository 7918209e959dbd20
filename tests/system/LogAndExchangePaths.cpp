#include "CoreTest.h"
#include "TDisplay.h"

#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

#include <QtTest>

namespace {

using System = TSystemSettings;
using Proxy = TSystemSettingsProxy;

struct tagPath
{
    const char* name;
    QString (System::*get)() const;
    QString (Proxy::*proxyGet)() const;
    const char* path; ///< on the internal drive
};

const tagPath Logs[] = {
    {"user log", &System::GetInternalUserLogPath, &Proxy::GetInternalUserLogPath, "Diagnostics/User.csv"},
    {"NMEA log", &System::GetInternalNemaLogPath, &Proxy::GetInternalNemaLogPath, "Diagnostics/NMEA.csv"},
    {"performance test", &System::GetPerformanceTempLogPath, &Proxy::GetPerformanceTempLogPath,
     "Diagnostics/PerformanceTestTmp.csv"},
};

// clang-format off
const tagPath ExchangeFolders[] = {
    {"downloads under way", &System::GetVelmorTempDownloadFolderPath, &Proxy::GetVelmorTempDownloadFolderPath, "VelmorTempDownloads/"},
    {"downloads", &System::GetVelmorDownloadFolderPath, &Proxy::GetVelmorDownloadFolderPath, "VelmorDownloads/"},
    {"uploads under way", &System::GetVelmorTempUploadFolderPath, &Proxy::GetVelmorTempUploadFolderPath, "VelmorTempUploads/"},
    {"uploads", &System::GetVelmorUploadFolderPath, &Proxy::GetVelmorUploadFolderPath, "VelmorUploads/"},
    {"remote view", &System::GetRemoteViewProfilePath, &Proxy::GetRemoteViewProfilePath, "RemoteView"},
};
// clang-format on

} // namespace

Q_DECLARE_METATYPE(const tagPath*)

class LogAndExchangePaths : public QObject
{
    Q_OBJECT

private slots:
    void aLogsFolderIsMade_data();
    void aLogsFolderIsMade();
    void aLogLiesWhereItIsAskedFor_data();
    void aLogLiesWhereItIsAskedFor();
    void aMissingTextGivesNoLog_data();
    void aMissingTextGivesNoLog();
    void exchangeFoldersAreNamedOnly_data();
    void exchangeFoldersAreNamedOnly();
    void remoteViewProfilesAreNumbered_data();
    void remoteViewProfilesAreNumbered();
    void theTemporaryCurveLiesOnNoDrive();
};

void LogAndExchangePaths::aLogsFolderIsMade_data()
{
    QTest::addColumn<const tagPath*>("log");
    for (const tagPath& log : Logs)
        QTest::newRow(log.name) << &log;
}

void LogAndExchangePaths::aLogsFolderIsMade()
{
    QFETCH(const tagPath*, log);
    const QStringList folders = QStringList() << QLatin1String("Diagnostics/");
    TDisplay display;
    QCOMPARE((System().*log->get)(), display.OnDrive(QLatin1String(log->path)));
    QCOMPARE(display.DriveContent(), folders);
    QCOMPARE((Proxy().*log->proxyGet)(), display.OnDrive(QLatin1String(log->path)));
    QCOMPARE(display.DriveContent(), folders);

    // A drive written without its "/" makes no difference here.
    display.store.values[8910] = display.folder.Path(QLatin1String("data"));
    QCOMPARE((System().*log->get)(), display.OnDrive(QLatin1String(log->path)));
}

void LogAndExchangePaths::aLogLiesWhereItIsAskedFor_data()
{
    QTest::addColumn<QByteArray>("logFolder");
    QTest::addColumn<QByteArray>("prefix");
    QTest::addColumn<QByteArray>("extension");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("made");

    const struct
    {
        const char* name;
        const char* folder;
        const char* prefix;
        const char* extension;
        const char* path;
        const char* made;
    } rows[] = {
        {"plain", "Logs", "A", ".log", "Logs/A.log", "Logs/"},
        {"deep folder", "a/b/c", "A", ".log", "a/b/c/A.log", "a/ a/b/ a/b/c/"},
        {"no extension", "Logs", "A", "", "Logs/A", "Logs/"},
        {"no prefix", "Logs", "", ".log", "Logs/.log", "Logs/"},
        {"other letters", "Größe", "畑", ".csv", "Größe/畑.csv", "Größe/"},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << QByteArray(row.folder) << QByteArray(row.prefix) << QByteArray(row.extension)
                                << QString::fromUtf8(row.path) << QString::fromUtf8(row.made);
    }
}

void LogAndExchangePaths::aLogLiesWhereItIsAskedFor()
{
    QFETCH(QByteArray, logFolder);
    QFETCH(QByteArray, prefix);
    QFETCH(QByteArray, extension);
    QFETCH(QString, path);
    QFETCH(QString, made);
    const TDisplay display;
    QString log;
    QVERIFY(System().GetLogPath(log, true, logFolder.constData(), prefix.constData(), extension.constData()));
    QCOMPARE(log, display.OnDrive(path));
    QCOMPARE(display.DriveContent().join(QLatin1String(" ")), made);
}

void LogAndExchangePaths::aMissingTextGivesNoLog_data()
{
    QTest::addColumn<int>("missing");
    QTest::addColumn<bool>("internal");
    const char* const texts[] = {"folder", "prefix", "extension"};
    for (int index = 0; index < 3; ++index) {
        QTest::newRow((QByteArray(texts[index]) + ", internal").constData()) << index << true;
        QTest::newRow((QByteArray(texts[index]) + ", removable").constData()) << index << false;
    }
}

void LogAndExchangePaths::aMissingTextGivesNoLog()
{
    QFETCH(int, missing);
    QFETCH(bool, internal);
    TDisplay display;
    display.store.values[8911] = QLatin1String("/proc"); // is mounted
    const char* texts[] = {"Logs", "A", ".log"};
    texts[missing] = nullptr;
    QString log = QLatin1String("untouched");
    QVERIFY(!System().GetLogPath(log, internal, texts[0], texts[1], texts[2]));
    QCOMPARE(log, QString::fromLatin1("untouched"));
    QVERIFY(display.DriveContent().isEmpty());
}

void LogAndExchangePaths::exchangeFoldersAreNamedOnly_data()
{
    QTest::addColumn<const tagPath*>("exchange");
    for (const tagPath& exchange : ExchangeFolders)
        QTest::newRow(exchange.name) << &exchange;
}

void LogAndExchangePaths::exchangeFoldersAreNamedOnly()
{
    QFETCH(const tagPath*, exchange);
    TDisplay display;
    QCOMPARE((System().*exchange->get)(), display.OnDrive(QLatin1String(exchange->path)));
    QCOMPARE((Proxy().*exchange->proxyGet)(), display.OnDrive(QLatin1String(exchange->path)));
    QVERIFY(display.DriveContent().isEmpty());

    display.store.values[8910] = QLatin1String("/data");
    QCOMPARE((System().*exchange->get)(), QLatin1String("/data") + QLatin1String(exchange->path));
}

void LogAndExchangePaths::remoteViewProfilesAreNumbered_data()
{
    QTest::addColumn<uint>("index");
    QTest::addColumn<QString>("path");
    QTest::newRow("first") << 0U << QString::fromLatin1("RemoteView/0.ini");
    QTest::newRow("third") << 3U << QString::fromLatin1("RemoteView/3.ini");
    QTest::newRow("last") << 4294967295U << QString::fromLatin1("RemoteView/4294967295.ini");
}

void LogAndExchangePaths::remoteViewProfilesAreNumbered()
{
    QFETCH(uint, index);
    QFETCH(QString, path);
    const TDisplay display;
    QCOMPARE(System().GetRemoteViewProfilePath(index), display.OnDrive(path));
    QCOMPARE(Proxy().GetRemoteViewProfilePath(index), display.OnDrive(path));
    QVERIFY(display.DriveContent().isEmpty());
}

void LogAndExchangePaths::theTemporaryCurveLiesOnNoDrive()
{
    const TDisplay display;
    const QString path = QDir::tempPath() + QLatin1String("/TempGuidanceCurveFile.crv");
    QCOMPARE(System().GetTempGuidanceCurveFilePath(), path);
    QCOMPARE(Proxy().GetTempGuidanceCurveFilePath(), path);
}

int main(int argc, char** argv) { return RunCoreTest<LogAndExchangePaths>(argc, argv); }

#include "LogAndExchangePaths.moc"
