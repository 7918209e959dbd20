#include "TWorkRoom.h"

#include <csignal>
#include <sys/resource.h>

namespace {

QByteArray Content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void SetContent(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

} // namespace

class WorkProblems : public QObject
{
    Q_OBJECT

private slots:
    void aTornCoverageIsSaid();
    void aCoverageOfAnotherVersionIsLeftAlone();
    void damagedFilesAreSaidAndLeftOut_data();
    void damagedFilesAreSaidAndLeftOut();
    void damagedFlagsAreNotReplaced();
    void aFullDiskIsSaidAndPasses();
};

void WorkProblems::aTornCoverageIsSaid()
{
    TWorkRoom room;
    room.work->SetWorking(true);
    room.Drive(50);
    room.work.reset();
    const QString path = room.FieldFile("Jobs/J_1/J_1.cov");
    const QByteArray whole = Content(path);
    SetContent(path, whole + whole.mid(whole.size() / 2));
    room.Restart();
    QVERIFY(room.HasProblem("Coverage was not complete"));
    QCOMPARE(room.work->Map()->Strips().size(), 49);
    QCOMPARE(Content(path), whole);
}

void WorkProblems::aCoverageOfAnotherVersionIsLeftAlone()
{
    TWorkRoom room;
    room.work->SetWorking(true);
    room.Drive(50);
    room.work.reset();
    const QString path = room.FieldFile("Jobs/J_1/J_1.cov");
    QByteArray newer = Content(path);
    newer[7] = 2;
    SetContent(path, newer);
    room.Restart();
    QVERIFY(room.HasProblem("another version of the software"));
    room.work->SetWorking(true);
    room.Drive(50);
    QVERIFY(room.HasProblem("what is covered is not stored"));
    QCOMPARE(room.work->Map()->Strips().size(), 49); // the operator sees what is covered now
    room.work.reset();
    QCOMPARE(Content(path), newer);
}

void WorkProblems::damagedFilesAreSaidAndLeftOut_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("areas"); // that are left on the map
    QTest::newRow("boundary") << QString::fromLatin1("Boundaries/F1/F1.bdy") << 2;
    QTest::newRow("zones") << QString::fromLatin1("Zones/F1/F1.shp") << 3;
    QTest::newRow("line") << QString::fromLatin1("ABLines/AB_1/AB_1.ini") << 4;
}

void WorkProblems::damagedFilesAreSaidAndLeftOut()
{
    QFETCH(QString, file);
    QFETCH(int, areas);
    TWorkRoom room;
    room.work.reset();
    const QString path = room.FieldFile(file.toUtf8().constData());
    QVERIFY2(QFile::exists(path), qPrintable(path));
    SetContent(path, Content(path).left(40));
    room.Restart();
    QVERIFY(room.HasProblem(path.toUtf8().constData()));
    room.Drive(1);
    QCOMPARE(room.work->Map()->Areas().size(), areas);
    QCOMPARE(room.work->HasLine(), areas < 4);
}

void WorkProblems::damagedFlagsAreNotReplaced()
{
    TWorkRoom room;
    const QString path = room.FieldFile("flagpoints.ini");
    SetContent(path, "damaged");
    room.Restart();
    QVERIFY(room.HasProblem("flagpoints.ini"));
    room.Drive(1);
    QVERIFY(room.work->mark());
    QVERIFY(room.HasProblem("new flags are not stored"));
    room.work.reset();
    QCOMPARE(Content(path), QByteArray("damaged"));
}

void WorkProblems::aFullDiskIsSaidAndPasses()
{
    TWorkRoom room;
    std::signal(SIGXFSZ, SIG_IGN); // a file that must not grow, in place of a disk that is full
    rlimit before = {};
    getrlimit(RLIMIT_FSIZE, &before);
    room.work->SetWorking(true);
    room.Drive(50);
    const rlimit full = {0, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    const bool isSaid = room.HasProblem("The coverage is kept in memory");
    setrlimit(RLIMIT_FSIZE, &before);
    QVERIFY(isSaid);
    QVERIFY(room.HasNoProblem("The coverage is kept in memory"));
    room.Restart();
    QCOMPARE(room.work->Map()->Strips().size(), 49);
}

QTEST_MAIN(WorkProblems)
#include "WorkProblems.moc"
