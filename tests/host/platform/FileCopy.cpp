#include "platform/TFileSystemHelper.h"

#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

class FileCopy : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void theCopyIsComplete_data();
    void theCopyIsComplete();
    void anExistingFileIsReplacedOnlyWhenAllowed_data();
    void anExistingFileIsReplacedOnlyWhenAllowed();
    void whatCannotBeCopiedLeavesTheTarget_data();
    void whatCannotBeCopiedLeavesTheTarget();
    void nothingElseIsLeftInTheFolder();
    void permissionsFollowTheSource();
    void copyingAFileOntoItselfKeepsIt();
    void aFullDiskKeepsTheOldFile();
    void extensionsAreLowerCaseWithOneDot_data();
    void extensionsAreLowerCaseWithOneDot();

private:
    QString Path(const char* name) const { return m_Folder->filePath(QString::fromUtf8(name)); }

    QScopedPointer<QTemporaryDir> m_Folder;
};

namespace {

void Write(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(contents), contents.size());
}

QByteArray Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

} // namespace

void FileCopy::init() { m_Folder.reset(new QTemporaryDir); }

void FileCopy::theCopyIsComplete_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("a NUL inside") << QByteArray("a\0b", 3);
    QTest::newRow("as long as a buffer") << QByteArray(0x10000, 'b');
    QTest::newRow("longer than a buffer") << QByteArray(3 * 0x10000 + 17, 'c');
}

void FileCopy::theCopyIsComplete()
{
    QFETCH(QByteArray, contents);
    Write(Path("source"), contents);
    QVERIFY(TFileSystemHelper::FileCopy(Path("source"), Path("Schläge – копия.log"), false));
    QCOMPARE(Read(Path("Schläge – копия.log")), contents);
    QCOMPARE(Read(Path("source")), contents);
}

void FileCopy::anExistingFileIsReplacedOnlyWhenAllowed_data()
{
    QTest::addColumn<bool>("overwrite");
    QTest::newRow("allowed") << true;
    QTest::newRow("not allowed") << false;
}

void FileCopy::anExistingFileIsReplacedOnlyWhenAllowed()
{
    QFETCH(bool, overwrite);
    Write(Path("source"), "new");
    Write(Path("target"), "old and longer");
    QCOMPARE(TFileSystemHelper::FileCopy(Path("source"), Path("target"), overwrite), overwrite);
    QCOMPARE(Read(Path("target")), overwrite ? QByteArray("new") : QByteArray("old and longer"));
}

void FileCopy::whatCannotBeCopiedLeavesTheTarget_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::newRow("no such source") << "missing"
                                    << "target";
    QTest::newRow("a folder as source") << "."
                                        << "target";
    QTest::newRow("no such folder for the target") << "source"
                                                   << "nowhere/target";
    QTest::newRow("a folder as target") << "source"
                                        << "folder";
}

void FileCopy::whatCannotBeCopiedLeavesTheTarget()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    Write(Path("source"), "new");
    Write(Path("target"), "old");
    QDir(m_Folder->path()).mkdir(QLatin1String("folder"));
    QVERIFY(!TFileSystemHelper::FileCopy(m_Folder->filePath(source), m_Folder->filePath(target), true));
    QCOMPARE(Read(Path("target")), QByteArray("old"));
    QCOMPARE(QDir(m_Folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 3);
}

void FileCopy::nothingElseIsLeftInTheFolder()
{
    Write(Path("source"), "x");
    QVERIFY(TFileSystemHelper::FileCopy(Path("source"), Path("target"), true));
    QCOMPARE(QDir(m_Folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList() << QLatin1String("source") << QLatin1String("target"));
}

void FileCopy::permissionsFollowTheSource()
{
    Write(Path("source"), "x");
    QCOMPARE(chmod(QFile::encodeName(Path("source")).constData(), 0640), 0);
    QVERIFY(TFileSystemHelper::FileCopy(Path("source"), Path("target"), true));
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(Path("target")).constData(), &status), 0);
    QCOMPARE(static_cast<int>(status.st_mode & 0777), 0640);
}

void FileCopy::copyingAFileOntoItselfKeepsIt()
{
    Write(Path("source"), "precious");
    QVERIFY(TFileSystemHelper::FileCopy(Path("source"), Path("source"), true));
    QCOMPARE(Read(Path("source")), QByteArray("precious"));
}

void FileCopy::aFullDiskKeepsTheOldFile()
{
    // A limit on the size of files fails a write as a full disk does, wherever the tests run.
    Write(Path("source"), QByteArray(300000, 'n'));
    Write(Path("target"), "old");
    const QString program = QCoreApplication::applicationFilePath();
    QProcess copy;
    copy.setProcessChannelMode(QProcess::ForwardedChannels);
    copy.start(QLatin1String("sh"),
               {QLatin1String("-c"), QLatin1String("trap '' XFSZ; ulimit -f 100; exec \"$@\""), QLatin1String("sh"),
                program, QLatin1String("--copy"), Path("source"), Path("target")});
    QVERIFY(copy.waitForFinished());
    QCOMPARE(copy.exitCode(), 1);
    QCOMPARE(Read(Path("target")), QByteArray("old"));
    QCOMPARE(QDir(m_Folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void FileCopy::extensionsAreLowerCaseWithOneDot_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<bool>("accepted");
    QTest::newRow(".ini") << ".ini" << true;
    QTest::newRow(".7z") << ".7z" << true;
    QTest::newRow(".INI") << ".INI" << false;
    QTest::newRow("ini") << "ini" << false;
    QTest::newRow(".tar.gz") << ".tar.gz" << false;
    QTest::newRow(".") << "." << false;
    QTest::newRow("empty") << "" << false;
}

void FileCopy::extensionsAreLowerCaseWithOneDot()
{
    QFETCH(QString, extension);
    QFETCH(bool, accepted);
    QCOMPARE(TFileSystemHelper::LowerCaseFilenameExtensionRegExp().exactMatch(extension), accepted);
}

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--copy"))
        return TFileSystemHelper::FileCopy(arguments.value(2), arguments.value(3), true) ? 0 : 1;
    FileCopy test;
    return QTest::qExec(&test, argc, argv);
}
#include "FileCopy.moc"
