#include "ImportRoom.h"
#include "SystemCalls.h"
#include "stores/ChangeJournal.h"

#include <QCoreApplication>

#include <algorithm>

using namespace ImportRoom;

// The child runs this program with the file of the store, the file of the profile, and the call at which it is killed.
namespace {

/// Opens the store, imports and closes it, as a program does.
int Import(const QString& storeFile, const QString& profileFile, int nth)
{
    QStringList problems;
    const auto profile = TProfile::Read(profileFile, PROFILE_EDITS_REFUSED, &problems);
    SystemCalls::Kill(nth);
    const auto store = OpenStore(storeFile);
    return store && profile && ProfileImport::Apply(*profile, *store, storeFile, {}).isApplied ? 0 : 1;
}

/// The number of changes that the journal says are of an import.
int JournalledImports(const TSqliteStore& store)
{
    ChangeJournal::tagJournal journal;
    QString error;
    if (!ChangeJournal::Read(store, {}, &journal, &error) || !journal.damaged.isEmpty())
        return -1;
    return static_cast<int>(
        std::count_if(journal.entries.begin(), journal.entries.end(),
                      [](const ChangeJournal::tagEntry& entry) { return entry.author == QLatin1String("import"); }));
}

} // namespace

/// A program that imports is killed at each of its calls that change files.
class ImportSurvivesKill : public QObject
{
    Q_OBJECT

private slots:
    void theStoreIsTheOldOrTheNewOne_data();
    void theStoreIsTheOldOrTheNewOne();
};

void ImportSurvivesKill::theStoreIsTheOldOrTheNewOne_data()
{
    QTest::addColumn<bool>("isSecond");
    QTest::newRow("a first import") << false;
    QTest::newRow("a later import") << true;
}

void ImportSurvivesKill::theStoreIsTheOldOrTheNewOne()
{
    QFETCH(bool, isSecond);
    const auto folder = MakeFolder();
    const auto path = [&folder](const char* name) { return folder->filePath(Utf8(name)); };
    const QString room = path("room");
    const QString storeFile = path("room/ours.db");
    QVERIFY(QDir().mkpath(room));
    const auto theirs = NewTerminal(path("theirs.db"));
    QString reason;
    {
        const auto ours = NewTerminal(storeFile);
        if (isSecond)
            QVERIFY(ProfileImport::Apply(Exported(*theirs), *ours, storeFile, {}).isApplied);
    }
    const QByteArray before = FileBytes(storeFile);
    const QMap<int, QVariant> old = StoredValues(storeFile);
    Set(*theirs, Utf8("units.area=acre units.pressure=bar region.language=de active.job=J_1 active.client=Smith "
                      "colors.day.map=#010203 display.day=false"));
    QVERIFY(Exported(*theirs).Write(path("theirs.profile"), &reason));

    int killed = 0;
    int applied = 0;
    QStringList usual;
    bool isOver = false;
    for (int nth = SystemCalls::FirstToKill(); !isOver; nth = SystemCalls::NextToKill(nth)) {
        QVERIFY(QDir(room).removeRecursively() && QDir().mkpath(room));
        SetFileBytes(storeFile, before);
        TChild child({storeFile, path("theirs.profile"), QString::number(nth)});
        isOver = !child.WasKilled();
        killed += isOver ? 0 : 1;

        const auto store = OpenStore(storeFile);
        QVERIFY(store);
        const bool isOld = store->Values() == old;
        const bool isNew = Values(*store, Utf8("units.area units.pressure region.language active.job active.client "
                                               "colors.day.map display.day")) ==
                           Utf8("units.area=acre units.pressure=bar region.language=de active.job=J_1 "
                                "active.client=Smith colors.day.map=#010203 display.day=false");
        QVERIFY2(isOld || isNew, qPrintable(QString::number(nth)));
        QVERIFY(isNew || !isOver);
        QCOMPARE(JournalledImports(*store), isNew ? 7 : 0);
        applied += isNew ? 1 : 0;

        // The next import meets no conflict, and leaves nothing of the killed one behind.
        const ProfileImport::tagResult result = ProfileImport::Apply(Exported(*theirs), *store, storeFile, {});
        QVERIFY2(result.isApplied, qPrintable(result.error + Text(result.conflicts)));
        QCOMPARE(static_cast<int>(result.changes.size()), isNew ? 0 : 7);
        const QStringList names = NamesBeside(storeFile).filter(QRegularExpression(Utf8("\\.(new|import)")));
        QCOMPARE(names, QStringList());
    }
    QVERIFY2(killed >= 20, qPrintable(QString::number(killed)));
    QVERIFY(applied >= 2 && applied < killed);
    qInfo("killed at %d calls, %d of them after the import was on the disk", killed, applied - 1);
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 4 && arguments.at(1).endsWith(QLatin1String(".db")))
        return Import(arguments.at(1), arguments.at(2), arguments.at(3).toInt());
    ImportSurvivesKill test;
    return QTest::qExec(&test, argc, argv);
}
#include "ImportSurvivesKill.moc"
