#include "FolderSyncError.h"
#include "platform/TFileSystemHelper.h"

#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <thread>

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
    void permissionsFollowTheSource_data();
    void permissionsFollowTheSource();
    void copyingAFileOntoItselfKeepsIt();
    void aFullDiskKeepsTheOldFile();
    void whatAKilledCopyLeftIsRemovedByTheNext();
    void aCopyOfAnotherProcessGoesOn();
    void aCopyOfAnotherThreadGoesOn();
    void otherHiddenFilesStay();
    void copiesAtTheSameTimeAllSucceed();
    void aFolderNeedNotBeSynced_data();
    void aFolderNeedNotBeSynced();
    void extensionsAreLowerCaseWithOneDot_data();
    void extensionsAreLowerCaseWithOneDot();

private:
    QString Path(const char* name) const { return m_Folder->filePath(QString::fromUtf8(name)); }
    QStringList Hidden() const
    {
        return QDir(m_Folder->path()).entryList({QLatin1String(".cabsettings-copy-*")}, QDir::Files | QDir::Hidden);
    }

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

const rlim_t SizeLimit = 100000;
const int BeyondLimit = 300000;

/// Limits the files of this process to SizeLimit. A write beyond it raises SIGXFSZ.
void LimitFiles()
{
    struct rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = SizeLimit;
    setrlimit(RLIMIT_FSIZE, &limit);
}

/// The opposite of LimitFiles().
void UnlimitFiles()
{
    struct rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = limit.rlim_max;
    setrlimit(RLIMIT_FSIZE, &limit);
}

int Reached[2]; ///< a pipe: gets a byte when a copy has reached the limit
int GoOn[2];    ///< a pipe: a copy at the limit goes on when its writing end is closed

void StopAtLimit(int)
{
    char byte = 0;
    if (write(Reached[1], &byte, 1) == 1 && read(GoOn[0], &byte, 1) != 0)
        _exit(EXIT_FAILURE);
}

/// The first argument of this program when it runs as a process that copies.
const QLatin1String Copy("--copy");                 ///< ends when it has copied
const QLatin1String CopyAndDie("--copy-and-die");   ///< is killed by SIGXFSZ at the limit
const QLatin1String CopyAndStop("--copy-and-stop"); ///< writes a byte to standard output at the limit, and stops

int RunCopy(const QStringList& arguments)
{
    struct rlimit none = {0, 0};
    setrlimit(RLIMIT_CORE, &none);
    if (arguments.at(1) != Copy)
        LimitFiles();
    if (arguments.at(1) == CopyAndStop) {
        Reached[1] = STDOUT_FILENO;
        if (pipe(GoOn) != 0)
            return 2;
        signal(SIGXFSZ, StopAtLimit);
    }
    return TFileSystemHelper::FileCopy(arguments.at(2), arguments.at(3), true) ? 0 : 1;
}

/// A process that copies. Ended when it is destroyed.
class TCopyProcess : public QProcess
{
public:
    TCopyProcess(const QString& how, const QString& source, const QString& target)
    {
        setProcessChannelMode(QProcess::ForwardedErrorChannel);
        start(QCoreApplication::applicationFilePath(), {how, source, target});
    }
    ~TCopyProcess() override
    {
        kill();
        waitForFinished();
    }
};

} // namespace

void FileCopy::init()
{
    m_Folder.reset(new QTemporaryDir);
    FolderSyncError = 0;
}

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

void FileCopy::permissionsFollowTheSource_data()
{
    QTest::addColumn<uint>("source");
    QTest::addColumn<uint>("mask");
    QTest::addColumn<uint>("copy");
    QTest::newRow("for a group") << 0640U << 022U << 0640U;
    QTest::newRow("for all to read") << 0644U << 022U << 0644U;
    QTest::newRow("for all to read, with a strict umask") << 0644U << 077U << 0600U;
    QTest::newRow("for all to write, as on FAT") << 0777U << 0U << 0775U;
    QTest::newRow("for nobody to write") << 0444U << 022U << 0444U;
}

void FileCopy::permissionsFollowTheSource()
{
    QFETCH(uint, source);
    QFETCH(uint, mask);
    QFETCH(uint, copy);
    Write(Path("source"), "x");
    QCOMPARE(chmod(QFile::encodeName(Path("source")).constData(), source), 0);
    const mode_t before = umask(mask);
    const bool isCopied = TFileSystemHelper::FileCopy(Path("source"), Path("target"), true);
    umask(before);
    QVERIFY(isCopied);
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(Path("target")).constData(), &status), 0);
    QCOMPARE(static_cast<uint>(status.st_mode & 0777), copy);
}

void FileCopy::copyingAFileOntoItselfKeepsIt()
{
    Write(Path("source"), "precious");
    QVERIFY(TFileSystemHelper::FileCopy(Path("source"), Path("source"), true));
    QCOMPARE(Read(Path("source")), QByteArray("precious"));
}

void FileCopy::aFullDiskKeepsTheOldFile()
{
    // A limit on the size of files makes a write fail as a full disk does, and needs no privileges.
    Write(Path("source"), QByteArray(300000, 'n'));
    Write(Path("target"), "old");
    const QString program = QCoreApplication::applicationFilePath();
    QProcess copy;
    copy.setProcessChannelMode(QProcess::ForwardedChannels);
    copy.start(QLatin1String("sh"), {QLatin1String("-c"), QLatin1String("trap '' XFSZ; ulimit -f 100; exec \"$@\""),
                                     QLatin1String("sh"), program, Copy, Path("source"), Path("target")});
    QVERIFY(copy.waitForFinished());
    QCOMPARE(copy.exitCode(), 1);
    QCOMPARE(Read(Path("target")), QByteArray("old"));
    QCOMPARE(QDir(m_Folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void FileCopy::whatAKilledCopyLeftIsRemovedByTheNext()
{
    Write(Path("source"), QByteArray(BeyondLimit, 'n'));
    for (int i = 0; i < 2; ++i) {
        TCopyProcess copy(CopyAndDie, Path("source"), Path("target"));
        QVERIFY(copy.waitForFinished());
        QCOMPARE(copy.exitStatus(), QProcess::CrashExit);
        QCOMPARE(Hidden().size(), 1);
    }
    QVERIFY(!QFileInfo::exists(Path("target")));
    QVERIFY(TFileSystemHelper::FileCopy(Path("source"), Path("target"), true));
    QCOMPARE(Hidden(), QStringList());
    QCOMPARE(Read(Path("target")).size(), BeyondLimit);
}

void FileCopy::aCopyOfAnotherProcessGoesOn()
{
    Write(Path("source"), QByteArray(BeyondLimit, 'n'));
    {
        TCopyProcess copy(CopyAndStop, Path("source"), Path("target"));
        QVERIFY(copy.waitForReadyRead());
        const QStringList running = Hidden();
        QCOMPARE(running.size(), 1);
        QVERIFY(TFileSystemHelper::FileCopy(Path("source"), Path("other"), true));
        QCOMPARE(Hidden(), running);
    }
    QCOMPARE(Hidden().size(), 1);
    QVERIFY(TFileSystemHelper::FileCopy(Path("source"), Path("other"), true));
    QCOMPARE(Hidden(), QStringList());
}

void FileCopy::aCopyOfAnotherThreadGoesOn()
{
    Write(Path("source"), QByteArray(BeyondLimit, 'n'));
    Write(Path("small"), "s");
    QCOMPARE(pipe(Reached), 0);
    QCOMPARE(pipe(GoOn), 0);
    LimitFiles();
    signal(SIGXFSZ, StopAtLimit);
    bool isCopied = true;
    std::thread thread([&] { isCopied = TFileSystemHelper::FileCopy(Path("source"), Path("target"), true); });
    char byte = 0;
    const bool isReached = read(Reached[0], &byte, 1) == 1;
    const QStringList running = Hidden();
    const bool isOtherCopied = TFileSystemHelper::FileCopy(Path("small"), Path("other"), true);
    const QStringList afterwards = Hidden();
    close(GoOn[1]);
    thread.join();
    signal(SIGXFSZ, SIG_DFL);
    UnlimitFiles();

    QVERIFY(isReached);
    QVERIFY(isOtherCopied);
    QCOMPARE(running.size(), 1);
    QCOMPARE(afterwards, running);
    QVERIFY(!isCopied); // the limit
    QCOMPARE(Hidden(), QStringList());
}

void FileCopy::otherHiddenFilesStay()
{
    Write(Path("source"), "x");
    for (const char* name : {".cabsettings-copy-12345", ".cabsettings-copy-1234567", ".copy-123456", ".hidden"})
        Write(Path(name), "other");
    QVERIFY(QDir().mkdir(Path(".cabsettings-copy-folder")));
    QVERIFY(QFile::link(Path("source"), Path(".cabsettings-copy-linked")));
    const QDir folder(m_Folder->path());
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    const QStringList before = folder.entryList(all);
    QVERIFY(TFileSystemHelper::FileCopy(Path("source"), Path("source"), true));
    QCOMPARE(QDir(m_Folder->path()).entryList(all), before);
}

void FileCopy::copiesAtTheSameTimeAllSucceed()
{
    Write(Path("source"), QByteArray(10000, 'n'));
    const int threads = 4;
    const int copies = 200;
    std::atomic<int> succeeded{0};
    std::vector<std::thread> workers;
    for (int number = 0; number < threads; ++number)
        workers.emplace_back([&, number] {
            const QString target = Path("target") + QString::number(number);
            for (int i = 0; i < copies; ++i)
                succeeded += TFileSystemHelper::FileCopy(Path("source"), target, true) ? 1 : 0;
        });
    for (std::thread& worker : workers)
        worker.join();
    QCOMPARE(succeeded.load(), threads * copies);
    QCOMPARE(Hidden(), QStringList());
}

void FileCopy::aFolderNeedNotBeSynced_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("isCopied");
    QTest::newRow("EINVAL") << EINVAL << true;
    QTest::newRow("ENOTSUP") << ENOTSUP << true;
    QTest::newRow("ENOSYS") << ENOSYS << true;
    QTest::newRow("EIO") << EIO << false;
}

void FileCopy::aFolderNeedNotBeSynced()
{
    QFETCH(int, error);
    QFETCH(bool, isCopied);
    Write(Path("source"), "x");
    FolderSyncError = error;
    QCOMPARE(TFileSystemHelper::FileCopy(Path("source"), Path("target"), true), isCopied);
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
    if (arguments.size() == 4 && arguments.at(1).startsWith(Copy))
        return RunCopy(arguments);
    FileCopy test;
    return QTest::qExec(&test, argc, argv);
}
#include "FileCopy.moc"
