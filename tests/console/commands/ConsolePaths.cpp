#include "ConsoleTest.h"

using namespace ConsoleTest;

namespace {

const char* const ActiveNames = "active.client=Smith|active.farm=North|active.field=F1|active.job=J_1";

} // namespace

class ConsolePaths : public QObject
{
    Q_OBJECT

private slots:
    void pathsOfAJobAreComposed_data();
    void pathsOfAJobAreComposed();
    void whatIsMissingIsSaid_data();
    void whatIsMissingIsSaid();
    void namesThatAreGivenLeaveNoTrace();
    void pathsOfActiveItemsAreListed_data();
    void pathsOfActiveItemsAreListed();
    void areaCountersOfAJobWithoutAFolderAreKeptWithTheImplement();
    void theFoldersOfTheTerminalAreThere();
    void pathsOnTheStickNeedOne();
    void theTableIsTheArray();
    void aNameThatNoStickHoldsIsRefused_data();
    void aNameThatNoStickHoldsIsRefused();
    void wrongUsageSaysWhatIsAccepted_data();
    void wrongUsageSaysWhatIsAccepted();
    void aFolderThatCannotBeMadeIsAFailure();

private:
    /// The path of that name; relative when it lies under the internal drive, "(null)" when there is none.
    static QString Path(const TConsole& console, const QJsonArray& paths, const QString& name)
    {
        const QJsonObject object = Find(paths, "name", name);
        if (object.isEmpty())
            return Utf8("(not listed)");
        const QString internal = console.DataFolder() + Utf8("/internal/");
        const QString path = object.value(Utf8("path")).toString(Utf8("(null)"));
        return path.startsWith(internal) ? path.mid(internal.size()) : path;
    }
};

void ConsolePaths::pathsOfAJobAreComposed_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("options");
    QTest::newRow("given names") << QString() << Utf8("--client Smith --farm North --field F1 --job J_1");
    QTest::newRow("active names") << Utf8(ActiveNames) << QString();
    QTest::newRow("some of both") << Utf8("active.client=Smith|active.farm=South|active.field=F9|active.job=J_1")
                                  << Utf8("--farm North --field F1");
}

void ConsolePaths::pathsOfAJobAreComposed()
{
    QFETCH(QString, before);
    QFETCH(QString, options);
    const TConsole console;
    Store(console, before);
    const TConsole::tagResult result =
        console.Run(Words("paths --json") + options.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    const QPair<const char*, const char*> expected[] = {
        {"field-folder", ""},
        {"field", "F1.ini"},
        {"job", "Jobs/J_1/J_1.ini"},
        {"report", "Jobs/J_1/J_1.pdf"},
        {"coverage", "Jobs/J_1/J_1.cov"},
        {"per-point-data", "Jobs/J_1/J_1_PPD.pbz"},
        {"elevation", "F1_Elevation.pbz"},
        {"area-counters", "Jobs/J_1/areacounters.ini"},
        {"flag-points", "flagpoints.ini"},
        {"boundary", "Boundaries/F1/F1.bdy"},
        {"exclusion-zones", "Zones/F1/F1.shp"},
    };
    const QJsonArray paths = Array(result);
    for (const auto& row : expected)
        QCOMPARE(Path(console, paths, Utf8(row.first)), Utf8("Clients/Smith/North/F1/") + Utf8(row.second));
}

void ConsolePaths::whatIsMissingIsSaid_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown"); ///< under the internal drive, or in brackets
    const auto row = [](const char* options, const char* name, const char* shown) {
        QTest::addRow("%s of %s", name, options) << Utf8(options) << Utf8(name) << Utf8(shown);
    };
    row("", "job", "(none without a job)");
    row("", "area-counters", "(none without a job)");
    row("", "field-folder", "(none without a field)");
    row("", "flag-points", "flagpoints.ini");
    row("--job J_1", "job", "Jobs/J_1/J_1.ini");
    row("--job J_1", "area-counters", "Jobs/J_1/areacounters.ini");
    row("--job J_1", "report", "(none without a field and a job)");
    row("--job J_1", "coverage", "(none without a field and a job)");
    row("--job J_1", "per-point-data", "(none without a field and a job)");
    row("--client Smith --field F1", "field", "(none without a field)");
    row("--client Smith --field F1", "elevation", "(none without a field)");
    row("--farm North --field F1", "boundary", "(none without a field)");
    row("--client Smith --farm North", "exclusion-zones", "(none without a field)");
    row("--client Smith --farm North --field F1", "coverage", "(none without a field and a job)");
}

void ConsolePaths::whatIsMissingIsSaid()
{
    QFETCH(QString, options);
    QFETCH(QString, name);
    QFETCH(QString, shown);
    const TConsole console;
    const QStringList arguments = Words("paths") + options.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const bool isMissing = shown.startsWith(QLatin1Char('('));
    const QString expected = isMissing ? shown : console.DataFolder() + Utf8("/internal/") + shown;
    const QStringList lines = console.Run(arguments).output.split(QLatin1Char('\n'));
    const QStringList found = lines.filter(QRegularExpression(Utf8("^%1 ").arg(name)));
    QCOMPARE(static_cast<int>(found.size()), 1);
    QCOMPARE(found.first().mid(name.size()).trimmed(), expected);
    const QJsonArray paths = Array(console.Run(arguments + QStringList(Utf8("--json"))));
    QCOMPARE(Find(paths, "name", name).value(Utf8("path")), isMissing ? QJsonValue() : QJsonValue(expected));
}

void ConsolePaths::namesThatAreGivenLeaveNoTrace()
{
    const TConsole console;
    Store(console, Utf8(ActiveNames));
    QCOMPARE(Run(console, "storage").status, 0);
    const QStringList before = Tree(console.DataFolder() + Utf8("/internal"));
    const TConsole::tagResult result = Run(console, "paths --client A --farm B --field C --job D --json");
    QCOMPARE(result.status, 0);
    QCOMPARE(Path(console, Array(result), Utf8("job")), Utf8("Clients/A/B/C/Jobs/D/D.ini"));
    QCOMPARE(Tree(console.DataFolder() + Utf8("/internal")), before);
    QCOMPARE(Get(console, "active.client"), Utf8("Smith"));
    QCOMPARE(Get(console, "active.farm"), Utf8("North"));
    QCOMPARE(Get(console, "active.field"), Utf8("F1"));
    QCOMPARE(Get(console, "active.job"), Utf8("J_1"));
    // What comes with folders is not asked for.
    for (const QJsonValue& path : Array(result))
        QVERIFY(!path.toObject().value(Utf8("name")).toString().startsWith(Utf8("active.")));
    // An empty name stands for none, whatever is active.
    const TConsole::tagResult outside =
        console.Run({Utf8("paths"), Utf8("--client"), QString::fromLatin1(""), Utf8("--json")});
    QCOMPARE(Path(console, Array(outside), Utf8("job")), Utf8("Jobs/J_1/J_1.ini"));
    QCOMPARE(Path(console, Array(outside), Utf8("coverage")), Utf8("(null)"));
}

void ConsolePaths::pathsOfActiveItemsAreListed_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    const auto row = [](const char* title, const char* before, const char* name, const char* path) {
        QTest::newRow(title) << Utf8(before) << Utf8(name) << Utf8(path);
    };
    const char* const field = "Clients/Smith/North/F1/";
    const auto inField = [&](const char* item, const char* name, const char* path) {
        row(name, (QByteArray(ActiveNames) + '|' + item).constData(), name, (QByteArray(field) + path).constData());
    };
    inField("", "active.job", "Jobs/J_1/J_1.ini");
    inField("", "active.field", "F1.ini");
    inField("active.boundary=B", "active.boundary", "Boundaries/B/B.bdy");
    inField("active.ab-line=L", "active.ab-line", "ABLines/L/L.ini");
    inField("active.pivot=P", "active.pivot", "Pivots/P/P.ini");
    inField("active.curve=C", "active.curve", "Curves/C/C.crv");
    inField("active.optimal-lines=O", "active.optimal-lines", "OptimalLines/O/O.shp");
    inField("active.project-lines=P", "active.project-lines", "ProjectLines/P/P.shp");
    inField("active.project-lines=P", "active.offset-lines-a", "ProjectLines/P/PA.shp");
    inField("active.project-lines=P", "active.offset-lines-b", "ProjectLines/P/PB.shp");
    inField("active.zones=Z", "active.zones", "Zones/Z/Z.shp");
    row("steering", "active.steering-profile=S", "active.steering-profile", "Steering/S/S.ini");
    row("implement", "active.implement=I", "active.implement", "Implements/I/I.ini");
    row("implement in its vehicle", "active.implement=I|system.implement-folder=4", "active.implement",
        "Vehicles/I/Implement.ini");
    row("vehicle", "active.vehicle=V", "active.vehicle", "Vehicles/V/V.ini");
    row("sprayer", "active.sprayer=S", "active.sprayer", "Sprayer/S/S.ini");
    row("a line outside fields", "active.ab-line=L", "active.ab-line-outside-fields", "ABLines/L/L.ini");
    row("no item", "", "active.pivot", "(null)");
    row("no field", "active.pivot=P", "active.pivot", "(null)");
    row("no offset lines", ActiveNames, "active.offset-lines-a", "(null)");
    row("no line", "", "active.ab-line-outside-fields", "(null)");
}

void ConsolePaths::pathsOfActiveItemsAreListed()
{
    QFETCH(QString, before);
    QFETCH(QString, name);
    QFETCH(QString, path);
    const TConsole console;
    Store(console, before);
    QCOMPARE(Path(console, Array(Run(console, "paths --json")), name), path);
}

void ConsolePaths::areaCountersOfAJobWithoutAFolderAreKeptWithTheImplement()
{
    const TConsole console;
    Store(console, Utf8(ActiveNames) + Utf8("|active.implement=Spreader"));
    const QString name = Utf8("active.area-counters");
    QCOMPARE(Path(console, Array(Run(console, "paths --json")), name), Utf8("Implements/Spreader/areacounters.ini"));
    QVERIFY(QDir().mkpath(console.DataFolder() + Utf8("/internal/Clients/Smith/North/F1/Jobs/J_1")));
    QCOMPARE(Path(console, Array(Run(console, "paths --json")), name),
             Utf8("Clients/Smith/North/F1/Jobs/J_1/areacounters.ini"));
}

void ConsolePaths::theFoldersOfTheTerminalAreThere()
{
    const TConsole console;
    const QJsonArray paths = Array(Run(console, "paths --json"));
    QCOMPARE(Path(console, paths, Utf8("drive.internal")), QString::fromLatin1(""));
    QCOMPARE(Path(console, paths, Utf8("log.user")), Utf8("Diagnostics/User.csv"));
    QCOMPARE(Path(console, paths, Utf8("log.nmea")), Utf8("Diagnostics/NMEA.csv"));
    QCOMPARE(Path(console, paths, Utf8("log.performance")), Utf8("Diagnostics/PerformanceTestTmp.csv"));
    QCOMPARE(Path(console, paths, Utf8("exchange.velmor-uploads")), Utf8("VelmorUploads/"));
    QCOMPARE(Path(console, paths, Utf8("remote-view.profile-0")), Utf8("RemoteView/0.ini"));
    QCOMPARE(Path(console, paths, Utf8("temporary.guidance-curve")),
             QDir::temp().absoluteFilePath(Utf8("TempGuidanceCurveFile.crv")));
    QStringList names;
    QStringList folders;
    for (const QJsonValue& value : paths) {
        const QString name = value.toObject().value(Utf8("name")).toString();
        const QString path = value.toObject().value(Utf8("path")).toString();
        QVERIFY2(!names.contains(name), qPrintable(name));
        names.append(name);
        if (!name.startsWith(Utf8("folder.")) && !name.startsWith(Utf8("exchange.")))
            continue;
        QVERIFY2(QFileInfo(path).isDir(), qPrintable(name + QLatin1Char(' ') + path));
        QVERIFY2(path.startsWith(console.DataFolder() + Utf8("/internal/")), qPrintable(path));
        folders.append(QDir::cleanPath(path));
    }
    // Every folder of the drive has its name, and none has two.
    QCOMPARE(folders.removeDuplicates(), 0);
    const QFileInfoList onDrive =
        QDir(console.DataFolder() + Utf8("/internal")).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QFileInfo& folder : onDrive) {
        const bool isNamed = folders.contains(folder.filePath());
        QVERIFY2(isNamed || folder.fileName() == Utf8("Boundaries"), qPrintable(folder.filePath()));
    }
}

void ConsolePaths::pathsOnTheStickNeedOne()
{
    const char* const names[] = {"drive.removable",       "stick.user-log", "stick.nmea-log",
                                 "stick.performance-log", "stick.package",  "stick.checksum"};
    const TConsole console;
    const QString table = Run(console, "paths").output;
    const QJsonArray without = Array(Run(console, "paths --json"));
    for (const char* name : names) {
        QCOMPARE(Path(console, without, Utf8(name)), Utf8("(null)"));
        QVERIFY2(table.contains(QRegularExpression(Utf8("\n%1 +\\(none without a stick\\)\n").arg(Utf8(name)))), name);
    }

    // A file system that is mounted everywhere, and on which no folder is made.
    QCOMPARE(Run(console, "set system.external-drive /proc").status, 0);
    const QJsonArray with = Array(Run(console, "paths --json"));
    QCOMPARE(Path(console, with, Utf8("drive.removable")), Utf8("/proc"));
    QCOMPARE(Path(console, with, Utf8("stick.user-log")), Utf8("/proc/Diagnostics/User.csv"));
    QCOMPARE(Path(console, with, Utf8("stick.nmea-log")), Utf8("/proc/Diagnostics/NMEA.csv"));
    QCOMPARE(Path(console, with, Utf8("stick.package")), Utf8("/proc/kdm740_update.ipk"));
    QCOMPARE(Path(console, with, Utf8("stick.checksum")), Utf8("/proc/kdm740_update.idx"));
    const QRegularExpression performance(
        Utf8("^/proc/Diagnostics/PerformanceTest/\\d{6}_\\d{6}_TAG_.*_No Implement\\.csv$"));
    QVERIFY(performance.match(Path(console, with, Utf8("stick.performance-log"))).hasMatch());

    // Not even the folder on which a stick would be mounted.
    QCOMPARE(console.Run({Utf8("set"), Utf8("system.external-drive"), console.Path("nowhere/usb")}).status, 0);
    const QJsonArray nowhere = Array(Run(console, "paths --json"));
    for (const char* name : names)
        QCOMPARE(Path(console, nowhere, Utf8(name)), Utf8("(null)"));
}

void ConsolePaths::theTableIsTheArray()
{
    const TConsole console;
    Store(console, Utf8(ActiveNames));
    const QStringList lines = Run(console, "paths").output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QJsonArray paths = Array(Run(console, "paths --json"));
    QCOMPARE(static_cast<int>(lines.size()), static_cast<int>(paths.size()));
    for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
        const QJsonObject object = paths.at(i).toObject();
        QCOMPARE(Fields(object), (QStringList{Utf8("name"), Utf8("path")}));
        QCOMPARE(lines.at(i).section(QLatin1Char(' '), 0, 0), object.value(Utf8("name")).toString());
        const QString shown = lines.at(i).section(QLatin1Char(' '), 1).trimmed();
        if (object.value(Utf8("path")).isNull())
            QVERIFY2(shown.startsWith(Utf8("(none without ")), qPrintable(shown));
        else
            QCOMPARE(shown, object.value(Utf8("path")).toString());
    }
}

void ConsolePaths::aNameThatNoStickHoldsIsRefused_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("suggestion");
    QTest::newRow("client") << Utf8("--client") << Utf8("a/b") << Utf8("did you mean \"a_b\"?");
    QTest::newRow("farm") << Utf8("--farm") << Utf8("..") << Utf8("did you mean \"_\"?");
    QTest::newRow("field") << Utf8("--field") << Utf8("4*4") << Utf8("did you mean \"4_4\"?");
    QTest::newRow("job") << Utf8("--job") << Utf8("J_1 ") << Utf8("did you mean \"J_1\"?");
    QTest::newRow("a job's file") << Utf8("--job") << QString(252, QLatin1Char('j')) << Utf8("at most 251");
    QTest::newRow("a client's folder") << Utf8("--client") << QString(256, QLatin1Char('c')) << Utf8("at most 255");
}

void ConsolePaths::aNameThatNoStickHoldsIsRefused()
{
    QFETCH(QString, option);
    QFETCH(QString, name);
    QFETCH(QString, suggestion);
    const TConsole console;
    VerifyMisused(console.Run({Utf8("paths"), option, name}), Utf8("invalid value \"%1\" for %2").arg(name, option),
                  suggestion);
    QVERIFY(!QFile::exists(console.DataFolder()));
}

void ConsolePaths::wrongUsageSaysWhatIsAccepted_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("a word") << Utf8("paths Smith") << Utf8("\"Smith\"");
    QTest::newRow("a name is missing") << Utf8("paths --client") << Utf8("client");
    QTest::newRow("unknown option") << Utf8("paths --vehicle x") << Utf8("vehicle");
}

void ConsolePaths::wrongUsageSaysWhatIsAccepted()
{
    QFETCH(QString, arguments);
    QFETCH(QString, named);
    const TConsole console;
    VerifyMisused(console.Run(arguments.split(QLatin1Char(' '))), named, Utf8("paths --help"));
}

void ConsolePaths::aFolderThatCannotBeMadeIsAFailure()
{
    const TConsole console;
    WriteFile(console.DataFolder(), "a file where the folder should be");
    const TConsole::tagResult result = Run(console, "paths");
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(console.DataFolder()), qPrintable(result.errors));
}

QTEST_GUILESS_MAIN(ConsolePaths)
#include "ConsolePaths.moc"
