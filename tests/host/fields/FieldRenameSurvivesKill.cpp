#include "MemoryFolder.h"
#include "StoreTestSupport.h"
#include "SystemCalls.h"
#include "TTemporaryFolder.h"
#include "UsedTerminal.h"

#include "fields/TFieldTree.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"

#include <QtTest>

#include <cerrno>

// The child runs this program with the folder of the terminal and the call at which it is killed.
namespace {

const QLatin1String RenameAndDie("rename-and-die");
const QLatin1String Before("F1");
const QLatin1String After("F2");
const QStringList Field{QLatin1String("Smith"), QLatin1String("North"), Before};

const char* const Files[] = {"%/%.ini", "%/%_Elevation.pbz", "%/Boundaries/%/%.bdy", "%/Jobs/J_1/J_1.ini"};

struct tagSelected
{
    EParamID parameter;
    const char* name;
};

constexpr tagSelected Selection[] = {
    {PARAM_CLIENT, "Smith"},   {PARAM_FARM, "North"},        {PARAM_FIELD, "%"},
    {PARAM_ACTIVE_JOB, "J_1"}, {PARAM_ACTIVE_BOUNDARY, "%"},
};

QString Named(const char* pattern, const QString& field)
{
    return QString::fromLatin1(pattern).replace(QLatin1Char('%'), field);
}

/// A terminal that renames the active field.
EFieldResult Rename(const QString& folder, int nth, int failure, QString* error)
{
    const auto store = OpenStore(DataFolder::StoreFile(folder));
    if (!store)
        return FIELD_FAILED;
    TTerminal terminal(*store);
    if (!terminal.Start(folder, error))
        return FIELD_FAILED;
    SystemCalls::Stop(nth, failure);
    const EFieldResult result = TFieldTree(*store).Rename(Field, After, error);
    SystemCalls::Count();
    return result;
}

} // namespace

/// A renaming is stopped at each of its calls that change files.
class FieldRenameSurvivesKill : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void theFieldHasOneNameAndIsSelected_data();
    void theFieldHasOneNameAndIsSelected();

private:
    std::unique_ptr<TTemporaryFolder> MakeRoom() const;
    static void Check(const TTemporaryFolder& folder, bool* isNew);

    QByteArray m_StoreBytes;
};

// A store of a terminal that has run before, with its selection.
void FieldRenameSurvivesKill::initTestCase()
{
    KeepTemporaryFilesInMemory();
    const auto folder = MakeRoom();
    QMap<EParamID, QString> values;
    for (const tagSelected& selected : Selection)
        values[selected.parameter] = Named(selected.name, Before);
    m_StoreBytes = StoreOfUsedTerminal(folder->Path(), values);
    QVERIFY(!m_StoreBytes.isEmpty());
}

std::unique_ptr<TTemporaryFolder> FieldRenameSurvivesKill::MakeRoom() const
{
    auto folder = std::make_unique<TTemporaryFolder>();
    for (const char* file : Files)
        folder->MakeFile(QLatin1String("internal/Clients/Smith/North/") + Named(file, Before), file);
    if (!m_StoreBytes.isEmpty())
        SetFileBytes(DataFolder::StoreFile(folder->Path()), m_StoreBytes);
    return folder;
}

// The next terminal finishes what was cut off.
void FieldRenameSurvivesKill::Check(const TTemporaryFolder& folder, bool* isNew)
{
    const auto store = OpenStore(DataFolder::StoreFile(folder.Path()));
    QVERIFY(store);
    TTerminal terminal(*store);
    QString error;
    QVERIFY2(terminal.Start(folder.Path(), &error), qPrintable(error));
    QList<tagFieldItem> items;
    QVERIFY2(TFieldTree(*store).List(FIELD_DRIVE_INTERNAL, Field.mid(0, 2), &items, &error) == FIELD_DONE,
             qPrintable(error));

    *isNew = folder.Exists(QLatin1String("internal/Clients/Smith/North/") + After);
    const QString field = *isNew ? After : Before;
    QStringList files;
    for (const QString& entry : folder.Entries().filter(QRegularExpression(QLatin1String("^internal/Clients/.*[^/]$"))))
        files += entry;
    QStringList expected;
    for (const char* file : Files) {
        const QString path = QLatin1String("internal/Clients/Smith/North/") + Named(file, field);
        expected += path;
        QCOMPARE(folder.Content(path), QByteArray(file));
    }
    files.sort();
    expected.sort();
    QCOMPARE(files, expected); // no note, and nothing unfinished
    const QMap<int, QVariant> stored = store->Values();
    for (const tagSelected& selected : Selection)
        QCOMPARE(stored.value(selected.parameter).toString(), Named(selected.name, field));
}

void FieldRenameSurvivesKill::theFieldHasOneNameAndIsSelected_data()
{
    QTest::addColumn<int>("failure");
    QTest::newRow("killed") << 0;
    QTest::newRow("the drive fails") << EIO;
    QTest::newRow("the drive is full") << ENOSPC;
}

void FieldRenameSurvivesKill::theFieldHasOneNameAndIsSelected()
{
    QFETCH(int, failure);
    int stopped = 0;
    int renamed = 0;
    for (bool isOver = false; !isOver;) {
        const auto folder = MakeRoom();
        TStandardErrorCapture standardError; // the store says that it cannot be written
        if (failure == 0) {
            TChild child({RenameAndDie, folder->Path(), QString::number(stopped + 1)});
            isOver = !child.WasKilled();
        } else {
            QString error;
            isOver = Rename(folder->Path(), stopped + 1, failure, &error) == FIELD_DONE;
            QCOMPARE(error.isEmpty(), isOver);
        }
        bool isNew = false;
        Check(*folder, &isNew);
        if (QTest::currentTestFailed()) {
            qWarning("after %d calls", stopped);
            return;
        }
        QVERIFY(isNew || !isOver);
        stopped += isOver ? 0 : 1;
        renamed += isNew && !isOver ? 1 : 0;
    }
    QVERIFY2(stopped >= 20, qPrintable(QString::number(stopped)));
    QVERIFY(renamed >= 5 && renamed < stopped);
    qInfo("stopped at %d calls, at %d of them with the new name", stopped, renamed);
}

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == RenameAndDie) {
        QString error;
        return Rename(arguments.at(2), arguments.at(3).toInt(), 0, &error) == FIELD_DONE ? 0 : 1;
    }
    FieldRenameSurvivesKill test;
    return QTest::qExec(&test, argc, argv);
}
#include "FieldRenameSurvivesKill.moc"
