#include "ConsoleTest.h"

#include "parameters/TParameterCatalogue.h"

using namespace ConsoleTest;

namespace {

/// Where the file of an item called N 1 lies, when client Smith, farm North and field F1 are active.
struct tagItem
{
    const char* kind;
    const char* path; ///< under the internal drive; empty without a file
};

const tagItem Items[] = {
    {"job", "Clients/Smith/North/F1/Jobs/N 1/N 1.ini"},
    {"boundary", "Clients/Smith/North/F1/Boundaries/N 1/N 1.bdy"},
    {"ab-line", "Clients/Smith/North/F1/ABLines/N 1/N 1.ini"},
    {"pivot", "Clients/Smith/North/F1/Pivots/N 1/N 1.ini"},
    {"curve", "Clients/Smith/North/F1/Curves/N 1/N 1.crv"},
    {"optimal-lines", "Clients/Smith/North/F1/OptimalLines/N 1/N 1.shp"},
    {"project-lines", "Clients/Smith/North/F1/ProjectLines/N 1/N 1.shp"},
    {"zones", "Clients/Smith/North/F1/Zones/N 1/N 1.shp"},
    {"steering-profile", "Steering/N 1/N 1.ini"},
    {"implement", "Implements/N 1/N 1.ini"},
    {"vehicle", "Vehicles/N 1/N 1.ini"},
    {"sprayer", "Sprayer/N 1/N 1.ini"},
    {"boom-leveller", ""},
    {"client", ""},
    {"farm", ""},
    {"field", "Clients/Smith/North/N 1/N 1.ini"},
};

} // namespace

class ConsoleSelections : public QObject
{
    Q_OBJECT

private slots:
    void everyKindOfTheCatalogueIsListed();
    void anItemIsSelected_data();
    void anItemIsSelected();
    void anEmptyNameSelectsNone_data();
    void anEmptyNameSelectsNone();
    void aFirstStartHasTheBuiltInMachines();
    void itemsOfAFieldHaveNoPathOutsideOne();
    void selectingMakesTheFolderAsTheDisplayDoes_data();
    void selectingMakesTheFolderAsTheDisplayDoes();
    void selectionsSurviveARun();
    void theTableShowsKindNameAndPath();
    void theObjectIsPrintedAfterSelecting();
    void aNameThatNoStickHoldsIsRefused_data();
    void aNameThatNoStickHoldsIsRefused();
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();
    void aFolderThatCannotBeMadeIsAFailure();

private:
    static void GoToField(const TConsole& console)
    {
        Store(console, Utf8("active.client=Smith|active.farm=North|active.field=F1"));
    }

    static QString Internal(const TConsole& console, const QString& path)
    {
        return console.DataFolder() + Utf8("/internal/") + path;
    }

    static void AddItems()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("path");
        for (const tagItem& item : Items)
            QTest::newRow(item.kind) << Utf8(item.kind) << Utf8(item.path);
    }
};

void ConsoleSelections::everyKindOfTheCatalogueIsListed()
{
    const TConsole console;
    const QJsonArray listed = Array(Run(console, "selections --json"));
    QStringList kinds;
    for (const QJsonValue& item : listed)
        kinds.append(item.toObject().value(Utf8("kind")).toString());
    QStringList catalogued;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (parameter.name.startsWith(Utf8("active.")))
            catalogued.append(parameter.name.section(QLatin1Char('.'), 1));
    }
    QCOMPARE(kinds, catalogued);
    QStringList tested;
    for (const tagItem& item : Items)
        tested.append(Utf8(item.kind));
    QCOMPARE(tested, catalogued);
}

void ConsoleSelections::anItemIsSelected_data() { AddItems(); }

void ConsoleSelections::anItemIsSelected()
{
    QFETCH(QString, kind);
    QFETCH(QString, path);
    const TConsole console;
    GoToField(console);
    const TConsole::tagResult selected = console.Run({Utf8("select"), kind, Utf8("N 1")});
    QCOMPARE(selected.errors, QString());
    QCOMPARE(selected.output, QString());
    QCOMPARE(selected.status, 0);
    QCOMPARE(console.Run({Utf8("select"), kind}).output, Utf8("N 1\n"));
    const QJsonObject object = Object(console.Run({Utf8("select"), kind, Utf8("--json")}));
    const QJsonValue file = path.isEmpty() ? QJsonValue() : QJsonValue(Internal(console, path));
    QCOMPARE(object, (QJsonObject{{Utf8("kind"), kind}, {Utf8("name"), Utf8("N 1")}, {Utf8("path"), file}}));
}

void ConsoleSelections::anEmptyNameSelectsNone_data() { AddItems(); }

void ConsoleSelections::anEmptyNameSelectsNone()
{
    QFETCH(QString, kind);
    const TConsole console;
    Store(console, Utf8("active.client=Smith|active.farm=North|active.field=F1|active.%1=N 1").arg(kind));
    const TConsole::tagResult cleared = console.Run({Utf8("select"), kind, QString::fromLatin1("")});
    QCOMPARE(cleared.errors, QString());
    QCOMPARE(cleared.status, 0);
    QCOMPARE(
        Object(console.Run({Utf8("select"), kind, Utf8("--json")})),
        (QJsonObject{{Utf8("kind"), kind}, {Utf8("name"), QString::fromLatin1("")}, {Utf8("path"), QJsonValue()}}));
}

void ConsoleSelections::aFirstStartHasTheBuiltInMachines()
{
    const TConsole console;
    const QJsonArray items = Array(Run(console, "selections --json"));
    QCOMPARE(Find(items, "kind", Utf8("vehicle")).value(Utf8("name")).toString(), Utf8("No Vehicle"));
    QCOMPARE(Find(items, "kind", Utf8("implement")).value(Utf8("name")).toString(), Utf8("No Implement"));
    QCOMPARE(Find(items, "kind", Utf8("job")).value(Utf8("name")).toString(), QString::fromLatin1(""));
    QVERIFY(Find(items, "kind", Utf8("job")).value(Utf8("path")).isNull());
}

void ConsoleSelections::itemsOfAFieldHaveNoPathOutsideOne()
{
    const TConsole console;
    QCOMPARE(Run(console, "select job J_1").status, 0);
    QCOMPARE(Run(console, "select field F1").status, 0); // of no farm
    const QJsonArray items = Array(Run(console, "selections --json"));
    for (const char* kind : {"job", "field"}) {
        QVERIFY(!Find(items, "kind", Utf8(kind)).value(Utf8("name")).toString().isEmpty());
        QVERIFY(Find(items, "kind", Utf8(kind)).value(Utf8("path")).isNull());
    }
}

void ConsoleSelections::selectingMakesTheFolderAsTheDisplayDoes_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("made");
    QTest::newRow("boundary") << Utf8("boundary") << Utf8("Clients/Smith/North/F1/Boundaries/N 1");
    QTest::newRow("zones") << Utf8("zones") << Utf8("Clients/Smith/North/F1/Zones/N 1");
    QTest::newRow("job") << Utf8("job") << QString(); // the job makes its folder when it begins
}

void ConsoleSelections::selectingMakesTheFolderAsTheDisplayDoes()
{
    QFETCH(QString, kind);
    QFETCH(QString, made);
    const TConsole console;
    GoToField(console);
    QCOMPARE(Run(console, "storage").status, 0); // which makes the folders of the terminal
    const QStringList before = Tree(Internal(console, QString()));
    QVERIFY(!before.contains(made));
    QCOMPARE(console.Run({Utf8("select"), kind, Utf8("N 1")}).status, 0);
    const QStringList after = Tree(Internal(console, QString()));
    if (made.isEmpty())
        QCOMPARE(after, before);
    else
        QVERIFY2(after.contains(made), qPrintable(after.join(QLatin1Char('\n'))));
}

void ConsoleSelections::selectionsSurviveARun()
{
    const TConsole console;
    QString settings;
    for (const tagItem& item : Items)
        settings += Utf8("active.%1=Nº 1 (%1)|").arg(Utf8(item.kind));
    Store(console, settings);
    const QJsonArray before = Array(Run(console, "selections --json"));
    QCOMPARE(Run(console, "run --nmea -").status, 0);
    QCOMPARE(Array(Run(console, "selections --json")), before);
    for (const tagItem& item : Items) {
        const QJsonObject object = Find(before, "kind", Utf8(item.kind));
        QCOMPARE(object.value(Utf8("name")).toString(), Utf8("Nº 1 (%1)").arg(Utf8(item.kind)));
        QCOMPARE(object.value(Utf8("path")).isNull(), QByteArray(item.path).isEmpty());
    }
}

void ConsoleSelections::theTableShowsKindNameAndPath()
{
    const TConsole console;
    GoToField(console);
    QCOMPARE(Run(console, "select job J_1").status, 0);
    const QString table = Run(console, "selections").output;
    const QStringList lines = table.split(QLatin1Char('\n'));
    QCOMPARE(static_cast<int>(lines.size()), 1 + static_cast<int>(std::size(Items)) + 1);
    QVERIFY(lines.first().startsWith(Utf8("kind ")));
    QCOMPARE(lines.at(1).simplified(),
             Utf8("job J_1 ") + Internal(console, Utf8("Clients/Smith/North/F1/Jobs/J_1/J_1.ini")));
    QCOMPARE(lines.at(2).simplified(), Utf8("boundary (none) (none)"));
}

void ConsoleSelections::theObjectIsPrintedAfterSelecting()
{
    const TConsole console;
    const TConsole::tagResult result = Run(console, "select vehicle Tractor --json");
    QCOMPARE(result.status, 0);
    QCOMPARE(Object(result).value(Utf8("name")).toString(), Utf8("Tractor"));
    QCOMPARE(Object(result).value(Utf8("path")).toString(), Internal(console, Utf8("Vehicles/Tractor/Tractor.ini")));
}

void ConsoleSelections::aNameThatNoStickHoldsIsRefused_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("suggestion");
    QTest::newRow("separator") << Utf8("job") << Utf8("a/b") << Utf8("\"a/b\"") << Utf8("did you mean \"a_b\"?");
    QTest::newRow("another folder") << Utf8("client") << Utf8("..") << Utf8("\"..\"") << Utf8("did you mean \"_\"?");
    QTest::newRow("FAT") << Utf8("field") << Utf8("7:30?") << Utf8("\"7:30?\"") << Utf8("did you mean \"7_30_\"?");
    QTest::newRow("full stop") << Utf8("vehicle") << Utf8("Tractor.") << Utf8("\"Tractor.\"")
                               << Utf8("did you mean \"Tractor\"?");
    QTest::newRow("device") << Utf8("zones") << Utf8("nul") << Utf8("\"nul\"") << Utf8("did you mean \"_nul\"?");
    QTest::newRow("too long") << Utf8("pivot") << QString(252, QLatin1Char('x')) << Utf8("252 bytes")
                              << Utf8("did you mean \"") + QString(251, QLatin1Char('x')) + Utf8("\"?");
}

void ConsoleSelections::aNameThatNoStickHoldsIsRefused()
{
    QFETCH(QString, kind);
    QFETCH(QString, name);
    QFETCH(QString, named);
    QFETCH(QString, suggestion);
    const TConsole console;
    VerifyMisused(console.Run({Utf8("select"), kind, name}), named, suggestion);
    QVERIFY(!QFile::exists(console.DataFolder()));
}

void ConsoleSelections::wrongUsageSaysWhatIsAccepted_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("accepted");
    QTest::newRow("no kind") << Utf8("select") << Utf8("missing") << Utf8("KIND [NAME]");
    QTest::newRow("unknown kind") << Utf8("select fish") << Utf8("\"fish\"") << Utf8("job, boundary, ab-line, pivot");
    QTest::newRow("a parameter's name") << Utf8("select active.job x") << Utf8("\"active.job\"") << Utf8("job");
    QTest::newRow("two names") << Utf8("select job a b") << Utf8("\"b\"") << Utf8("KIND [NAME]");
    QTest::newRow("unknown option") << Utf8("select job --clear") << Utf8("clear") << Utf8("select --help");
    QTest::newRow("selections with a kind") << Utf8("selections job") << Utf8("\"job\"") << Utf8("selections --help");
}

void ConsoleSelections::wrongUsageSaysWhatIsAccepted()
{
    QFETCH(QString, arguments);
    QFETCH(QString, named);
    QFETCH(QString, accepted);
    const TConsole console;
    VerifyMisused(console.Run(arguments.split(QLatin1Char(' '))), named, accepted);
}

void ConsoleSelections::aFolderThatCannotBeMadeIsAFailure()
{
    const TConsole console;
    WriteFile(console.DataFolder(), "a file where the folder should be");
    for (const char* command : {"select job", "select job J_1", "selections"}) {
        const TConsole::tagResult result = Run(console, command);
        QCOMPARE(result.status, 1);
        QVERIFY2(result.errors.contains(console.DataFolder()), qPrintable(result.errors));
    }
}

QTEST_GUILESS_MAIN(ConsoleSelections)
#include "ConsoleSelections.moc"
