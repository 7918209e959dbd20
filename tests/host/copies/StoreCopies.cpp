#include "copies/StoreCopies.h"
#include "StoreTestSupport.h"
#include "stores/ChangeJournal.h"
#include "stores/TParameterWatch.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

namespace {

const int Day = 24 * 60 * 60; // seconds

// In whole days from now, so that the day does not change during a test that begins just before midnight.
int OffsetTo(const QDate& day)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    return static_cast<int>(now.date().daysTo(day)) * Day + Day / 2 - now.time().msecsSinceStartOfDay() / 1000;
}

QStringList DaysOf(const QString& path)
{
    QStringList days;
    for (const StoreCopies::tagCopy& copy : StoreCopies::List(path))
        days += copy.day.toString(Qt::ISODate);
    return days;
}

QStringList Texts(std::initializer_list<const char*> lines)
{
    QStringList texts;
    for (const char* line : lines)
        texts += QString::fromLatin1(line);
    return texts;
}

} // namespace

class StoreCopiesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void eachDayHasItsCopy();
    void theCopyHasTheLastValuesOfTheDay();
    void aCopyThatIsTheSameIsNotMadeAgain();
    void theLastDaysAndWeeksAreKept();
    void aRunningStoreMakesACopyWhenTheDayChanges();
    void aCopyIsMadeOnDemand();
    void remainsOfKilledCopiesAreRemoved();

    void restoringGivesTheValuesBack();
    void whatBelongsToTheDeviceStays();
    void watchesHearOfARestore();
    void comparingChangesNothing();
    void aDamagedCopyIsRefused_data();
    void aDamagedCopyIsRefused();

private:
    void SetDay(const QDate& day, int value = 0);
    QString File(const char* day) const
    {
        return m_Path + QLatin1String(".copies/") + QLatin1String(day) + QLatin1String(".db");
    }

    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
};

void StoreCopiesTest::init()
{
    m_Folder = MakeFolder();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
}

// Runs the store on a day.
void StoreCopiesTest::SetDay(const QDate& day, int value)
{
    {
        const auto store = OpenStore(m_Path);
        QVERIFY(store->SetParameter(PARAM_CLOCK_OFFSET, OffsetTo(day), true));
    }
    QVERIFY(OpenStore(m_Path)->SetParameter(PARAM_AREA_UNIT, value, true));
}

void StoreCopiesTest::eachDayHasItsCopy()
{
    SetDay(QDate(2030, 1, 1));
    QDir(m_Path + QLatin1String(".copies")).removeRecursively(); // that of the day on which the clock was set
    SetDay(QDate(2030, 1, 1));
    SetDay(QDate(2030, 1, 3));
    QCOMPARE(DaysOf(m_Path), Texts({"2030-01-03", "2030-01-01"}));
    const auto copy = StoreCopies::List(m_Path).first();
    QCOMPARE(copy.path, File("2030-01-03"));
    QCOMPARE(copy.size, QFileInfo(copy.path).size());
    QCOMPARE(NamesBeside(copy.path), Texts({"2030-01-01.db", "2030-01-03.db"}));
}

void StoreCopiesTest::theCopyHasTheLastValuesOfTheDay()
{
    for (int value = 1; value <= 3; ++value)
        SetDay(QDate(2030, 1, 1), value);
    QCOMPARE(StoredValues(File("2030-01-01")).value(PARAM_AREA_UNIT), QVariant(3));
}

void StoreCopiesTest::aCopyThatIsTheSameIsNotMadeAgain()
{
    SetDay(QDate(2030, 1, 1), 1);
    // A mark that a new copy would not have.
    QVERIFY(QFile::setPermissions(File("2030-01-01"), QFile::ReadOwner));
    OpenStore(m_Path);
    QCOMPARE(QFile::permissions(File("2030-01-01")) & QFile::WriteOwner, QFile::Permissions());
    SetDay(QDate(2030, 1, 1), 2);
    QVERIFY(QFile::permissions(File("2030-01-01")) & QFile::WriteOwner);
}

void StoreCopiesTest::theLastDaysAndWeeksAreKept()
{
    // 2030-01-01 is a Tuesday. The store runs each day but some, for seven weeks.
    for (QDate day(2030, 1, 1); day <= QDate(2030, 2, 19); day = day.addDays(1))
        if (day.dayOfWeek() != 3 && !(day >= QDate(2030, 1, 21) && day <= QDate(2030, 1, 27)))
            SetDay(day);
    QCOMPARE(DaysOf(m_Path), Texts({"2030-02-19", "2030-02-18", "2030-02-17", "2030-02-16", "2030-02-15", "2030-02-14",
                                    "2030-02-12", // the seventh day
                                    "2030-02-10", "2030-02-03"}));
}

void StoreCopiesTest::aRunningStoreMakesACopyWhenTheDayChanges()
{
    SetDay(QDate(2030, 1, 1), 1);
    const auto store = OpenStore(m_Path);
    QVERIFY(store->SetParameter(PARAM_AREA_UNIT, 2, true));
    QVERIFY(store->SetParameter(PARAM_CLOCK_OFFSET, OffsetTo(QDate(2030, 1, 2)), true));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(File("2030-01-02")), SoonMilliseconds);
    QCOMPARE(StoredValues(File("2030-01-01")).value(PARAM_AREA_UNIT), QVariant(2)); // how the day ended
    QCOMPARE(StoredValues(File("2030-01-02")).value(PARAM_AREA_UNIT), QVariant(2));
}

void StoreCopiesTest::aCopyIsMadeOnDemand()
{
    SetDay(QDate(2030, 1, 1), 1);
    const auto store = OpenStore(m_Path);
    QVERIFY(store->SetParameter(PARAM_AREA_UNIT, 2, true));
    StoreCopies::tagCopy made;
    QString error;
    QVERIFY2(StoreCopies::Make(*store, &made, &error), qPrintable(error));
    QCOMPARE(made.day, QDate(2030, 1, 1));
    QCOMPARE(made.name, QLatin1String("2030-01-01-1"));
    QCOMPARE(made.path, File("2030-01-01-1"));
    QVERIFY(QFile::copy(made.path, m_Folder->filePath(QLatin1String("first.db"))));
    // The last seven are kept, beside the copy of the day.
    QVERIFY(store->SetParameter(PARAM_AREA_UNIT, 3, true));
    for (int number = 2; number <= 8; ++number) {
        QVERIFY2(StoreCopies::Make(*store, &made, &error), qPrintable(error));
        QCOMPARE(made.name, QString(QString::fromLatin1("2030-01-01-%1").arg(number)));
        QCOMPARE(QFile::exists(File("2030-01-01-1")), number < 8);
        QVERIFY(QFile::exists(File("2030-01-01")));
    }
    made.path = m_Folder->filePath(QLatin1String("first.db"));
    QCOMPARE(StoredValues(made.path).value(PARAM_AREA_UNIT), QVariant(2));
    ChangeJournal::tagJournal journal;
    QVERIFY(ChangeJournal::Read(*OpenStore(made.path), {PARAM_AREA_UNIT, 1}, &journal, &error));
    QCOMPARE(journal.entries.first().newValue, QVariant(2));
}

void StoreCopiesTest::remainsOfKilledCopiesAreRemoved()
{
    SetDay(QDate(2030, 1, 1), 1);
    for (const char* name : {"2029-12-31.db.new", "2030-01-01.db.new-journal", "lock"})
        SetFileBytes(m_Path + QLatin1String(".copies/") + QLatin1String(name), "remains");
    SetDay(QDate(2030, 1, 2), 1);
    const QStringList names = NamesBeside(File("2030-01-02"));
    QCOMPARE(names.filter(QLatin1String("new")) + names.filter(QLatin1String("lock")), QStringList());
}

void StoreCopiesTest::restoringGivesTheValuesBack()
{
    SetDay(QDate(2030, 1, 1), 1);
    SetDay(QDate(2030, 1, 2), 2);
    const auto store = OpenStore(m_Path);
    QVERIFY(store->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    QList<StoreCopies::tagDifference> changed;
    QString error;
    QVERIFY2(StoreCopies::Restore(*store, StoreCopies::List(m_Path).at(1), &changed, &error), qPrintable(error));
    QCOMPARE(static_cast<int>(changed.size()), 2);
    QCOMPARE(changed.first().parameter, static_cast<int>(PARAM_CLIENT));
    QCOMPARE(changed.first().now, QVariant(QLatin1String("Smith")));
    QCOMPARE(changed.first().then, QVariant());
    QCOMPARE(changed.last().parameter, static_cast<int>(PARAM_AREA_UNIT));
    QCOMPARE(changed.last().now, QVariant(2));
    QCOMPARE(changed.last().then, QVariant(1));
    QCOMPARE(store->GetParameter(PARAM_AREA_UNIT), QVariant(1));
    QVERIFY(!store->HasParameter(PARAM_CLIENT));
    ChangeJournal::tagJournal journal;
    QVERIFY(ChangeJournal::Read(*store, {PARAM_AREA_UNIT, 1}, &journal, &error));
    QCOMPARE(journal.entries.first().author, QLatin1String("restore"));
    QCOMPARE(OpenStore(m_Path)->Values(), store->Values());
}

void StoreCopiesTest::whatBelongsToTheDeviceStays()
{
    SetDay(QDate(2030, 1, 1), 1);
    SetDay(QDate(2030, 1, 2), 2);
    const auto store = OpenStore(m_Path);
    const QVariant offset = store->GetParameter(PARAM_CLOCK_OFFSET);
    QVERIFY(store->SetParameter(PARAM_INTERNAL_DRIVE, QLatin1String("/mnt/new/"), true));
    QList<StoreCopies::tagDifference> changed;
    QString error;
    QVERIFY2(StoreCopies::Restore(*store, StoreCopies::List(m_Path).at(1), &changed, &error), qPrintable(error));
    QCOMPARE(static_cast<int>(changed.size()), 1);
    QCOMPARE(store->GetParameter(PARAM_CLOCK_OFFSET), offset);
    QCOMPARE(store->GetParameter(PARAM_INTERNAL_DRIVE), QVariant(QLatin1String("/mnt/new/")));
}

void StoreCopiesTest::watchesHearOfARestore()
{
    SetDay(QDate(2030, 1, 1), 1);
    SetDay(QDate(2030, 1, 2), 2);
    const auto store = OpenStore(m_Path);
    TParameterWatch watch(*store);
    QVector<tagParameterChange> told;
    connect(&watch, &TParameterWatch::Changed, [&](const tagParameterChange& change) { told.append(change); });
    QList<StoreCopies::tagDifference> changed;
    QString error;
    QVERIFY2(StoreCopies::Restore(*store, StoreCopies::List(m_Path).at(1), &changed, &error), qPrintable(error));
    QCoreApplication::processEvents();
    QCOMPARE(static_cast<int>(told.size()), 1);
    QCOMPARE(told.first().oldValue, QVariant(2));
    QCOMPARE(told.first().newValue, QVariant(1));
}

void StoreCopiesTest::comparingChangesNothing()
{
    SetDay(QDate(2030, 1, 1), 1);
    SetDay(QDate(2030, 1, 2), 2);
    const auto store = OpenStore(m_Path);
    const QMap<int, QVariant> before = store->Values();
    QList<StoreCopies::tagDifference> differences;
    QString error;
    QVERIFY2(StoreCopies::Compare(*store, StoreCopies::List(m_Path).at(1), &differences, &error), qPrintable(error));
    QCOMPARE(static_cast<int>(differences.size()), 1);
    QCOMPARE(store->Values(), before);
}

void StoreCopiesTest::aDamagedCopyIsRefused_data()
{
    QTest::addColumn<QString>("damage");
    QTest::addColumn<QString>("words");
    QTest::newRow("a row") << QStringLiteral("UPDATE parameters SET value = '7' WHERE id = 8960")
                           << QStringLiteral("its parameter 8960 does not match its digest");
    QTest::newRow("no table") << QStringLiteral("DROP TABLE parameters")
                              << QStringLiteral("its schema is missing or broken");
    QTest::newRow("text") << QString() << QStringLiteral("a file that is not of SQLite");
}

void StoreCopiesTest::aDamagedCopyIsRefused()
{
    QFETCH(QString, damage);
    QFETCH(QString, words);
    SetDay(QDate(2030, 1, 1), 1);
    SetDay(QDate(2030, 1, 2), 2);
    const auto store = OpenStore(m_Path);
    if (damage.isEmpty())
        SetFileBytes(File("2030-01-01"), QByteArray(5000, 'x'));
    else
        RunSql(File("2030-01-01"), damage);
    const QMap<int, QVariant> before = store->Values();
    QList<StoreCopies::tagDifference> changed;
    QString error;
    QVERIFY(!StoreCopies::Restore(*store, StoreCopies::List(m_Path).at(1), &changed, &error));
    QCOMPARE(error, QString(QString::fromLatin1("%1 cannot be restored: %2").arg(File("2030-01-01"), words)));
    QCOMPARE(store->Values(), before);
}

QTEST_GUILESS_MAIN(StoreCopiesTest)
#include "StoreCopies.moc"
