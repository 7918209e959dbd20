#include "ConsoleTest.h"
#include "TConsole.h"

#include <QDirIterator>
#include <QtTest>

#include <sys/stat.h>

/// Whatever umask the tool is started with: other users of the machine cannot write to what it makes.
class ConsoleFilePermissions : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsForOthersToWrite_data();
    void nothingIsForOthersToWrite();
};

void ConsoleFilePermissions::nothingIsForOthersToWrite_data()
{
    QTest::addColumn<int>("mask");
    QTest::addColumn<int>("forbidden");
    QTest::newRow("0") << 0 << int{S_IWOTH};
    QTest::newRow("077") << 077 << (S_IRWXG | S_IRWXO);
}

void ConsoleFilePermissions::nothingIsForOthersToWrite()
{
    QFETCH(int, mask);
    QFETCH(int, forbidden);
    const TConsole console;
    const QString made = console.Path("made");
    QVERIFY(QDir().mkdir(made));
    const mode_t before = umask(static_cast<mode_t>(mask));
    for (const QString& command :
         {QString::fromLatin1("set units.metric false"), QString::fromLatin1("log add started"),
          QString::fromLatin1("fields add Smith/North/F1/J_1"), QString::fromLatin1("fields rename Smith/North South"),
          QString::fromLatin1("backup now"), QString::fromLatin1("export %1/tractor.profile").arg(made),
          QString::fromLatin1("simulate --passes 1 --length 20 --output %1/drive.nmea").arg(made),
          QString::fromLatin1("run --nmea %1/drive.nmea").arg(made), QString::fromLatin1("log export %1").arg(made),
          QString::fromLatin1("support %1/support.zip").arg(made)}) {
        const TConsole::tagResult result = console.Run(command.split(QLatin1Char(' ')));
        if (result.status != 0)
            QTest::qFail((command + QLatin1String(": ") + result.errors).toUtf8().constData(), __FILE__, __LINE__);
    }
    umask(before);
    int count = 0;
    for (const QString& folder : {console.DataFolder(), made}) {
        QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            struct stat status = {};
            QCOMPARE(lstat(entries.next().toUtf8().constData(), &status), 0);
            QVERIFY2((status.st_mode & static_cast<mode_t>(forbidden)) == 0, qPrintable(entries.filePath()));
            ++count;
        }
    }
    QVERIFY(count > 50); // with the folders of the library
}

QTEST_GUILESS_MAIN(ConsoleFilePermissions)
#include "ConsoleFilePermissions.moc"
