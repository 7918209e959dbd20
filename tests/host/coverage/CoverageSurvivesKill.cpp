#include "Drive.h"
#include "StoreTestSupport.h"
#include "TTemporaryFolder.h"
#include "TestSeed.h"

#include "coverage/TCoverageFile.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QThread>
#include <QtTest>

// The child runs this program. Its arguments are the coverage file and the milliseconds from one strip to the next.
namespace {

const int FixesPerSecond = 10;
const int MostLostSeconds = 10;

tagCoverageStrip Strip(int number) { return Pass({0, number * 0.28}, 0, 12, 0.28, 1).front(); }

int RunChild(const QStringList& arguments)
{
    tagCoverage found;
    QString error;
    const auto file = TCoverageFile::Open(arguments.at(1), &found, &error);
    if (!file)
        return 1;
    file->SetOrigin({52, 10});
    const unsigned long pause = arguments.at(2).toULong();
    for (int number = 0;; ++number) {
        file->Add(Strip(number));
        TChild::Tell(number + 1);
        if (pause > 0)
            QThread::msleep(pause);
    }
}

/// Kills the child as soon as it has told @p number. Returns the last number that it has told.
int KillAfter(TChild& child, int number)
{
    int last = 0;
    for (int told = child.NextNumber(); told > 0; told = child.NextNumber()) {
        last = told;
        if (told == number)
            child.Kill();
    }
    return last;
}

} // namespace

class CoverageSurvivesKill : public QObject
{
    Q_OBJECT

private slots:
    void aKillCostsSeconds();
    void whatIsThereIsTheBeginning_data();
    void whatIsThereIsTheBeginning();

private:
    static void VerifyBeginning(const std::vector<tagCoverageStrip>& strips);
};

void CoverageSurvivesKill::VerifyBeginning(const std::vector<tagCoverageStrip>& strips)
{
    for (std::size_t i = 0; i < strips.size(); ++i)
        QVERIFY(IsSame(strips[i], Strip(static_cast<int>(i))));
}

void CoverageSurvivesKill::aKillCostsSeconds()
{
    const TTemporaryFolder folder;
    const QString path = folder.Path(QLatin1String("J_1.cov"));
    TChild child({path, QString::number(1000 / FixesPerSecond)});
    const int told = KillAfter(child, (MostLostSeconds + 2) * FixesPerSecond);
    QVERIFY(child.WasKilled());

    tagCoverage found;
    QString error;
    QVERIFY(TCoverageFile::Open(path, &found, &error));
    VerifyBeginning(found.strips);
    const int lost = told - static_cast<int>(found.strips.size());
    QVERIFY2(lost <= MostLostSeconds * FixesPerSecond, qPrintable(QString::number(lost)));
}

void CoverageSurvivesKill::whatIsThereIsTheBeginning_data()
{
    QTest::addColumn<int>("strips");
    QRandomGenerator random(TestSeed());
    for (int row = 0; row < 8; ++row)
        QTest::addRow("%d", row) << random.bounded(1, 15000);
}

void CoverageSurvivesKill::whatIsThereIsTheBeginning()
{
    // As fast as possible, so that something is being written at most times.
    QFETCH(int, strips);
    const TTemporaryFolder folder;
    const QString path = folder.Path(QLatin1String("J_1.cov"));
    TChild child({path, QLatin1String("0")});
    const int told = KillAfter(child, strips);
    QVERIFY(child.WasKilled());

    tagCoverage found;
    QString error;
    QVERIFY2(TCoverageFile::Open(path, &found, &error), qPrintable(error));
    VerifyBeginning(found.strips);
    QVERIFY(static_cast<int>(found.strips.size()) <= told + 1); // the last one was added but not told
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1).endsWith(QLatin1String(".cov")))
        return RunChild(arguments);
    CoverageSurvivesKill test;
    return QTest::qExec(&test, argc, argv);
}
#include "CoverageSurvivesKill.moc"
