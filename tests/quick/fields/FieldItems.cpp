#include "TQuickTerminal.h"

#include <QAbstractItemModel>

/// The tree of clients, farms, fields and jobs in QML.
class FieldItems : public QObject
{
    Q_OBJECT

private slots:
    void everyLevelIsListed_data();
    void everyLevelIsListed();
    void anItemIsAdded();
    void aNameIsChecked_data();
    void aNameIsChecked();
    void anItemIsRenamed();
    void anItemIsRemoved();
    void whatHoldsFilesIsRemovedOnlyWithForce();
    void aJobIsChosen();
    void anotherFieldHasNoJobYet();
    void whatIsMissingCannotBeChosen();
    void theSelectionIsShown();
    void anObjectMayGoWhileItsWorkRuns();

private:
    /// "name", with a star behind what is active.
    static QStringList Names(const TQuickTerminal& terminal)
    {
        const auto* const model = qobject_cast<QAbstractItemModel*>(terminal.Object());
        const int name = model->roleNames().key("name");
        const int isActive = model->roleNames().key("isActive");
        QStringList names;
        for (int row = 0; row < model->rowCount(); ++row)
            names.append(model->index(row, 0).data(name).toString() +
                         QLatin1String(model->index(row, 0).data(isActive).toBool() ? "*" : ""));
        return names;
    }

    static QStringList Words(const char* text)
    {
        return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }

    static void MakeTree(const TQuickTerminal& terminal)
    {
        const QString clients = QLatin1String("internal/Clients/");
        terminal.folder.MakeFile(clients + QLatin1String("Smith/North/F1/Jobs/J_1/J_1.cov"), QByteArray(1500, 'x'));
        terminal.folder.MakeFile(clients + QLatin1String("Smith/North/F1/Jobs/J_1/J_1.ini"), "1");
        terminal.folder.MakeFolder(clients + QLatin1String("Smith/North/F1/Jobs/J_2"));
        terminal.folder.MakeFolder(clients + QLatin1String("Smith/North/F2"));
        terminal.folder.MakeFolder(clients + QLatin1String("Smith/South"));
        terminal.folder.MakeFolder(clients + QString::fromUtf8("Jäger"));
    }

    /// Calls a method, and waits for done(): its arguments.
    static QVariantList Done(const TQuickTerminal& terminal, const char* call)
    {
        QSignalSpy done(terminal.Object(), SIGNAL(done(bool, QString)));
        terminal.Get(call);
        return QTest::qWaitFor([&done] { return !done.isEmpty(); }, 60000) ? done.first() : QVariantList();
    }
};

void FieldItems::everyLevelIsListed_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QString>("level");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("clients") << QByteArray("[]") << QString::fromLatin1("client") << Words("Jäger Smith");
    QTest::newRow("farms") << QByteArray("['Smith']") << QString::fromLatin1("farm") << Words("North South");
    QTest::newRow("fields") << QByteArray("['Smith', 'North']") << QString::fromLatin1("field") << Words("F1 F2");
    QTest::newRow("jobs") << QByteArray("['Smith', 'North', 'F1']") << QString::fromLatin1("job") << Words("J_1 J_2");
    QTest::newRow("nothing") << QByteArray("['Smith', 'South']") << QString::fromLatin1("field") << Words("");
    QTest::newRow("below a job") << QByteArray("['Smith', 'North', 'F1', 'J_1']") << QString() << Words("");
}

void FieldItems::everyLevelIsListed()
{
    QFETCH(QByteArray, path);
    QFETCH(QStringList, names);
    TQuickTerminal terminal;
    MakeTree(terminal);
    terminal.Load("FieldTree { path: " + path + " }");
    QVERIFY(terminal.Get("self.busy").toBool());
    QTRY_VERIFY_WITH_TIMEOUT(!terminal.Get("self.busy").toBool(), Patience);
    QCOMPARE(Names(terminal), names);
    QCOMPARE(terminal.Get("self.count").toInt(), static_cast<int>(names.size()));
    QTEST(terminal.Text("self.level"), "level");
    QCOMPARE(terminal.Text("self.error"), QString());
}

void FieldItems::anItemIsAdded()
{
    TQuickTerminal terminal;
    MakeTree(terminal);
    terminal.Load("FieldTree { path: ['Smith', 'North'] }");
    QCOMPARE(Done(terminal, "self.add('F3')"), (QVariantList{true, QString()}));
    QTRY_COMPARE_WITH_TIMEOUT(Names(terminal), Words("F1 F2 F3"), Patience);
    QVERIFY(terminal.folder.Exists(QLatin1String("internal/Clients/Smith/North/F3")));
    const QVariantList again = Done(terminal, "self.add('F3')");
    QCOMPARE(again.value(0), QVariant(false));
    QVERIFY(!again.value(1).toString().isEmpty());
    QCOMPARE(terminal.Text("self.error"), again.value(1).toString());
    QCOMPARE(Done(terminal, "self.add('a/b')").value(0), QVariant(false));
    QCOMPARE(Done(terminal, "self.add('')").value(0), QVariant(false));
    QTRY_COMPARE_WITH_TIMEOUT(Names(terminal), Words("F1 F2 F3"), Patience);
}

void FieldItems::aNameIsChecked_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("new") << QString::fromUtf8("Süd 7") << true;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("a path") << QString::fromLatin1("a/b") << false;
    QTest::newRow("taken") << QString::fromLatin1("Smith") << false;
    QTest::newRow("taken in other letters") << QString::fromLatin1("smith") << false;
}

void FieldItems::aNameIsChecked()
{
    QFETCH(QString, name);
    QFETCH(bool, isAccepted);
    TQuickTerminal terminal;
    MakeTree(terminal);
    terminal.Load("FieldTree {}");
    QTRY_COMPARE_WITH_TIMEOUT(Names(terminal), Words("Jäger Smith"), Patience);
    const QString problem = terminal.Text(qPrintable(QString::fromUtf8("self.checkName('%1')").arg(name)));
    QCOMPARE(problem.isEmpty(), isAccepted);
}

void FieldItems::anItemIsRenamed()
{
    TQuickTerminal terminal;
    MakeTree(terminal);
    terminal.Load("FieldTree { path: ['Smith', 'North', 'F1'] }");
    QCOMPARE(Done(terminal, "self.choose('J_1')").value(0), QVariant(true));
    QCOMPARE(Done(terminal, "self.rename('J_1', 'Spring')").value(0), QVariant(true));
    QTRY_COMPARE_WITH_TIMEOUT(Names(terminal), Words("J_2 Spring*"), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Selections.job"), QLatin1String("Spring"), Patience);
    QVERIFY(terminal.folder.Exists(QLatin1String("internal/Clients/Smith/North/F1/Jobs/Spring/Spring.cov")));
    QCOMPARE(Done(terminal, "self.rename('Spring', 'J_2')").value(0), QVariant(false));
}

void FieldItems::anItemIsRemoved()
{
    TQuickTerminal terminal;
    MakeTree(terminal);
    terminal.Load("FieldTree { path: ['Smith', 'North'] }");
    QCOMPARE(Done(terminal, "self.remove('F2', false)").value(0), QVariant(true));
    QTRY_COMPARE_WITH_TIMEOUT(Names(terminal), Words("F1"), Patience);
    QVERIFY(!terminal.folder.Exists(QLatin1String("internal/Clients/Smith/North/F2")));
}

void FieldItems::whatHoldsFilesIsRemovedOnlyWithForce()
{
    TQuickTerminal terminal;
    MakeTree(terminal);
    terminal.Load("FieldTree { path: ['Smith', 'North', 'F1'] }");
    QCOMPARE(Done(terminal, "self.remove('J_1', false)").value(0), QVariant(false));
    QVERIFY(terminal.Get("self.refused").toBool());
    QVERIFY(terminal.folder.Exists(QLatin1String("internal/Clients/Smith/North/F1/Jobs/J_1/J_1.cov")));
    QCOMPARE(Done(terminal, "self.remove('J_1', true)").value(0), QVariant(true));
    QVERIFY(!terminal.Get("self.refused").toBool());
    QTRY_COMPARE_WITH_TIMEOUT(Names(terminal), Words("J_2"), Patience);
}

void FieldItems::aJobIsChosen()
{
    TQuickTerminal terminal;
    MakeTree(terminal);
    terminal.Load("FieldTree { path: ['Smith', 'North', 'F1'] }");
    QCOMPARE(Done(terminal, "self.choose('J_2')").value(0), QVariant(true));
    QTRY_COMPARE_WITH_TIMEOUT(Names(terminal), Words("J_1 J_2*"), Patience);
    QCOMPARE(terminal.Text("[Selections.client, Selections.farm, Selections.field, Selections.job].join('/')"),
             QLatin1String("Smith/North/F1/J_2"));
}

void FieldItems::anotherFieldHasNoJobYet()
{
    TQuickTerminal terminal;
    MakeTree(terminal);
    terminal.Load("FieldTree { path: ['Smith', 'North', 'F1'] }");
    QCOMPARE(Done(terminal, "self.choose('J_2')").value(0), QVariant(true));
    terminal.Get("self.path = ['Smith', 'North']");
    QCOMPARE(Done(terminal, "self.choose('F1')").value(0), QVariant(true));
    QCOMPARE(terminal.Text("Selections.job"), QLatin1String("J_2")); // chosen already, with its job
    QCOMPARE(Done(terminal, "self.choose('F2')").value(0), QVariant(true));
    QCOMPARE(terminal.Text("[Selections.client, Selections.farm, Selections.field, Selections.job].join('/')"),
             QLatin1String("Smith/North/F2/"));
}

void FieldItems::whatIsMissingCannotBeChosen()
{
    TQuickTerminal terminal;
    MakeTree(terminal);
    terminal.Get("Selections.client = 'Smith'");
    terminal.Load("FieldTree {}");
    const QVariantList result = Done(terminal, "self.choose('Nobody')");
    QCOMPARE(result.value(0), QVariant(false));
    QVERIFY(!result.value(1).toString().isEmpty());
    QCOMPARE(terminal.Text("Selections.client"), QLatin1String("Smith"));
}

void FieldItems::theSelectionIsShown()
{
    TQuickTerminal terminal;
    MakeTree(terminal);
    terminal.Load("FieldTree {}");
    QTRY_COMPARE_WITH_TIMEOUT(Names(terminal), Words("Jäger Smith"), Patience);
    terminal.Get("Selections.client = 'Smith'");
    QTRY_COMPARE_WITH_TIMEOUT(Names(terminal), Words("Jäger Smith*"), Patience);
    const auto* const model = qobject_cast<QAbstractItemModel*>(terminal.Object());
    const QModelIndex smith = model->index(1, 0);
    QCOMPARE(smith.data(model->roleNames().key("files")).toInt(), 2);
    QCOMPARE(smith.data(model->roleNames().key("bytes")).toDouble(), 1501.0);
    QCOMPARE(smith.data(model->roleNames().key("sizeText")).toString(), QLatin1String("2 files, 1.5 kB"));
}

void FieldItems::anObjectMayGoWhileItsWorkRuns()
{
    TQuickTerminal terminal;
    MakeTree(terminal);
    for (int round = 0; round < 50; ++round) {
        terminal.Load("FieldTree { path: ['Smith'] }");
        terminal.Get(qPrintable(QString::fromLatin1("self.add('New %1')").arg(round)));
    }
    terminal.Load("FieldTree { path: ['Smith'] }");
    QTRY_COMPARE_WITH_TIMEOUT(Names(terminal).size(), 52, Patience); // all were done, one after the other
    terminal.Get("self.add('the last')");
}

QTEST_GUILESS_MAIN(FieldItems)
#include "FieldItems.moc"
