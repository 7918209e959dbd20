#include "TWorkRoom.h"

#include "coverage/TCoverageFile.h"

namespace {

const int Before = 30;
const int Held = 50;
const int After = 20;

/// Another program that has the coverage of the active job open, as far as the lock goes.
std::unique_ptr<TCoverageFile> Hold(const QString& path)
{
    tagCoverage found;
    QString error;
    std::unique_ptr<TCoverageFile> file = TCoverageFile::Open(path, &found, &error);
    if (!file)
        qFatal("%s", qPrintable(error));
    return file;
}

/// A display that starts while the coverage of its job is held.
struct tagHeldRoom
{
    tagHeldRoom()
    {
        room.work->SetWorking(true);
        room.Drive(Before);
        room.work.reset();
        path = room.FieldFile("Jobs/J_1/J_1.cov");
        holder = Hold(path);
        room.Restart();
        room.work->SetWorking(true);
    }

    int Strips() const { return static_cast<int>(room.work->Map()->Strips().size()); }

    bool HasStrips(int count) const
    {
        return QTest::qWaitFor([&] { return Strips() == count; }, 60000);
    }

    TWorkRoom room;
    QString path;
    std::unique_ptr<TCoverageFile> holder;
};

} // namespace

/// Another program has the file of the job's coverage open.
class WorkWithHeldCoverage : public QObject
{
    Q_OBJECT

private slots:
    void theGroundIsAddedWhenTheFileIsLetGo();
    void theGroundIsWhereItWouldHaveBeen();
    void whatTheOperatorSetsMeanwhileStays();
    void anotherJobThatIsChosenLosesNothing();
    void theEndOfTheProgramLosesNothing();
    void aFileThatCannotBeUsedIsSaid();
};

void WorkWithHeldCoverage::theGroundIsAddedWhenTheFileIsLetGo()
{
    tagHeldRoom held;
    QVERIFY(!held.room.work->IsLoading());
    QVERIFY(held.room.HasProblem("Another program uses"));
    QCOMPARE(held.room.Problems().size(), 1);
    QCOMPARE(held.Strips(), 0);
    held.room.Drive(Held);
    QCOMPARE(held.Strips(), Held - 1); // the operator sees what is covered now
    held.holder.reset();
    QVERIFY(held.HasStrips(Before - 1 + Held - 1));
    QVERIFY(held.room.HasNoProblem("Another program uses"));
    QCOMPARE(held.room.Problems(), QStringList());
    held.room.Drive(After); // joined to the last fix before
    QCOMPARE(held.Strips(), Before - 1 + Held - 1 + After);
    const double area = held.room.work->AreaDone();
    held.room.Restart();
    QCOMPARE(held.Strips(), Before - 1 + Held - 1 + After);
    QVERIFY(std::abs(held.room.work->AreaDone() - area) < area / 1000);
}

void WorkWithHeldCoverage::theGroundIsWhereItWouldHaveBeen()
{
    QVector<tagMapStrip> strips[2];
    for (const bool isHeld : {false, true}) {
        tagHeldRoom held;
        if (!isHeld)
            held.holder.reset();
        if (!isHeld)
            QVERIFY(held.HasStrips(Before - 1));
        held.room.Drive(Held);
        held.holder.reset();
        QVERIFY(held.HasStrips(Before - 1 + Held - 1));
        strips[isHeld ? 1 : 0] = held.room.work->Map()->Strips();
    }
    for (int i = 0; i < strips[0].size(); ++i) {
        for (std::size_t corner = 0; corner < 4; ++corner) {
            QCOMPARE(strips[1].at(i).corners[corner].east, strips[0].at(i).corners[corner].east);
            QCOMPARE(strips[1].at(i).corners[corner].north, strips[0].at(i).corners[corner].north);
        }
    }
}

void WorkWithHeldCoverage::whatTheOperatorSetsMeanwhileStays()
{
    tagHeldRoom held;
    held.room.Drive(Held);
    QVERIFY(held.room.work->mark());
    const auto flags = held.room.work->Map()->Flags().size();
    QVERIFY(held.room.work->setA());
    held.room.work->SetWorking(false);
    held.room.Drive(Held);
    held.holder.reset();
    QVERIFY(held.HasStrips(Before - 1 + Held - 1));
    QCOMPARE(held.room.work->Map()->Flags().size(), flags);
    QVERIFY(held.room.work->HasA());
    QVERIFY(held.room.work->setB());
    held.room.Drive(After);
    QCOMPARE(held.Strips(), Before - 1 + Held - 1);
}

void WorkWithHeldCoverage::anotherJobThatIsChosenLosesNothing()
{
    tagHeldRoom held;
    held.room.Drive(Held);
    held.holder.reset();
    held.room.Select("job", "J_2"); // before the file is tried again
    QVERIFY(held.room.HasNoProblem("Another program uses"));
    held.room.work->SetWorking(false);
    held.room.Select("job", "J_1");
    QCOMPARE(held.Strips(), Before - 1 + Held - 1);
}

void WorkWithHeldCoverage::theEndOfTheProgramLosesNothing()
{
    tagHeldRoom held;
    held.room.Drive(Held);
    held.holder.reset();
    held.room.Restart();
    QCOMPARE(held.Strips(), Before - 1 + Held - 1);
}

void WorkWithHeldCoverage::aFileThatCannotBeUsedIsSaid()
{
    tagHeldRoom held;
    held.room.Drive(Held);
    QFile file(held.path); // the other program has left it as it cannot be read
    QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(7) && file.putChar(2));
    file.close();
    held.holder.reset();
    QVERIFY(held.room.HasProblem("another version of the software"));
    QVERIFY(held.room.HasProblem("what is covered is not stored"));
    QVERIFY(held.room.HasNoProblem("Another program uses"));
    QCOMPARE(held.Strips(), Held - 1);
}

QTEST_MAIN(WorkWithHeldCoverage)
#include "WorkWithHeldCoverage.moc"
