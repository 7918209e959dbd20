#include "CoreTest.h"
#include "Latin1.h"
#include "TJournal.h"
#include "TTemporaryFolder.h"

#include "system/TImplementPathSetting.h"
#include "system/TSystemSettings.h"

#include <QScopedPointer>
#include <QtTest>

namespace {

/// An implement of the display.
class TImplement : public TImplementPathSetting
{
public:
    TImplement() : TImplementPathSetting(PARAM_ACTIVE_IMPLEMENT, Latin1("Implements"), Latin1(".ini"), Latin1("I_")) {}
};

} // namespace

class ImplementPathSetting : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void foldersAreCalledAfterTheItem();
    void theFolderChoiceOrTheFileDecides_data();
    void theFolderChoiceOrTheFileDecides();
    void onlyTheFileOfThatNameCounts_data();
    void onlyTheFileOfThatNameCounts();
    void theActiveImplementIsTheDefault_data() { AddChoices(); }
    void theActiveImplementIsTheDefault();
    void getPathFollowsTheChoice_data() { AddChoices(); }
    void getPathFollowsTheChoice();
    void pathsForANameMakeNothing_data() { AddChoices(); }
    void pathsForANameMakeNothing();
    void theBuiltInImplementGetsNoFolder_data() { AddChoices(); }
    void theBuiltInImplementGetsNoFolder();
    void cffPathsKnowNoVehicles_data() { AddChoices(); }
    void cffPathsKnowNoVehicles();

private:
    static void AddChoices();

    QScopedPointer<TTemporaryFolder> m_Folder;
    QScopedPointer<TJournal> m_Store;
};

void ImplementPathSetting::init()
{
    m_Folder.reset(new TTemporaryFolder);
    m_Store.reset(new TJournal);
}

void ImplementPathSetting::cleanup()
{
    m_Store.reset();
    m_Folder.reset();
}

/// The two places where the implement Plough can live, relative to the root.
void ImplementPathSetting::AddChoices()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("file");
    QTest::newRow("its own folder") << 0 << Latin1("Implements/") << Latin1("Plough.ini");
    QTest::newRow("the vehicle's folder") << 4 << Latin1("Vehicles/") << Latin1("Implement.ini");
}

void ImplementPathSetting::foldersAreCalledAfterTheItem()
{
    const TImplement implement;
    QCOMPARE(implement.GetVehicleFolder(Latin1("Sprayer24")), Latin1("Vehicles/Sprayer24"));
    QCOMPARE(implement.GetImplementFolder(Latin1("Sprayer24")), Latin1("Implements/Sprayer24"));
    const TImplementPathSetting other(PARAM_ACTIVE_IMPLEMENT, Latin1("Tools"), Latin1(".xml"), QString());
    QCOMPARE(other.GetVehicleFolder(QString()), Latin1("Vehicles/"));
    QCOMPARE(other.GetImplementFolder(Latin1("T")), Latin1("Tools/T"));
    QVERIFY(m_Store->calls.isEmpty());
}

void ImplementPathSetting::theFolderChoiceOrTheFileDecides_data()
{
    QTest::addColumn<QVariant>("choice");
    QTest::addColumn<bool>("isFileThere");
    QTest::addColumn<bool>("expected");

    QTest::newRow("no choice") << QVariant() << false << false;
    for (int choice = -1; choice <= 5; ++choice) {
        const QByteArray name = QByteArray::number(choice);
        QTest::newRow(("choice " + name).constData()) << QVariant(choice) << false << (choice == 4);
        QTest::newRow(("file, choice " + name).constData()) << QVariant(choice) << true << true;
    }
    QTest::newRow("choice 4 as text") << QVariant(Latin1("4")) << false << true;
    QTest::newRow("text") << QVariant(Latin1("four")) << false << false;
    QTest::newRow("file, no choice") << QVariant() << true << true;
}

void ImplementPathSetting::theFolderChoiceOrTheFileDecides()
{
    QFETCH(QVariant, choice);
    QFETCH(bool, isFileThere);
    QFETCH(bool, expected);
    m_Store->values[PARAM_IMPLEMENT_FOLDER_CHOICE] = choice;
    if (isFileThere)
        m_Folder->MakeFile(Latin1("Vehicles/Sprayer24/Implement.ini"));

    const QDir root(m_Folder->Path());
    const QString name = Latin1("Sprayer24");
    const TImplement implement;
    QCOMPARE(implement.UsesVehicleFolder(root, name), expected);
    QCOMPARE(implement.GetFolderPath(root, name), Latin1(expected ? "Vehicles/Sprayer24" : "Implements/Sprayer24"));
    QCOMPARE(implement.GetFileNameForName(root, name), Latin1(expected ? "Implement.ini" : "Sprayer24.ini"));
    QCOMPARE(
        implement.GetFilePathForName(root, name),
        m_Folder->Path(Latin1(expected ? "Vehicles/Sprayer24/Implement.ini" : "Implements/Sprayer24/Sprayer24.ini")));
}

void ImplementPathSetting::onlyTheFileOfThatNameCounts_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("another vehicle's") << Latin1("Vehicles/Sprayer36/Implement.ini");
    QTest::newRow("the vehicle's own file") << Latin1("Vehicles/Sprayer24/Sprayer24.ini");
    QTest::newRow("in other letters") << Latin1("Vehicles/Sprayer24/implement.ini");
    QTest::newRow("one folder up") << Latin1("Vehicles/Implement.ini");
    QTest::newRow("among the implements") << Latin1("Implements/Sprayer24/Implement.ini");
}

void ImplementPathSetting::onlyTheFileOfThatNameCounts()
{
    QFETCH(QString, file);
    m_Folder->MakeFile(file);
    QVERIFY(!TImplement().UsesVehicleFolder(QDir(m_Folder->Path()), Latin1("Sprayer24")));
}

void ImplementPathSetting::theActiveImplementIsTheDefault()
{
    QFETCH(int, choice);
    QFETCH(QString, folder);
    QFETCH(QString, file);
    m_Store->values[PARAM_IMPLEMENT_FOLDER_CHOICE] = choice;
    TImplement implement;
    implement.SetName(Latin1("Plough"));
    const QDir root(m_Folder->Path());
    QCOMPARE(static_cast<const TPathSetting&>(implement).GetFolderPath(root), folder + Latin1("Plough"));
    QCOMPARE(static_cast<const TPathSetting&>(implement).GetFileName(root), file);
}

void ImplementPathSetting::getPathFollowsTheChoice()
{
    QFETCH(int, choice);
    QFETCH(QString, folder);
    QFETCH(QString, file);
    m_Store->values[PARAM_IMPLEMENT_FOLDER_CHOICE] = choice;
    TImplement implement;
    implement.SetName(Latin1("Plough"));
    QCOMPARE(implement.GetPath(m_Folder->Path()), m_Folder->Path(folder + Latin1("Plough/") + file));
    QCOMPARE(m_Folder->Entries(), QStringList() << folder << folder + Latin1("Plough/"));
}

void ImplementPathSetting::pathsForANameMakeNothing()
{
    QFETCH(int, choice);
    QFETCH(QString, folder);
    QFETCH(QString, file);
    m_Store->values[PARAM_IMPLEMENT_FOLDER_CHOICE] = choice;
    TImplement implement;
    implement.SetName(Latin1("Seeder"));
    const QString expected = m_Folder->Path(folder + Latin1("Plough/") + file);
    QCOMPARE(implement.GetFilePathForName(QDir(m_Folder->Path()), Latin1("Plough")), expected);
    QCOMPARE(implement.GetFilePathForName(QDir(m_Folder->Path() + QLatin1Char('/')), Latin1("Plough")), expected);
    QVERIFY(m_Folder->Entries().isEmpty());
    QCOMPARE(implement.GetName(), Latin1("Seeder"));
}

void ImplementPathSetting::theBuiltInImplementGetsNoFolder()
{
    QFETCH(int, choice);
    QFETCH(QString, folder);
    m_Store->values[PARAM_IMPLEMENT_FOLDER_CHOICE] = choice;
    TImplement implement;
    implement.SetName(TSystemSettings::DefaultImplementProfile);
    QVERIFY(implement.GetPath(m_Folder->Path()).startsWith(m_Folder->Path(folder + Latin1("No Implement/"))));
    QVERIFY(m_Folder->Entries().isEmpty());
}

void ImplementPathSetting::cffPathsKnowNoVehicles()
{
    QFETCH(int, choice);
    m_Store->values[PARAM_IMPLEMENT_FOLDER_CHOICE] = choice;
    m_Store->values[PARAM_CLIENT] = Latin1("Smith");
    m_Store->values[PARAM_FARM] = Latin1("North");
    m_Store->values[PARAM_FIELD] = Latin1("F1");
    TImplement implement;
    implement.SetName(Latin1("Plough"));
    QCOMPARE(implement.GetCFFPath(m_Folder->Path() + QLatin1Char('/')),
             m_Folder->Path(Latin1("Clients/Smith/North/F1/Implements/Plough/Plough.ini")));
}

int main(int argc, char** argv) { return RunCoreTest<ImplementPathSetting>(argc, argv); }
#include "ImplementPathSetting.moc"
