#include "MemoryFolder.h"
#include "StoreTestSupport.h"
#include "SystemCalls.h"
#include "TTemporaryFolder.h"
#include "UsedTerminal.h"

#include "guidance/LineRename.h"
#include "terminal/ActiveItems.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"

#include <QtTest>

#include <cerrno>
#include <memory>

// The child runs this program with the folder of the terminal and the call at which it is killed.
namespace {

const QLatin1String RenameAndDie("rename-and-die");
const QLatin1String Before("AB_1");
const QLatin1String After("Ditch");
const QLatin1String Other("AB_2");
const QLatin1String Lines("internal/Clients/Smith/North/F1/ABLines/");

/// Of a line; "%" stands for its name.
const char* const Files[] = {"%/%.ini", "%/%_survey.txt", "%/note.txt"};

struct tagSelected
{
    EParamID parameter;
    const char* name;
};

constexpr tagSelected Selection[] = {
    {PARAM_CLIENT, "Smith"},
    {PARAM_FARM, "North"},
    {PARAM_FIELD, "F1"},
    {PARAM_ACTIVE_AB_LINE, "AB_1"},
};

QString Named(const char* pattern, const QString& line)
{
    return Lines + QString::fromLatin1(pattern).replace(QLatin1Char('%'), line);
}

/// @param nth the call that is stopped; 0 for none.
bool Rename(const QString& folder, const QString& from, const QString& to, int nth, int failure, QString* error)
{
    const auto store = OpenStore(DataFolder::StoreFile(folder));
    if (!store)
        return false;
    TTerminal terminal(*store);
    if (!terminal.Start(folder, error))
        return false;
    if (nth > 0)
        SystemCalls::Stop(nth, failure);
    const bool isRenamed = RenameGuidanceLine(*store, from, to, error);
    SystemCalls::Count();
    return isRenamed;
}

struct tagLines
{
    QStringList names;
    QString selected;
};

/// As the next terminal shows them.
tagLines LinesOf(const QString& folder)
{
    const auto store = OpenStore(DataFolder::StoreFile(folder));
    TTerminal terminal(*store);
    QString error;
    if (!terminal.Start(folder, &error))
        qFatal("%s", qPrintable(error));
    const tagParameter& line = *TParameterCatalogue::Find(PARAM_ACTIVE_AB_LINE);
    return {ActiveItems::Available(line), ActiveItems::Name(line)};
}

} // namespace

/// A guidance line gets another name, and nothing of it is lost when that is cut off at any call.
class LineRenames : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theLineAndItsFilesHaveTheNewName();
    void theSelectionOfAnotherLineStays();
    void theSameNameChangesNothing();
    void aNameThatCannotBeTakenChangesNothing_data();
    void aNameThatCannotBeTakenChangesNothing();
    void nothingIsLostAtAnyCall_data();
    void nothingIsLostAtAnyCall();

private:
    std::unique_ptr<TTemporaryFolder> MakeRoom() const;

    QByteArray m_StoreBytes;
};

// A store of a terminal that has run before, with its selection.
void LineRenames::initTestCase()
{
    KeepTemporaryFilesInMemory();
    const auto folder = MakeRoom();
    QMap<EParamID, QString> values;
    for (const tagSelected& selected : Selection)
        values[selected.parameter] = QLatin1String(selected.name);
    m_StoreBytes = StoreOfUsedTerminal(folder->Path(), values);
    QVERIFY(!m_StoreBytes.isEmpty());
}

std::unique_ptr<TTemporaryFolder> LineRenames::MakeRoom() const
{
    auto folder = std::make_unique<TTemporaryFolder>();
    for (const char* file : Files)
        folder->MakeFile(Named(file, Before), file);
    folder->MakeFile(Named("%/%.ini", Other), "other");
    if (!m_StoreBytes.isEmpty())
        SetFileBytes(DataFolder::StoreFile(folder->Path()), m_StoreBytes);
    return folder;
}

void LineRenames::theLineAndItsFilesHaveTheNewName()
{
    const auto folder = MakeRoom();
    QString error;
    QVERIFY2(Rename(folder->Path(), Before, After, 0, 0, &error), qPrintable(error));
    for (const char* file : Files)
        QCOMPARE(folder->Content(Named(file, After)), QByteArray(file));
    QVERIFY(!folder->Exists(Lines + Before));
    const tagLines lines = LinesOf(folder->Path());
    QCOMPARE(lines.names, QStringList({Other, After}));
    QCOMPARE(lines.selected, After);
    const QStringList entries = folder->Entries().filter(QLatin1String(".cabsettings-"));
    QVERIFY2(entries.isEmpty(), qPrintable(entries.join(QLatin1Char(' '))));
}

void LineRenames::theSelectionOfAnotherLineStays()
{
    const auto folder = MakeRoom();
    QString error;
    QVERIFY2(Rename(folder->Path(), Other, After, 0, 0, &error), qPrintable(error));
    const tagLines lines = LinesOf(folder->Path());
    QCOMPARE(lines.names, QStringList({Before, After}));
    QCOMPARE(lines.selected, Before);
}

void LineRenames::theSameNameChangesNothing()
{
    const auto folder = MakeRoom();
    QString error;
    QVERIFY2(Rename(folder->Path(), Before, Before, 0, 0, &error), qPrintable(error));
    for (const char* file : Files)
        QCOMPARE(folder->Content(Named(file, Before)), QByteArray(file));
    QCOMPARE(LinesOf(folder->Path()).selected, Before);
}

void LineRenames::aNameThatCannotBeTakenChangesNothing_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::newRow("taken") << QString(Before) << QString(Other);
    QTest::newRow("taken in other letter case") << QString(Before) << QStringLiteral("ab_2");
    QTest::newRow("leads elsewhere") << QString(Before) << QStringLiteral("../Ditch");
    QTest::newRow("empty") << QString(Before) << QString();
    QTest::newRow("no such line") << QStringLiteral("AB_9") << QString(After);
    QTest::newRow("no such line, the same name") << QStringLiteral("AB_9") << QStringLiteral("AB_9");
    QTest::newRow("a line that leads elsewhere") << QStringLiteral("..") << QString(After);
}

void LineRenames::aNameThatCannotBeTakenChangesNothing()
{
    QFETCH(const QString, from);
    QFETCH(const QString, to);
    const auto folder = MakeRoom();
    QString error;
    QVERIFY(!Rename(folder->Path(), from, to, 0, 0, &error));
    QVERIFY(!error.isEmpty());
    const tagLines lines = LinesOf(folder->Path());
    QCOMPARE(lines.names, QStringList({Before, Other}));
    QCOMPARE(lines.selected, Before);
    for (const char* file : Files)
        QCOMPARE(folder->Content(Named(file, Before)), QByteArray(file));
}

void LineRenames::nothingIsLostAtAnyCall_data()
{
    QTest::addColumn<int>("failure");
    QTest::newRow("killed") << 0;
    QTest::newRow("the drive fails") << EIO;
    QTest::newRow("the drive is full") << ENOSPC;
}

void LineRenames::nothingIsLostAtAnyCall()
{
    QFETCH(const int, failure);
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
            isOver = Rename(folder->Path(), Before, After, stopped + 1, failure, &error);
            QCOMPARE(error.isEmpty(), isOver);
        }
        const tagLines lines = LinesOf(folder->Path());
        const QByteArray at = "after " + QByteArray::number(stopped) + " calls";
        QVERIFY2(lines.names.contains(Before) || lines.names.contains(After), at.constData());
        QVERIFY2(lines.names.contains(lines.selected), at.constData());
        for (const QString& name : lines.names) {
            for (const char* file : Files)
                QVERIFY2(name == Other || folder->Content(Named(file, name)) == QByteArray(file), at.constData());
        }
        // What was left is no obstacle to another name.
        QString error;
        QVERIFY2(Rename(folder->Path(), lines.selected, QLatin1String("Next"), 0, 0, &error), qPrintable(error));
        const QStringList left = folder->Entries().filter(QLatin1String("ABLines/.cabsettings-"));
        QVERIFY2(left.isEmpty(), at.constData());
        stopped += isOver ? 0 : 1;
        renamed += lines.selected == After && !isOver ? 1 : 0;
    }
    QVERIFY2(stopped >= 15, qPrintable(QString::number(stopped)));
    QVERIFY(renamed >= 2 && renamed < stopped);
}

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == RenameAndDie) {
        QString error;
        return Rename(arguments.at(2), Before, After, arguments.at(3).toInt(), 0, &error) ? 0 : 1;
    }
    LineRenames test;
    return QTest::qExec(&test, argc, argv);
}
#include "LineRenames.moc"
