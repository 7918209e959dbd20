#include "FaultResults.h"
#include "FileCalls.h"
#include "MemoryFolder.h"
#include "TSilence.h"
#include "TTemporaryFolder.h"

#include "stores/TSqliteStore.h"

#include <QtTest>

#include <cerrno>
#include <climits>
#include <memory>

namespace {

using namespace FileCalls;

constexpr unsigned Reading = CALL_OPEN | CALL_ALTER | CALL_READ;
constexpr int Patience = 200; // milliseconds: nobody else uses the store

const QLatin1String StoreName("settings.db");
const QLatin1String GoodName("settings.db.good");
const char* const OldValue = "the value of the good copy";
const char* const NewValue = "the value since then";

using TBreak = QByteArray (*)(QByteArray bytes);

QByteArray Half(QByteArray bytes) { return bytes.left(bytes.size() / 2); }
QByteArray NotOurs(QByteArray) { return "text"; }
QByteArray OtherValue(QByteArray bytes) { return bytes.replace(NewValue, "the value since when"); }

struct tagDamage
{
    const char* name;
    TBreak damage;
};

constexpr tagDamage Damages[] = {
    {"half a file", &Half},
    {"not a store", &NotOurs},
    {"a row", &OtherValue},
};

constexpr EParamID Parameter = PARAM_ACTIVE_JOB;

bool HasOldValue(TSqliteStore* store)
{
    return store && store->GetParameter(Parameter) == QVariant(QLatin1String(OldValue));
}

} // namespace

/// A drive that cannot be read once, or gives a wrong letter once, costs no value.
class DamageOnceSeen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { KeepTemporaryFilesInMemory(); }
    void init();
    void cleanup();

    void aGoodCopyThatCannotBeReadOnceIsStillUsed_data();
    void aGoodCopyThatCannotBeReadOnceIsStillUsed();
    void aRowThatIsMisreadOnceKeepsItsValue();

private:
    void Place(const QString& name, const QByteArray& bytes) const { m_Folder->MakeFile(name, bytes); }
    std::unique_ptr<TSqliteStore> Open() const;

    std::unique_ptr<TTemporaryFolder> m_Folder;
    QByteArray m_Store;
    QByteArray m_Good;
};

std::unique_ptr<TSqliteStore> DamageOnceSeen::Open() const
{
    QString error;
    return TSqliteStore::Open(m_Folder->Path(StoreName), &error, Patience);
}

// A store that has another value than its good copy.
void DamageOnceSeen::init()
{
    m_Folder = std::make_unique<TTemporaryFolder>();
    QVERIFY(Open()->SetParameter(Parameter, QLatin1String(OldValue), true));
    m_Good = m_Folder->Content(GoodName);
    QVERIFY(m_Good.contains(OldValue));
    QVERIFY(Open()->SetParameter(Parameter, QLatin1String(NewValue), true));
    m_Store = m_Folder->Content(StoreName);
    QVERIFY(m_Store.contains(NewValue));
}

void DamageOnceSeen::cleanup() { Ignore(); }

void DamageOnceSeen::aGoodCopyThatCannotBeReadOnceIsStillUsed_data()
{
    QTest::addColumn<int>("damage");
    for (int damage = 0; damage < static_cast<int>(std::size(Damages)); ++damage)
        QTest::newRow(Damages[damage].name) << damage;
}

// The store is damaged, and in addition each of the calls fails once that open and read files.
void DamageOnceSeen::aGoodCopyThatCannotBeReadOnceIsStillUsed()
{
    QFETCH(int, damage);
    const TSilence silence;
    const tagFault fault = {"input fails once", STOP_ERROR, EIO, Reading};
    int calls = INT_MAX;
    tagFaultResult result = {"DamageOnceSeen", Damages[damage].name, fault.name};
    for (int nth = 0; nth <= calls; ++nth) { // the first time without a fault, to count
        m_Folder = std::make_unique<TTemporaryFolder>();
        Place(StoreName, Damages[damage].damage(m_Store));
        Place(GoodName, m_Good);
        Watch(QFile::encodeName(m_Folder->Path()));
        Arm(fault, nth == 0 ? INT_MAX : nth);
        auto store = Open();
        if (nth == 0) {
            calls = Counted();
            QVERIFY(calls > 0);
        }
        const bool isReached = Disarm();
        QCOMPARE(isReached, nth > 0);
        const bool isDone = HasOldValue(store.get());
        // What cannot be read at present is a reason to refuse, or to go on without the value, not to lose it.
        store.reset();
        const bool isRight = isDone || HasOldValue(Open().get());
        result.points += nth > 0 ? 1 : 0;
        result.done += nth > 0 && isDone ? 1 : 0;
        result.broken += isRight ? 0 : 1;
        if (!isRight)
            QTest::qFail(("call " + QByteArray::number(nth) + " of " + QByteArray::number(calls)).constData(), __FILE__,
                         __LINE__);
        Ignore();
    }
    result.Append();
}

void DamageOnceSeen::aRowThatIsMisreadOnceKeepsItsValue()
{
    const TSilence silence;
    Watch(QFile::encodeName(m_Folder->Path()));
    Misread(NewValue);
    const auto store = Open();
    QVERIFY(HasMisread());
    QVERIFY(store != nullptr);
    QCOMPARE(store->GetParameter(Parameter), QVariant(QLatin1String(NewValue)));
    QCOMPARE(QDir(m_Folder->Path()).entryList({QLatin1String("*.damaged-*")}), QStringList());
    tagFaultResult{"DamageOnceSeen", "a whole store", "a wrong letter once", 1, 1, 0}.Append();
}

QTEST_GUILESS_MAIN(DamageOnceSeen)
#include "DamageOnceSeen.moc"
