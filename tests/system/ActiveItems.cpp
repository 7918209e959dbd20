#include "CoreTest.h"
#include "TDisplay.h"

#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

#include <QtTest>

namespace {

using System = TSystemSettings;
using Proxy = TSystemSettingsProxy;

struct tagItem
{
    const char* name;
    int parameter;
    const char* folder;
    const char* extension;
    bool isOfField; ///< lies in the folders of client, farm and field
    QString (System::*get)() const;
    void (System::*set)(const QString&);
    QString (System::*path)() const;
    QString (Proxy::*proxyGet)() const; ///< null where the façade leaves the item out
    void (Proxy::*proxySet)(const QString&);
    QString (Proxy::*proxyPath)() const;
};

// clang-format off
const tagItem Items[] = {
    {"job", 8919, "Jobs", ".ini", true, &System::GetActiveJob, &System::SetActiveJob, &System::GetActiveJobPath, &Proxy::GetActiveJob, &Proxy::SetActiveJob, &Proxy::GetActiveJobPath},
    {"boundary", 8920, "Boundaries", ".bdy", true, &System::GetActiveBoundary, &System::SetActiveBoundary, &System::GetActiveBoundaryPath, &Proxy::GetActiveBoundary, &Proxy::SetActiveBoundary, &Proxy::GetActiveBoundaryPath},
    {"AB line", 8921, "ABLines", ".ini", true, &System::GetActiveABLine, &System::SetActiveABLine, &System::GetActiveABLinePath, &Proxy::GetActiveABLine, &Proxy::SetActiveABLine, &Proxy::GetActiveABLinePath},
    {"pivot", 8922, "Pivots", ".ini", true, &System::GetActivePivot, &System::SetActivePivot, &System::GetActivePivotPath, &Proxy::GetActivePivot, &Proxy::SetActivePivot, &Proxy::GetActivePivotPath},
    {"curve", 8923, "Curves", ".crv", true, &System::GetActiveCurve, &System::SetActiveCurve, &System::GetActiveCurvePath, &Proxy::GetActiveCurve, &Proxy::SetActiveCurve, &Proxy::GetActiveCurvePath},
    {"optimal lines", 8924, "OptimalLines", ".shp", true, &System::GetActiveOptimalLinesShapeFile, &System::SetActiveOptimalLinesShapeFile, &System::GetActiveOptimalLinesShapeFilePath, &Proxy::GetActiveOptimalLinesShapeFile, &Proxy::SetActiveOptimalLinesShapeFile, &Proxy::GetActiveOptimalLinesShapeFilePath},
    {"project lines", 8925, "ProjectLines", ".shp", true, &System::GetActiveProjectLinesShapeFile, &System::SetActiveProjectLinesShapeFile, &System::GetActiveProjectLinesShapeFilePath, &Proxy::GetActiveProjectLinesShapeFile, &Proxy::SetActiveProjectLinesShapeFile, &Proxy::GetActiveProjectLinesShapeFilePath},
    {"zones", 8926, "Zones", ".shp", true, &System::GetActiveShapeFile, &System::SetActiveShapeFileName, &System::GetActiveShapeFilePath, &Proxy::GetActiveShapeFile, &Proxy::SetActiveShapeFileName, &Proxy::GetActiveShapeFilePath},
    {"zones with folder", 8926, "Zones", ".shp", true, &System::GetActiveShapeFile, &System::SetActiveShapeFile, &System::GetActiveShapeFilePath, &Proxy::GetActiveShapeFile, &Proxy::SetActiveShapeFile, &Proxy::GetActiveShapeFilePath},
    {"steering", 8927, "Steering", ".ini", false, &System::GetActiveSteering, &System::SetActiveSteering, &System::GetActiveSteeringPath, nullptr, nullptr, nullptr},
    {"implement", 8928, "Implements", ".ini", false, &System::GetActiveImplement, &System::SetActiveImplement, &System::GetActiveImplementPath, &Proxy::GetActiveImplement, &Proxy::SetActiveImplement, &Proxy::GetActiveImplementPath},
    {"vehicle", 8929, "Vehicles", ".ini", false, &System::GetActiveVehicle, &System::SetActiveVehicle, &System::GetActiveVehiclePath, &Proxy::GetActiveVehicle, &Proxy::SetActiveVehicle, &Proxy::GetActiveVehiclePath},
    {"sprayer", 8930, "Sprayer", ".ini", false, &System::GetActiveSprayer, &System::SetActiveSprayer, &System::GetActiveSprayerPath, &Proxy::GetActiveSprayer, &Proxy::SetActiveSprayer, &Proxy::GetActiveSprayerPath},
};

struct tagDefaultName
{
    const char* name;
    const char* prefix;
    QString (System::*get)() const;
    QString (Proxy::*proxyGet)() const;
};

const tagDefaultName DefaultNames[] = {
    {"AB line", "L_", &System::GetDefaultABLineName, &Proxy::GetDefaultABLineName},
    {"pivot", "P_", &System::GetDefaultPivotName, &Proxy::GetDefaultPivotName},
    {"curve", "C_", &System::GetDefaultCurveName, &Proxy::GetDefaultCurveName},
    {"optimal lines", "O_", &System::GetDefaultOptimalLinesShapeFileName, &Proxy::GetDefaultOptimalLinesShapeFileName},
    {"project lines", "P_", &System::GetDefaultProjectLinesShapeFileName, &Proxy::GetDefaultProjectLinesShapeFileName},
};
// clang-format on

const QString Name = QString::fromUtf8("Süd 畑.2");

/// "Jobs/<name>/<name>.ini" of the job.
QString ItemFile(const tagItem& item, const QString& name)
{
    return QLatin1String(item.folder) + QLatin1Char('/') + name + QLatin1Char('/') + name +
           QLatin1String(item.extension);
}

const char* const FieldFolder = "Clients/Smith/North/F1/";

/// Everything that a path below a folder needs, as TDisplay::DriveContent() tells it.
QStringList FoldersOf(const QString& path)
{
    QStringList folders;
    for (int end = static_cast<int>(path.indexOf(QLatin1Char('/'))); end >= 0;
         end = static_cast<int>(path.indexOf(QLatin1Char('/'), end + 1)))
        folders.append(path.left(end + 1));
    return folders;
}

} // namespace

Q_DECLARE_METATYPE(const tagItem*)
Q_DECLARE_METATYPE(const tagDefaultName*)

class ActiveItems : public QObject
{
    Q_OBJECT

private slots:
    void aNameIsStoredAndReadBack_data() { AddItems(); }
    void aNameIsStoredAndReadBack();
    void theStoreTellsTheName_data() { AddItems(); }
    void theStoreTellsTheName();
    void aNameIsEmptyUntilOneIsStored_data() { AddItems(); }
    void aNameIsEmptyUntilOneIsStored();
    void theFacadeReachesTheSameItem_data() { AddItems(); }
    void theFacadeReachesTheSameItem();

    void aDefaultNameIsPrefixAndStamp_data();
    void aDefaultNameIsPrefixAndStamp();

    void fieldItemsLieInTheFieldsFolder_data() { AddItems(&tagItem::isOfField, true); }
    void fieldItemsLieInTheFieldsFolder();
    void fieldItemsHaveNoPathOutsideAField_data();
    void fieldItemsHaveNoPathOutsideAField();
    void fieldItemsFollowTheRootOfTheFields_data() { AddItems(&tagItem::isOfField, true); }
    void fieldItemsFollowTheRootOfTheFields();
    void machineItemsLieOnTheDriveItself_data() { AddItems(&tagItem::isOfField, false); }
    void machineItemsLieOnTheDriveItself();
    void builtInProfilesGetNoFolder_data();
    void builtInProfilesGetNoFolder();
    void pathsAreJoinedAsTheDriveIsWritten();

    void settingANameMakesNoFolder_data() { AddItems(); }
    void settingANameMakesNoFolder();
    void settingTheBoundaryMakesItsFolder();
    void settingTheBoundaryOutsideAFieldMakesNone();
    void settingTheShapeFileMakesItsFolder();
    void anEmptyShapeFileMakesNoFolder();

    void reportAndCoverageLieBesideTheJob_data();
    void reportAndCoverageLieBesideTheJob();
    void theFolderOfTheZonesBelongsToNoField();

    void anImplementMayLiveInItsVehiclesFolder_data();
    void anImplementMayLiveInItsVehiclesFolder();

    void recordingFlagsTellWhatTheyWere();

private:
    static void AddItems();
    static void AddItems(bool tagItem::*which, bool value);
};

void ActiveItems::AddItems()
{
    QTest::addColumn<const tagItem*>("item");
    for (const tagItem& item : Items)
        QTest::newRow(item.name) << &item;
}

void ActiveItems::AddItems(bool tagItem::*which, bool value)
{
    QTest::addColumn<const tagItem*>("item");
    for (const tagItem& item : Items) {
        if (item.*which == value)
            QTest::newRow(item.name) << &item;
    }
}

void ActiveItems::aNameIsStoredAndReadBack()
{
    QFETCH(const tagItem*, item);
    TDisplay display;
    System system;
    (system.*item->set)(Name);

    QCOMPARE(display.store.writes.size(), 1);
    QCOMPARE(display.store.writes.first().first, item->parameter);
    QCOMPARE(display.store.writes.first().second, QVariant(Name));
    QVERIFY(display.store.allWritesPersist);
    QCOMPARE((system.*item->get)(), Name);
    QCOMPARE((System().*item->get)(), Name);
}

void ActiveItems::theStoreTellsTheName()
{
    QFETCH(const tagItem*, item);
    TDisplay display;
    System system;
    (system.*item->set)(Name);
    display.store.values[item->parameter] = QLatin1String("other");
    QCOMPARE((system.*item->get)(), QString::fromLatin1("other"));

    // Without a stored name, the last one set stays in force.
    display.store.values.remove(item->parameter);
    QCOMPARE((system.*item->get)(), Name);
}

void ActiveItems::aNameIsEmptyUntilOneIsStored()
{
    QFETCH(const tagItem*, item);
    TDisplay display;
    QCOMPARE((System().*item->get)(), QString());
    QVERIFY(display.store.writes.isEmpty());
}

void ActiveItems::theFacadeReachesTheSameItem()
{
    QFETCH(const tagItem*, item);
    if (!item->proxyGet)
        return;
    TDisplay display;
    display.SetField();
    Proxy proxy;
    (proxy.*item->proxySet)(Name);
    QCOMPARE(display.store.writes.size(), 1);
    QCOMPARE(display.store.writes.first().first, item->parameter);
    QCOMPARE((proxy.*item->proxyGet)(), Name);
    QCOMPARE((proxy.*item->proxyPath)(), (System().*item->path)());
}

void ActiveItems::aDefaultNameIsPrefixAndStamp_data()
{
    QTest::addColumn<const tagDefaultName*>("item");
    QTest::addColumn<bool>("monthFirst");
    QTest::addColumn<QString>("stamp");
    for (const tagDefaultName& item : DefaultNames) {
        const QByteArray name = item.name;
        QTest::newRow(item.name) << &item << false << QString::fromLatin1("050324_1405");
        QTest::newRow((name + ", month first").constData()) << &item << true << QString::fromLatin1("030524_1405");
    }
}

void ActiveItems::aDefaultNameIsPrefixAndStamp()
{
    QFETCH(const tagDefaultName*, item);
    QFETCH(bool, monthFirst);
    QFETCH(QString, stamp);
    TDisplay display;
    display.store.values[9012] = monthFirst;
    QCOMPARE((System().*item->get)(), QLatin1String(item->prefix) + stamp);
    QCOMPARE((Proxy().*item->proxyGet)(), QLatin1String(item->prefix) + stamp);
    QVERIFY(display.store.writes.isEmpty());
}

void ActiveItems::fieldItemsLieInTheFieldsFolder()
{
    QFETCH(const tagItem*, item);
    TDisplay display;
    display.SetField();
    display.store.values[item->parameter] = Name;
    QCOMPARE((System().*item->path)(), display.OnDrive(QLatin1String(FieldFolder) + ItemFile(*item, Name)));

    // The category's folder is made, the item's is not.
    QCOMPARE(display.DriveContent(),
             FoldersOf(QLatin1String(FieldFolder) + QLatin1String(item->folder) + QLatin1Char('/')));
    QVERIFY(display.store.writes.isEmpty());
}

void ActiveItems::fieldItemsHaveNoPathOutsideAField_data()
{
    QTest::addColumn<const tagItem*>("item");
    QTest::addColumn<int>("missing");
    for (const tagItem& item : Items) {
        if (!item.isOfField)
            continue;
        const QByteArray name = item.name;
        QTest::newRow((name + ", no client").constData()) << &item << 8932;
        QTest::newRow((name + ", no farm").constData()) << &item << 8933;
        QTest::newRow((name + ", no field").constData()) << &item << 8934;
    }
}

void ActiveItems::fieldItemsHaveNoPathOutsideAField()
{
    QFETCH(const tagItem*, item);
    QFETCH(int, missing);
    TDisplay display;
    display.SetField();
    display.store.values[missing] = QString();
    display.store.values[item->parameter] = Name;
    QCOMPARE((System().*item->path)(), QString());
    QVERIFY(display.DriveContent().isEmpty());
}

void ActiveItems::fieldItemsFollowTheRootOfTheFields()
{
    QFETCH(const tagItem*, item);
    TDisplay display;
    display.SetField();
    display.store.values[item->parameter] = Name;
    System().SetCFFRoot(QLatin1String("taskdata"));
    QCOMPARE((System().*item->path)(),
             display.OnDrive(QLatin1String("taskdata/") + QLatin1String(FieldFolder) + ItemFile(*item, Name)));
}

void ActiveItems::machineItemsLieOnTheDriveItself()
{
    QFETCH(const tagItem*, item);
    TDisplay display;
    display.SetField();
    System().SetCFFRoot(QLatin1String("taskdata"));
    display.store.values[item->parameter] = Name;
    QCOMPARE((System().*item->path)(), display.OnDrive(ItemFile(*item, Name)));
    QCOMPARE(display.DriveContent(), FoldersOf(ItemFile(*item, Name)));
}

void ActiveItems::builtInProfilesGetNoFolder_data()
{
    QTest::addColumn<const tagItem*>("item");
    QTest::addColumn<QString>("profile");
    const char* const profiles[] = {"No Vehicle", "No Profile", "No Implement"};
    for (const tagItem& item : Items) {
        if (item.isOfField)
            continue;
        for (const char* profile : profiles) {
            QTest::newRow((QByteArray(item.name) + ", " + profile).constData())
                << &item << QString::fromLatin1(profile);
        }
    }
}

void ActiveItems::builtInProfilesGetNoFolder()
{
    QFETCH(const tagItem*, item);
    QFETCH(QString, profile);
    TDisplay display;
    display.store.values[item->parameter] = profile;
    QCOMPARE((System().*item->path)(), display.OnDrive(ItemFile(*item, profile)));
    QVERIFY(display.DriveContent().isEmpty());
}

void ActiveItems::pathsAreJoinedAsTheDriveIsWritten()
{
    TDisplay display;
    display.SetField();
    display.store.values[8919] = QLatin1String("J_1");
    display.store.values[8910] = display.folder.Path(QLatin1String("data")); // without its "/"
    QCOMPARE(System().GetActiveJobPath(),
             display.folder.Path(QLatin1String("dataClients/Smith/North/F1/Jobs/J_1/J_1.ini")));
    display.store.values[8929] = QLatin1String("Red");
    QCOMPARE(System().GetActiveVehiclePath(), display.OnDrive(QLatin1String("Vehicles/Red/Red.ini")));
}

void ActiveItems::settingANameMakesNoFolder()
{
    QFETCH(const tagItem*, item);
    const bool isMadeToMakeFolders =
        item->set == &System::SetActiveBoundary || item->set == &System::SetActiveShapeFile;
    TDisplay display;
    display.SetField();
    System system;
    (system.*item->set)(Name);
    QCOMPARE(display.DriveContent().isEmpty(), !isMadeToMakeFolders);
}

void ActiveItems::settingTheBoundaryMakesItsFolder()
{
    TDisplay display;
    display.SetField();
    const QStringList folders = FoldersOf(QLatin1String("Clients/Smith/North/F1/Boundaries/B_1/"));
    System().SetActiveBoundary(QLatin1String("B_1"));
    QCOMPARE(display.DriveContent(), folders);

    display.folder.MakeFile(QLatin1String("data/Clients/Smith/North/F1/Boundaries/B_1/B_1.bdy"), "boundary");
    System().SetActiveBoundary(QLatin1String("B_1"));
    QCOMPARE(display.folder.Content(QLatin1String("data/Clients/Smith/North/F1/Boundaries/B_1/B_1.bdy")),
             QByteArray("boundary"));
    QCOMPARE(display.DriveContent().size(), folders.size() + 1);
}

void ActiveItems::settingTheBoundaryOutsideAFieldMakesNone()
{
    TDisplay display;
    System().SetActiveBoundary(QLatin1String("B_1"));
    QCOMPARE(System().GetActiveBoundary(), QString::fromLatin1("B_1"));
    QVERIFY(display.DriveContent().isEmpty());
}

void ActiveItems::settingTheShapeFileMakesItsFolder()
{
    TDisplay display;
    display.SetField();
    const QStringList folders = FoldersOf(QLatin1String("Clients/Smith/North/F1/Zones/Wet/"));
    System().SetActiveShapeFile(QLatin1String("Wet"));
    QCOMPARE(display.DriveContent(), folders);
    System().SetActiveShapeFile(QLatin1String("Wet"));
    QCOMPARE(display.DriveContent(), folders);
}

void ActiveItems::anEmptyShapeFileMakesNoFolder()
{
    TDisplay display;
    display.SetField();
    display.store.values[8926] = QLatin1String("Wet");
    System().SetActiveShapeFile(QString());
    QVERIFY(display.store.HasParameter(PARAM_ACTIVE_ZONES_SHAPE_FILE));
    QCOMPARE(System().GetActiveShapeFile(), QString());
    QVERIFY(display.DriveContent().isEmpty());
}

void ActiveItems::reportAndCoverageLieBesideTheJob_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("job");
    QTest::addColumn<QString>("report");
    QTest::addColumn<QString>("coverage");

    const struct
    {
        const char* name;
        const char* field;
        const char* job;
        const char* report;
        const char* coverage;
    } rows[] = {
        {"plain", "F1", "J_1", "F1/Jobs/J_1/J_1.pdf", "F1/Jobs/J_1/J_1.cov"},
        {"'.ini' in the field", "F.ini", "J", "F.pdf/Jobs/J/J.pdf", "F.cov/Jobs/J/J.cov"},
        {"'.ini' in the job", "F", "J.ini2", "F/Jobs/J.pdf2/J.pdf2.pdf", "F/Jobs/J.cov2/J.cov2.cov"},
        {"'.INI' is another thing", "F.INI", "J", "F.INI/Jobs/J/J.pdf", "F.INI/Jobs/J/J.cov"},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << QString::fromLatin1(row.field) << QString::fromLatin1(row.job)
                                << QString::fromLatin1(row.report) << QString::fromLatin1(row.coverage);
    }
}

void ActiveItems::reportAndCoverageLieBesideTheJob()
{
    QFETCH(QString, field);
    QFETCH(QString, job);
    QFETCH(QString, report);
    QFETCH(QString, coverage);
    TDisplay display;
    display.store.values[8919] = job;
    QCOMPARE(System().GetActiveReportPath(), QString());
    QCOMPARE(System().GetActiveCoveragePath(), QString());

    display.SetField(QLatin1String("Smith"), QLatin1String("North"), field);
    const QString farm = display.OnDrive(QLatin1String("Clients/Smith/North/"));
    QCOMPARE(System().GetActiveReportPath(), farm + report);
    QCOMPARE(System().GetActiveCoveragePath(), farm + coverage);
    QCOMPARE(Proxy().GetActiveReportPath(), farm + report);
    QCOMPARE(Proxy().GetActiveCoveragePath(), farm + coverage);
}

void ActiveItems::theFolderOfTheZonesBelongsToNoField()
{
    TDisplay display;
    display.SetField();
    System().SetCFFRoot(QLatin1String("taskdata"));
    display.store.values[8926] = Name;
    QCOMPARE(System().GetShapeFilePath(), display.OnDrive(QLatin1String("Zones")));
    QCOMPARE(Proxy().GetShapeFilePath(), display.OnDrive(QLatin1String("Zones")));
    QVERIFY(display.DriveContent().isEmpty());
}

void ActiveItems::anImplementMayLiveInItsVehiclesFolder_data()
{
    QTest::addColumn<QString>("fileThere");
    QTest::addColumn<int>("folderChoice");
    QTest::addColumn<QString>("path");

    const QString own = QLatin1String("Implements/Boom/Boom.ini");
    const QString vehicles = QLatin1String("Vehicles/Boom/Implement.ini");
    QTest::newRow("nothing there") << QString() << 0 << own;
    QTest::newRow("its file is there") << vehicles << 0 << vehicles;
    QTest::newRow("its file is there, other choice") << vehicles << 3 << vehicles;
    QTest::newRow("file of another vehicle") << QString::fromLatin1("Vehicles/Red/Implement.ini") << 0 << own;
    QTest::newRow("the vehicle's file alone") << QString::fromLatin1("Vehicles/Boom/Boom.ini") << 0 << own;
    QTest::newRow("choice 3") << QString() << 3 << own;
    QTest::newRow("choice 4") << QString() << 4 << vehicles;
    QTest::newRow("choice 5") << QString() << 5 << own;
}

void ActiveItems::anImplementMayLiveInItsVehiclesFolder()
{
    QFETCH(QString, fileThere);
    QFETCH(int, folderChoice);
    QFETCH(QString, path);
    TDisplay display;
    if (!fileThere.isEmpty())
        display.folder.MakeFile(QLatin1String("data/") + fileThere);
    display.store.values[9103] = folderChoice;
    const QStringList content = display.DriveContent();

    // By name, whatever is active; nothing is made.
    display.store.values[8928] = QLatin1String("Red");
    QCOMPARE(System().GetImplementPathForName(QLatin1String("Boom")), display.OnDrive(path));
    QCOMPARE(Proxy().GetImplementPathForName(QLatin1String("Boom")), display.OnDrive(path));
    QCOMPARE(display.DriveContent(), content);

    display.store.values[8928] = QLatin1String("Boom");
    QCOMPARE(System().GetActiveImplementPath(), display.OnDrive(path));
    QVERIFY(QFileInfo(display.OnDrive(path)).dir().exists());
}

void ActiveItems::recordingFlagsTellWhatTheyWere()
{
    TDisplay display;
    Proxy proxy;
    QVERIFY(!proxy.IsLowRAMRecordingOff());
    QVERIFY(!proxy.IsLowFlashRecordingOff());

    QVERIFY(!proxy.UpdateLowRAMRecordingOff(true));
    QVERIFY(proxy.UpdateLowRAMRecordingOff(true));
    QVERIFY(proxy.IsLowRAMRecordingOff());
    QVERIFY(!proxy.IsLowFlashRecordingOff());

    QVERIFY(!proxy.UpdateLowFlashRecordingOff(true));
    QVERIFY(proxy.UpdateLowRAMRecordingOff(false));
    QVERIFY(!proxy.UpdateLowRAMRecordingOff(false));
    QVERIFY(!proxy.IsLowRAMRecordingOff());
    QVERIFY(proxy.IsLowFlashRecordingOff());

    QVERIFY(!System().IsLowFlashRecordingOff()); // each object for itself, nothing stored
    QVERIFY(display.store.writes.isEmpty());
}

int main(int argc, char** argv) { return RunCoreTest<ActiveItems>(argc, argv); }

#include "ActiveItems.moc"
