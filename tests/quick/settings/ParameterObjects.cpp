#include "TQuickTerminal.h"

#include "parameters/HostParameters.h"
#include "parameters/TParameterCatalogue.h"
#include "platform/EAreaUnit.h"
#include "stores/ChangeJournal.h"

#include <QColor>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <limits>

/// Every parameter of the catalogue through `Parameter` of QML.
class ParameterObjects : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase() { m_Terminal.reset(); }

    void everyParameterIsShown_data() { AddParameters(); }
    void everyParameterIsShown();
    void everyParameterIsSet_data() { AddParameters(); }
    void everyParameterIsSet();
    void everyParameterThatIsSetSurvivesARestart();
    void everyParameterIsReset_data() { AddParameters(); }
    void everyParameterIsReset();
    void everyParameterRefusesWhatIsNotAccepted_data() { AddParameters(); }
    void everyParameterRefusesWhatIsNotAccepted();
    void whatIsNoValueIsRefused_data();
    void whatIsNoValueIsRefused();
    void aTextIsNoNumber_data() { AddParameters(); }
    void aTextIsNoNumber();
    void problemsAreSentences_data();
    void problemsAreSentences();
    void aParameterIsFoundByItsNumber();
    void anUnknownNameIsNoParameter();
    void shownTextsAreTheOperators_data();
    void shownTextsAreTheOperators();
    void theChangeOfAnotherProgramArrives();
    void theOperatorIsTheAuthor();
    void aDiskThatFailsIsSaid();
    void theLastOfManyChangesStays();

private:
    static void AddParameters();
    std::unique_ptr<QObject> Make(const QString& name) const;

    std::unique_ptr<TQuickTerminal> m_Terminal; // of all rows, until a test ends it
};

namespace {

QString Latin(const char* text) { return QString::fromLatin1(text); }

/// A value that the catalogue accepts and that is not @p now.
QVariant OtherValue(const tagParameter& parameter, const QVariant& now, const TTemporaryFolder& folder)
{
    if (parameter.type == PARAMETER_BOOL)
        return !now.toBool();
    if (parameter.type == PARAMETER_COLOR)
        return QColor(18, 52, 86);
    for (const tagParameterChoice& choice : parameter.choices)
        if (choice.value != now.toInt())
            return choice.value;
    if (parameter.type == PARAMETER_INT)
        return now.toInt() == parameter.greatest ? parameter.least : parameter.greatest;
    if (parameter.mostBytes > 0)
        return QString::fromUtf8("Müller");
    switch (int{parameter.id}) {
    case PARAM_INTERNAL_DRIVE:
        return folder.Path(Latin("other/"));
    case PARAM_EXTERNAL_DRIVE:
        return folder.Path(Latin("stick"));
    case PARAM_TERMINAL_IDENTITY:
        return Latin("6ba7b810-9dad-41d1-80b4-00c04fd430c8");
    case PARAM_RECEIVER_ADDRESS:
        return Latin("tcp://receiver:2947");
    case PARAM_TILES:
        return Latin("time,speed");
    default:
        return Latin("2026-03-05T13:05:09Z");
    }
}

/// A text that the catalogue refuses.
QString Refused(const tagParameter& parameter)
{
    return parameter.mostBytes > 0 ? Latin("a/b") : Latin("neither / this nor that");
}

} // namespace

void ParameterObjects::init()
{
    if (!m_Terminal)
        m_Terminal = std::make_unique<TQuickTerminal>();
}

void ParameterObjects::AddParameters()
{
    QTest::addColumn<QString>("name");
    for (const tagParameter& parameter : TParameterCatalogue::Parameters())
        QTest::newRow(qPrintable(parameter.name)) << parameter.name;
}

std::unique_ptr<QObject> ParameterObjects::Make(const QString& name) const
{
    std::unique_ptr<QObject> parameter = m_Terminal->Make("Parameter {}");
    parameter->setProperty("name", name);
    return parameter;
}

void ParameterObjects::everyParameterIsShown()
{
    QFETCH(QString, name);
    const tagParameter& row = *TParameterCatalogue::Find(name);
    const std::unique_ptr<QObject> parameter = Make(name);
    QCOMPARE(parameter->property("exists").toBool(), true);
    QCOMPARE(parameter->property("number").toInt(), int{row.id});
    QCOMPARE(parameter->property("group").toString(), name.left(name.indexOf(QLatin1Char('.'))));
    QCOMPARE(parameter->property("type").toString(), TParameterCatalogue::TypeName(row.type));
    QCOMPARE(parameter->property("unit").toString(), row.unit);
    QVERIFY(!parameter->property("accepts").toString().isEmpty());
    QCOMPARE(parameter->property("needsRestart").toBool(), row.meaning.endsWith(Latin("a change needs a restart")));
    QCOMPARE(parameter->property("defaultValue"), TParameterCatalogue::FirstValue(row));

    // What the operator reads is there for each.
    const QString title = parameter->property("title").toString();
    QVERIFY(!title.isEmpty() && title.size() <= 32);
    QVERIFY(title.at(0).isUpper());
    const QString meaning = parameter->property("meaning").toString();
    QVERIFY(!meaning.at(0).isLower());
    for (const tagParameter& other : TParameterCatalogue::Parameters())
        QVERIFY2(!meaning.contains(other.name), qPrintable(meaning)); // names are for tools

    const QVariantList choices = parameter->property("choices").toList();
    const int expected = row.type == PARAMETER_BOOL ? 2 : static_cast<int>(row.choices.size() + row.names.size());
    QCOMPARE(static_cast<int>(choices.size()), expected);
    QSet<QString> texts;
    for (const QVariant& choice : choices) {
        const QString text = choice.toMap().value(Latin("text")).toString();
        QVERIFY2(!text.isEmpty(), qPrintable(choice.toMap().value(Latin("name")).toString()));
        texts.insert(text);
        QString error;
        const QVariant read = TParameterCatalogue::Read(row, choice.toMap().value(Latin("name")).toString(), &error);
        QCOMPARE(read, choice.toMap().value(Latin("value")));
    }
    QCOMPARE(static_cast<int>(texts.size()), expected);

    const bool hasRange = row.type == PARAMETER_INT && row.choices.isEmpty();
    QCOMPARE(parameter->property("hasRange").toBool(), hasRange);
    QCOMPARE(parameter->property("least").toInt(), hasRange ? row.least : 0);
    QCOMPARE(parameter->property("greatest").toInt(), hasRange ? row.greatest : 0);

    const QVariant value = m_Terminal->Store().GetParameter(row.id);
    QCOMPARE(parameter->property("value"), value);
    QCOMPARE(parameter->property("text").toString(), TParameterCatalogue::Text(row, value));
    QCOMPARE(parameter->property("shownText").toString().isEmpty(), TParameterCatalogue::Text(row, value).isEmpty());
    QCOMPARE(parameter->property("error").toString(), QString());
}

void ParameterObjects::everyParameterIsSet()
{
    QFETCH(QString, name);
    const tagParameter& row = *TParameterCatalogue::Find(name);
    const std::unique_ptr<QObject> parameter = Make(name);
    const QVariant value = OtherValue(row, parameter->property("value"), m_Terminal->folder);
    QVERIFY(value != parameter->property("value"));

    QSignalSpy changes(parameter.get(), SIGNAL(valueChanged()));
    QVERIFY(parameter->setProperty("value", value));
    QCOMPARE(parameter->property("error").toString(), QString());
    QCOMPARE(parameter->property("value"), value);
    QCOMPARE(m_Terminal->Store().GetParameter(row.id), value);
    QTRY_COMPARE_WITH_TIMEOUT(static_cast<int>(changes.size()), 1, Patience);
}

void ParameterObjects::everyParameterThatIsSetSurvivesARestart()
{
    QMap<int, QVariant> expected;
    for (const tagParameter& row : TParameterCatalogue::Parameters()) {
        const std::unique_ptr<QObject> parameter = Make(row.name);
        const QVariant value = OtherValue(row, parameter->property("value"), m_Terminal->folder);
        parameter->setProperty("value", value);
        expected.insert(row.id, value);
    }

    // Withdrawing ends when all is on the disk. The file is read while the terminal still runs, so that nothing else
    // can have written it.
    CabQuick::Withdraw();
    QString error;
    std::unique_ptr<TSqliteStore> other = TSqliteStore::Open(m_Terminal->Store().Path(), &error);
    QVERIFY2(other, qPrintable(error));
    for (const tagParameter& row : TParameterCatalogue::Parameters())
        QVERIFY2(other->GetParameter(row.id) == expected.value(row.id), qPrintable(row.name));
    other.reset();
    m_Terminal.reset();
}

void ParameterObjects::everyParameterIsReset()
{
    QFETCH(QString, name);
    const tagParameter& row = *TParameterCatalogue::Find(name);
    const std::unique_ptr<QObject> parameter = Make(name);
    const QVariant other = OtherValue(row, parameter->property("defaultValue"), m_Terminal->folder);
    parameter->setProperty("value", other);
    QCOMPARE(parameter->property("isDefault").toBool(), false);

    QVERIFY(QMetaObject::invokeMethod(parameter.get(), "reset"));
    QCOMPARE(parameter->property("isDefault").toBool(), true);
    QCOMPARE(parameter->property("value"), TParameterCatalogue::FirstValue(row));
}

void ParameterObjects::everyParameterRefusesWhatIsNotAccepted()
{
    QFETCH(QString, name);
    const tagParameter& row = *TParameterCatalogue::Find(name);
    const std::unique_ptr<QObject> parameter = Make(name);
    const QVariant before = parameter->property("value");

    QString problem;
    QVERIFY(QMetaObject::invokeMethod(parameter.get(), "check", Q_RETURN_ARG(QString, problem),
                                      Q_ARG(QString, Refused(row))));
    QVERIFY(!problem.isEmpty());
    QVERIFY(!problem.contains(name)); // the name of the tool's is not for the operator
    QCOMPARE(parameter->property("error").toString(), QString());

    bool isSet = true;
    QVERIFY(QMetaObject::invokeMethod(parameter.get(), "set", Q_RETURN_ARG(bool, isSet), Q_ARG(QString, Refused(row))));
    QVERIFY(!isSet);
    QCOMPARE(parameter->property("error").toString(), problem);
    QCOMPARE(parameter->property("value"), before);

    const QString accepted = TParameterCatalogue::Text(row, OtherValue(row, before, m_Terminal->folder));
    QVERIFY(QMetaObject::invokeMethod(parameter.get(), "set", Q_RETURN_ARG(bool, isSet), Q_ARG(QString, accepted)));
    QVERIFY(isSet);
    QCOMPARE(parameter->property("error").toString(), QString());
    QCOMPARE(parameter->property("text").toString(), accepted);
}

void ParameterObjects::whatIsNoValueIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    const QString client = Latin("active.client"); // takes the empty text
    QTest::newRow("nothing") << client << QVariant();
    QTest::newRow("a list") << client << QVariant(QVariantList{1, 2});
    QTest::newRow("a map") << client << QVariant(QVariantMap{{Latin("a"), 1}});
    QTest::newRow("a fraction") << Latin("display.night-lightbar") << QVariant(12.5);
    QTest::newRow("not a number") << Latin("display.night-lightbar") << QVariant(qQNaN());
    QTest::newRow("too large for an int") << Latin("clock.offset") << QVariant(3e9);
    QTest::newRow("a bool for a number") << Latin("display.night-lightbar") << QVariant(true);
    QTest::newRow("an invalid colour") << Latin("colors.day.map") << QVariant(QColor());
}

void ParameterObjects::whatIsNoValueIsRefused()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    const std::unique_ptr<QObject> parameter = Make(name);
    const QVariant before = parameter->property("value");
    parameter->setProperty("value", value);
    QCOMPARE(parameter->property("value"), before);
    QVERIFY(!parameter->property("error").toString().isEmpty());
}

/// A page that sets a number, a choice, or a yes or no as a text has a mistake, which it is told as any other. What an
/// operator types is set by set().
void ParameterObjects::aTextIsNoNumber()
{
    QFETCH(QString, name);
    const tagParameter& row = *TParameterCatalogue::Find(name);
    if (row.type != PARAMETER_INT && row.type != PARAMETER_BOOL)
        return;
    const std::unique_ptr<QObject> parameter = Make(name);
    const QVariant before = parameter->property("value");
    const QString text = TParameterCatalogue::Text(row, OtherValue(row, before, m_Terminal->folder));
    parameter->setProperty("value", text);
    QCOMPARE(parameter->property("value"), before);

    const QString accepts = parameter->property("accepts").toString();
    const bool hasBounds = row.least != std::numeric_limits<int>::min();
    QCOMPARE(parameter->property("error").toString(), !parameter->property("hasRange").toBool()
                                                          ? Latin("Not accepted. Expected: %1.").arg(accepts)
                                                      : hasBounds ? Latin("Not a whole number. ") + accepts
                                                                  : Latin("Not a whole number."));
    bool isSet = false;
    QVERIFY(QMetaObject::invokeMethod(parameter.get(), "set", Q_RETURN_ARG(bool, isSet), Q_ARG(QString, text)));
    QVERIFY(isSet);
    QCOMPARE(parameter->property("error").toString(), QString());
}

void ParameterObjects::problemsAreSentences_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* name, const char* typed, const char* problem) {
        QTest::newRow(qPrintable(Latin("%1 %2").arg(Latin(name), Latin(typed))))
            << Latin(name) << Latin(typed) << Latin(problem);
    };
    row("display.night-lightbar", "101", "Above the greatest value. 0 to 100 %");
    row("display.night-lightbar", "-1", "Below the least value. 0 to 100 %");
    row("display.night-lightbar", "1.5", "Not a whole number. 0 to 100 %");
    row("display.night-lightbar", "", "Not a whole number. 0 to 100 %");
    row("display.night-lightbar", "99999999999", "Above the greatest value. 0 to 100 %");
    row("log.user-number", "0", "Below the least value. 1 to 99999");
    row("system.implement-folder", "x", "Not a whole number.");
    row("colors.day.background-number", "-1", "Below the least value. At least 0");
    row("active.job", "a/b", "This cannot be the name of a file. Try: a_b");
    row("colors.day.map", "blurple", "Not accepted. Expected: a colour: #rrggbb, #aarrggbb or a name such as navy.");
    row("display.night-lightbar", "100", "");
    row("units.area", "acre", "");
}

void ParameterObjects::problemsAreSentences()
{
    QFETCH(QString, name);
    QFETCH(QString, typed);
    const std::unique_ptr<QObject> parameter = Make(name);
    QString problem;
    QVERIFY(QMetaObject::invokeMethod(parameter.get(), "check", Q_RETURN_ARG(QString, problem), Q_ARG(QString, typed)));
    QTEST(problem, "problem");
}

void ParameterObjects::aParameterIsFoundByItsNumber()
{
    const std::unique_ptr<QObject> parameter = Make(Latin("8953"));
    QCOMPARE(parameter->property("number").toInt(), int{PARAM_METRIC});
    parameter->setProperty("name", Latin("units.area"));
    QCOMPARE(parameter->property("number").toInt(), int{PARAM_AREA_UNIT});
}

void ParameterObjects::theLastOfManyChangesStays()
{
    std::unique_ptr<QObject> level = Make(Latin("display.night-lightbar"));
    for (int value = 0; value <= 100; ++value)
        level->setProperty("value", value);
    QCOMPARE(level->property("value"), QVariant(100));
    level.reset();
    CabQuick::Withdraw();
    QString error;
    std::unique_ptr<TSqliteStore> other = TSqliteStore::Open(m_Terminal->Store().Path(), &error);
    QVERIFY2(other, qPrintable(error));
    QCOMPARE(other->GetParameter(PARAM_LIGHTBAR_NIGHT_LEVEL), QVariant(100));
    other.reset();
    m_Terminal.reset();
}

void ParameterObjects::anUnknownNameIsNoParameter()
{
    const std::unique_ptr<QObject> parameter = Make(Latin("units.furlong"));
    QCOMPARE(parameter->property("exists").toBool(), false);
    QCOMPARE(parameter->property("title").toString(), QString());
    QCOMPARE(parameter->property("value"), QVariant());
    const QMap<int, QVariant> before = m_Terminal->Store().Values();
    parameter->setProperty("value", 3);
    QVERIFY(QMetaObject::invokeMethod(parameter.get(), "reset"));
    QCOMPARE(m_Terminal->Store().Values(), before);
}

void ParameterObjects::shownTextsAreTheOperators_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("shown");
    QTest::newRow("bool") << Latin("units.metric") << QVariant(true) << Latin("Metric");
    QTest::newRow("choice") << Latin("units.area") << QVariant(1) << Latin("Acre");
    QTest::newRow("not a choice") << Latin("units.area") << QVariant(7) << Latin("7");
    QTest::newRow("language") << Latin("region.language") << QVariant(1) << Latin("Deutsch");
    QTest::newRow("number") << Latin("display.night-lightbar") << QVariant(30) << Latin("30 %");
    QTest::newRow("number without unit") << Latin("log.user-number") << QVariant(12) << Latin("12");
    QTest::newRow("color") << Latin("colors.day.map") << QVariant(QColor(1, 2, 3)) << Latin("#010203");
    QTest::newRow("names") << Latin("display.tiles") << QVariant(Latin("left,time")) << Latin("Area left, Time");
    QTest::newRow("no names") << Latin("display.tiles") << QVariant(Latin("")) << QString();
    QTest::newRow("text") << Latin("active.client") << QVariant(Latin("Smith")) << Latin("Smith");
    QTest::newRow("absent") << Latin("clock.newest-time") << QVariant() << QString();
}

void ParameterObjects::shownTextsAreTheOperators()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    const std::unique_ptr<QObject> parameter = Make(name);
    m_Terminal->Store().SetParameter(TParameterCatalogue::Find(name)->id, value, false);
    QTEST(parameter->property("shownText").toString(), "shown");
}

void ParameterObjects::theChangeOfAnotherProgramArrives()
{
    m_Terminal.reset(); // whatever earlier tests have set
    init();
    const std::unique_ptr<QObject> area = Make(Latin("units.area"));
    const std::unique_ptr<QObject> pressure = Make(Latin("units.pressure"));
    // Another store object on the same file is what another program has.
    QString error;
    const std::unique_ptr<TSqliteStore> other = TSqliteStore::Open(m_Terminal->Store().Path(), &error);
    QVERIFY2(other, qPrintable(error));
    QSignalSpy areaChanges(area.get(), SIGNAL(valueChanged()));
    QSignalSpy pressureChanges(pressure.get(), SIGNAL(valueChanged()));
    QVERIFY(other->SetParameter(PARAM_AREA_UNIT, int{AREA_UNIT_ACRE}, true));
    QTRY_COMPARE_WITH_TIMEOUT(static_cast<int>(areaChanges.size()), 1, Patience);
    QCOMPARE(area->property("shownText").toString(), Latin("Acre"));
    QCOMPARE(static_cast<int>(pressureChanges.size()), 0);
}

void ParameterObjects::theOperatorIsTheAuthor()
{
    std::unique_ptr<QObject> parameter = Make(Latin("units.metric"));
    const bool before = parameter->property("value").toBool();
    parameter->setProperty("value", !before);
    parameter.reset();
    CabQuick::Withdraw();
    ChangeJournal::tagJournal journal;
    QString error;
    QVERIFY2(ChangeJournal::Read(m_Terminal->Store(), {PARAM_METRIC, 1}, &journal, &error), qPrintable(error));
    QCOMPARE(journal.entries.first().author, Latin("operator"));
    QCOMPARE(journal.entries.first().newValue, QVariant(!before));
    m_Terminal.reset();
}

void ParameterObjects::aDiskThatFailsIsSaid()
{
    // Nothing can be written while another connection has the file locked, and this store waits for it only so long.
    std::unique_ptr<QObject> parameter = Make(Latin("units.metric"));
    const bool before = parameter->property("value").toBool();
    {
        QSqlDatabase locker = QSqlDatabase::addDatabase(Latin("QSQLITE"), Latin("locker"));
        locker.setDatabaseName(m_Terminal->Store().Path());
        QVERIFY(locker.open());
        QVERIFY(QSqlQuery(locker).exec(Latin("BEGIN EXCLUSIVE")));
        parameter->setProperty("value", !before);
        QCOMPARE(parameter->property("value"), QVariant(!before)); // the page does not wait
        QCOMPARE(parameter->property("error").toString(), QString());
        QTRY_VERIFY_WITH_TIMEOUT(!parameter->property("error").toString().isEmpty(), 30000);
        QVERIFY(QSqlQuery(locker).exec(Latin("ROLLBACK")));
    }
    QSqlDatabase::removeDatabase(Latin("locker"));
    parameter->setProperty("value", before);
    QCOMPARE(parameter->property("error").toString(), QString());
}

QTEST_GUILESS_MAIN(ParameterObjects)
#include "ParameterObjects.moc"
