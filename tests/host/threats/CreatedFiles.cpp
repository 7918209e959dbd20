#include "TTemporaryFolder.h"

#include "boundaries/ExclusionZones.h"
#include "copies/StoreCopies.h"
#include "coverage/TCoverageFile.h"
#include "fields/TFieldTree.h"
#include "guidance/GuidanceLine.h"
#include "platform/FileMask.h"
#include "platform/TFileSystemHelper.h"
#include "profiles/ProfileGroups.h"
#include "profiles/TProfile.h"
#include "stores/TSqliteStore.h"
#include "support/SupportBundle.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/TTerminal.h"

#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t ForOthers = S_IRWXG | S_IRWXO;

mode_t ModeOf(const QString& path)
{
    struct stat status = {};
    if (lstat(path.toUtf8().constData(), &status) != 0)
        qFatal("no %s", qPrintable(path));
    return status.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
}

} // namespace

/// Other users of the machine cannot write to what is made, and cannot read it where the umask forbids that.
class CreatedFiles : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_Umask = umask(0); }
    void cleanup() { umask(m_Umask); }

    void nothingIsForOthersToWrite_data();
    void nothingIsForOthersToWrite();
    void theMaskIsOnlyMadeStricter();

private:
    static void MakeEverything(const TTemporaryFolder& folder);

    mode_t m_Umask = 0;
};

/// All kinds of files and folders that the host makes.
void CreatedFiles::MakeEverything(const TTemporaryFolder& folder)
{
    QString error;
    const QString data = folder.Path(QLatin1String("data"));
    folder.MakeFolder(QLatin1String("stick"));
    folder.MakeFile(QLatin1String("stick/from"), "x");
    QVERIFY(QFile::setPermissions(folder.Path(QLatin1String("stick/from")), QFile::Permissions(0x7777))); // as on FAT
    QVERIFY(mkdir(data.toUtf8().constData(), 0755) == 0);
    {
        const auto store = TSqliteStore::Open(data + QLatin1String("/settings.db"), &error);
        QVERIFY2(store != nullptr, qPrintable(error));
        store->SetParameter(PARAM_METRIC, false, true);
        TTerminal terminal(*store);
        QVERIFY2(terminal.Start(data, &error), qPrintable(error));
        StoreCopies::tagCopy copy;
        QVERIFY2(StoreCopies::Make(*store, &copy, &error), qPrintable(error));
        TFieldTree tree(*store);
        QVERIFY(tree.Add({QLatin1String("Smith"), QLatin1String("North"), QLatin1String("F1")}, &error) == FIELD_DONE);
        QVERIFY(tree.Rename({QLatin1String("Smith"), QLatin1String("North")}, QLatin1String("South"), &error) ==
                FIELD_DONE);
        tagSupportBundle bundle;
        QVERIFY(WriteSupportBundle(*store, folder.Path(QLatin1String("stick/support.zip")), {data, QString(), false},
                                   {}, &bundle, &error));
        QVERIFY(TProfile::Of(*store, ProfileGroups::All(), QString())
                    .Write(folder.Path(QLatin1String("stick/tractor.profile")), &error));
    }
    const QString field = data + QLatin1String("/internal/Clients/Smith/South/F1/");
    QVERIFY(WriteGuidanceLine(field + QLatin1String("Lines/L1/L1.ini"), {{52, 10}, {52.001, 10}}, &error));
    QVERIFY(WriteExclusionZones(field + QLatin1String("Zones/F1/F1.shp"), {{{52, 10}, {52.001, 10}, {52, 10.001}}},
                                &error));
    tagCoverage found;
    const auto coverage = TCoverageFile::Open(field + QLatin1String("Jobs/J_1/J_1.cov"), &found, &error);
    QVERIFY2(coverage != nullptr, qPrintable(error));
    coverage->SetOrigin({52, 10});
    coverage->Add({{{{0, 0}, {3, 0}, {3, 1}, {0, 1}}}});
    QVERIFY(coverage->Flush());
    QVERIFY(TFileSystemHelper::FileCopy(folder.Path(QLatin1String("stick/from")),
                                        folder.Path(QLatin1String("stick/to")), true));
}

void CreatedFiles::nothingIsForOthersToWrite_data()
{
    QTest::addColumn<int>("mask");
    QTest::addColumn<int>("forbidden");
    QTest::newRow("0") << 0 << int{S_IWOTH};
    QTest::newRow("022") << 022 << (S_IWGRP | S_IWOTH);
    QTest::newRow("077") << 077 << static_cast<int>(ForOthers);
}

void CreatedFiles::nothingIsForOthersToWrite()
{
    QFETCH(int, mask);
    QFETCH(int, forbidden);
    const TTemporaryFolder folder;
    umask(static_cast<mode_t>(mask));
    DenyWritingByOthers(); // for the folders and logs that the library makes
    MakeEverything(folder);
    const QStringList entries = folder.Entries().filter(QRegularExpression(QLatin1String("^(data|stick/[^f]).*")));
    for (const char* name : {"data/settings.db", "data/settings.db.good", "data/internal/Clients/Smith/South/F1/",
                             "stick/support.zip", "stick/tractor.profile", "stick/to"})
        QVERIFY2(entries.contains(QLatin1String(name)), name);
    for (const QString& entry : entries) {
        if (entry != QLatin1String("data/")) // made by the test
            QVERIFY2((ModeOf(folder.Path(entry)) & static_cast<mode_t>(forbidden)) == 0,
                     qPrintable(QString::fromLatin1("%1 %2").arg(entry).arg(ModeOf(folder.Path(entry)), 0, 8)));
    }
}

void CreatedFiles::theMaskIsOnlyMadeStricter()
{
    for (const mode_t mask : {0U, 022U, 027U, 077U}) {
        umask(mask);
        DenyWritingByOthers();
        QCOMPARE(umask(mask), mask | mode_t{S_IWOTH});
    }
}

QTEST_GUILESS_MAIN(CreatedFiles)
#include "CreatedFiles.moc"
