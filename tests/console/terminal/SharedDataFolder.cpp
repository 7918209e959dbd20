#include "ConsoleTest.h"
#include "TestLength.h"
#include "TestSeed.h"

#include "stores/ChangeJournal.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/TTerminal.h"

#include <QRandomGenerator>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

using namespace ConsoleTest;

/// A terminal, two tools and an import that change the parameters of one data folder at random, all at once.
class SharedDataFolder : public QObject
{
    Q_OBJECT

private slots:
    void allAgreeOnEveryValueAndOnTheJournal();
};

namespace {

/// How many changes each tool makes. CABSETTINGS_TEST_LENGTH=20 makes it twenty times as many, which is about a minute.
const int ToolChanges = 30;

const int Profiles = 3;

/// A random change that every writer may make: "units.area acre".
QStringList RandomChange(QRandomGenerator& random)
{
    static const QList<QStringList> changes = {
        {Utf8("units.metric"), Utf8("true"), Utf8("false")},
        {Utf8("units.area"), Utf8("hectare"), Utf8("acre")},
        {Utf8("units.pressure"), Utf8("kPa"), Utf8("psi"), Utf8("bar")},
        {Utf8("region.month-first"), Utf8("true"), Utf8("false")},
        {Utf8("colors.day.text"), Utf8("#101418"), Utf8("#000000"), Utf8("#202020")},
        {Utf8("active.client"), Utf8("Smith"), Utf8("Müller"), QString()},
        {Utf8("active.job"), Utf8("J_1"), Utf8("J_2"), Utf8("J_3")},
        {Utf8("display.night-lightbar"), Utf8("10"), Utf8("50"), Utf8("90")},
    };
    const QStringList& change = changes.at(random.bounded(static_cast<int>(changes.size())));
    return {change.first(), change.at(1 + random.bounded(static_cast<int>(change.size()) - 1))};
}

void SetAtRandom(TParameterStore& store, QRandomGenerator& random)
{
    const QStringList change = RandomChange(random);
    const tagParameter* const parameter = TParameterCatalogue::Find(change.first());
    QString error;
    store.SetParameter(parameter->id, TParameterCatalogue::Read(*parameter, change.last(), &error), true);
}

/// Profiles of other terminals, each with settings of its own.
QStringList MakeProfiles(const TConsole& console, QRandomGenerator& random)
{
    QStringList paths;
    for (int number = 0; number < Profiles; ++number) {
        const TConsole other;
        for (int change = 0; change < 4; ++change)
            other.Run(QStringList(Utf8("set")) + RandomChange(random));
        paths.append(console.Path(qPrintable(QString::number(number) + Utf8(".profile"))));
        if (other.Run({Utf8("export"), paths.last()}).status != 0)
            qFatal("no profile");
    }
    return paths;
}

/// The first command that did not end as it should.
class TFirstFailure
{
public:
    void Check(const TConsole::tagResult& result, const QStringList& command)
    {
        if (result.status == 0)
            return;
        const QMutexLocker lock(&m_Mutex);
        if (m_Text.isEmpty())
            m_Text = command.join(QLatin1Char(' ')) + QLatin1Char('\n') + result.output + result.errors;
    }
    QString Text() const { return m_Text; }

private:
    QMutex m_Mutex;
    QString m_Text;
};

std::unique_ptr<TSqliteStore> Open(const TConsole& console)
{
    QString error;
    auto store = TSqliteStore::Open(DataFolder::StoreFile(console.DataFolder()), &error, 60000);
    if (!store)
        qFatal("%s", qPrintable(error));
    return store;
}

bool IsSame(const QVariant& one, const QVariant& other) { return one.userType() == other.userType() && one == other; }

/// The numbers of the parameters in which the two differ.
QStringList Differences(const QMap<int, QVariant>& left, const QMap<int, QVariant>& right)
{
    QStringList numbers;
    for (const int number : QSet<int>(left.keyBegin(), left.keyEnd()) + QSet<int>(right.keyBegin(), right.keyEnd()))
        if (!IsSame(left.value(number), right.value(number)))
            numbers.append(QString::number(number));
    return numbers;
}

} // namespace

void SharedDataFolder::allAgreeOnEveryValueAndOnTheJournal()
{
    const TConsole console;
    QRandomGenerator random(TestSeed());
    const QStringList profiles = MakeProfiles(console, random);
    QDir().mkpath(console.DataFolder());

    const auto store = Open(console);
    TTerminal terminal(*store);
    QString error;
    QVERIFY2(terminal.Start(console.DataFolder(), &error), qPrintable(error));
    ChangeJournal::tagJournal before;
    QVERIFY2(ChangeJournal::Read(*store, {std::nullopt, 1}, &before, &error), qPrintable(error));
    const QMap<int, QVariant> valuesBefore = store->Values();

    TFirstFailure failure;
    std::atomic<int> running{3};
    std::vector<std::thread> writers;
    for (int tool = 0; tool < 2; ++tool) {
        writers.emplace_back([&, seed = random.generate()] {
            QRandomGenerator own(seed);
            for (int change = 0; change < ToolChanges * TestLength(); ++change) {
                const QStringList command = QStringList(Utf8("set")) + RandomChange(own);
                failure.Check(console.Run(command), command);
            }
            --running;
        });
    }
    writers.emplace_back([&, seed = random.generate()] {
        QRandomGenerator own(seed);
        for (int number = 0; number < ToolChanges * TestLength() / 2; ++number) {
            const QStringList command = {Utf8("import"), profiles.at(own.bounded(Profiles)), Utf8("--theirs")};
            failure.Check(console.Run(command), command);
        }
        --running;
    });
    int ownChanges = 0;
    while (running > 0) {
        SetAtRandom(*store, random);
        TSystemSettingsProxy().SetActiveVehicle(QString::fromLatin1("V_%1").arg(random.bounded(5)));
        ownChanges += 2;
        QTest::qWait(random.bounded(20));
    }
    for (std::thread& writer : writers)
        writer.join();
    QVERIFY2(failure.Text().isEmpty(), qPrintable(failure.Text()));

    // The terminal takes in what the others wrote, and a program that reads the file anew has the same.
    const auto reader = Open(console);
    QTRY_COMPARE(Differences(store->Values(), reader->Values()), QStringList());

    // The journal leads from the values before to those of now, change by change.
    ChangeJournal::tagJournal journal;
    QVERIFY2(ChangeJournal::Read(*reader, {std::nullopt, 1000000}, &journal, &error), qPrintable(error));
    QVERIFY(journal.damaged.isEmpty());
    QMap<int, QVariant> replayed = valuesBefore;
    QMap<QString, int> changesOf;
    for (auto entry = journal.entries.crbegin(); entry != journal.entries.crend(); ++entry) {
        if (!before.entries.isEmpty() && entry->number <= before.entries.first().number)
            continue;
        QVERIFY2(IsSame(replayed.value(entry->parameter), entry->oldValue), qPrintable(QString::number(entry->number)));
        if (entry->newValue.isValid())
            replayed.insert(entry->parameter, entry->newValue);
        else
            replayed.remove(entry->parameter);
        ++changesOf[entry->author];
    }
    QCOMPARE(Differences(replayed, reader->Values()), QStringList());
    qDebug() << "changes of the terminal:" << ownChanges << "in the journal:" << changesOf;
    for (const char* author : {"library", "tool", "import"})
        QVERIFY2(changesOf.value(Utf8(author)) > 0, author);
}

QTEST_GUILESS_MAIN(SharedDataFolder)
#include "SharedDataFolder.moc"
