#include "StoreTestSupport.h"
#include "TestSeed.h"

#include <QFile>
#include <QRandomGenerator>
#include <QtTest>

namespace {

const QLatin1String Good(".good");
const QLatin1String FirstAside(".damaged-1");

// The bytes of the schema number. A larger number means a later version of the program, and the file is refused.
const int SchemaAt = 60;
const int SchemaEnd = 64;

const int HeaderSize = 100; // of the file
const int PageSize = 4096;
const int PageHeaderSize = 12;

// Of the log: its header, and the frames that hold a page each.
const int LogHeaderSize = 32;
const int FrameSize = PageSize + 24;

// Each damage takes an opening, some of them a restore: every run tries other bytes of those that are alike.
const int RandomBytes = 60;

// One bit, or all bits of a byte.
char RandomFlip(QRandomGenerator& random)
{
    const int bit = random.bounded(9);
    return static_cast<char>(bit == 8 ? 0xff : 1 << bit);
}

} // namespace

/// The file and its good copy have different values, so the test can tell which of them was read.
class StoreRecoversFromDamage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void aChangedByteNeverGivesWrongValues_data();
    void aChangedByteNeverGivesWrongValues();
    void aChangedByteOfARowNeverGivesWrongValues();
    void aTruncatedFileNeverGivesWrongValues_data();
    void aTruncatedFileNeverGivesWrongValues();
    void aRunOfLostBytesNeverGivesWrongValues();

    void aDamagedFileIsMovedAsideAndTheGoodCopyTakesItsPlace_data();
    void aDamagedFileIsMovedAsideAndTheGoodCopyTakesItsPlace();
    void aDamagedRowCostsThatRowAlone_data();
    void aDamagedRowCostsThatRowAlone();
    void aDamagedRowOfTheGoodCopyCostsThatRowAlone();
    void whatBelongsToADamagedFileGoesWithIt();
    void earlierDamagedFilesAreKept();
    void aMissingFileIsReplacedByTheGoodCopy();
    void aLogLeftBehindIsNotAppliedToTheGoodCopy();

    void aTornLogGivesAWholeEarlierState();

    void withoutAGoodCopyTheStoreStartsEmptyAndSaysSo_data();
    void withoutAGoodCopyTheStoreStartsEmptyAndSaysSo();
    void aDamagedGoodCopyIsNotTrusted_data();
    void aDamagedGoodCopyIsNotTrusted();
    void aNewStoreSaysNothing_data();
    void aNewStoreSaysNothing();

    void theGoodCopyIsMadeAtOpeningAndClosing();
    void theGoodCopyIsNotMadeOfADamagedFile();
    void remainsOfAnUnfinishedCopyDoNotMatter();

private:
    void Place(const QByteArray& bytes);
    bool HasLostRowsAlone(const QMap<int, QVariant>& values, int most) const;
    QString Verdict(int mostRowsLost = 1);
    void CheckByte(int offset, char flip);

    QByteArray m_FileBytes;
    QByteArray m_GoodBytes;
    QMap<int, QVariant> m_FileValues;
    QMap<int, QVariant> m_GoodValues;
    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
};

void StoreRecoversFromDamage::initTestCase()
{
    init();
    {
        const auto store = OpenStore(m_Path);
        store->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
        store->SetParameter(PARAM_AREA_UNIT, 1, true);
        m_GoodValues = store->Values();
    }
    m_GoodBytes = FileBytes(m_Path + Good);
    {
        const auto store = OpenStore(m_Path);
        store->HoldPersistence();
        store->SetParameter(PARAM_CLIENT, QLatin1String("Jones"), true);
        for (int id = 1; id <= 200; ++id) // fills several pages
            store->SetParameter(Param(id), QString::fromLatin1("value of parameter %1").arg(id), true);
        QVERIFY(store->ReleasePersistence());
        store->SetParameter(Param(100), QVariant(), true);
        m_FileValues = store->Values();
    }
    m_FileBytes = FileBytes(m_Path);
    QVERIFY(m_FileBytes.size() > 3 * PageSize);
}

void StoreRecoversFromDamage::init()
{
    m_Folder = MakeFolder();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
}

// Makes a new folder with @p bytes as the file, and the good copy.
void StoreRecoversFromDamage::Place(const QByteArray& bytes)
{
    init();
    SetFileBytes(m_Path, bytes);
    SetFileBytes(m_Path + Good, m_GoodBytes);
}

// Whether @p values are those of the file, except for some rows that have the good copy's value or are absent.
bool StoreRecoversFromDamage::HasLostRowsAlone(const QMap<int, QVariant>& values, int most) const
{
    int lost = 0;
    const QList<int> ids = values.keys() + m_FileValues.keys();
    for (const int id : QSet<int>(ids.cbegin(), ids.cend())) {
        const QVariant value = values.value(id);
        if (value == m_FileValues.value(id))
            continue;
        if (value.isValid() && value != m_GoodValues.value(id))
            return false;
        ++lost;
    }
    return lost <= most;
}

// Empty when the store has the right values: those of the file without a message about values, or with a message those
// that are left after damage. The store must also accept a write.
QString StoreRecoversFromDamage::Verdict(int mostRowsLost)
{
    TStandardErrorCapture standardError;
    QString error;
    const auto store = TSqliteStore::Open(m_Path, &error);
    const bool isSaid = !standardError.Lines().isEmpty();
    if (!store)
        return QLatin1String("refused: ") + error;
    const QMap<int, QVariant> values = store->Values();
    // No value is lost when the journal alone is damaged, or a row that has the same value in the good copy.
    const QString said = isSaid ? standardError.Lines().first() : QString();
    const bool isHarmless = said.endsWith(QLatin1String("; the journal begins anew")) ||
                            said.contains(QLatin1String("does not match its digest; copied to "));
    if (values == m_FileValues && isSaid && !isHarmless)
        return QLatin1String("right values, but: ") + standardError.Lines().first();
    if (values != m_FileValues && !isSaid)
        return QLatin1String("wrong values without a message");
    if (values != m_FileValues && values != m_GoodValues && !HasLostRowsAlone(values, mostRowsLost))
        return QLatin1String("wrong values");
    return store->SetParameter(PARAM_FARM, QLatin1String("Hill"), true) ? QString()
                                                                        : QString::fromLatin1("not writable");
}

void StoreRecoversFromDamage::CheckByte(int offset, char flip)
{
    QByteArray bytes = m_FileBytes;
    bytes[offset] = static_cast<char>(bytes.at(offset) ^ flip);
    Place(bytes);
    const QString verdict = Verdict();
    const bool isSchema = offset >= SchemaAt && offset < SchemaEnd;
    QVERIFY2(verdict.isEmpty() || (isSchema && verdict.contains(QLatin1String("found schema"))),
             qPrintable(QString::fromLatin1("byte %1 changed by %2: %3").arg(offset).arg(flip).arg(verdict)));
}

void StoreRecoversFromDamage::aChangedByteNeverGivesWrongValues_data()
{
    QTest::addColumn<QVector<int>>("offsets");
    QRandomGenerator random(TestSeed());
    const int size = static_cast<int>(m_FileBytes.size());
    QVector<int> header;
    for (int offset = 0; offset < HeaderSize + PageHeaderSize; ++offset) // of the first page too
        header += offset;
    QVector<int> pageHeaders;
    for (int page = PageSize; page < size; page += PageSize)
        pageHeaders += page + random.bounded(PageHeaderSize);
    QVector<int> anywhere;
    for (int count = 0; count < RandomBytes; ++count)
        anywhere += random.bounded(HeaderSize, size);
    QTest::newRow("file header") << header;
    QTest::newRow("page headers") << pageHeaders;
    QTest::newRow("anywhere") << anywhere;
}

void StoreRecoversFromDamage::aChangedByteNeverGivesWrongValues()
{
    QFETCH(QVector<int>, offsets);
    QRandomGenerator random(TestSeed());
    for (const int offset : offsets) {
        CheckByte(offset, RandomFlip(random));
        if (QTest::currentTestFailed())
            return;
    }
}

void StoreRecoversFromDamage::aChangedByteOfARowNeverGivesWrongValues()
{
    const QByteArray text("value of parameter 42");
    const int at = static_cast<int>(m_FileBytes.indexOf(text));
    QVERIFY(at > 0);
    QRandomGenerator random(TestSeed());
    // From a position before the row's header to the end of its digest.
    for (int offset = at - 15; offset < at + text.size() + 16 && !QTest::currentTestFailed(); ++offset)
        CheckByte(offset, RandomFlip(random));
}

void StoreRecoversFromDamage::aTruncatedFileNeverGivesWrongValues_data()
{
    QTest::addColumn<int>("length");
    const int size = static_cast<int>(m_FileBytes.size());
    for (const int length : {0,   1,    15,   16,   18,   60,   72,   99,   100,   101,         108,     511,
                             512, 1000, 4095, 4096, 4097, 8191, 8192, 8193, 12288, size - 4096, size - 1})
        QTest::addRow("%d", length) << length;
}

void StoreRecoversFromDamage::aTruncatedFileNeverGivesWrongValues()
{
    QFETCH(int, length);
    Place(m_FileBytes.left(length));
    QCOMPARE(Verdict(), QString());
}

void StoreRecoversFromDamage::aRunOfLostBytesNeverGivesWrongValues()
{
    const int block = 512;
    QRandomGenerator random(TestSeed());
    QVector<int> offsets;
    for (int offset = 0; offset < PageSize; offset += block)
        offsets += offset;
    for (int page = PageSize; page < m_FileBytes.size(); page += PageSize)
        offsets += page + block * random.bounded(PageSize / block);
    for (const int offset : std::as_const(offsets)) {
        QByteArray bytes = m_FileBytes;
        bytes.replace(offset, block, QByteArray(block, static_cast<char>(random.bounded(2) == 0 ? 0 : 0xff)));
        Place(bytes);
        const QString verdict = Verdict(block);
        QVERIFY2(verdict.isEmpty(), qPrintable(QString::fromLatin1("block at %1: %2").arg(offset).arg(verdict)));
    }
}

void StoreRecoversFromDamage::aDamagedFileIsMovedAsideAndTheGoodCopyTakesItsPlace_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("found");

    QByteArray pageType = m_FileBytes;
    pageType[4096] = 'x';
    const QString none;
    QTest::newRow("header") << m_FileBytes.mid(1) << none << QString::fromLatin1("a file that is not of SQLite");
    QTest::newRow("text") << QByteArray("text") << none << QString::fromLatin1("a file that is not of SQLite");
    QTest::newRow("nothing") << QByteArray() << none << QString::fromLatin1("an empty file");
    QTest::newRow("half") << m_FileBytes.left(5000) << none << QString::fromLatin1("");
    QTest::newRow("page type") << pageType << none << QString::fromLatin1("");
    const QString schema = QLatin1String("its schema is missing or broken");
    QTest::newRow("no table") << m_FileBytes << QString::fromLatin1("DROP TABLE parameters") << schema;
    QTest::newRow("another table") << m_FileBytes << QString::fromLatin1("ALTER TABLE parameters ADD COLUMN unit")
                                   << schema;
    QTest::newRow("no schema number") << m_FileBytes << QString::fromLatin1("PRAGMA user_version = 0") << schema;
}

void StoreRecoversFromDamage::aDamagedFileIsMovedAsideAndTheGoodCopyTakesItsPlace()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, statement);
    QFETCH(QString, found);
    Place(bytes);
    if (!statement.isEmpty())
        RunSql(m_Path, statement);
    const QByteArray damaged = FileBytes(m_Path);

    TStandardErrorCapture standardError;
    const auto store = OpenStore(m_Path);
    QCOMPARE(store->Values(), m_GoodValues);
    QCOMPARE(FileBytes(m_Path + FirstAside), damaged);
    const QStringList lines = standardError.Lines();
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines.at(0).startsWith(QString::fromLatin1("%1: %2").arg(m_Path, found)) &&
                 lines.at(0).endsWith(QString::fromLatin1("; moved to %1%2").arg(m_Path, FirstAside)),
             qPrintable(lines.at(0)));
    QCOMPARE(lines.at(1), QString::fromLatin1("%1: going on with the last good copy %1.good").arg(m_Path));
}

void StoreRecoversFromDamage::aDamagedRowCostsThatRowAlone_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("found");
    QTest::addColumn<QString>("told");
    QTest::addColumn<QList<int>>("fromGoodCopy");
    QTest::addColumn<QList<int>>("lost");
    const auto row = [](const char* name, const char* statement, const char* found, const char* told,
                        const QList<int>& fromGoodCopy, const QList<int>& lost) {
        QTest::newRow(name) << QString::fromLatin1(statement) << QString::fromLatin1(found) << QString::fromLatin1(told)
                            << fromGoodCopy << lost;
    };
    const char* const damaged42 = "its parameter 42 does not match its digest";
    const char* const lost42 = "parameter 42 is lost";
    row("value", "UPDATE parameters SET value = 'x' WHERE id = 42", damaged42, lost42, {}, {42});
    row("type", "UPDATE parameters SET type = 'int' WHERE id = 42", damaged42, lost42, {}, {42});
    row("digest", "UPDATE parameters SET digest = '0' WHERE id = 42", damaged42, lost42, {}, {42});
    row("number", "UPDATE parameters SET id = 4242 WHERE id = 42", "its parameter 4242 does not match its digest",
        "parameter 4242 is lost", {}, {42});
    // The lower 32 bits of that number are the number of PARAM_CLIENT.
    row("large number", "UPDATE parameters SET id = 4294976228 WHERE id = 42",
        "its parameter 4294976228 does not match its digest", "parameter 4294976228 is lost", {}, {42});
    row("in the good copy", "UPDATE parameters SET value = 'x' WHERE id = 8932",
        "its parameter 8932 does not match its digest", "parameter 8932 has its value from the last good copy", {8932},
        {});
    row("several", "UPDATE parameters SET value = 'x' WHERE id IN (1, 2, 8932)",
        "its parameters 1, 2, 8932 do not match their digests",
        "parameter 1 is lost, parameter 2 is lost, parameter 8932 has its value from the last good copy", {8932},
        {1, 2});
}

void StoreRecoversFromDamage::aDamagedRowCostsThatRowAlone()
{
    QFETCH(QString, statement);
    QFETCH(QString, found);
    QFETCH(QString, told);
    QFETCH(QList<int>, fromGoodCopy);
    QFETCH(QList<int>, lost);
    Place(m_FileBytes);
    RunSql(m_Path, statement);
    const QByteArray damaged = FileBytes(m_Path);
    QMap<int, QVariant> expected = m_FileValues;
    for (const int id : fromGoodCopy)
        expected[id] = m_GoodValues[id];
    for (const int id : lost)
        expected.remove(id);

    TStandardErrorCapture standardError;
    auto store = OpenStore(m_Path);
    QCOMPARE(store->Values(), expected);
    QCOMPARE(standardError.Lines(),
             (QStringList{QString::fromLatin1("%1: %2; copied to %1%3").arg(m_Path, found, FirstAside),
                          QString::fromLatin1("%1: %2").arg(m_Path, told)}));
    QCOMPARE(FileBytes(m_Path + FirstAside), damaged);
    QVERIFY(store->SetParameter(PARAM_FARM, QLatin1String("Hill"), true));
    expected[PARAM_FARM] = QLatin1String("Hill");
    store.reset();
    QCOMPARE(StoredValues(m_Path), expected);
    QCOMPARE(StoredValues(m_Path + Good), expected);
    QCOMPARE(standardError.Lines().size(), 2); // no further message: the file is repaired
}

void StoreRecoversFromDamage::aDamagedRowOfTheGoodCopyCostsThatRowAlone()
{
    Place(m_FileBytes.left(5000));
    SetFileBytes(m_Path + Good, QByteArray(m_GoodBytes).replace("Smith", "Smyth"));
    QMap<int, QVariant> expected = m_GoodValues;
    expected.remove(PARAM_CLIENT);
    TStandardErrorCapture standardError;
    QCOMPARE(StoredValues(m_Path), expected);
    QCOMPARE(standardError.Lines().size(), 4); // two for the file, two for the row
    QCOMPARE(FileBytes(m_Path + FirstAside), m_FileBytes.left(5000));
    QVERIFY(FileBytes(m_Path + QLatin1String(".damaged-2")).contains("Smyth"));
}

void StoreRecoversFromDamage::whatBelongsToADamagedFileGoesWithIt()
{
    Place(QByteArray("text"));
    SetFileBytes(m_Path + QLatin1String("-wal"), "log");
    SetFileBytes(m_Path + QLatin1String("-shm"), "index");
    TStandardErrorCapture standardError;
    QCOMPARE(StoredValues(m_Path), m_GoodValues);
    QCOMPARE(FileBytes(m_Path + FirstAside), QByteArray("text"));
    QCOMPARE(FileBytes(m_Path + FirstAside + QLatin1String("-wal")), QByteArray("log"));
    QCOMPARE(FileBytes(m_Path + FirstAside + QLatin1String("-shm")), QByteArray("index"));
}

void StoreRecoversFromDamage::earlierDamagedFilesAreKept()
{
    Place(QByteArray());
    TStandardErrorCapture standardError;
    for (const char* text : {"first", "second", "third"}) {
        SetFileBytes(m_Path, text);
        QCOMPARE(StoredValues(m_Path), m_GoodValues);
    }
    QCOMPARE(FileBytes(m_Path + QLatin1String(".damaged-1")), QByteArray("first"));
    QCOMPARE(FileBytes(m_Path + QLatin1String(".damaged-2")), QByteArray("second"));
    QCOMPARE(FileBytes(m_Path + QLatin1String(".damaged-3")), QByteArray("third"));
}

void StoreRecoversFromDamage::aMissingFileIsReplacedByTheGoodCopy()
{
    // The state after a power cut between the moving and the replacing of a damaged file.
    Place(QByteArray());
    QVERIFY(QFile::remove(m_Path));
    TStandardErrorCapture standardError;
    QCOMPARE(StoredValues(m_Path), m_GoodValues);
    QCOMPARE(standardError.Lines().value(0), m_Path + QLatin1String(": missing"));
    QCOMPARE(standardError.Lines().size(), 2);
}

void StoreRecoversFromDamage::aLogLeftBehindIsNotAppliedToTheGoodCopy()
{
    // The log of an open store. It has changes that are not in the good copy.
    Place(m_FileBytes);
    QByteArray log;
    {
        const auto store = OpenStore(m_Path);
        store->SetParameter(PARAM_CLIENT, QLatin1String("Brown"), true);
        log = FileBytes(m_Path + QLatin1String("-wal"));
        QVERIFY(!log.isEmpty());
    }
    Place(QByteArray());
    QVERIFY(QFile::remove(m_Path));
    SetFileBytes(m_Path + QLatin1String("-wal"), log);
    TStandardErrorCapture standardError;
    QCOMPARE(StoredValues(m_Path), m_GoodValues);
    QCOMPARE(FileBytes(m_Path + FirstAside + QLatin1String("-wal")), log);
}

void StoreRecoversFromDamage::aTornLogGivesAWholeEarlierState()
{
    // A power cut removes the end of the last changes. Writes that have returned are before that.
    const int writes = 5;
    const QLatin1String suffix("-wal");
    QByteArray file;
    QByteArray log;
    QList<QMap<int, QVariant>> states;
    {
        Place(m_FileBytes);
        const auto store = OpenStore(m_Path);
        states += store->Values();
        for (int id = 1; id <= writes; ++id) {
            store->SetParameter(Param(id), id, true);
            states += store->Values();
        }
        file = FileBytes(m_Path);
        log = FileBytes(m_Path + suffix);
    }
    // Around the end of each frame, and somewhere in it.
    QRandomGenerator random(TestSeed());
    QVector<int> lengths{0, LogHeaderSize / 2, LogHeaderSize};
    for (int end = LogHeaderSize + FrameSize; end <= log.size(); end += FrameSize)
        lengths << end - random.bounded(2, FrameSize) << end - 1 << end;
    QCOMPARE(lengths.last(), static_cast<int>(log.size()));
    int previous = 0;
    for (const int length : std::as_const(lengths)) {
        Place(file);
        SetFileBytes(m_Path + suffix, log.left(length));
        const int state = static_cast<int>(states.indexOf(StoredValues(m_Path)));
        QVERIFY2(state >= previous,
                 qPrintable(QString::fromLatin1("log of %1 bytes: state %2").arg(length).arg(state)));
        previous = state;
    }
    QCOMPARE(previous, writes);
}

void StoreRecoversFromDamage::withoutAGoodCopyTheStoreStartsEmptyAndSaysSo_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("half") << m_FileBytes.left(5000);
    QTest::newRow("second page") << QByteArray(m_FileBytes).replace(4096, 4096, QByteArray(4096, '\0'));
}

void StoreRecoversFromDamage::withoutAGoodCopyTheStoreStartsEmptyAndSaysSo()
{
    QFETCH(QByteArray, bytes);
    SetFileBytes(m_Path, bytes);
    TStandardErrorCapture standardError;
    QVERIFY(StoredValues(m_Path).isEmpty());
    QCOMPARE(FileBytes(m_Path + FirstAside), bytes);
    QCOMPARE(standardError.Lines().size(), 2);
    QCOMPARE(standardError.Lines().at(1), m_Path + QLatin1String(": no good copy, going on with an empty store"));
}

void StoreRecoversFromDamage::aDamagedGoodCopyIsNotTrusted_data()
{
    QTest::addColumn<QByteArray>("good");
    QTest::newRow("half") << m_GoodBytes.left(5000);
    QTest::newRow("text") << QByteArray("text");
    QTest::newRow("nothing") << QByteArray();
}

void StoreRecoversFromDamage::aDamagedGoodCopyIsNotTrusted()
{
    QFETCH(QByteArray, good);
    Place(m_FileBytes.left(5000));
    SetFileBytes(m_Path + Good, good);
    TStandardErrorCapture standardError;
    QVERIFY(StoredValues(m_Path).isEmpty());
    QCOMPARE(FileBytes(m_Path + Good + FirstAside), good);
    QCOMPARE(FileBytes(m_Path + FirstAside), m_FileBytes.left(5000));
    QCOMPARE(standardError.Lines().size(), 3);
}

void StoreRecoversFromDamage::aNewStoreSaysNothing_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::newRow("no file") << false;
    QTest::newRow("a file of zero length") << true;
}

void StoreRecoversFromDamage::aNewStoreSaysNothing()
{
    QFETCH(bool, isThere);
    if (isThere)
        SetFileBytes(m_Path, QByteArray());
    TStandardErrorCapture standardError;
    QVERIFY(OpenStore(m_Path)->Values().isEmpty());
    QCOMPARE(standardError.Lines(), QStringList());
    QCOMPARE(NamesBeside(m_Path), (QStringList{QLatin1String("settings.db"), QLatin1String("settings.db.copies"),
                                               QLatin1String("settings.db.good")}));
}

void StoreRecoversFromDamage::theGoodCopyIsMadeAtOpeningAndClosing()
{
    const QString select = QLatin1String("SELECT value FROM parameters WHERE id = 8932");
    Place(m_FileBytes);
    auto store = OpenStore(m_Path);
    QCOMPARE(RunSql(m_Path + Good, select).toString(), QLatin1String("Jones"));
    store->SetParameter(PARAM_CLIENT, QLatin1String("Brown"), true);
    QCOMPARE(RunSql(m_Path + Good, select).toString(), QLatin1String("Jones"));
    store.reset();
    QCOMPARE(RunSql(m_Path + Good, select).toString(), QLatin1String("Brown"));
    QCOMPARE(NamesBeside(m_Path), (QStringList{QLatin1String("settings.db"), QLatin1String("settings.db.copies"),
                                               QLatin1String("settings.db.good")}));
}

void StoreRecoversFromDamage::theGoodCopyIsNotMadeOfADamagedFile()
{
    Place(m_FileBytes);
    auto store = OpenStore(m_Path);
    const QByteArray good = FileBytes(m_Path + Good);
    TStandardErrorCapture standardError;
    RunSql(m_Path, QLatin1String("INSERT INTO parameters VALUES (8933, 'string', 'Hill', '0')"));
    QTRY_COMPARE_WITH_TIMEOUT(standardError.Lines(),
                              QStringList(QLatin1String("parameter 8933 cannot be read: it does not match its digest")),
                              SoonMilliseconds);
    store.reset();
    QCOMPARE(FileBytes(m_Path + Good), good);
    QCOMPARE(
        standardError.Lines().mid(1),
        QStringList(
            QString::fromLatin1("%1.good cannot be made: its parameter 8933 does not match its digest").arg(m_Path)));
}

void StoreRecoversFromDamage::remainsOfAnUnfinishedCopyDoNotMatter()
{
    for (const char* suffix : {".new", ".good.new"}) {
        Place(m_FileBytes.left(5000));
        SetFileBytes(m_Path + QLatin1String(suffix), "half a copy");
        SetFileBytes(m_Path + QLatin1String(suffix) + QLatin1String("-journal"), "half a journal");
        TStandardErrorCapture standardError;
        QCOMPARE(StoredValues(m_Path), m_GoodValues);
        QCOMPARE(NamesBeside(m_Path),
                 (QStringList{QLatin1String("settings.db"), QLatin1String("settings.db.copies"),
                              QLatin1String("settings.db.damaged-1"), QLatin1String("settings.db.good")}));
    }
}

QTEST_GUILESS_MAIN(StoreRecoversFromDamage)
#include "StoreRecoversFromDamage.moc"
