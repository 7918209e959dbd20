#include "ConsoleTest.h"

#include <sys/statvfs.h>

using namespace ConsoleTest;

class ConsoleStorage : public QObject
{
    Q_OBJECT

private slots:
    void theInternalDriveIsMeasuredInBytes();
    void theRemovableDriveIsMeasuredWhenItIsMounted_data();
    void theRemovableDriveIsMeasuredWhenItIsMounted();
    void memoryAndLoadAreTheSystems();
    void theTableIsReadable();
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();
    void aFolderThatCannotBeMadeIsAFailure();

private:
    static QJsonObject Drive(const TConsole& console, const char* name)
    {
        return Find(Object(Run(console, "storage --json")).value(Utf8("drives")).toArray(), "name", Utf8(name));
    }

    static double TotalOf(const QString& folder)
    {
        struct statvfs info;
        return statvfs(QFile::encodeName(folder).constData(), &info) == 0
                   ? static_cast<double>(info.f_blocks) * static_cast<double>(info.f_frsize)
                   : -1;
    }
};

void ConsoleStorage::theInternalDriveIsMeasuredInBytes()
{
    const TConsole console;
    const QJsonObject drive = Drive(console, "internal");
    QCOMPARE(Fields(drive), (QStringList{Utf8("free"), Utf8("mounted"), Utf8("name"), Utf8("path"), Utf8("total")}));
    QCOMPARE(drive.value(Utf8("path")).toString(), console.DataFolder() + Utf8("/internal/"));
    QCOMPARE(drive.value(Utf8("mounted")).toBool(), true);
    QCOMPARE(drive.value(Utf8("total")).toDouble(), TotalOf(console.DataFolder()));
    QVERIFY(drive.value(Utf8("free")).toDouble() > 0);
    QVERIFY(drive.value(Utf8("free")).toDouble() <= drive.value(Utf8("total")).toDouble());
}

void ConsoleStorage::theRemovableDriveIsMeasuredWhenItIsMounted_data()
{
    QTest::addColumn<QString>(
        "mountPoint"); ///< of the machine, or beside the data folder; empty: the data folder's own
    QTest::addColumn<bool>("isMounted");
    QTest::newRow("an empty folder") << QString() << false;
    QTest::newRow("no folder") << Utf8("nowhere/usb") << false;
    QTest::newRow("a file") << Utf8("/etc/passwd") << false;
    QTest::newRow("mounted") << Utf8("/") << true;
}

void ConsoleStorage::theRemovableDriveIsMeasuredWhenItIsMounted()
{
    QFETCH(QString, mountPoint);
    QFETCH(bool, isMounted);
    const TConsole console;
    if (!mountPoint.isEmpty() && !mountPoint.startsWith(QLatin1Char('/')))
        mountPoint = console.Path(mountPoint.toLatin1().constData());
    if (!mountPoint.isEmpty())
        QCOMPARE(console.Run({Utf8("set"), Utf8("system.external-drive"), mountPoint}).status, 0);
    const QJsonObject drive = Drive(console, "removable");
    QCOMPARE(drive.value(Utf8("path")).toString(),
             mountPoint.isEmpty() ? console.DataFolder() + Utf8("/usb") : mountPoint);
    QCOMPARE(drive.value(Utf8("mounted")).toBool(), isMounted);
    QCOMPARE(drive.value(Utf8("free")).isNull(), !isMounted);
    QCOMPARE(drive.value(Utf8("total")), isMounted ? QJsonValue(TotalOf(mountPoint)) : QJsonValue());
}

void ConsoleStorage::memoryAndLoadAreTheSystems()
{
    const QByteArray total = Contents(Utf8("/proc/meminfo")).split('\n').first();
    QVERIFY(total.startsWith("MemTotal:"));
    const double bytes = total.mid(9).simplified().split(' ').first().toDouble() * 1024;
    const TConsole console;
    const QJsonObject object = Object(Run(console, "storage --json"));
    QCOMPARE(Fields(object), (QStringList{Utf8("drives"), Utf8("load"), Utf8("memory")}));
    const QJsonObject memory = object.value(Utf8("memory")).toObject();
    QCOMPARE(memory.value(Utf8("total")).toDouble(), bytes);
    QVERIFY(memory.value(Utf8("free")).toDouble() > 0);
    QVERIFY(memory.value(Utf8("free")).toDouble() < bytes);
    QVERIFY(object.value(Utf8("load")).isDouble());
    QVERIFY(object.value(Utf8("load")).toDouble() >= 0);
}

void ConsoleStorage::theTableIsReadable()
{
    const TConsole console;
    const TConsole::tagResult result = Run(console, "storage");
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    const QStringList lines = result.output.split(QLatin1Char('\n'));
    QCOMPARE(static_cast<int>(lines.size()), 6);
    QCOMPARE(lines.at(0).simplified(), Utf8("total free path"));
    const QString size = Utf8("%1 \\(\\d+(\\.\\d)? (bytes|[KMGTP]iB)\\)");
    const QString total = size.arg(QString::number(TotalOf(console.DataFolder()), 'f', 0));
    const QString any = size.arg(Utf8("\\d+"));
    const auto matches = [](const QString& line, const QString& pattern) {
        return QRegularExpression(QLatin1Char('^') + pattern + QLatin1Char('$')).match(line).hasMatch();
    };
    QVERIFY2(matches(lines.at(1), Utf8("internal +%1 +%2 +%3/internal/")
                                      .arg(total, any, QRegularExpression::escape(console.DataFolder()))),
             qPrintable(lines.at(1)));
    QCOMPARE(lines.at(2).simplified(), Utf8("removable (not mounted) %1/usb").arg(console.DataFolder()));
    QVERIFY2(matches(lines.at(3), Utf8("memory +%1 +%2").arg(any, any)), qPrintable(lines.at(3)));
    QVERIFY2(matches(lines.at(4), Utf8("load +\\d+\\.\\d\\d")), qPrintable(lines.at(4)));
}

void ConsoleStorage::wrongUsageSaysWhatIsAccepted_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("a word") << Utf8("storage usb") << Utf8("\"usb\"");
    QTest::newRow("unknown option") << Utf8("storage --human") << Utf8("human");
}

void ConsoleStorage::wrongUsageSaysWhatIsAccepted()
{
    QFETCH(QString, arguments);
    QFETCH(QString, named);
    const TConsole console;
    VerifyMisused(console.Run(arguments.split(QLatin1Char(' '))), named, Utf8("storage --help"));
}

void ConsoleStorage::aFolderThatCannotBeMadeIsAFailure()
{
    const TConsole console;
    WriteFile(console.DataFolder(), "a file where the folder should be");
    const TConsole::tagResult result = Run(console, "storage");
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(console.DataFolder()), qPrintable(result.errors));
}

QTEST_GUILESS_MAIN(ConsoleStorage)
#include "ConsoleStorage.moc"
