#include "support/FuzzTarget.h"
#include "support/TFuzzRoom.h"
#include "support/TSeededInputs.h"

#include <QCryptographicHash>
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
    void aSeedGivesTheSameInputsEverywhere();

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

// The digest is the same with every compiler, Qt and width of the machine: a stage of the checks relies on it.
void FuzzReplay::aSeedGivesTheSameInputsEverywhere()
{
    const QList<QByteArray> beginnings = {"", "speed=12.5\r\n", QByteArray(3000, 'x'), QByteArray::fromHex("0001ff")};
    const int most = 2000;
    const auto digestOf = [&](unsigned seed, bool isReversed) {
        TSeededInputs inputs(seed);
        for (int i = 0; i < beginnings.size(); ++i)
            inputs.Add(beginnings.at(isReversed ? static_cast<int>(beginnings.size()) - 1 - i : i));
        QCryptographicHash digest(QCryptographicHash::Sha256);
        for (int i = 0; i < 5000; ++i) {
            const QByteArray input = inputs.Next(most);
            if (input.isEmpty() || input.size() > most)
                return QByteArray("an input has a wrong size");
            digest.addData(QByteArray::number(input.size()) + ':' + input);
        }
        return digest.result().toHex().left(16);
    };
    QCOMPARE(digestOf(1, false), QByteArray("723f611ab691b2c6"));
    QCOMPARE(digestOf(1, true), digestOf(1, false));
    QVERIFY(digestOf(2, false) != digestOf(1, false));
    QVERIFY(TSeededInputs(1).Next(1).size() == 1); // with nothing to begin with
}

QTEST_GUILESS_MAIN(FuzzReplay)
#include "FuzzReplay.moc"
