#include "TFieldTerminal.h"

class FieldRenames : public QObject
{
    Q_OBJECT

private slots:
    void filesOfItsNameAreRenamedToo_data();
    void filesOfItsNameAreRenamedToo();
    void theSelectionFollows_data();
    void theSelectionFollows();
    void aNameInUseIsRefused_data();
    void aNameInUseIsRefused();
    void aStoreThatCannotWriteKeepsEverything();
    void aRenamingThatWasCutOffIsFinished_data();
    void aRenamingThatWasCutOffIsFinished();
    void aNoteThatIsNoneIsRemoved();
    void aNoteOfOthersChangesNothing_data();
    void aNoteOfOthersChangesNothing();
};

namespace {

const char* const Note = ".cabsettings-rename";

/// Fails to write once it is told to.
class TFailingStore : public TParameterStore
{
public:
    bool isFailing = false;

protected:
    bool Persist(const QMap<int, QVariant>&) override { return !isFailing; }
};

} // namespace

void FieldRenames::filesOfItsNameAreRenamedToo_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("a client") << "Smith"
                              << "Jones"
                              << List("Jones/North/F1/Boundaries/B_1/B_1.bdy|Jones/North/F1/Boundaries/F1/F1.bdy|"
                                      "Jones/North/F1/F1.ini|Jones/North/F1/F1_Elevation.pbz|"
                                      "Jones/North/F1/Jobs/F1/F1.ini|Jones/North/F1/Jobs/J_1/J_1.cov|"
                                      "Jones/North/F1/Jobs/J_1/J_1.ini|Jones/North/F1/Jobs/J_1/J_10.ini|"
                                      "Jones/North/F1/Jobs/J_1/J_1_PPD.pbz|Jones/North/F1/Jobs/J_1/areacounters.ini|"
                                      "Jones/North/F1/Zones/F1/F1.dbf|Jones/North/F1/Zones/F1/F1.shp|"
                                      "Jones/North/F1/flagpoints.ini");
    QTest::newRow("a field") << "Smith/North/F1"
                             << "East 40"
                             << List("Smith/North/East 40/Boundaries/B_1/B_1.bdy|"
                                     "Smith/North/East 40/Boundaries/East 40/East 40.bdy|"
                                     "Smith/North/East 40/East 40.ini|Smith/North/East 40/East 40_Elevation.pbz|"
                                     "Smith/North/East 40/Jobs/F1/F1.ini|Smith/North/East 40/Jobs/J_1/J_1.cov|"
                                     "Smith/North/East 40/Jobs/J_1/J_1.ini|Smith/North/East 40/Jobs/J_1/J_10.ini|"
                                     "Smith/North/East 40/Jobs/J_1/J_1_PPD.pbz|"
                                     "Smith/North/East 40/Jobs/J_1/areacounters.ini|"
                                     "Smith/North/East 40/Zones/East 40/East 40.dbf|"
                                     "Smith/North/East 40/Zones/East 40/East 40.shp|"
                                     "Smith/North/East 40/flagpoints.ini");
    QTest::newRow("a job") << "Smith/North/F1/J_1"
                           << "Łąka"
                           << List("Smith/North/F1/Boundaries/B_1/B_1.bdy|Smith/North/F1/Boundaries/F1/F1.bdy|"
                                   "Smith/North/F1/F1.ini|Smith/North/F1/F1_Elevation.pbz|"
                                   "Smith/North/F1/Jobs/F1/F1.ini|Smith/North/F1/Jobs/Łąka/J_10.ini|"
                                   "Smith/North/F1/Jobs/Łąka/areacounters.ini|Smith/North/F1/Jobs/Łąka/Łąka.cov|"
                                   "Smith/North/F1/Jobs/Łąka/Łąka.ini|Smith/North/F1/Jobs/Łąka/Łąka_PPD.pbz|"
                                   "Smith/North/F1/Zones/F1/F1.dbf|Smith/North/F1/Zones/F1/F1.shp|"
                                   "Smith/North/F1/flagpoints.ini");
    QTest::newRow("letter case alone") << "Smith/North"
                                       << "north"
                                       << List("Smith/north/F1/Boundaries/B_1/B_1.bdy|"
                                               "Smith/north/F1/Boundaries/F1/F1.bdy|Smith/north/F1/F1.ini|"
                                               "Smith/north/F1/F1_Elevation.pbz|Smith/north/F1/Jobs/F1/F1.ini|"
                                               "Smith/north/F1/Jobs/J_1/J_1.cov|Smith/north/F1/Jobs/J_1/J_1.ini|"
                                               "Smith/north/F1/Jobs/J_1/J_10.ini|Smith/north/F1/Jobs/J_1/J_1_PPD.pbz|"
                                               "Smith/north/F1/Jobs/J_1/areacounters.ini|"
                                               "Smith/north/F1/Zones/F1/F1.dbf|Smith/north/F1/Zones/F1/F1.shp|"
                                               "Smith/north/F1/flagpoints.ini");
}

void FieldRenames::filesOfItsNameAreRenamedToo()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    QFETCH(QStringList, files);
    TFieldTerminal terminal;
    for (const char* file :
         {"F1.ini", "F1_Elevation.pbz", "flagpoints.ini", "Boundaries/F1/F1.bdy", "Boundaries/B_1/B_1.bdy",
          "Zones/F1/F1.shp", "Zones/F1/F1.dbf", "Jobs/J_1/J_1.ini", "Jobs/J_1/J_1.cov", "Jobs/J_1/J_1_PPD.pbz",
          "Jobs/J_1/J_10.ini", "Jobs/J_1/areacounters.ini", "Jobs/F1/F1.ini"})
        terminal.MakeFile((QByteArray("Smith/North/F1/") + file).constData());
    QCOMPARE(terminal.Tree().Rename(TFieldTerminal::Path(path.toUtf8().constData()), name, &terminal.error),
             FIELD_DONE);
    files.sort();
    QStringList renamed = terminal.Files();
    renamed.sort();
    QCOMPARE(renamed, files);
}

void FieldRenames::theSelectionFollows_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("boundary");
    QTest::newRow("the client") << "Smith"
                                << "New/North/F1/J_1"
                                << "F1";
    QTest::newRow("the farm") << "Smith/North"
                              << "Smith/New/F1/J_1"
                              << "F1";
    QTest::newRow("the field, its boundary and its zones") << "Smith/North/F1"
                                                           << "Smith/North/New/J_1"
                                                           << "New";
    QTest::newRow("the job") << "Smith/North/F1/J_1"
                             << "Smith/North/F1/New"
                             << "F1";
    QTest::newRow("another farm") << "Smith/South"
                                  << "Smith/North/F1/J_1"
                                  << "F1";
    QTest::newRow("a field of the same name") << "Smith/South/F1"
                                              << "Smith/North/F1/J_1"
                                              << "F1";
}

void FieldRenames::theSelectionFollows()
{
    QFETCH(QString, path);
    TFieldTerminal terminal;
    terminal.MakeFile("Smith/North/F1/Jobs/J_1/J_1.ini");
    terminal.MakeFile("Smith/South/F1/Jobs/J_1/J_1.ini");
    terminal.Select("Smith/North/F1/J_1");
    terminal.Store().SetParameter(PARAM_ACTIVE_BOUNDARY, QLatin1String("F1"), true);
    terminal.Store().SetParameter(PARAM_ACTIVE_ZONES_SHAPE_FILE, QLatin1String("F1"), true);
    QCOMPARE(
        terminal.Tree().Rename(TFieldTerminal::Path(path.toUtf8().constData()), QLatin1String("New"), &terminal.error),
        FIELD_DONE);
    QTEST(terminal.Selected(), "selected");
    QTEST(terminal.Value(PARAM_ACTIVE_BOUNDARY), "boundary");
    QTEST(terminal.Value(PARAM_ACTIVE_ZONES_SHAPE_FILE), "boundary");
}

void FieldRenames::aNameInUseIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("problem");
    QTest::newRow("another field") << "Smith/North/F1"
                                   << "F2"
                                   << "the field \"Smith/North/F2\" exists already";
    QTest::newRow("itself") << "Smith/North/F1"
                            << "F1"
                            << "the field \"Smith/North/F1\" exists already";
    QTest::newRow("alike") << "Smith/North/F1"
                           << "f2"
                           << "a stick cannot hold the field \"Smith/North/f2\" beside \"Smith/North/F2\": it ignores "
                              "letter case and the encoding of accents";
    QTest::newRow("a boundary in the field")
        << "Smith/North/F1"
        << "B_1"
        << "cannot rename \"Smith/North/F1\": \"Clients/Smith/North/F1/Boundaries/B_1\" exists already";
    QTest::newRow("a file in the job")
        << "Smith/North/F1/J_1"
        << "J_2"
        << "cannot rename \"Smith/North/F1/J_1\": \"Clients/Smith/North/F1/Jobs/J_1/J_2.ini\" exists already";
    QTest::newRow("no such job") << "Smith/North/F1/J_7"
                                 << "J_8"
                                 << "there is no job \"Smith/North/F1/J_7\"; did you mean \"J_1\"?";
}

void FieldRenames::aNameInUseIsRefused()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    TFieldTerminal terminal;
    for (const char* file : {"F1/Jobs/J_1/J_1.ini", "F1/Jobs/J_1/J_2.ini", "F1/Boundaries/B_1/B_1.bdy", "F2/F2.ini"})
        terminal.MakeFile((QByteArray("Smith/North/") + file).constData());
    terminal.Select("Smith/North/F1/J_1");
    const QStringList before = terminal.Entries();
    QCOMPARE(terminal.Tree().Rename(TFieldTerminal::Path(path.toUtf8().constData()), name, &terminal.error),
             FIELD_FAILED);
    terminal.error.remove(terminal.folder.Path(QLatin1String("internal/")));
    QTEST(terminal.error, "problem");
    QCOMPARE(terminal.Entries(), before);
    QCOMPARE(terminal.Selected(), QString::fromLatin1("Smith/North/F1/J_1"));
}

void FieldRenames::aStoreThatCannotWriteKeepsEverything()
{
    const TTemporaryFolder folder;
    folder.MakeFile(QLatin1String("internal/Clients/Smith/North/F1/F1.ini"));
    TFailingStore store;
    store.SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    TTerminal terminal(store);
    QString error;
    QVERIFY(terminal.Start(folder.Path(), &error));
    store.isFailing = true;
    TFieldTree tree(store);
    QCOMPARE(tree.Rename({QLatin1String("Smith")}, QLatin1String("Jones"), &error), FIELD_FAILED);
    QCOMPARE(error, QString::fromLatin1("cannot store the selection"));
    QVERIFY(folder.Exists(QLatin1String("internal/Clients/Smith/North/F1/F1.ini")));
    QVERIFY(!folder.Exists(QLatin1String("internal/Clients/Jones")));
    QCOMPARE(store.GetParameter(PARAM_CLIENT).toString(), QString::fromLatin1("Smith"));
    QCOMPARE(tree.Remove({QLatin1String("Smith")}, true, &error), FIELD_FAILED);
    QVERIFY(folder.Exists(QLatin1String("internal/Clients/Smith/North/F1/F1.ini")));
}

void FieldRenames::aRenamingThatWasCutOffIsFinished_data()
{
    // What the disk holds after each step; the selection of the field is what the store holds.
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("boundary");
    QTest::addColumn<QStringList>("filesAfter");
    QTest::addColumn<QString>("fieldAfter");
    QTest::addColumn<QString>("boundaryAfter");
    const QStringList before = List("F1/Boundaries/F1/F1.bdy|F1/F1.ini|F1/F1_Elevation.pbz");
    const QStringList after = List("F2/Boundaries/F2/F2.bdy|F2/F2.ini|F2/F2_Elevation.pbz");
    QTest::newRow("noted") << before << "F1"
                           << "F1" << before << "F1"
                           << "F1";
    QTest::newRow("nothing selected") << before << ""
                                      << "" << before << "F1"
                                      << "F1";
    QTest::newRow("folder renamed") << List("F2/Boundaries/F1/F1.bdy|F2/F1.ini|F2/F1_Elevation.pbz") << ""
                                    << "" << after << "F2"
                                    << "F2";
    QTest::newRow("a file renamed") << List("F2/Boundaries/F1/F1.bdy|F2/F2.ini|F2/F1_Elevation.pbz") << ""
                                    << "" << after << "F2"
                                    << "F2";
    QTest::newRow("the boundary's folder renamed")
        << List("F2/Boundaries/F2/F1.bdy|F2/F2.ini|F2/F2_Elevation.pbz") << ""
        << "" << after << "F2"
        << "F2";
    QTest::newRow("files renamed") << after << ""
                                   << "" << after << "F2"
                                   << "F2";
    QTest::newRow("selected") << after << "F2"
                              << "F2" << after << "F2"
                              << "F2";
    QTest::newRow("another selected meanwhile") << after << "F9"
                                                << "B_1" << after << "F9"
                                                << "B_1";
}

void FieldRenames::aRenamingThatWasCutOffIsFinished()
{
    QFETCH(QStringList, files);
    QFETCH(QString, field);
    QFETCH(QString, boundary);
    QFETCH(QStringList, filesAfter);
    TFieldTerminal terminal;
    for (const QString& file : files)
        terminal.MakeFile((QByteArray("Smith/North/") + file.toUtf8()).constData());
    terminal.MakeFile(Note, "{\"path\": [\"Smith\", \"North\", \"F1\"], \"name\": \"F2\", \"selection\": ["
                            "{\"parameter\": 8934, \"before\": \"F1\", \"after\": \"F2\"},"
                            "{\"parameter\": 8920, \"before\": \"F1\", \"after\": \"F2\"}]}");
    terminal.Select("Smith/North");
    terminal.Store().SetParameter(PARAM_FIELD, field, true);
    terminal.Store().SetParameter(PARAM_ACTIVE_BOUNDARY, boundary, true);
    QList<tagFieldItem> items;
    QCOMPARE(terminal.Tree().List(FIELD_DRIVE_INTERNAL, {}, &items, &terminal.error), FIELD_DONE);
    for (QString& file : filesAfter)
        file.prepend(QLatin1String("Smith/North/"));
    QCOMPARE(terminal.Files(), filesAfter);
    QTEST(terminal.Value(PARAM_FIELD), "fieldAfter");
    QTEST(terminal.Value(PARAM_ACTIVE_BOUNDARY), "boundaryAfter");
}

void FieldRenames::aNoteThatIsNoneIsRemoved()
{
    TFieldTerminal terminal;
    terminal.MakeFile("Smith/North/F1/F1.ini");
    terminal.MakeFile(Note, "{\"path\": [\"Smith\", ");
    QCOMPARE(terminal.Tree().Rename(TFieldTerminal::Path("Smith"), QLatin1String("Jones"), &terminal.error),
             FIELD_DONE);
    QCOMPARE(terminal.Files(), List("Jones/North/F1/F1.ini"));
}

void FieldRenames::aNoteOfOthersChangesNothing_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("parameter");
    QTest::newRow("another parameter") << QByteArray("Smith") << QByteArray("Jones") << int(PARAM_ACTIVE_VEHICLE);
    QTest::newRow("no parameter") << QByteArray("Smith") << QByteArray("Jones") << -5;
    QTest::newRow("a name above") << QByteArray("..") << QByteArray("Jones") << int(PARAM_FARM);
    QTest::newRow("a new name elsewhere") << QByteArray("Smith") << QByteArray("../Jones") << int(PARAM_FARM);
}

void FieldRenames::aNoteOfOthersChangesNothing()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, name);
    QFETCH(int, parameter);
    TFieldTerminal terminal;
    terminal.MakeFile("Smith/North/F1/F1.ini");
    const EParamID changed = static_cast<EParamID>(parameter);
    terminal.Store().SetParameter(changed, QString(QLatin1String("")), true);
    terminal.MakeFile(Note, "{\"path\": [\"" + path + "\"], \"name\": \"" + name +
                                "\", \"selection\": [{\"parameter\": " + QByteArray::number(parameter) +
                                ", \"before\": \"foreign\", \"after\": \"foreign\"}]}");
    QCOMPARE(terminal.Tree().Rename(TFieldTerminal::Path("Smith"), QLatin1String("Miller"), &terminal.error),
             FIELD_DONE);
    QCOMPARE(terminal.Store().GetParameter(changed).toString(), QString(QLatin1String("")));
    QCOMPARE(terminal.Files(), List("Miller/North/F1/F1.ini"));
}

QTEST_GUILESS_MAIN(FieldRenames)
#include "FieldRenames.moc"
