#include "InOwnProcess.h"
#include "Latin1.h"
#include "TestSeed.h"

#include <QDir>
#include <QFile>
#include <QtTest>

/// How random tests get their seeds.
class RandomSeeds : public QObject
{
    Q_OBJECT

private slots:
    void aGivenSeedIsTaken_data();
    void aGivenSeedIsTaken();
    void withoutOneEachRunHasAnother();
    void everyTestTakesItsSeedHere();
};

namespace {

/// What a program with this variable gets; "died" when it ends without a seed.
QString SeedOfAProgram(const char* given)
{
    const auto seed = [given] {
        qputenv(TestSeedVariable, given);
        return QStringList(QString::number(TestSeed()));
    };
    return InOwnProcess(seed).first();
}

/// The sources in a folder and in those below it.
QStringList SourcesBelow(const QDir& folder)
{
    QStringList sources;
    const QFileInfoList entries = folder.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries) {
        if (entry.isDir())
            sources += SourcesBelow(QDir(entry.filePath()));
        else if (entry.suffix() == Latin1("cpp") || entry.suffix() == Latin1("h"))
            sources.append(entry.filePath());
    }
    return sources;
}

bool HasAnyOf(const QByteArray& text, const QList<QByteArray>& words)
{
    for (const QByteArray& word : words) {
        if (text.contains(word))
            return true;
    }
    return false;
}

} // namespace

void RandomSeeds::aGivenSeedIsTaken_data()
{
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<QString>("seed");
    QTest::newRow("least") << QByteArray("0") << Latin1("0");
    QTest::newRow("greatest") << QByteArray("4294967295") << Latin1("4294967295");
    QTest::newRow("too great") << QByteArray("4294967296") << Latin1("died");
    QTest::newRow("not a number") << QByteArray("today") << Latin1("died");
}

void RandomSeeds::aGivenSeedIsTaken()
{
    QFETCH(QByteArray, given);
    QFETCH(QString, seed);
    QCOMPARE(SeedOfAProgram(given.constData()), seed);
}

void RandomSeeds::withoutOneEachRunHasAnother()
{
    const QString seed = SeedOfAProgram("");
    QVERIFY(seed != Latin1("died"));
    QVERIFY(SeedOfAProgram("") != seed);
}

void RandomSeeds::everyTestTakesItsSeedHere()
{
    const QList<QByteArray> generators = QList<QByteArray>() << "mt19937"
                                                             << "minstd_rand"
                                                             << "QRandomGenerator";
    const QList<QByteArray> otherSeeds = QList<QByteArray>() << "random_device"
                                                             << "QRandomGenerator::global"
                                                             << "QRandomGenerator::system"
                                                             << "QRandomGenerator::secure"
                                                             << "rand()";
    const QStringList own = QStringList() << Latin1("TestSeed.h") << Latin1("RandomSeeds.cpp");
    int randomTests = 0;
    const QStringList sources = SourcesBelow(QDir(QString::fromUtf8(CABSETTINGS_TEST_SOURCES)));
    for (const QString& path : sources) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll().replace("std::mt19937&", ""); // the generator of the caller
        if (own.contains(QFileInfo(path).fileName()))
            continue;
        QVERIFY2(!HasAnyOf(text, otherSeeds),
                 qPrintable(path + Latin1(" has a seed of its own; TestSeed() gives one")));
        if (HasAnyOf(text, generators)) {
            ++randomTests;
            QVERIFY2(text.contains("TestSeed()"), qPrintable(path + Latin1(" does not start with TestSeed()")));
        }
    }
    QVERIFY(randomTests > 0);
}

QTEST_APPLESS_MAIN(RandomSeeds)
#include "RandomSeeds.moc"
