#include "CoreTest.h"
#include "TBracketTranslator.h"
#include "TCaughtMessages.h"
#include "TDisplay.h"

#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

#include <QtTest>

namespace {

using System = TSystemSettings;

struct tagItem
{
    const char* name;
    int parameter;
    QString (System::*get)() const;
    const char* initialName;  ///< after Initialise(), with nothing stored; null: none is given
    const char* restoredName; ///< after Restore(); null: the name before
};

/// In the order in which Restore() goes through them.
const tagItem Items[] = {
    {"job", 8919, &System::GetActiveJob, "J_050324_1405", ""},
    {"boundary", 8920, &System::GetActiveBoundary, "B_050324_1405", ""},
    {"AB line", 8921, &System::GetActiveABLine, "L_050324_1405", ""},
    {"pivot", 8922, &System::GetActivePivot, "P_050324_1405", ""},
    {"curve", 8923, &System::GetActiveCurve, "C_050324_1405", ""},
    {"optimal lines", 8924, &System::GetActiveOptimalLinesShapeFile, "O_050324_1405", ""},
    {"project lines", 8925, &System::GetActiveProjectLinesShapeFile, "P_050324_1405", ""},
    {"steering", 8927, &System::GetActiveSteering, "050324_1405", "No Profile"},
    {"implement", 8928, &System::GetActiveImplement, "Pivoted_050324_1405", "No Implement"},
    {"vehicle", 8929, &System::GetActiveVehicle, "050324_1405", "No Vehicle"},
    {"zones", 8926, &System::GetActiveShapeFile, nullptr, nullptr},
    {"sprayer", 8930, &System::GetActiveSprayer, nullptr, "No Profile"},
};

const int BoomLeveller = 8931;

} // namespace

Q_DECLARE_METATYPE(const tagItem*)

class StartUpSelections : public QObject
{
    Q_OBJECT

private slots:
    void initialisingGivesNamesInMemory_data() { AddItems(); }
    void initialisingGivesNamesInMemory();
    void storedNamesWinOverInitialOnes_data() { AddItems(); }
    void storedNamesWinOverInitialOnes();
    void initialisingWritesNothing();
    void initialNamesAreTranslated();

    void restoringStoresTheSelectionsOfAStart_data();
    void restoringStoresTheSelectionsOfAStart();
    void restoringLeavesTheBoomLevellerAlone();
    void restoringTwiceChangesNothing();

    void restoringMakesTheFoldersThatHoldTheDrives_data();
    void restoringMakesTheFoldersThatHoldTheDrives();
    void withoutDrivesNoFolderIsMadeAndNothingSaid();

private:
    static void AddItems();
};

void StartUpSelections::AddItems()
{
    QTest::addColumn<const tagItem*>("item");
    for (const tagItem& item : Items)
        QTest::newRow(item.name) << &item;
}

void StartUpSelections::initialisingGivesNamesInMemory()
{
    QFETCH(const tagItem*, item);
    TDisplay display;
    System system;
    QCOMPARE((system.*item->get)(), QString());
    system.Initialise();
    QCOMPARE((system.*item->get)(), QString::fromLatin1(item->initialName));

    // The moment counts, not the present time.
    TTestClock::time = QTime(23, 59);
    QCOMPARE((system.*item->get)(), QString::fromLatin1(item->initialName));
}

void StartUpSelections::storedNamesWinOverInitialOnes()
{
    QFETCH(const tagItem*, item);
    TDisplay display;
    display.store.values[item->parameter] = QLatin1String("stored");
    System system;
    system.Initialise();
    QCOMPARE((system.*item->get)(), QString::fromLatin1("stored"));
}

void StartUpSelections::initialisingWritesNothing()
{
    TDisplay display;
    display.settings.Initialise();
    QVERIFY(display.store.writes.isEmpty());
    QVERIFY(display.DriveContent().isEmpty());
    QCOMPARE(TSystemSettingsProxy().GetActiveJob(), QString::fromLatin1("J_050324_1405"));
}

void StartUpSelections::initialNamesAreTranslated()
{
    const TBracketTranslator translator("TSystemSettings");
    TDisplay display;
    System system;
    system.Initialise();
    for (const tagItem& item : Items) {
        const QString name = QString::fromLatin1(item.initialName);
        const QString stamp = QLatin1String("050324_1405");
        const QString prefix = name.left(name.size() - stamp.size());
        const QString translated = prefix.isEmpty() ? name : QLatin1Char('[') + prefix + QLatin1Char(']') + stamp;
        QCOMPARE((system.*item.get)(), translated);
    }

    // Names of jobs are read by other displays too.
    QCOMPARE(system.GetDefaultJobName(), QString::fromLatin1("J_[Pivoted_]050324_1405_050324_1405"));
}

void StartUpSelections::restoringStoresTheSelectionsOfAStart_data()
{
    QTest::addColumn<bool>("initialised");
    QTest::addColumn<bool>("stored");
    QTest::addColumn<QString>("zones");

    QTest::newRow("empty store") << false << false << QString();
    QTest::newRow("empty store, initialised") << true << false << QString();
    QTest::newRow("filled store") << false << true << QString::fromLatin1("stored 8926");
    QTest::newRow("filled store, initialised") << true << true << QString::fromLatin1("stored 8926");
}

void StartUpSelections::restoringStoresTheSelectionsOfAStart()
{
    QFETCH(bool, initialised);
    QFETCH(bool, stored);
    QFETCH(QString, zones);
    TDisplay display;
    if (stored) {
        for (const tagItem& item : Items)
            display.store.values[item.parameter] = QString::fromLatin1("stored %1").arg(item.parameter);
    }
    System system;
    if (initialised)
        system.Initialise();
    system.Restore();

    QStringList written;
    for (const auto& write : display.store.writes)
        written.append(QString::number(write.first) + QLatin1Char('=') + write.second.toString());
    QStringList expected;
    for (const tagItem& item : Items) {
        const QString name = item.restoredName ? QString::fromLatin1(item.restoredName) : zones;
        expected.append(QString::number(item.parameter) + QLatin1Char('=') + name);
        QCOMPARE((system.*item.get)(), name);
    }
    QCOMPARE(written, expected);
    QVERIFY(display.store.allWritesPersist);
}

void StartUpSelections::restoringLeavesTheBoomLevellerAlone()
{
    TDisplay display;
    display.store.values[BoomLeveller] = QLatin1String("stored");
    System system;
    system.Initialise();
    system.Restore();
    QCOMPARE(display.store.values[BoomLeveller], QVariant(QLatin1String("stored")));
    QVERIFY(!display.store.reads.contains(BoomLeveller));
}

void StartUpSelections::restoringTwiceChangesNothing()
{
    TDisplay display;
    display.store.values[8926] = QLatin1String("Wet");
    TSystemSettingsProxy().Restore();
    const QMap<int, QVariant> values = display.store.values;
    TSystemSettingsProxy().Restore();
    QCOMPARE(display.store.values, values);
    QCOMPARE(TSystemSettingsProxy().GetActiveShapeFile(), QString::fromLatin1("Wet"));
}

void StartUpSelections::restoringMakesTheFoldersThatHoldTheDrives_data()
{
    QTest::addColumn<QString>("internal");
    QTest::addColumn<QString>("external");
    QTest::addColumn<QString>("made");

    const struct
    {
        const char* name;
        const char* internal;
        const char* external;
        const char* made;
    } rows[] = {
        {"there already", "data/", "data", "data/"},
        {"internal, with the '/'", "a/b/", "data", "a/ a/b/ data/"},
        {"internal, without", "a/b", "data", "a/ data/"},
        {"internal, deep", "a/b/c/d/", "data", "a/ a/b/ a/b/c/ a/b/c/d/ data/"},
        {"external, with the '/'", "data/", "media/usb/", "data/ media/ media/usb/"},
        {"external, without", "data/", "media/usb", "data/ media/"},
        {"external, deep", "data/", "mnt/media/usb", "data/ mnt/ mnt/media/"},
        {"both", "a/b/", "media/usb", "a/ a/b/ data/ media/"},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << QString::fromLatin1(row.internal) << QString::fromLatin1(row.external)
                                << QString::fromLatin1(row.made);
    }
}

void StartUpSelections::restoringMakesTheFoldersThatHoldTheDrives()
{
    QFETCH(QString, internal);
    QFETCH(QString, external);
    QFETCH(QString, made);
    TDisplay display;
    display.store.values[8910] = display.folder.Path(internal);
    display.store.values[8911] = display.folder.Path(external);
    System().Restore();
    QCOMPARE(display.folder.Entries().join(QLatin1String(" ")), made);
}

void StartUpSelections::withoutDrivesNoFolderIsMadeAndNothingSaid()
{
    TDisplay display;
    display.store.values.remove(8910);
    display.store.values.remove(8911);
    const TCaughtMessages messages;
    System().Restore();
    QCOMPARE(messages.Texts(), QStringList());
    QCOMPARE(display.folder.Entries(), QStringList(QLatin1String("data/")));
}

int main(int argc, char** argv) { return RunCoreTest<StartUpSelections>(argc, argv); }

#include "StartUpSelections.moc"
