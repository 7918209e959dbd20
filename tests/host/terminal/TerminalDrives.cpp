#include "../stores/StoreTestSupport.h"
#include "stores/TMemoryStore.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"

#include <QtTest>

/// The drives that a terminal uses, for all kinds of values in the store, at the start and while it runs.
class TerminalDrives : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void drivesFollowTheDataFolder();
    void drivesOfTheStoreAreUsed();
    void aStartUsesADriveThatCanBeUsed_data();
    void aStartUsesADriveThatCanBeUsed();
    void aRunningTerminalFollowsTheStore_data();
    void aRunningTerminalFollowsTheStore();
    void whatAnotherProgramStoresIsFollowed();
    void aDriveWhoseFoldersCannotBeMadeIsNotUsed();
    void theRemovableDriveIsNeverRelative_data();
    void theRemovableDriveIsNeverRelative();

private:
    QString Folder() const { return m_Folder->path(); }
    QString Path(const char* name) const { return m_Folder->filePath(QString::fromLatin1(name)); }

    QScopedPointer<QTemporaryDir> m_Folder;
};

namespace {

QString Drive() { return TSystemSettingsProxy().GetInternalDrivePath(); }

/// The stored value of a drive, with the test's folder in place of %1.
QVariant Stored(const QVariant& value, const QString& folder)
{
    const QString text = value.toString();
    return text.contains(QLatin1String("%1")) ? QVariant(text.arg(folder)) : value;
}

/// Rows: the stored value, the folder of the test that the terminal uses, and whether it says why.
void AddDrives()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("drive");
    QTest::addColumn<bool>("isTold");
    const QString own = QLatin1String("/internal/");
    const QString flash = QLatin1String("/flash/");
    QTest::newRow("with a slash") << QVariant(QLatin1String("%1/flash/")) << flash << false;
    QTest::newRow("without a slash") << QVariant(QLatin1String("%1/flash")) << flash << false;
    QTest::newRow("absent") << QVariant() << own << false;
    QTest::newRow("empty") << QVariant(QString()) << own << false;
    QTest::newRow("relative") << QVariant(QLatin1String("flash/")) << own << true;
    QTest::newRow("the folder the program runs in") << QVariant(QLatin1String(".")) << own << true;
    QTest::newRow("the root") << QVariant(QLatin1String("/")) << own << true;
    QTest::newRow("the root, twice") << QVariant(QLatin1String("//")) << own << true;
    QTest::newRow("the root, above itself") << QVariant(QLatin1String("/..")) << own << true;
    QTest::newRow("the root, by another folder") << QVariant(QLatin1String("/nowhere/..")) << own << true;
    QTest::newRow("a number") << QVariant(42) << own << true;
}

} // namespace

void TerminalDrives::init() { m_Folder.reset(new QTemporaryDir); }

void TerminalDrives::drivesFollowTheDataFolder()
{
    TMemoryStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY(terminal.Start(Folder(), &error));
    QCOMPARE(Drive(), Path("internal/"));
    QString external;
    QVERIFY(!TSystemSettingsProxy().GetExternalDrivePath(external));
    QCOMPARE(external, Path("usb"));
    QVERIFY(QFileInfo(external).isDir());
    QVERIFY(!store.HasParameter(PARAM_INTERNAL_DRIVE));
    QVERIFY(!store.HasParameter(PARAM_EXTERNAL_DRIVE));
}

void TerminalDrives::drivesOfTheStoreAreUsed()
{
    TMemoryStore store;
    store.SetParameter(PARAM_INTERNAL_DRIVE, Path("flash"), true);
    store.SetParameter(PARAM_EXTERNAL_DRIVE, QLatin1String("/proc"), true);
    TTerminal terminal(store);
    QString error;
    QVERIFY(terminal.Start(Folder(), &error));
    QCOMPARE(Drive(), Path("flash/"));
    QVERIFY(QFileInfo::exists(Path("flash/Jobs")));
    QVERIFY(TSystemSettingsProxy().IsExternalDrivePresent());
    QVERIFY(!QFileInfo::exists(Path("internal")));
    QVERIFY(!QFileInfo::exists(Path("usb")));
}

void TerminalDrives::aStartUsesADriveThatCanBeUsed_data() { AddDrives(); }

void TerminalDrives::aStartUsesADriveThatCanBeUsed()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, drive);
    QFETCH(bool, isTold);
    TMemoryStore store;
    store.SetParameter(PARAM_INTERNAL_DRIVE, Stored(stored, Folder()), true);
    TTerminal terminal(store);
    TStandardErrorCapture standardError;
    QString error;
    QVERIFY2(terminal.Start(Folder(), &error), qPrintable(error));
    QCOMPARE(Drive(), Folder() + drive);
    QVERIFY(QFileInfo(Folder() + drive + QLatin1String("Jobs")).isDir());
    QCOMPARE(standardError.Lines().size(), isTold ? 1 : 0);
    QCOMPARE(store.GetParameter(PARAM_INTERNAL_DRIVE), Stored(stored, Folder()));
}

void TerminalDrives::aRunningTerminalFollowsTheStore_data() { AddDrives(); }

void TerminalDrives::aRunningTerminalFollowsTheStore()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, drive);
    QFETCH(bool, isTold);
    TMemoryStore store;
    store.SetParameter(PARAM_INTERNAL_DRIVE, Path("first/"), true);
    TTerminal terminal(store);
    QString error;
    QVERIFY2(terminal.Start(Folder(), &error), qPrintable(error));
    QCOMPARE(Drive(), Path("first/"));

    TStandardErrorCapture standardError;
    store.SetParameter(PARAM_INTERNAL_DRIVE, Stored(stored, Folder()), true);
    const TSystemSettingsProxy system;
    QCOMPARE(system.GetFlagPointsFilePath(QString(), QString(), QString()),
             Folder() + drive + QLatin1String("flagpoints.ini"));
    QCOMPARE(system.GetInternalDrivePath(), Folder() + drive);
    QVERIFY(QFileInfo(Folder() + drive + QLatin1String("Jobs")).isDir());
    const QStringList lines = standardError.Lines();
    QCOMPARE(lines.size(), isTold ? 1 : 0);
    if (isTold)
        QVERIFY2(lines.first().startsWith(QLatin1String("invalid value \"")) &&
                     lines.first().endsWith(QString::fromLatin1("; the terminal uses \"%1\"").arg(Folder() + drive)),
                 qPrintable(lines.first()));
}

void TerminalDrives::whatAnotherProgramStoresIsFollowed()
{
    const QString file = DataFolder::StoreFile(Folder());
    const auto store = OpenStore(file);
    const auto another = OpenStore(file);
    TTerminal terminal(*store);
    QString error;
    QVERIFY2(terminal.Start(Folder(), &error), qPrintable(error));
    QVERIFY(another->SetParameter(PARAM_INTERNAL_DRIVE, Path("flash"), true));
    QTRY_COMPARE_WITH_TIMEOUT(Drive(), Path("flash/"), SoonMilliseconds);
    QVERIFY(QFileInfo::exists(Path("flash/Jobs")));
    QVERIFY(another->SetParameter(PARAM_INTERNAL_DRIVE, QVariant(), true));
    QTRY_COMPARE_WITH_TIMEOUT(Drive(), Path("internal/"), SoonMilliseconds);
}

void TerminalDrives::aDriveWhoseFoldersCannotBeMadeIsNotUsed()
{
    SetFileBytes(Path("file"), "in the way");
    TMemoryStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY2(terminal.Start(Folder(), &error), qPrintable(error));
    TStandardErrorCapture standardError;
    store.SetParameter(PARAM_INTERNAL_DRIVE, Path("file/flash"), true);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(Drive(), Path("internal/"));
    QCOMPARE(standardError.Lines(),
             QStringList(QString::fromLatin1("cannot create the folder \"%1\"; the terminal uses \"%2\"")
                             .arg(Path("file/flash/Jobs"), Path("internal/"))));
    store.SetParameter(PARAM_INTERNAL_DRIVE, Path("flash"), true);
    QCOMPARE(Drive(), Path("flash/"));
}

void TerminalDrives::theRemovableDriveIsNeverRelative_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("drive");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("a mount point") << QVariant(QLatin1String("/proc")) << QString::fromLatin1("/proc") << false;
    QTest::newRow("absent") << QVariant() << QString() << false;
    QTest::newRow("empty") << QVariant(QString()) << QString() << false;
    QTest::newRow("relative") << QVariant(QLatin1String("usb")) << QString() << true;
}

void TerminalDrives::theRemovableDriveIsNeverRelative()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, drive);
    QFETCH(bool, isTold);
    TMemoryStore store;
    store.SetParameter(PARAM_EXTERNAL_DRIVE, QLatin1String("/sys"), true);
    TTerminal terminal(store);
    QString error;
    QVERIFY2(terminal.Start(Folder(), &error), qPrintable(error));
    TStandardErrorCapture standardError;
    store.SetParameter(PARAM_EXTERNAL_DRIVE, stored, true);
    QString external;
    QCOMPARE(TSystemSettingsProxy().GetExternalDrivePath(external), !drive.isEmpty());
    QCOMPARE(external, drive.isEmpty() ? Path("usb") : drive);
    QCOMPARE(standardError.Lines().size(), isTold ? 1 : 0);
}

QTEST_GUILESS_MAIN(TerminalDrives)
#include "TerminalDrives.moc"
