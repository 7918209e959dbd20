#include "TTemporaryFolder.h"

#include "stores/TMemoryStore.h"
#include "system/TSystemSettings.h"
#include "terminal/ActiveItems.h"
#include "terminal/TTerminal.h"

#include <QtTest>

/// The names that an operator can choose from.
class AvailableItems : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theFoldersOfAKindAreItsItems_data();
    void theFoldersOfAKindAreItsItems();
    void withoutAFieldItsItemsAreNone_data();
    void withoutAFieldItsItemsAreNone();
    void theBuiltInMachineComesFirst_data();
    void theBuiltInMachineComesFirst();
    void implementsMayBeInTheFoldersOfVehicles();

private:
    static QStringList Available(const char* kind)
    {
        return ActiveItems::Available(*ActiveItems::Find(QLatin1String(kind)));
    }

    void Select(const char* kind, const char* name)
    {
        QVERIFY(ActiveItems::Select(m_Store, *ActiveItems::Find(QLatin1String(kind)), QString::fromUtf8(name)));
    }

    std::unique_ptr<TTemporaryFolder> m_Folder;
    TMemoryStore m_Store;
    std::unique_ptr<TTerminal> m_Terminal;
};

void AvailableItems::init()
{
    m_Folder = std::make_unique<TTemporaryFolder>();
    m_Terminal = std::make_unique<TTerminal>(m_Store);
    QString error;
    QVERIFY2(m_Terminal->Start(m_Folder->Path(), &error), qPrintable(error));
    Select("client", "Smith");
    Select("farm", "North");
    Select("field", "F1");
}

void AvailableItems::cleanup()
{
    m_Terminal.reset();
    m_Folder.reset();
}

void AvailableItems::theFoldersOfAKindAreItsItems_data()
{
    QTest::addColumn<QString>("folder"); ///< relative to the internal drive
    QTest::newRow("client") << QString::fromLatin1("Clients");
    QTest::newRow("farm") << QString::fromLatin1("Clients/Smith");
    QTest::newRow("field") << QString::fromLatin1("Clients/Smith/North");
    QTest::newRow("job") << QString::fromLatin1("Clients/Smith/North/F1/Jobs");
    QTest::newRow("boundary") << QString::fromLatin1("Clients/Smith/North/F1/Boundaries");
    QTest::newRow("ab-line") << QString::fromLatin1("Clients/Smith/North/F1/ABLines");
    QTest::newRow("pivot") << QString::fromLatin1("Clients/Smith/North/F1/Pivots");
    QTest::newRow("curve") << QString::fromLatin1("Clients/Smith/North/F1/Curves");
    QTest::newRow("zones") << QString::fromLatin1("Clients/Smith/North/F1/Zones");
    QTest::newRow("boom-leveller") << QString::fromLatin1("BoomLeveller");
}

void AvailableItems::theFoldersOfAKindAreItsItems()
{
    QFETCH(QString, folder);
    const QString inner = QLatin1String("internal/") + folder;
    m_Folder->MakeFolder(inner + QString::fromUtf8("/Übung"));
    m_Folder->MakeFolder(inner + QLatin1String("/A 1"));
    m_Folder->MakeFolder(inner + QLatin1String("/.cabsettings-unfinished"));
    m_Folder->MakeFile(inner + QLatin1String("/a file"));
    QStringList names = Available(QTest::currentDataTag());
    for (const char* const own : {"Smith", "North", "F1"}) // made with the folders that hold the others
        names.removeAll(QLatin1String(own));
    names = names.filter(QRegularExpression(QLatin1String("^(?!ABLines|Boundaries|Curves|Jobs|Pivots|Zones)")));
    QCOMPARE(names, (QStringList{QLatin1String("A 1"), QString::fromUtf8("Übung")}));
}

void AvailableItems::withoutAFieldItsItemsAreNone_data()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char* const kind : {"job", "boundary", "ab-line", "pivot", "curve", "zones"})
        QTest::newRow(kind) << QByteArray(kind);
}

void AvailableItems::withoutAFieldItsItemsAreNone()
{
    QFETCH(QByteArray, kind);
    m_Folder->MakeFolder(QLatin1String("internal/Jobs/J_1"));
    Select("field", "");
    QCOMPARE(Available(kind.constData()), QStringList());
}

void AvailableItems::theBuiltInMachineComesFirst_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("builtIn");
    QTest::newRow("vehicle") << QString::fromLatin1("Vehicles") << TSystemSettings::DefaultVehicleProfile;
    QTest::newRow("implement") << QString::fromLatin1("Implements") << TSystemSettings::DefaultImplementProfile;
    QTest::newRow("sprayer") << QString::fromLatin1("Sprayer") << TSystemSettings::DefaultSprayerProfile;
    QTest::newRow("steering-profile") << QString::fromLatin1("Steering") << TSystemSettings::DefaultSteeringProfile;
}

void AvailableItems::theBuiltInMachineComesFirst()
{
    QFETCH(QString, folder);
    QFETCH(QString, builtIn);
    QCOMPARE(Available(QTest::currentDataTag()), QStringList(builtIn));
    m_Folder->MakeFolder(QString::fromLatin1("internal/%1/A").arg(folder));
    m_Folder->MakeFolder(QString::fromLatin1("internal/%1/%2").arg(folder, builtIn));
    QCOMPARE(Available(QTest::currentDataTag()), (QStringList{builtIn, QLatin1String("A")}));
}

void AvailableItems::implementsMayBeInTheFoldersOfVehicles()
{
    m_Folder->MakeFolder(QLatin1String("internal/Vehicles/Tractor"));
    m_Folder->MakeFolder(QLatin1String("internal/Implements/Sprayer 24"));
    QVERIFY(Available("implement").contains(QLatin1String("Sprayer 24")));
    m_Store.SetParameter(PARAM_IMPLEMENT_FOLDER_CHOICE, 4, true);
    QVERIFY(Available("implement").contains(QLatin1String("Tractor")));
    QVERIFY(!Available("implement").contains(QLatin1String("Sprayer 24")));
}

QTEST_GUILESS_MAIN(AvailableItems)
#include "AvailableItems.moc"
