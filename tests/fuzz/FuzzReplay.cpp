#include "support/FuzzTarget.h"
#include "support/TFuzzRoom.h"

#include <QDir>
#include <QtTest>

#include <memory>

/// Replays the files of fuzz/corpus and fuzz/failures without a fuzzer: one row for each.
class FuzzReplay : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_Room = std::make_unique<TFuzzRoom>(); }
    void cleanupTestCase() { m_Room.reset(); }

    void everyTargetHasInputs_data();
    void everyTargetHasInputs();
    void everyInputKeepsThePromises_data();
    void everyInputKeepsThePromises();

private:
    std::unique_ptr<TFuzzRoom> m_Room;
};

namespace {

QDir Inputs(const char* kind, const QString& target)
{
    return QDir(QString::fromLatin1(CABSETTINGS_FUZZ_INPUTS "/%1/%2").arg(QLatin1String(kind), target));
}

} // namespace

void FuzzReplay::everyTargetHasInputs_data()
{
    QTest::addColumn<QString>("target");
    for (const tagFuzzTarget& target : FuzzTargets::All())
        QTest::newRow(target.name) << QString::fromLatin1(target.name);
}

void FuzzReplay::everyTargetHasInputs()
{
    QFETCH(QString, target);
    QVERIFY(!Inputs("corpus", target).entryList(QDir::Files).isEmpty());
    QVERIFY(QFile::exists(QLatin1String(CABSETTINGS_FUZZ_INPUTS "/dictionaries/") + target + QLatin1String(".dict")));
}

void FuzzReplay::everyInputKeepsThePromises_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("path");
    for (const char* kind : {"corpus", "failures"}) {
        for (const tagFuzzTarget& target : FuzzTargets::All()) {
            const QDir folder = Inputs(kind, QLatin1String(target.name));
            const QStringList names = folder.entryList(QDir::Files, QDir::Name);
            for (const QString& name : names)
                QTest::addRow("%s/%s/%s", kind, target.name, qPrintable(name))
                    << QString::fromLatin1(target.name) << folder.filePath(name);
        }
    }
}

void FuzzReplay::everyInputKeepsThePromises()
{
    QFETCH(QString, target);
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    try {
        FuzzTargets::Find(target)->check(file.readAll());
    } catch (const TBrokenProperty& broken) {
        QFAIL(broken.what());
    }
}

QTEST_GUILESS_MAIN(FuzzReplay)
#include "FuzzReplay.moc"
