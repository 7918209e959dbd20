#include "Obstacles.h"

#include "boundaries/ExclusionZones.h"
#include "coverage/TCoverageFile.h"
#include "guidance/GuidanceLine.h"
#include "platform/TFileSystemHelper.h"
#include "profiles/ProfileGroups.h"
#include "profiles/TProfile.h"
#include "stores/TMemoryStore.h"
#include "stores/TSqliteStore.h"
#include "support/SupportBundle.h"
#include "terminal/TTerminal.h"

#include <QDir>
#include <QtTest>

#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <iterator>
#include <memory>
#include <unistd.h>

namespace {

const QByteArray Kept = "a file that is of somebody else";

QString WithEnd(const QString& folder, const char* end) { return folder + QLatin1Char('/') + QLatin1String(end); }

bool WriteCopy(const QString& folder, const QString& target)
{
    return TFileSystemHelper::FileCopy(WithEnd(folder, "source"), target, true);
}

bool WriteProfile(const QString&, const QString& target)
{
    TMemoryStore store;
    store.SetParameter(PARAM_METRIC, true, true);
    QString error;
    return TProfile::Of(store, ProfileGroups::All(), QString()).Write(target, &error);
}

bool WriteBundle(const QString& folder, const QString& target)
{
    QString error;
    const auto store = TSqliteStore::Open(WithEnd(folder, "data/settings.db"), &error);
    if (!store)
        return false;
    TTerminal terminal(*store);
    tagSupportBundle bundle;
    return terminal.Start(WithEnd(folder, "data"), &error) &&
           WriteSupportBundle(*store, target, {WithEnd(folder, "data"), QString(), false}, {}, &bundle, &error);
}

bool WriteLine(const QString&, const QString& target)
{
    QString error;
    return WriteGuidanceLine(target, {{52, 10}, {52.001, 10}}, &error);
}

bool WriteZones(const QString&, const QString& target)
{
    QString error;
    return WriteExclusionZones(target.left(target.size() - 3) + QLatin1String("shp"),
                               {{{52, 10}, {52.001, 10}, {52, 10.001}}}, &error);
}

/// What writes a whole file to a place that may be on a stick.
struct tagWriter
{
    const char* name;
    const char* target;
    bool (*write)(const QString& folder, const QString& target);
};

constexpr tagWriter Writers[] = {
    {"export of a log", "place/User00001.csv", &WriteCopy},
    {"profile", "place/tractor.profile", &WriteProfile},
    {"support bundle", "place/support.zip", &WriteBundle},
    {"guidance line", "place/line.ini", &WriteLine},
    {"exclusion zones", "place/F1.shp", &WriteZones},
    {"index of exclusion zones", "place/F1.shx", &WriteZones},
    {"table of exclusion zones", "place/F1.dbf", &WriteZones},
};

const char* const UnfinishedWork = "/.cabsettings-copy-";

/// What the names for unfinished work lead to that are still to be taken, and how many those are.
QByteArray LinksTo;
int NamesToTake = 0;

} // namespace

// Takes the place of the C library's function: just before the host makes a file for unfinished work, another user
// makes a link of that name.
#pragma GCC visibility push(default)
extern "C" int OpenAfterOthers(const char* path, int flags, ...) __asm__("open64");

extern "C" int OpenAfterOthers(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? static_cast<mode_t>(va_arg(rest, unsigned)) : 0;
    va_end(rest);
    if (NamesToTake > 0 && (flags & O_CREAT) != 0 && std::strstr(path, UnfinishedWork)) {
        --NamesToTake;
        if (symlink(LinksTo.constData(), path) != 0)
            qFatal("cannot make a link: error %d", errno);
    }
    static const auto original = reinterpret_cast<int (*)(const char*, int, mode_t)>(dlsym(RTLD_NEXT, "open64"));
    return original(path, flags, mode);
}
#pragma GCC visibility pop

/// Whatever stands at the place where a file is to be written: nothing else is written.
class HostileTargets : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsWrittenThroughALink_data() { AddRows(Links, std::size(Links)); }
    void nothingIsWrittenThroughALink();
    void whatIsNoFileStopsNobody_data() { AddRows(OtherKinds, std::size(OtherKinds)); }
    void whatIsNoFileStopsNobody();
    void aNameThatIsTakenIsNotUsedForUnfinishedWork();
    void theLockOfAStoreCutsNoOtherFile_data();
    void theLockOfAStoreCutsNoOtherFile();
    void aFileInPlaceOfTheCopiesIsSaid();

private:
    static void AddRows(const tagObstacle* obstacles, std::size_t count);
    static QString Make(TTemporaryFolder& folder, const tagWriter& writer, const tagObstacle& obstacle);
};

Q_DECLARE_METATYPE(const tagObstacle*)
Q_DECLARE_METATYPE(const tagWriter*)

void HostileTargets::AddRows(const tagObstacle* obstacles, std::size_t count)
{
    QTest::addColumn<const tagWriter*>("writer");
    QTest::addColumn<const tagObstacle*>("obstacle");
    for (const tagWriter& writer : Writers) {
        for (const tagObstacle* obstacle = obstacles; obstacle != obstacles + count; ++obstacle)
            QTest::addRow("%s: %s", writer.name, obstacle->name) << &writer << obstacle;
    }
}

/// The path of the target, where the obstacle stands now.
QString HostileTargets::Make(TTemporaryFolder& folder, const tagWriter& writer, const tagObstacle& obstacle)
{
    folder.MakeFile(QLatin1String("source"), "content");
    folder.MakeFile(QLatin1String("outside/kept"), Kept);
    folder.MakeFolder(QLatin1String("place"));
    folder.MakeFolder(QLatin1String("data"));
    const QString target = folder.Path(QLatin1String(writer.target));
    const QByteArray kept = folder.Path(QLatin1String("outside/kept")).toUtf8();
    if (!obstacle.make(target.toUtf8().constData(), kept.constData()))
        qFatal("cannot make a %s: error %d", obstacle.name, errno);
    return target;
}

void HostileTargets::nothingIsWrittenThroughALink()
{
    QFETCH(const tagWriter*, writer);
    QFETCH(const tagObstacle*, obstacle);
    TTemporaryFolder folder;
    const QString target = Make(folder, *writer, *obstacle);
    const bool isWritten = writer->write(folder.Path(), target);
    QCOMPARE(folder.Content(QLatin1String("outside/kept")), Kept);
    QVERIFY(!folder.Exists(QLatin1String("outside/kept-missing")));
    QVERIFY(isWritten);
    struct stat status = {};
    QCOMPARE(lstat(target.toUtf8().constData(), &status), 0);
    QVERIFY(S_ISREG(status.st_mode));
    QVERIFY(status.st_size > 0);
}

void HostileTargets::whatIsNoFileStopsNobody()
{
    QFETCH(const tagWriter*, writer);
    QFETCH(const tagObstacle*, obstacle);
    TTemporaryFolder folder;
    const QString target = Make(folder, *writer, *obstacle);
    const bool isWritten = writer->write(folder.Path(), target);
    const QFileInfo written(target);
    QCOMPARE(isWritten, written.isFile() && !written.isSymLink() && written.size() > 0);
    QCOMPARE(!isWritten, written.isDir());
    QVERIFY(folder.Entries().filter(QLatin1String(".cabsettings-")).isEmpty());
}

void HostileTargets::aNameThatIsTakenIsNotUsedForUnfinishedWork()
{
    TTemporaryFolder folder;
    folder.MakeFile(QLatin1String("source"), "content");
    folder.MakeFile(QLatin1String("outside/kept"), Kept);
    folder.MakeFolder(QLatin1String("place"));
    LinksTo = folder.Path(QLatin1String("outside/kept")).toUtf8();
    NamesToTake = 3;
    QVERIFY(WriteCopy(folder.Path(), folder.Path(QLatin1String("place/copy"))));
    QCOMPARE(NamesToTake, 0);
    QCOMPARE(folder.Content(QLatin1String("outside/kept")), Kept);
    QCOMPARE(folder.Content(QLatin1String("place/copy")), QByteArray("content"));
}

void HostileTargets::theLockOfAStoreCutsNoOtherFile_data()
{
    QTest::addColumn<const tagObstacle*>("obstacle");
    QTest::addColumn<bool>("isReplaced");
    for (const tagObstacle& obstacle : Links)
        QTest::newRow(obstacle.name) << &obstacle << (QByteArray(obstacle.name) == "hard link to a file");
    for (const tagObstacle& obstacle : OtherKinds)
        QTest::newRow(obstacle.name) << &obstacle << false;
}

void HostileTargets::theLockOfAStoreCutsNoOtherFile()
{
    QFETCH(const tagObstacle*, obstacle);
    QFETCH(bool, isReplaced);
    TTemporaryFolder folder;
    folder.MakeFile(QLatin1String("outside/kept"), Kept);
    folder.MakeFolder(QLatin1String("data"));
    const QByteArray kept = folder.Path(QLatin1String("outside/kept")).toUtf8();
    const QByteArray lock = folder.Path(QLatin1String("data/settings.db.lock")).toUtf8();
    QVERIFY(obstacle->make(lock.constData(), kept.constData()));
    QString error;
    const auto store = TSqliteStore::Open(folder.Path(QLatin1String("data/settings.db")), &error);
    QVERIFY2((store != nullptr) == isReplaced, qPrintable(error));
    QVERIFY2(isReplaced || error.contains(QString::fromUtf8(lock)), qPrintable(error));
    QCOMPARE(folder.Content(QLatin1String("outside/kept")), Kept);
    QVERIFY(!folder.Exists(QLatin1String("outside/kept-missing")));
}

void HostileTargets::aFileInPlaceOfTheCopiesIsSaid()
{
    TTemporaryFolder folder;
    folder.MakeFile(QLatin1String("settings.db.copies"), Kept);
    QString error;
    const auto store = TSqliteStore::Open(folder.Path(QLatin1String("settings.db")), &error);
    QVERIFY2(store != nullptr, qPrintable(error));
    QCOMPARE(folder.Content(QLatin1String("settings.db.copies")), Kept);
}

QTEST_GUILESS_MAIN(HostileTargets)
#include "HostileTargets.moc"
