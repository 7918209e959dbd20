#include "CoreTest.h"
#include "Latin1.h"
#include "TJournal.h"
#include "TTemporaryFolder.h"

#include "region/TRegionSettingsProxy.h"
#include "settings/TSettings.h"
#include "system/TPathSetting.h"
#include "system/TSystemSettings.h"

#include <QScopedPointer>
#include <QtTest>

namespace {

const char* const BlankMarker = "This string intentionally left blank!";

/// A boundary of the display.
class TBoundary : public TPathSetting
{
public:
    TBoundary() : TPathSetting(PARAM_ACTIVE_BOUNDARY, Latin1("Boundaries"), Latin1(".bdy"), Latin1("B_")) {}
};

/// Answers what no base operation would, and writes down who was asked.
class TOverridingSetting : public TBoundary
{
public:
    explicit TOverridingSetting(QStringList& calls) : m_Calls(calls) {}

    QString GetName() const override { return Noted("GetName", Latin1("own name")); }
    QString GetDefaultName() const override { return Noted("GetDefaultName", Latin1("own default")); }
    QString GetFolderPath(const QDir&) const override { return Noted("GetFolderPath", Latin1("own/folder")); }
    QString GetFileName(const QDir&) const override { return Noted("GetFileName", Latin1("own.file")); }

    void SetName(const QString& name) override
    {
        Noted("SetName", QString());
        TBoundary::SetName(name);
    }

    QString BaseGetFolderPath() const { return TBoundary::GetFolderPath(QDir()); }
    QString BaseGetFileName() const { return TBoundary::GetFileName(QDir()); }

private:
    QString Noted(const char* call, const QString& answer) const
    {
        m_Calls.append(Latin1(call));
        return answer;
    }

    QStringList& m_Calls;
};

} // namespace

class PathSetting : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void constructionTouchesNothing();
    void theStoredNameWinsOverTheOneInMemory();
    void aNameIsReadOnlyWhenOneIsStored();
    void setNameStoresTheName_data() { AddNames(); }
    void setNameStoresTheName();
    void defaultNamesCarryDateAndTime_data();
    void defaultNamesCarryDateAndTime();
    void initialiseNamesInMemoryOnly();

    void restoreStoresAName_data();
    void restoreStoresAName();
    void restoreTakesTheStoredNameIntoMemory();
    void restoreAsksOnceAndWritesOnce();

    void folderAndFileAreCalledAfterTheItem_data() { AddNames(); }
    void folderAndFileAreCalledAfterTheItem();
    void getPathMakesTheItemsFolder_data() { AddNames(); }
    void getPathMakesTheItemsFolder();
    void getPathLeavesBuiltInItemsWithoutFolder_data();
    void getPathLeavesBuiltInItemsWithoutFolder();
    void getPathTakesAnyFormOfTheRoot_data();
    void getPathTakesAnyFormOfTheRoot();
    void getPathKeepsWhatIsThere();
    void getPathOfAnUnusableRootIsStillAPath();

    void cffPathsLieInTheActiveField_data() { AddNames(); }
    void cffPathsLieInTheActiveField();
    void cffPathsAreEmptyWithoutAField_data();
    void cffPathsAreEmptyWithoutAField();
    void cffPathsConcatenateThePrefix_data();
    void cffPathsConcatenateThePrefix();
    void cffPathsFollowTheRootOfTheClients();
    void cffPathsNeedNoSettings();
    void aCFFPathThatCannotBeMadeIsStillAPath();

    void operationsCallOneAnotherVirtually();

private:
    static void AddNames();

    QScopedPointer<TTemporaryFolder> m_Folder;
    QScopedPointer<TJournal> m_Store;
    QScopedPointer<TSettings> m_Settings;
};

void PathSetting::init()
{
    m_Folder.reset(new TTemporaryFolder);
    m_Store.reset(new TJournal);
    m_Settings.reset(new TSettings);
    Settings = m_Settings.data();
    m_Store->calls.clear();
    m_Store->reads.clear();
}

void PathSetting::cleanup()
{
    TSystemSettings().SetCFFRoot(QString());
    Settings = nullptr;
    m_Settings.reset();
    m_Store.reset();
    m_Folder.reset();
}

void PathSetting::AddNames()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << Latin1("North");
    QTest::newRow("blanks") << Latin1("North of the hill");
    QTest::newRow("dots") << Latin1("v1.2.bdy");
    QTest::newRow("wildcards") << Latin1("F[1]*?");
    QTest::newRow("beyond Latin-1") << QString::fromUtf8("Αγρός №1");
    QTest::newRow("the sentence for no name") << Latin1(BlankMarker);
    QTest::newRow("long") << QString(200, QLatin1Char('x'));
}

void PathSetting::constructionTouchesNothing()
{
    const TBoundary boundary;
    QVERIFY(m_Store->calls.isEmpty());
    QCOMPARE(boundary.GetName(), QString());
}

void PathSetting::theStoredNameWinsOverTheOneInMemory()
{
    TBoundary boundary;
    boundary.Initialise();
    QCOMPARE(boundary.GetName(), Latin1("B_050324_1405"));
    boundary.SetName(Latin1("North"));
    m_Store->values[PARAM_ACTIVE_BOUNDARY] = Latin1("South");
    QCOMPARE(boundary.GetName(), Latin1("South"));
    m_Store->values[PARAM_ACTIVE_BOUNDARY] = Latin1("");
    QCOMPARE(boundary.GetName(), QString());
    m_Store->values.remove(PARAM_ACTIVE_BOUNDARY);
    QCOMPARE(boundary.GetName(), Latin1("North"));
}

void PathSetting::aNameIsReadOnlyWhenOneIsStored()
{
    const TBoundary boundary;
    boundary.GetName();
    QCOMPARE(m_Store->calls, QStringList(Latin1("has 8920")));
    m_Store->values[PARAM_ACTIVE_BOUNDARY] = Latin1("North");
    m_Store->calls.clear();
    boundary.GetName();
    QCOMPARE(m_Store->calls, QStringList() << Latin1("has 8920") << Latin1("read 8920"));
}

void PathSetting::setNameStoresTheName()
{
    QFETCH(QString, name);
    TBoundary boundary;
    boundary.SetName(name);
    QCOMPARE(m_Store->calls, QStringList(Latin1("write 8920 ") + name));
    QCOMPARE(m_Store->values[PARAM_ACTIVE_BOUNDARY], QVariant(name));
    QVERIFY(m_Store->allWritesPersist);
    QCOMPARE(boundary.GetName(), name);
}

void PathSetting::defaultNamesCarryDateAndTime_data()
{
    QTest::addColumn<bool>("monthFirst");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("expected");

    QTest::newRow("month first") << true << Latin1("B_") << Latin1("B_030524_1405");
    QTest::newRow("day first") << false << Latin1("B_") << Latin1("B_050324_1405");
    QTest::newRow("no prefix") << false << QString() << Latin1("050324_1405");
}

void PathSetting::defaultNamesCarryDateAndTime()
{
    QFETCH(bool, monthFirst);
    QFETCH(QString, prefix);
    QFETCH(QString, expected);
    m_Store->values[PARAM_MONTH_FIRST] = monthFirst;
    m_Store->values[PARAM_ACTIVE_BOUNDARY] = Latin1("stored");
    const TPathSetting setting(PARAM_ACTIVE_BOUNDARY, Latin1("Boundaries"), Latin1(".bdy"), prefix);
    QCOMPARE(setting.GetDefaultName(), expected);
}

void PathSetting::initialiseNamesInMemoryOnly()
{
    TBoundary boundary;
    boundary.Initialise();
    QVERIFY(m_Store->writes.isEmpty());
    TTestClock::time = QTime(23, 59);
    QCOMPARE(boundary.GetName(), Latin1("B_050324_1405")); // as of Initialise(), not as of now
}

void PathSetting::restoreStoresAName_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("expected");

    const QVariant absent;
    const QVariant stored(Latin1("stored"));
    const QVariant storedEmpty(Latin1(""));
    const QString inMemory = Latin1("B_050324_1405");
    const QString marker = Latin1(BlankMarker);

    QTest::newRow("nothing given, nothing stored") << absent << QString() << inMemory;
    QTest::newRow("nothing given") << stored << QString() << Latin1("stored");
    QTest::newRow("nothing given, empty name stored") << storedEmpty << QString() << QString();
    QTest::newRow("empty rather than null given") << stored << Latin1("") << Latin1("stored");
    QTest::newRow("given, nothing stored") << absent << Latin1("given") << Latin1("given");
    QTest::newRow("given") << stored << Latin1("given") << Latin1("given");
    QTest::newRow("no name asked for, nothing stored") << absent << marker << QString();
    QTest::newRow("no name asked for") << stored << marker << QString();
    QTest::newRow("nothing given, the sentence stored") << QVariant(marker) << QString() << marker;
    QTest::newRow("the sentence in other letters") << stored << marker.toLower() << marker.toLower();
    QTest::newRow("the sentence without its end") << stored << marker.left(36) << marker.left(36);
    QTest::newRow("the sentence and a blank") << stored << marker + Latin1(" ") << marker + Latin1(" ");
    QTest::newRow("a blank") << stored << Latin1(" ") << Latin1(" ");
    QTest::newRow("nothing given, a number stored") << QVariant(42) << QString() << Latin1("42");
}

void PathSetting::restoreStoresAName()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, argument);
    QFETCH(QString, expected);
    if (stored.isValid())
        m_Store->values[PARAM_ACTIVE_BOUNDARY] = stored;
    TBoundary boundary;
    boundary.Initialise();
    boundary.Restore(argument);

    QVERIFY(m_Store->values.contains(PARAM_ACTIVE_BOUNDARY));
    QCOMPARE(m_Store->values[PARAM_ACTIVE_BOUNDARY].toString(), expected);
    QCOMPARE(boundary.GetName(), expected);
    m_Store->values.remove(PARAM_ACTIVE_BOUNDARY);
    QCOMPARE(boundary.GetName(), expected); // in memory as well
}

void PathSetting::restoreTakesTheStoredNameIntoMemory()
{
    QCOMPARE(Latin1(TPathSetting::NoName), Latin1(BlankMarker));
    m_Store->values[PARAM_ACTIVE_BOUNDARY] = Latin1("North");
    TBoundary boundary;
    boundary.Restore(QString());
    m_Store->values.clear();
    QCOMPARE(boundary.GetName(), Latin1("North"));
}

void PathSetting::restoreAsksOnceAndWritesOnce()
{
    TBoundary boundary;
    boundary.Restore(Latin1("given"));
    QCOMPARE(m_Store->calls, QStringList() << Latin1("has 8920") << Latin1("write 8920 given"));
    m_Store->calls.clear();
    boundary.Restore(QString());
    QCOMPARE(m_Store->calls, QStringList() << Latin1("has 8920") << Latin1("read 8920") << Latin1("write 8920 given"));
}

void PathSetting::folderAndFileAreCalledAfterTheItem()
{
    QFETCH(QString, name);
    TBoundary boundary;
    boundary.SetName(name);
    const QDir anywhere(Latin1("/no/such/folder")); // plays no part
    QCOMPARE(boundary.GetFolderPath(anywhere), Latin1("Boundaries/") + name);
    QCOMPARE(boundary.GetFileName(anywhere), name + Latin1(".bdy"));
    QVERIFY(m_Folder->Entries().isEmpty());
}

void PathSetting::getPathMakesTheItemsFolder()
{
    QFETCH(QString, name);
    TBoundary boundary;
    boundary.SetName(name);
    QCOMPARE(boundary.GetPath(m_Folder->Path()), m_Folder->Path(Latin1("Boundaries/%1/%1.bdy").arg(name)));
    QCOMPARE(m_Folder->Entries(), QStringList()
                                      << Latin1("Boundaries/") << Latin1("Boundaries/") + name + QLatin1Char('/'));
}

void PathSetting::getPathLeavesBuiltInItemsWithoutFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("makesFolder");

    QTest::newRow("vehicle") << TSystemSettings::DefaultVehicleProfile << false;
    QTest::newRow("steering") << TSystemSettings::DefaultSteeringProfile << false;
    QTest::newRow("implement") << TSystemSettings::DefaultImplementProfile << false;
    QTest::newRow("sprayer") << TSystemSettings::DefaultSprayerProfile << false;
    QTest::newRow("no vehicle, in small letters") << Latin1("no vehicle") << true;
    QTest::newRow("nearly built in") << Latin1("No Vehicle ") << true;
}

void PathSetting::getPathLeavesBuiltInItemsWithoutFolder()
{
    QFETCH(QString, name);
    QFETCH(bool, makesFolder);
    TBoundary boundary;
    boundary.SetName(name);
    QCOMPARE(boundary.GetPath(m_Folder->Path()), m_Folder->Path(Latin1("Boundaries/%1/%1.bdy").arg(name)));
    QCOMPARE(m_Folder->Exists(Latin1("Boundaries/") + name), makesFolder);
    QCOMPARE(m_Folder->Exists(Latin1("Boundaries")), makesFolder);
}

void PathSetting::getPathTakesAnyFormOfTheRoot_data()
{
    QTest::addColumn<QString>("ending");
    QTest::newRow("without a separator") << QString();
    QTest::newRow("with a separator") << Latin1("/");
    QTest::newRow("a folder that is not there yet") << Latin1("/flash/data");
    QTest::newRow("the same with a separator") << Latin1("/flash/data/");
}

void PathSetting::getPathTakesAnyFormOfTheRoot()
{
    QFETCH(QString, ending);
    TBoundary boundary;
    boundary.SetName(Latin1("North"));
    const QString root = m_Folder->Path() + ending;
    const QString path = boundary.GetPath(root);
    QCOMPARE(path, QDir(root).absolutePath() + Latin1("/Boundaries/North/North.bdy"));
    QVERIFY(QFileInfo(path).dir().exists());
}

void PathSetting::getPathKeepsWhatIsThere()
{
    m_Folder->MakeFile(Latin1("Boundaries/North/North.bdy"), "corners");
    TBoundary boundary;
    boundary.SetName(Latin1("North"));
    const QStringList before = m_Folder->Entries();
    QCOMPARE(boundary.GetPath(m_Folder->Path()), m_Folder->Path(Latin1("Boundaries/North/North.bdy")));
    QCOMPARE(m_Folder->Entries(), before);
    QCOMPARE(m_Folder->Content(Latin1("Boundaries/North/North.bdy")), QByteArray("corners"));
}

void PathSetting::getPathOfAnUnusableRootIsStillAPath()
{
    m_Folder->MakeFile(Latin1("file")); // in which no folder can be made
    TBoundary boundary;
    boundary.SetName(Latin1("North"));
    QCOMPARE(boundary.GetPath(m_Folder->Path(Latin1("file"))),
             m_Folder->Path(Latin1("file/Boundaries/North/North.bdy")));
    QCOMPARE(m_Folder->Entries(), QStringList(Latin1("file")));
}

void PathSetting::cffPathsLieInTheActiveField()
{
    QFETCH(QString, name);
    m_Store->values[PARAM_CLIENT] = Latin1("Smith");
    m_Store->values[PARAM_FARM] = Latin1("North");
    m_Store->values[PARAM_FIELD] = Latin1("F1");
    TBoundary boundary;
    boundary.SetName(name);
    QCOMPARE(boundary.GetCFFPath(m_Folder->Path() + QLatin1Char('/')),
             m_Folder->Path(Latin1("Clients/Smith/North/F1/Boundaries/%1/%1.bdy").arg(name)));
    QVERIFY(m_Folder->Exists(Latin1("Clients/Smith/North/F1/Boundaries")));
    QVERIFY(!m_Folder->Exists(Latin1("Clients/Smith/North/F1/Boundaries/") + name));
}

void PathSetting::cffPathsAreEmptyWithoutAField_data()
{
    QTest::addColumn<QVariant>("client");
    QTest::addColumn<QVariant>("farm");
    QTest::addColumn<QVariant>("field");

    const QVariant absent;
    const QVariant empty(Latin1(""));
    const QVariant name(Latin1("name"));
    QTest::newRow("nothing") << absent << absent << absent;
    QTest::newRow("no client") << absent << name << name;
    QTest::newRow("no farm") << name << absent << name;
    QTest::newRow("no field") << name << name << absent;
    QTest::newRow("empty client") << empty << name << name;
    QTest::newRow("empty farm") << name << empty << name;
    QTest::newRow("empty field") << name << name << empty;
}

void PathSetting::cffPathsAreEmptyWithoutAField()
{
    QFETCH(QVariant, client);
    QFETCH(QVariant, farm);
    QFETCH(QVariant, field);
    m_Store->values[PARAM_CLIENT] = client;
    m_Store->values[PARAM_FARM] = farm;
    m_Store->values[PARAM_FIELD] = field;
    TBoundary boundary;
    boundary.SetName(Latin1("North"));
    QCOMPARE(boundary.GetCFFPath(m_Folder->Path() + QLatin1Char('/')), QString());
    QVERIFY(m_Folder->Entries().isEmpty());
}

void PathSetting::cffPathsConcatenateThePrefix_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("expected");
    QTest::newRow("separator at the end") << Latin1("/") << Latin1("/Clients");
    QTest::newRow("no separator at the end") << QString() << Latin1("Clients");
    QTest::newRow("a folder that is not there yet") << Latin1("/flash/") << Latin1("/flash/Clients");
}

void PathSetting::cffPathsConcatenateThePrefix()
{
    QFETCH(QString, prefix);
    QFETCH(QString, expected);
    m_Store->values[PARAM_CLIENT] = Latin1("Smith");
    m_Store->values[PARAM_FARM] = Latin1("North");
    m_Store->values[PARAM_FIELD] = Latin1("F1");
    TBoundary boundary;
    boundary.SetName(Latin1("B"));
    const QString inside = m_Folder->Path(Latin1("in"));
    const QString category = inside + expected + Latin1("/Smith/North/F1/Boundaries");
    QCOMPARE(boundary.GetCFFPath(inside + prefix), category + Latin1("/B/B.bdy"));
    QVERIFY(QDir(category).exists());
}

void PathSetting::cffPathsFollowTheRootOfTheClients()
{
    m_Store->values[PARAM_CLIENT] = Latin1("Smith");
    m_Store->values[PARAM_FARM] = Latin1("North");
    m_Store->values[PARAM_FIELD] = Latin1("F1");
    TSystemSettings().SetCFFRoot(Latin1("taskdata"));
    TBoundary boundary;
    boundary.SetName(Latin1("B"));
    QCOMPARE(boundary.GetCFFPath(m_Folder->Path() + QLatin1Char('/')),
             m_Folder->Path(Latin1("taskdata/Clients/Smith/North/F1/Boundaries/B/B.bdy")));
}

void PathSetting::cffPathsNeedNoSettings()
{
    m_Store->values[PARAM_CLIENT] = Latin1("Smith");
    m_Store->values[PARAM_FARM] = Latin1("North");
    m_Store->values[PARAM_FIELD] = Latin1("F1");
    TBoundary boundary;
    boundary.SetName(Latin1("B"));
    Settings = nullptr;
    m_Store->calls.clear();
    QVERIFY(!boundary.GetCFFPath(m_Folder->Path() + QLatin1Char('/')).isEmpty());
    QCOMPARE(m_Store->calls, QStringList() << Latin1("has 8920") << Latin1("read 8920") << Latin1("read 8932")
                                           << Latin1("read 8933") << Latin1("read 8934"));
}

void PathSetting::aCFFPathThatCannotBeMadeIsStillAPath()
{
    m_Store->values[PARAM_CLIENT] = Latin1("Smith");
    m_Store->values[PARAM_FARM] = Latin1("North");
    m_Store->values[PARAM_FIELD] = Latin1("F1");
    m_Folder->MakeFile(Latin1("Clients")); // in which no folder can be made
    TBoundary boundary;
    boundary.SetName(Latin1("B"));
    QCOMPARE(boundary.GetCFFPath(m_Folder->Path() + QLatin1Char('/')),
             m_Folder->Path(Latin1("Clients/Smith/North/F1/Boundaries/B/B.bdy")));
    QCOMPARE(m_Folder->Entries(), QStringList(Latin1("Clients")));
}

void PathSetting::operationsCallOneAnotherVirtually()
{
    m_Store->values[PARAM_CLIENT] = Latin1("Smith");
    m_Store->values[PARAM_FARM] = Latin1("North");
    m_Store->values[PARAM_FIELD] = Latin1("F1");
    QStringList calls;
    TOverridingSetting setting(calls);

    setting.Initialise();
    QCOMPARE(calls, QStringList(Latin1("GetDefaultName")));
    QCOMPARE(setting.TPathSetting::GetName(), Latin1("own default"));

    calls.clear();
    setting.Restore(Latin1("given"));
    setting.Restore(QString());
    setting.Restore(Latin1(BlankMarker));
    QCOMPARE(calls, QStringList() << Latin1("SetName") << Latin1("SetName") << Latin1("SetName"));

    calls.clear();
    QCOMPARE(setting.BaseGetFolderPath(), Latin1("Boundaries/own name"));
    QCOMPARE(setting.BaseGetFileName(), Latin1("own name.bdy"));
    QCOMPARE(calls, QStringList() << Latin1("GetName") << Latin1("GetName"));

    calls.clear();
    QCOMPARE(setting.GetPath(m_Folder->Path()), m_Folder->Path(Latin1("own/folder/own.file")));
    QCOMPARE(calls, QStringList() << Latin1("GetName") << Latin1("GetFolderPath") << Latin1("GetFileName"));
    QVERIFY(m_Folder->Exists(Latin1("own/folder")));

    calls.clear();
    QCOMPARE(setting.GetCFFPath(m_Folder->Path() + QLatin1Char('/')),
             m_Folder->Path(Latin1("Clients/Smith/North/F1/Boundaries/own name/own name.bdy")));
    QCOMPARE(calls, QStringList(Latin1("GetName")));
}

int main(int argc, char** argv) { return RunCoreTest<PathSetting>(argc, argv); }
#include "PathSetting.moc"
