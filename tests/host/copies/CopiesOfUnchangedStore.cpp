#include "StoreTestSupport.h"
#include "copies/StoreCopies.h"
#include "stores/ChangeJournal.h"

#include <QCoreApplication>
#include <QDir>
#include <QtTest>

#include <sys/stat.h>

namespace {

const QLatin1String Good(".good");
const QLatin1String WriteAndDie("write-and-die");

/// A file: which it is, and when it was written last.
QString Mark(const QString& path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return QLatin1String("missing");
    return QString::fromLatin1("%1 %2.%3")
        .arg(static_cast<qulonglong>(status.st_ino))
        .arg(static_cast<qlonglong>(status.st_mtim.tv_sec))
        .arg(static_cast<qlonglong>(status.st_mtim.tv_nsec));
}

} // namespace

/// When copies are made, and when that is spared.
class CopiesOfUnchangedStore : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aProgramThatChangesNothingWritesNoCopy_data();
    void aProgramThatChangesNothingWritesNoCopy();
    void aProgramThatChangesSomethingMakesTheGoodCopy_data();
    void aProgramThatChangesSomethingMakesTheGoodCopy();
    void theLastOfSeveralProgramsMakesTheGoodCopy();
    void aMissingCopyIsMade_data();
    void aMissingCopyIsMade();
    void afterAKilledProgramTheGoodCopyIsMade();
    void aCopyThatCouldNotBeMadeIsMadeLater();

private:
    QString GoodValue() const
    {
        return RunSql(m_Path + Good, QLatin1String("SELECT value FROM parameters WHERE id = 8932")).toString();
    }
    QStringList Marks() const;

    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
};

void CopiesOfUnchangedStore::init()
{
    m_Folder = MakeFolder();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
    QVERIFY(OpenStore(m_Path)->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    QCOMPARE(GoodValue(), QLatin1String("Smith"));
}

// Of the store, its good copy, the copies and their folder.
QStringList CopiesOfUnchangedStore::Marks() const
{
    const QString folder = m_Path + QLatin1String(".copies");
    QStringList marks{Mark(m_Path), Mark(m_Path + Good), Mark(folder)};
    for (const QString& name : QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        marks += name + QLatin1Char(' ') + Mark(folder + QLatin1Char('/') + name);
    return marks;
}

void CopiesOfUnchangedStore::aProgramThatChangesNothingWritesNoCopy_data()
{
    QTest::addColumn<QString>("what");
    for (const char* what : {"reads", "sets a value in memory", "sets the value again", "reads the journal",
                             "lists the copies", "is refused an undo"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

void CopiesOfUnchangedStore::aProgramThatChangesNothingWritesNoCopy()
{
    QFETCH(QString, what);
    const QStringList before = Marks();
    QCOMPARE(static_cast<int>(before.size()), 4); // one copy, that of the day
    {
        const auto store = OpenStore(m_Path);
        ChangeJournal::tagJournal journal;
        ChangeJournal::tagEntry undone;
        QString error;
        QCOMPARE(store->GetParameter(PARAM_CLIENT), QVariant(QLatin1String("Smith")));
        if (what == QLatin1String("sets a value in memory"))
            QVERIFY(store->SetParameter(PARAM_CLIENT, QLatin1String("Jones"), false));
        else if (what == QLatin1String("sets the value again"))
            QVERIFY(store->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
        else if (what == QLatin1String("reads the journal"))
            QVERIFY(ChangeJournal::Read(*store, {}, &journal, &error));
        else if (what == QLatin1String("lists the copies"))
            QCOMPARE(static_cast<int>(StoreCopies::List(m_Path).size()), 1);
        else if (what == QLatin1String("is refused an undo"))
            QVERIFY(!ChangeJournal::Undo(*store, 77, &undone, &error));
        QCOMPARE(Marks(), before);
    }
    QCOMPARE(Marks(), before);
}

void CopiesOfUnchangedStore::aProgramThatChangesSomethingMakesTheGoodCopy_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("value");
    QTest::newRow("sets a value") << QStringLiteral("set") << QStringLiteral("Jones");
    QTest::newRow("undoes a change") << QStringLiteral("undo") << QString();
}

void CopiesOfUnchangedStore::aProgramThatChangesSomethingMakesTheGoodCopy()
{
    QFETCH(QString, what);
    QFETCH(QString, value);
    const QStringList before = Marks();
    {
        const auto store = OpenStore(m_Path);
        ChangeJournal::tagEntry undone;
        QString error;
        if (what == QLatin1String("set"))
            QVERIFY(store->SetParameter(PARAM_CLIENT, value, true));
        else
            QVERIFY2(ChangeJournal::Undo(*store, std::nullopt, &undone, &error), qPrintable(error));
    }
    QCOMPARE(GoodValue(), value);
    const QStringList after = Marks();
    QCOMPARE(static_cast<int>(after.size()), 4);
    QVERIFY(after.at(1) != before.at(1));
    QVERIFY(after.at(3) != before.at(3));
}

void CopiesOfUnchangedStore::theLastOfSeveralProgramsMakesTheGoodCopy()
{
    auto first = OpenStore(m_Path);
    QVERIFY(first->SetParameter(PARAM_CLIENT, QLatin1String("Jones"), true));
    auto last = OpenStore(m_Path); // changes nothing itself
    first.reset();
    QCOMPARE(GoodValue(), QLatin1String("Smith"));
    last.reset();
    QCOMPARE(GoodValue(), QLatin1String("Jones"));

    first = OpenStore(m_Path);
    ChangeJournal::tagEntry undone;
    QString error;
    QVERIFY2(ChangeJournal::Undo(*first, std::nullopt, &undone, &error), qPrintable(error));
    last = OpenStore(m_Path);
    first.reset();
    last.reset();
    QCOMPARE(GoodValue(), QLatin1String("Smith"));
}

void CopiesOfUnchangedStore::aMissingCopyIsMade_data()
{
    QTest::addColumn<bool>("isGood");
    QTest::newRow("the good one") << true;
    QTest::newRow("that of the day") << false;
}

void CopiesOfUnchangedStore::aMissingCopyIsMade()
{
    QFETCH(bool, isGood);
    const QString copy = isGood ? m_Path + Good : StoreCopies::List(m_Path).first().path;
    QVERIFY(QFile::remove(copy));
    const auto store = OpenStore(m_Path);
    QVERIFY(QFile::exists(copy));
}

void CopiesOfUnchangedStore::afterAKilledProgramTheGoodCopyIsMade()
{
    TChild child({WriteAndDie, m_Path});
    QVERIFY(child.WasKilled());
    QCOMPARE(GoodValue(), QLatin1String("Smith"));
    // Also when another tool has emptied the log that the killed program has left.
    RunSql(m_Path, QLatin1String("PRAGMA wal_checkpoint(TRUNCATE)"));
    QVERIFY(OpenStore(m_Path)->HasParameter(PARAM_CLIENT));
    QCOMPARE(GoodValue(), QLatin1String("Jones"));
}

// A folder in the place of the unfinished copy stands in its way.
void CopiesOfUnchangedStore::aCopyThatCouldNotBeMadeIsMadeLater()
{
    const QString obstacle = m_Path + Good + QLatin1String(".new");
    const QStringList said(
        QString::fromLatin1("%1.good cannot be made: cannot remove %2: Is a directory").arg(m_Path, obstacle));
    QVERIFY(QDir().mkdir(obstacle));
    {
        TStandardErrorCapture standardError;
        QVERIFY(OpenStore(m_Path)->SetParameter(PARAM_CLIENT, QLatin1String("Jones"), true)); // fails at closing
        QCOMPARE(standardError.Lines(), said);
        QVERIFY(OpenStore(m_Path)->HasParameter(PARAM_CLIENT)); // fails at opening, and at closing
        QCOMPARE(standardError.Lines(), said + said + said);
    }
    QCOMPARE(GoodValue(), QLatin1String("Smith"));
    QVERIFY(QDir().rmdir(obstacle));
    QVERIFY(OpenStore(m_Path)->HasParameter(PARAM_CLIENT));
    QCOMPARE(GoodValue(), QLatin1String("Jones"));
    QVERIFY(!QFile::exists(m_Path + QLatin1String(".lock")));
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == WriteAndDie) {
        const auto store = OpenStore(arguments.at(2));
        if (store && store->SetParameter(PARAM_CLIENT, QLatin1String("Jones"), true))
            TChild::KillMyself();
        return 1;
    }
    CopiesOfUnchangedStore test;
    return QTest::qExec(&test, argc, argv);
}
#include "CopiesOfUnchangedStore.moc"
