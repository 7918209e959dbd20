#include "TQuickTerminal.h"

/// The active items in QML.
class Selections : public QObject
{
    Q_OBJECT

private slots:
    void everyKindIsReadAndWritten_data();
    void everyKindIsReadAndWritten();
    void aChangeByAnotherProgramArrives();
    void aNameThatIsNotAcceptedIsSaid();
    void anItemThatIsSelectedIsListed();
    void anUnknownKindHasNoItems();
};

void Selections::everyKindIsReadAndWritten_data()
{
    QTest::addColumn<int>("parameter");
    QTest::newRow("client") << int(PARAM_CLIENT);
    QTest::newRow("farm") << int(PARAM_FARM);
    QTest::newRow("field") << int(PARAM_FIELD);
    QTest::newRow("job") << int(PARAM_ACTIVE_JOB);
    QTest::newRow("boundary") << int(PARAM_ACTIVE_BOUNDARY);
    QTest::newRow("abLine") << int(PARAM_ACTIVE_AB_LINE);
    QTest::newRow("pivot") << int(PARAM_ACTIVE_PIVOT);
    QTest::newRow("curve") << int(PARAM_ACTIVE_CURVE);
    QTest::newRow("vehicle") << int(PARAM_ACTIVE_VEHICLE);
    QTest::newRow("implement") << int(PARAM_ACTIVE_IMPLEMENT);
    QTest::newRow("sprayer") << int(PARAM_ACTIVE_SPRAYER);
}

void Selections::everyKindIsReadAndWritten()
{
    QFETCH(int, parameter);
    const QByteArray property = QByteArray("Selections.") + QTest::currentDataTag();
    TQuickTerminal terminal;
    QSignalSpy changes(terminal.Named("Selections"), SIGNAL(changed()));
    terminal.Get((property + " = 'Süd 1'").constData());
    QCOMPARE(terminal.Text(property.constData()), QString::fromUtf8("Süd 1"));
    QCOMPARE(terminal.Store().GetParameter(static_cast<EParamID>(parameter)).toString(), QString::fromUtf8("Süd 1"));
    QCOMPARE(terminal.Text("Selections.error"), QString());
    QTRY_COMPARE_WITH_TIMEOUT(changes.size(), 1, Patience);
    terminal.Get((property + " = ''").constData());
    QCOMPARE(terminal.Text(property.constData()), QString());
    QTRY_COMPARE_WITH_TIMEOUT(changes.size(), 2, Patience);
}

void Selections::aChangeByAnotherProgramArrives()
{
    const TQuickTerminal terminal;
    QSignalSpy changes(terminal.Named("Selections"), SIGNAL(changed()));
    QString error;
    const auto other = TSqliteStore::Open(terminal.Store().Path(), &error);
    QVERIFY2(other, qPrintable(error));
    QVERIFY(other->SetParameter(PARAM_ACTIVE_VEHICLE, QLatin1String("Tractor 2"), true));
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Selections.vehicle"), QLatin1String("Tractor 2"), Patience);
    QTRY_VERIFY_WITH_TIMEOUT(!changes.isEmpty(), Patience);
}

void Selections::aNameThatIsNotAcceptedIsSaid()
{
    const TQuickTerminal terminal;
    QSignalSpy errors(terminal.Named("Selections"), SIGNAL(errorChanged()));
    terminal.Get("Selections.client = 'Smith'");
    QCOMPARE(terminal.Text("Selections.check('client', 'Smith')"), QString());
    QVERIFY(!terminal.Text("Selections.check('client', 'a/b')").isEmpty());
    QVERIFY(!terminal.Text("Selections.check('abLine', '..')").isEmpty());
    terminal.Get("Selections.client = 'a/b'");
    QCOMPARE(terminal.Text("Selections.client"), QLatin1String("Smith"));
    QCOMPARE(terminal.Text("Selections.error"), terminal.Text("Selections.check('client', 'a/b')"));
    QCOMPARE(errors.size(), 1);
    terminal.Get("Selections.client = 'Jones'");
    QCOMPARE(terminal.Text("Selections.error"), QString());
}

void Selections::anItemThatIsSelectedIsListed()
{
    const TQuickTerminal terminal;
    terminal.folder.MakeFolder(QLatin1String("internal/Vehicles/Tractor 1"));
    terminal.Get("Selections.vehicle = 'Tractor 9'");
    const QStringList names = terminal.Get("Selections.list('vehicle')").toStringList();
    QVERIFY(names.contains(QLatin1String("Tractor 1")));
    QCOMPARE(names.count(QLatin1String("Tractor 9")), 1);
    terminal.Get("(Selections.client = 'Smith', Selections.farm = 'North', Selections.field = 'F1')");
    terminal.folder.MakeFolder(QLatin1String("internal/Clients/Smith/North/F1/ABLines/L1"));
    QVERIFY(terminal.Get("Selections.list('abLine')").toStringList().contains(QLatin1String("L1")));
}

void Selections::anUnknownKindHasNoItems()
{
    const TQuickTerminal terminal;
    QCOMPARE(terminal.Get("Selections.list('horse')").toStringList(), QStringList());
    QCOMPARE(terminal.Text("Selections.check('horse', 'x')"), QString());
}

QTEST_GUILESS_MAIN(Selections)
#include "Selections.moc"
