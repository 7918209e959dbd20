#include "TWorkRoom.h"

#include "nmea/NmeaChecksum.h"
#include "parameters/HostParameters.h"

#include <cmath>

namespace {

const int Epochs = 200; // 20 seconds

} // namespace

class WorkOnField : public QObject
{
    Q_OBJECT

private slots:
    void groundIsCoveredWhileWorking();
    void coverageComesBackWithItsJob();
    void aJobWithoutFieldHasNoPlaceForCoverage();
    void aNewFieldBeginsWhereTheVehicleIs();
    void lineIsSetFollowedAndKept();
    void aNewLineDoesNotReplaceAnother();
    void linesAreSavedAndChosenByName();
    void bNeedsAnA();
    void implementIsKept();
    void eachImplementHasItsOwnWidth();
    void flagsAreKept();
    void aLostFixEndsTheStrip();
    void figuresFollowAtTheirOwnPace();
    void theControllerIsThatOfTheSimulator();
};

void WorkOnField::groundIsCoveredWhileWorking()
{
    TWorkRoom room;
    TWork& work = *room.work;
    room.Drive(20);
    QCOMPARE(work.AreaDone(), 0.0);
    QCOMPARE(work.Productivity(), 0.0);
    QVERIFY(!work.Map()->Vehicle()->isWorking);

    work.SetWorking(true);
    room.Drive(Epochs);
    QVERIFY(work.Distance() > 30); // from the turn's speed up to 10 km/h
    QVERIFY(std::abs(work.AreaDone() * 10000 - work.Distance() * 12) < 0.005 * work.Distance() * 12);
    QCOMPARE(work.Map()->Strips().size(), Epochs - 1);
    QVERIFY(std::abs(work.Productivity() - work.Speed() * 12 * 0.36) < 1e-9);
    QVERIFY(std::abs(work.OffLine()) < 0.01); // the first pass is line 0
    QCOMPARE(work.LineNumber(), 0);
    QVERIFY(std::abs(work.Course() - 15) < 0.1);

    const double done = work.AreaDone();
    const double left = work.AreaLeft();
    work.SetWorking(false);
    room.Drive(20);
    QCOMPARE(work.AreaDone(), done);
    QCOMPARE(work.AreaLeft(), left);
}

void WorkOnField::coverageComesBackWithItsJob()
{
    TWorkRoom room;
    room.work->SetWorking(true);
    room.Drive(Epochs);
    const double done = room.work->AreaDone();
    const double distance = room.work->Distance();
    QVERIFY(done > 0);

    room.Restart();
    QCOMPARE(room.work->Map()->Strips().size(), Epochs - 1);
    QVERIFY(std::abs(room.work->AreaDone() - done) < 0.001 * done); // the file has millimetres
    QVERIFY(std::abs(room.work->Distance() - distance) < 0.001 * distance);

    room.Select("job", "J_2");
    QVERIFY(room.work->Map()->Strips().isEmpty());
    QCOMPARE(room.work->AreaDone(), 0.0);
    QCOMPARE(room.work->JobText(), QLatin1String("J_2"));
    room.work->SetWorking(true);
    room.Drive(50);
    QCOMPARE(room.work->Map()->Strips().size(), 49);

    room.Select("job", "J_1");
    QCOMPARE(room.work->Map()->Strips().size(), Epochs - 1);
    room.Drive(50); // it goes on
    room.Restart();
    QCOMPARE(room.work->Map()->Strips().size(), Epochs - 1 + 49);
    room.Select("job", "J_2");
    QCOMPARE(room.work->Map()->Strips().size(), 49);
    QCOMPARE(room.Problems(), QStringList());
}

void WorkOnField::aJobWithoutFieldHasNoPlaceForCoverage()
{
    TWorkRoom room(false);
    QVERIFY(std::isnan(room.work->AreaLeft()));
    QVERIFY(!room.work->HasLine());
    QVERIFY(room.Problems().filter(QLatin1String("No job")).isEmpty());
    room.work->SetWorking(true);
    room.Drive(50);
    QCOMPARE(room.work->Map()->Strips().size(), 49); // it is shown, but the operator is told
    QVERIFY(room.HasProblem("No job is chosen"));
    room.work->SetWorking(false);
    QVERIFY(room.HasNoProblem("No job is chosen"));
}

void WorkOnField::aNewFieldBeginsWhereTheVehicleIs()
{
    TWorkRoom room(false);
    room.Select("client", "Miller");
    room.Select("farm", "West");
    room.Select("field", "W7");
    room.Select("job", "J_9");
    room.work->SetWorking(true);
    room.Drive(50);
    room.Restart();
    QCOMPARE(room.work->Map()->Strips().size(), 49);
    QVERIFY(std::abs(room.work->Map()->Strips().first().corners[0].east) < 20);
    QVERIFY(QFile::exists(room.FieldFile("Jobs/J_9/J_9.cov")));
}

void WorkOnField::lineIsSetFollowedAndKept()
{
    TWorkRoom room;
    QVERIFY(!room.work->setA()); // no position yet
    room.Drive(1);
    QVERIFY(room.work->setA());
    QVERIFY(room.work->HasA());
    QVERIFY(!room.work->HasLine());
    QVERIFY(std::isnan(room.work->OffLine()));
    QVERIFY(!room.work->Map()->Guidance()->isLine);
    room.Drive(100);
    QVERIFY(room.work->setB());
    QVERIFY(room.work->HasLine());
    QVERIFY(room.work->Map()->Guidance()->isLine);
    QCOMPARE(room.work->Map()->Guidance()->spacing, 12.0);
    room.Drive(100);
    QVERIFY(std::abs(room.work->OffLine()) < 0.05);

    const QString name = room.terminal.Text("Selections.abLine");
    room.Restart();
    QCOMPARE(room.terminal.Text("Selections.abLine"), name);
    QVERIFY(room.work->HasLine());
    room.Drive(1);
    QVERIFY(std::abs(room.work->OffLine()) < 0.05);
    room.work->clearLine();
    QVERIFY(!room.work->HasLine());
    QVERIFY(!room.work->Map()->Guidance());
    QVERIFY(std::isnan(room.work->OffLine()));
}

void WorkOnField::aNewLineDoesNotReplaceAnother()
{
    TWorkRoom room;
    QString error;
    const QString path = room.FieldFile("ABLines/AB_1/AB_1.ini");
    const tagGuidanceLine before = *ReadGuidanceLine(path, &error);
    QStringList names = {room.terminal.Text("Selections.abLine")};
    for (int i = 0; i < 3; ++i) { // within one minute
        room.Drive(20);
        QVERIFY(room.work->setA());
        room.Drive(20);
        QVERIFY(room.work->setB());
        QVERIFY(!names.contains(room.terminal.Text("Selections.abLine")));
        names.append(room.terminal.Text("Selections.abLine"));
    }
    room.Restart(); // everything is written
    for (const QString& name : names) {
        const QString file = room.FieldFile("ABLines/") + name + QLatin1Char('/') + name + QLatin1String(".ini");
        QVERIFY2(ReadGuidanceLine(file, &error), qPrintable(file + error));
    }
    QCOMPARE(ReadGuidanceLine(path, &error)->b.latitude, before.b.latitude);
}

void WorkOnField::linesAreSavedAndChosenByName()
{
    TWorkRoom room;
    TWork& work = *room.work;
    room.Drive(1);
    const double first = work.Map()->Guidance()->b.x();
    QCOMPARE(work.saveLine(QLatin1String("East")), QString());
    QCOMPARE(room.terminal.Text("Selections.abLine"), QLatin1String("East"));
    QVERIFY(!work.saveLine(QLatin1String("a/b")).isEmpty()); // no name of a folder
    QVERIFY(!work.saveLine(QString()).isEmpty());
    work.setA();
    QVERIFY(!work.saveLine(QLatin1String("West")).isEmpty()); // there is no line
    room.Drive(100);
    QVERIFY(work.setB());
    QVERIFY(std::abs(work.Map()->Guidance()->b.x() - first) > 10);

    QCOMPARE(work.loadLine(QLatin1String("East")), QString());
    QCOMPARE(work.Map()->Guidance()->b.x(), first);
    work.clearLine();
    QCOMPARE(work.loadLine(QLatin1String("East")), QString()); // which is selected still
    QCOMPARE(work.Map()->Guidance()->b.x(), first);
    QCOMPARE(work.loadLine(QLatin1String("none")), QString());
    QVERIFY(!work.HasLine());
    room.Select("abLine", "East"); // by the settings page
    QTRY_VERIFY(work.HasLine());
}

void WorkOnField::bNeedsAnA()
{
    TWorkRoom room;
    room.work->clearLine();
    room.Drive(1);
    QVERIFY(!room.work->setB());
    QVERIFY(room.work->setA());
    QVERIFY(!room.work->setB()); // at the same place
    QVERIFY(room.work->HasA());
    QVERIFY(!room.work->HasLine());
}

void WorkOnField::implementIsKept()
{
    TWorkRoom room;
    QCOMPARE(room.work->ImplementWidth(), 12.0);
    const QSignalSpy changed(room.work.get(), &TWork::implementChanged);
    room.work->SetImplementWidth(24.5);
    room.work->SetImplementBehind(-1.25);
    QCOMPARE(changed.count(), 2);
    for (const double wrong : {0.5, 48.5, qQNaN(), qInf()}) {
        QVERIFY(!room.work->checkWidth(wrong).isEmpty());
        room.work->SetImplementWidth(wrong);
    }
    room.work->SetImplementBehind(21);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(room.work->checkWidth(24.5), QString());
    room.Drive(1);
    QCOMPARE(room.work->Map()->Guidance()->spacing, 24.5);
    QCOMPARE(room.work->Map()->Vehicle()->implementWidth, 24.5);

    room.Restart();
    QCOMPARE(room.work->ImplementWidth(), 24.5);
    QCOMPARE(room.work->ImplementBehind(), -1.25);
}

void WorkOnField::eachImplementHasItsOwnWidth()
{
    TWorkRoom room;
    room.Select("implement", "Boom 36");
    room.work->SetImplementWidth(36);
    room.Select("implement", "Drill");
    QTRY_COMPARE(room.work->ImplementWidth(), 12.0);
    room.work->SetImplementWidth(3);
    room.Select("implement", "Boom 36");
    QTRY_COMPARE(room.work->ImplementWidth(), 36.0);
}

void WorkOnField::flagsAreKept()
{
    TWorkRoom room;
    QVERIFY(!room.work->mark());
    room.Drive(1);
    QVERIFY(room.work->mark());
    room.Drive(50);
    QVERIFY(room.work->mark());
    const QVector<QPointF> flags = room.work->Map()->Flags();
    QCOMPARE(flags.size(), 2);
    room.Restart();
    QCOMPARE(room.work->Map()->Flags().size(), 2);
    QVERIFY(QLineF(room.work->Map()->Flags().last(), flags.last()).length() < 0.001);
}

void WorkOnField::aLostFixEndsTheStrip()
{
    TWorkRoom room;
    room.work->SetWorking(true);
    room.Drive(10);
    QVERIFY(room.work->HasPosition());
    const QByteArray lost = "GNRMC,060002.00,V,,,,,,,010524,,,N";
    CabQuick::Receiver().Show('$' + lost + NmeaChecksum(lost) + "\r\n");
    QVERIFY(!CabQuick::Receiver().HasFix());
    QVERIFY(!room.work->HasPosition());
    QVERIFY(!room.work->Map()->Vehicle());
    QVERIFY(std::isnan(room.work->OffLine()));
    QVERIFY(std::isnan(room.work->Rate()));
    QVERIFY(!room.work->mark());
    room.Drive(10);
    QVERIFY(room.work->HasPosition());
    QCOMPARE(room.work->Map()->Strips().size(), 9 + 9);
}

void WorkOnField::figuresFollowAtTheirOwnPace()
{
    TWorkRoom room;
    room.work->SetWorking(true);
    QSignalSpy moved(room.work.get(), &TWork::moved);
    QSignalSpy figures(room.work.get(), &TWork::figuresChanged);
    room.Drive(100);
    QCOMPARE(moved.count(), 100);
    QVERIFY(figures.count() < 50);
    const auto before = figures.count();
    QTRY_VERIFY(figures.count() > before); // what came last is told too
}

void WorkOnField::theControllerIsThatOfTheSimulator()
{
    TWorkRoom room;
    QVERIFY(std::isnan(room.work->RateSet()));
    room.work->SetWorking(true);
    room.Drive(50);
    QCOMPARE(room.work->RateSet(), 180.0);
    QVERIFY(std::abs(room.work->RateError()) < 25);
    QVERIFY(std::abs(room.work->Flow() - room.work->Rate() * room.work->Speed() * 12 * 60 / 10000) < 1e-6);

    room.terminal.Store().SetParameter(PARAM_RECEIVER_ADDRESS, QLatin1String("tcp://127.0.0.1:9"), true);
    QTRY_COMPARE(CabQuick::Receiver().Address(), QLatin1String("tcp://127.0.0.1:9"));
    room.Drive(1);
    QVERIFY(std::isnan(room.work->Rate()));
    QVERIFY(std::isnan(room.work->Temperature()));
}

QTEST_MAIN(WorkOnField)
#include "WorkOnField.moc"
