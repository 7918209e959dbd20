#include "ConsoleTest.h"

using namespace ConsoleTest;

class ConsoleBackup : public QObject
{
    Q_OBJECT

private slots:
    void aCopyIsMadeListedAndRestored();
    void aDryRunChangesNothing();
    void jsonHasEveryField();
    void aCopyThatIsNotThereIsAFailure();
    void aDamagedCopyIsRefused();
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();
};

void ConsoleBackup::aCopyIsMadeListedAndRestored()
{
    const TConsole console;
    Run(console, "set units.area acre");
    const TConsole::tagResult made = Run(console, "backup now");
    QCOMPARE(made.errors, QString());
    QCOMPARE(made.status, 0);
    QVERIFY2(QRegularExpression(Utf8("^\\d{4}-\\d\\d-\\d\\d-1  \\d+\n$")).match(made.output).hasMatch(),
             qPrintable(made.output));
    const QString name = made.output.left(12);
    const QStringList list = Run(console, "backup list").output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(static_cast<int>(list.size()), 2); // with the copy of the day
    QCOMPARE(list.first().left(12), name);
    Run(console, "set units.area hectare");
    const TConsole::tagResult restored = console.Run({Utf8("backup"), Utf8("restore"), name});
    QCOMPARE(restored.errors, QString());
    QCOMPARE(restored.status, 0);
    QCOMPARE(restored.output, Utf8("units.area: hectare -> acre\n"));
    QCOMPARE(Get(console, "units.area"), Utf8("acre"));
    QVERIFY(Run(console, "history --count 1").output.contains(Utf8("  restore  units.area: hectare -> acre")));
    QCOMPARE(console.Run({Utf8("backup"), Utf8("restore"), name}).output, QString());
}

void ConsoleBackup::aDryRunChangesNothing()
{
    const TConsole console;
    const QString name = Object(Run(console, "backup now --json")).value(Utf8("name")).toString();
    Run(console, "set units.area acre");
    const QStringList dryRun{Utf8("backup"), Utf8("restore"), name, Utf8("--dry-run")};
    QCOMPARE(console.Run(dryRun).output, Utf8("units.area: acre -> hectare\n"));
    QCOMPARE(Get(console, "units.area"), Utf8("acre"));
    const QJsonArray differences = Array(console.Run(dryRun + QStringList{Utf8("--json")}));
    QCOMPARE(static_cast<int>(differences.size()), 1);
    QCOMPARE(Fields(differences.first().toObject()),
             (QStringList{Utf8("name"), Utf8("new"), Utf8("newText"), Utf8("number"), Utf8("old"), Utf8("oldText")}));
}

void ConsoleBackup::jsonHasEveryField()
{
    const TConsole console;
    const QJsonObject made = Object(Run(console, "backup now --json"));
    const QStringList fields{Utf8("day"), Utf8("name"), Utf8("path"), Utf8("size")};
    QCOMPARE(Fields(made), fields);
    const QString path = made.value(Utf8("path")).toString();
    QCOMPARE(
        path,
        Utf8("%1.copies/%2.db").arg(DataFolder::StoreFile(console.DataFolder()), made.value(Utf8("name")).toString()));
    QVERIFY(QFileInfo::exists(path));
    const QJsonArray list = Array(Run(console, "backup list --json"));
    QCOMPARE(static_cast<int>(list.size()), 2);
    QCOMPARE(Fields(list.first().toObject()), fields);
}

void ConsoleBackup::aCopyThatIsNotThereIsAFailure()
{
    const TConsole console;
    const TConsole::tagResult result = Run(console, "backup restore 2001-02-03");
    QCOMPARE(result.status, 1);
    QCOMPARE(
        result.errors,
        Utf8("cabsettings: there is no copy \"2001-02-03\"; expected a name that `cabsettings backup list` prints\n"));
}

void ConsoleBackup::aDamagedCopyIsRefused()
{
    const TConsole console;
    Run(console, "set units.area acre");
    const QString path = DataFolder::StoreFile(console.DataFolder()) + Utf8(".copies/2001-02-03.db");
    WriteFile(path, "not a database");
    const TConsole::tagResult result = Run(console, "backup restore 2001-02-03");
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors, Utf8("cabsettings: %1 cannot be restored: a file that is not of SQLite\n").arg(path));
    QCOMPARE(Get(console, "units.area"), Utf8("acre"));
}

void ConsoleBackup::wrongUsageSaysWhatIsAccepted_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("accepted");
    QTest::newRow("no command") << Utf8("backup") << Utf8("missing command") << Utf8("list, now or restore");
    QTest::newRow("no copy") << Utf8("backup restore") << Utf8("missing") << Utf8("WHICH");
    QTest::newRow("two") << Utf8("backup restore a b") << Utf8("\"b\"") << Utf8("WHICH");
}

void ConsoleBackup::wrongUsageSaysWhatIsAccepted()
{
    QFETCH(QString, arguments);
    QFETCH(QString, named);
    QFETCH(QString, accepted);
    const TConsole console;
    VerifyMisused(console.Run(arguments.split(QLatin1Char(' '))), named, accepted);
}

QTEST_GUILESS_MAIN(ConsoleBackup)
#include "ConsoleBackup.moc"
