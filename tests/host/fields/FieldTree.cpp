#include "TFieldTerminal.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <atomic>
#include <thread>
#include <vector>

Q_DECLARE_METATYPE(EFieldResult)

class FieldTree : public QObject
{
    Q_OBJECT

private slots:
    void textsArePaths_data();
    void textsArePaths();
    void namesAreFoldedAsOnAStick_data();
    void namesAreFoldedAsOnAStick();
    void itemsAreListedWithTheirSizes();
    void aListBeginsWhereItIsAsked_data();
    void aListBeginsWhereItIsAsked();
    void anItemIsAddedWithThoseAboveIt();
    void whatExistsIsNotAddedAgain();
    void whatAStickCannotHoldIsNotAdded_data();
    void whatAStickCannotHoldIsNotAdded();
    void programsAddAtTheSameTime();
    void aListDoesNotWait();
    void whatWouldBeLostIsNotRemoved_data();
    void whatWouldBeLostIsNotRemoved();
    void anItemIsRemovedWithEverythingInIt();
    void theBuiltInItemsAreSelectedInPlaceOfWhatIsRemoved_data();
    void theBuiltInItemsAreSelectedInPlaceOfWhatIsRemoved();
    void aRemovalThatWasCutOffIsFinished();
};

void FieldTree::textsArePaths_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* text, const char* path, const char* problem) {
        QTest::newRow(*text ? text : "nothing") << QString::fromUtf8(text) << List(path) << QString::fromUtf8(problem);
    };
    row("Smith", "Smith", "");
    row("Smith/North/F 1/J_1", "Smith|North|F 1|J_1", "");
    row("Müller/Łąka", "Müller|Łąka", "");
    row("", "", "invalid path \"\": the name of the client is empty; expected CLIENT[/FARM[/FIELD[/JOB]]]");
    row("Smith/", "", "invalid path \"Smith/\": the name of the farm is empty; expected CLIENT[/FARM[/FIELD[/JOB]]]");
    row("/Smith", "", "invalid path \"/Smith\": the name of the client is empty; expected CLIENT[/FARM[/FIELD[/JOB]]]");
    row("a/b/c/d/e", "", "invalid path \"a/b/c/d/e\": it has 5 names; expected CLIENT[/FARM[/FIELD[/JOB]]]");
    row("a/../c", "", "invalid farm \"..\": the name refers to another folder; did you mean \"_\"?");
    row("a/b/con", "", "invalid field \"con\": the name is reserved on FAT file systems; did you mean \"_con\"?");
    row("a/b/c/d?", "",
        "invalid job \"d?\": the name contains \"?\", which FAT file systems do not allow; did you mean \"d_\"?");
}

void FieldTree::textsArePaths()
{
    QFETCH(QString, text);
    QFETCH(QStringList, path);
    QString error;
    QCOMPARE(FieldPath::Read(text, &error), path);
    QTEST(error, "problem");
    if (!path.isEmpty())
        QCOMPARE(FieldPath::Text(path), text);
}

void FieldTree::namesAreFoldedAsOnAStick_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("isSame");
    const auto row = [](const char* name, const char* other, bool isSame) {
        QTest::newRow(name) << QString::fromUtf8(name) << QString::fromUtf8(other) << isSame;
    };
    row("North", "nORTH", true);
    row("MÜLLER", "müller", true);
    row("Caf\u00e9", "cafe\u0301", true);
    row("ΣΊΣΥΦΟΣ", "σίσυφος", true);
    row("ПОЛЕ", "поле", true);
    row("F1", "F2", false);
    row("Cafe", "Café", false);
    row("North", "North ", false);
}

void FieldTree::namesAreFoldedAsOnAStick()
{
    QFETCH(QString, name);
    QFETCH(QString, other);
    QFETCH(bool, isSame);
    QCOMPARE(FieldPath::Folded(name) == FieldPath::Folded(other), isSame);
}

void FieldTree::itemsAreListedWithTheirSizes()
{
    TFieldTerminal terminal;
    terminal.MakeFile("Smith/North/F1/F1.ini", "12345");
    terminal.MakeFile("Smith/North/F1/Jobs/J_1/J_1.cov", QByteArray(100, 'c'));
    terminal.MakeFile("Smith/North/F1/Jobs/J_1/J_1.ini", "1");
    terminal.MakeFile("Smith/North/F1/Jobs/J_2/J_2.ini", "12");
    terminal.MakeFile("Smith/North/F1/Boundaries/F1/F1.bdy", "123");
    terminal.folder.MakeFolder(QString::fromUtf8("internal/Clients/Ærø/Øst"));
    terminal.Select("Smith/North/F1/J_2");
    QList<tagFieldItem> items;
    QCOMPARE(terminal.Tree().List(FIELD_DRIVE_INTERNAL, {}, &items, &terminal.error), FIELD_DONE);
    QCOMPARE(TFieldTerminal::Texts(items),
             List("Smith 5 111*|Smith/North 5 111*|Smith/North/F1 5 111*|Smith/North/F1/J_1 2 101|"
                  "Smith/North/F1/J_2 1 2*|Ærø 0 0|Ærø/Øst 0 0"));
}

void FieldTree::aListBeginsWhereItIsAsked_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("listed");
    QTest::addColumn<QString>("problem");
    QTest::newRow("a farm") << "Smith/North" << List("Smith/North 1 1|Smith/North/F1 1 1|Smith/North/F1/J_1 1 1") << "";
    QTest::newRow("a job") << "Smith/North/F1/J_1" << List("Smith/North/F1/J_1 1 1") << "";
    QTest::newRow("no such client") << "Smyth" << QStringList()
                                    << "there is no client \"Smyth\"; did you mean \"Smith\"?";
    QTest::newRow("no such farm") << "Smith/X/F1" << QStringList() << "there is no farm \"Smith/X\"";
}

void FieldTree::aListBeginsWhereItIsAsked()
{
    QFETCH(QString, path);
    QFETCH(QStringList, listed);
    TFieldTerminal terminal;
    terminal.MakeFile("Smith/North/F1/Jobs/J_1/J_1.ini");
    terminal.MakeFile("Smith/South/F1/F1.ini");
    QList<tagFieldItem> items;
    const EFieldResult result = terminal.Tree().List(
        FIELD_DRIVE_INTERNAL, TFieldTerminal::Path(path.toUtf8().constData()), &items, &terminal.error);
    QCOMPARE(result, listed.isEmpty() ? FIELD_FAILED : FIELD_DONE);
    QCOMPARE(TFieldTerminal::Texts(items), listed);
    QTEST(terminal.error, "problem");
}

void FieldTree::anItemIsAddedWithThoseAboveIt()
{
    TFieldTerminal terminal;
    QCOMPARE(terminal.Tree().Add(TFieldTerminal::Path("Smith"), &terminal.error), FIELD_DONE);
    QCOMPARE(terminal.Tree().Add(TFieldTerminal::Path("Smith/North/F1/J_1"), &terminal.error), FIELD_DONE);
    QCOMPARE(terminal.Entries(),
             List("Smith/|Smith/North/|Smith/North/F1/|Smith/North/F1/Jobs/|Smith/North/F1/Jobs/J_1/"));
}

void FieldTree::whatExistsIsNotAddedAgain()
{
    TFieldTerminal terminal;
    terminal.MakeFile("Smith/North/F1/F1.ini");
    QCOMPARE(terminal.Tree().Add(TFieldTerminal::Path("Smith/North"), &terminal.error), FIELD_FAILED);
    QCOMPARE(terminal.error, QString::fromUtf8("the farm \"Smith/North\" exists already"));
}

void FieldTree::whatAStickCannotHoldIsNotAdded_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* path, const char* named, const char* other) {
        QTest::newRow(path) << QString::fromUtf8(path)
                            << QString::fromUtf8("a stick cannot hold %1 beside \"%2\": it ignores letter case and the "
                                                 "encoding of accents")
                                   .arg(QString::fromUtf8(named), QString::fromUtf8(other));
    };
    row("SMITH", "the client \"SMITH\"", "Smith");
    row("smith/North/F2", "the client \"smith\"", "Smith");
    row("Smith/north", "the farm \"Smith/north\"", "Smith/North");
    row("Smith/North/Cafe\u0301", "the field \"Smith/North/Cafe\u0301\"", "Smith/North/Caf\u00e9");
    row("Smith/North/Caf\u00e9/j_1", "the job \"Smith/North/Caf\u00e9/j_1\"", "Smith/North/Caf\u00e9/J_1");
}

void FieldTree::whatAStickCannotHoldIsNotAdded()
{
    QFETCH(QString, path);
    TFieldTerminal terminal;
    terminal.MakeFile("Smith/North/Caf\u00e9/Jobs/J_1/J_1.ini");
    const QStringList before = terminal.Entries();
    QCOMPARE(terminal.Tree().Add(TFieldTerminal::Path(path.toUtf8().constData()), &terminal.error), FIELD_FAILED);
    QTEST(terminal.error, "problem");
    QCOMPARE(terminal.Entries(), before);
}

void FieldTree::programsAddAtTheSameTime()
{
    // An operation of a thread excludes those of others as it does those of other programs.
    TFieldTerminal terminal;
    std::atomic<int> done(0);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&terminal, &done, i] {
            TFieldTree tree(terminal.Store());
            QString error;
            for (int j = 0; j < 5; ++j) {
                const QStringList path = {QLatin1String("Smith"), QString::fromLatin1("%1-%2").arg(i).arg(j)};
                done += tree.Add(path, &error) == FIELD_DONE ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(done.load(), 20);
    QCOMPARE(terminal.Entries().size(), 21);
}

void FieldTree::aListDoesNotWait()
{
    TFieldTerminal terminal;
    terminal.MakeFile("Smith/North/F1/F1.ini");
    const int other = open(QFile::encodeName(terminal.folder.Path(QLatin1String("internal/Clients"))).constData(),
                           O_RDONLY | O_DIRECTORY);
    QCOMPARE(flock(other, LOCK_EX), 0);
    QList<tagFieldItem> items;
    QCOMPARE(terminal.Tree().List(FIELD_DRIVE_INTERNAL, {}, &items, &terminal.error), FIELD_DONE);
    close(other);
    QCOMPARE(items.size(), 3);
}

void FieldTree::whatWouldBeLostIsNotRemoved_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<EFieldResult>("result");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* path, EFieldResult result, const char* problem) {
        QTest::newRow(path) << QString::fromUtf8(path) << result << QString::fromUtf8(problem);
    };
    row("Smith", FIELD_REFUSED, "the client \"Smith\" is active and holds 2 file(s)");
    row("Smith/North/F1/J_1", FIELD_REFUSED, "the job \"Smith/North/F1/J_1\" is active and holds 1 file(s)");
    row("Smith/North/F2", FIELD_REFUSED, "the field \"Smith/North/F2\" holds 1 file(s)");
    row("Smith/South", FIELD_DONE, "");
    row("Smith/East", FIELD_FAILED, "there is no farm \"Smith/East\"");
}

void FieldTree::whatWouldBeLostIsNotRemoved()
{
    QFETCH(QString, path);
    QFETCH(EFieldResult, result);
    TFieldTerminal terminal;
    terminal.MakeFile("Smith/North/F1/Jobs/J_1/J_1.ini");
    terminal.MakeFile("Smith/North/F2/F2.ini");
    terminal.folder.MakeFolder(QLatin1String("internal/Clients/Smith/South/F3"));
    terminal.Select("Smith/North/F1/J_1");
    QCOMPARE(terminal.Tree().Remove(TFieldTerminal::Path(path.toUtf8().constData()), false, &terminal.error), result);
    QTEST(terminal.error, "problem");
    QCOMPARE(terminal.Files(), List("Smith/North/F1/Jobs/J_1/J_1.ini|Smith/North/F2/F2.ini"));
    QCOMPARE(terminal.Selected(), QString::fromLatin1("Smith/North/F1/J_1"));
}

void FieldTree::anItemIsRemovedWithEverythingInIt()
{
    TFieldTerminal terminal;
    terminal.MakeFile("Smith/North/F1/Jobs/J_1/J_1.ini");
    terminal.MakeFile("Smith/North/F1/Jobs/J_1/.hidden");
    terminal.MakeFile("Smith/North/F2/F2.ini");
    QCOMPARE(terminal.Tree().Remove(TFieldTerminal::Path("Smith/North/F1"), true, &terminal.error), FIELD_DONE);
    QCOMPARE(terminal.Entries(), List("Smith/|Smith/North/|Smith/North/F2/|Smith/North/F2/F2.ini"));
}

void FieldTree::theBuiltInItemsAreSelectedInPlaceOfWhatIsRemoved_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("boundary");
    QTest::newRow("the client") << "Smith"
                                << "///"
                                << "";
    QTest::newRow("the farm") << "Smith/North"
                              << "Smith///"
                              << "";
    QTest::newRow("the field") << "Smith/North/F1"
                               << "Smith/North//"
                               << "";
    QTest::newRow("the job") << "Smith/North/F1/J_1"
                             << "Smith/North/F1/"
                             << "F1";
    QTest::newRow("another field") << "Smith/North/F2"
                                   << "Smith/North/F1/J_1"
                                   << "F1";
    QTest::newRow("a job of the same name") << "Smith/North/F2/J_1"
                                            << "Smith/North/F1/J_1"
                                            << "F1";
}

void FieldTree::theBuiltInItemsAreSelectedInPlaceOfWhatIsRemoved()
{
    QFETCH(QString, path);
    TFieldTerminal terminal;
    terminal.MakeFile("Smith/North/F1/Jobs/J_1/J_1.ini");
    terminal.MakeFile("Smith/North/F2/Jobs/J_1/J_1.ini");
    terminal.Select("Smith/North/F1/J_1");
    terminal.Store().SetParameter(PARAM_ACTIVE_BOUNDARY, QLatin1String("F1"), true);
    QCOMPARE(terminal.Tree().Remove(TFieldTerminal::Path(path.toUtf8().constData()), true, &terminal.error),
             FIELD_DONE);
    QTEST(terminal.Selected(), "selected");
    QTEST(terminal.Value(PARAM_ACTIVE_BOUNDARY), "boundary");
}

void FieldTree::aRemovalThatWasCutOffIsFinished()
{
    TFieldTerminal terminal;
    terminal.MakeFile(".cabsettings-removed-a1B2c3/item/Jobs/J_1/J_1.ini");
    terminal.MakeFile(".cabsettings-copy-a1B2c3");
    terminal.MakeFile("Smith/North/F1/F1.ini");
    QList<tagFieldItem> items;
    QCOMPARE(terminal.Tree().List(FIELD_DRIVE_INTERNAL, {}, &items, &terminal.error), FIELD_DONE);
    QCOMPARE(items.size(), 3);
    QCOMPARE(terminal.Files(), List("Smith/North/F1/F1.ini"));
}

QTEST_GUILESS_MAIN(FieldTree)
#include "FieldTree.moc"
