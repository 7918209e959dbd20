#include "StoreTestSupport.h"
#include "SystemCalls.h"
#include "copies/StoreCopies.h"
#include "stores/ChangeJournal.h"
#include "stores/TPersistenceHold.h"

#include <QCoreApplication>
#include <QDir>
#include <QtTest>

// The child runs this program with the file of the store and the call at which it is killed.
namespace {

const int ParameterCount = 30;

bool SetAll(TSqliteStore& store, const char* text)
{
    TPersistenceHold hold(store);
    for (int number = 0; number < ParameterCount; ++number)
        store.SetParameter(Param(number), QString::fromLatin1("%1 %2").arg(QLatin1String(text)).arg(number), true);
    return hold.Release();
}

/// Opens the store, restores its only copy and closes it, as a program does.
int Restore(const QString& path, int nth)
{
    SystemCalls::Kill(nth);
    const auto store = OpenStore(path);
    const auto copies = StoreCopies::List(path);
    QList<StoreCopies::tagDifference> changed;
    QString error;
    return store && !copies.isEmpty() && StoreCopies::Restore(*store, copies.last(), &changed, &error) ? 0 : 1;
}

} // namespace

/// A program that restores a copy is killed at each of its calls that change files.
class RestoreSurvivesKill : public QObject
{
    Q_OBJECT

private slots:
    void theStoreIsTheOldOrTheNewOne();
};

void RestoreSurvivesKill::theStoreIsTheOldOrTheNewOne()
{
    const auto folder = MakeFolder();
    const QString room = folder->filePath(QLatin1String("room"));
    const QString path = room + QLatin1String("/settings.db");
    const QString copyPath = path + QLatin1String(".copies/2001-02-03.db"); // an old one, which no program makes anew
    QVERIFY(QDir().mkpath(room));
    QVERIFY(SetAll(*OpenStore(path), "copied"));
    const QByteArray copy = FileBytes(path + QLatin1String(".good"));
    const QMap<int, QVariant> restored = StoredValues(path);
    {
        const auto store = OpenStore(path);
        QVERIFY(SetAll(*store, "later"));
        QVERIFY(store->SetParameter(Param(ParameterCount), 1, true)); // absent in the copy
    }
    const QByteArray before = FileBytes(path);
    const QMap<int, QVariant> old = StoredValues(path);

    int killed = 0;
    int applied = 0;
    bool isOver = false;
    for (int nth = SystemCalls::FirstToKill(); !isOver; nth = SystemCalls::NextToKill(nth)) {
        QVERIFY(QDir(room).removeRecursively() && QDir().mkpath(path + QLatin1String(".copies")));
        SetFileBytes(path, before);
        SetFileBytes(copyPath, copy);
        TChild child({path, QString::number(nth)});
        isOver = !child.WasKilled();
        killed += isOver ? 0 : 1;

        auto store = OpenStore(path);
        QVERIFY(store);
        const bool isOld = store->Values() == old;
        const bool isNew = store->Values() == restored;
        QVERIFY2(isOld || isNew, qPrintable(QString::number(nth)));
        QVERIFY(isNew || !isOver);
        applied += isNew ? 1 : 0;

        ChangeJournal::tagJournal journal;
        QString error;
        QVERIFY(ChangeJournal::Read(*store, {}, &journal, &error));
        int noted = 0;
        for (const ChangeJournal::tagEntry& entry : std::as_const(journal.entries))
            noted += entry.author == QLatin1String("restore") ? 1 : 0;
        QCOMPARE(noted, isNew ? ParameterCount + 1 : 0);

        // The next programs restore it, and leave nothing of the killed one behind.
        QList<StoreCopies::tagDifference> changed;
        QVERIFY2(StoreCopies::Restore(*store, StoreCopies::List(path).last(), &changed, &error), qPrintable(error));
        QCOMPARE(static_cast<int>(changed.size()), isNew ? 0 : ParameterCount + 1);
        StoreCopies::tagCopy made;
        QVERIFY2(StoreCopies::Make(*store, &made, &error), qPrintable(error));
        store.reset();
        QCOMPARE(NamesBeside(path).filter(QLatin1String(".new")), QStringList());
        const QString day = made.day.toString(Qt::ISODate);
        QCOMPARE(NamesBeside(copyPath), (QStringList{QLatin1String("2001-02-03.db"), day + QLatin1String("-1.db"),
                                                     day + QLatin1String(".db")}));
    }
    QVERIFY2(killed >= 20, qPrintable(QString::number(killed)));
    QVERIFY(applied >= 2 && applied < killed);
    qInfo("killed at %d calls, %d of them after the copy was restored", killed, applied - 1);
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1).endsWith(QLatin1String(".db")))
        return Restore(arguments.at(1), arguments.at(2).toInt());
    RestoreSurvivesKill test;
    return QTest::qExec(&test, argc, argv);
}
#include "RestoreSurvivesKill.moc"
