#include "TQuickTerminal.h"

#include "parameters/TParameterCatalogue.h"

#include <QAbstractListModel>

/// The lists of parameters and of their groups.
class ParameterLists : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_Terminal = std::make_unique<TQuickTerminal>(); }
    void cleanupTestCase() { m_Terminal.reset(); }

    void everyParameterIsListedOnce();
    void aGroupHoldsItsParameters_data();
    void aGroupHoldsItsParameters();
    void everyGroupHasATitle();
    void unitsBeginWithTheMeasures();
    void everyWordOfASearchMustOccur_data();
    void everyWordOfASearchMustOccur();

private:
    std::unique_ptr<TQuickTerminal> m_Terminal;
};

namespace {

QString Latin(const char* text) { return QString::fromLatin1(text); }

/// What a role holds in each row.
QStringList Column(QObject* object, const char* role)
{
    const auto* const model = qobject_cast<QAbstractItemModel*>(object);
    QStringList column;
    for (int row = 0; row < model->rowCount(); ++row)
        column.append(model->index(row, 0).data(model->roleNames().key(role)).toString());
    return column;
}

QStringList Names(const QString& group)
{
    QStringList names;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters())
        if (group.isEmpty() || parameter.name.startsWith(group + QLatin1Char('.')))
            names.append(parameter.name);
    names.sort();
    return names;
}

} // namespace

void ParameterLists::everyParameterIsListedOnce()
{
    const std::unique_ptr<QObject> model = m_Terminal->Make("ParameterModel {}");
    QStringList names = Column(model.get(), "name");
    names.sort();
    QCOMPARE(names, Names(QString()));
    QCOMPARE(model->property("count").toInt(), static_cast<int>(names.size()));
    QVERIFY(!Column(model.get(), "title").contains(QString()));
    QVERIFY(!Column(model.get(), "meaning").contains(QString()));
    QVERIFY(!Column(model.get(), "type").contains(QString()));
}

void ParameterLists::aGroupHoldsItsParameters_data()
{
    QTest::addColumn<QString>("group");
    for (const QString& group : Column(m_Terminal->Named("ParameterGroups"), "group"))
        QTest::newRow(qPrintable(group)) << group;
    QTest::newRow("no group") << Latin("unit");
    QTest::newRow("a part of a group") << Latin("colors.night");
}

void ParameterLists::aGroupHoldsItsParameters()
{
    QFETCH(QString, group);
    const std::unique_ptr<QObject> model = m_Terminal->Make("ParameterModel {}");
    QSignalSpy counts(model.get(), SIGNAL(countChanged()));
    model->setProperty("group", group);
    QCOMPARE(static_cast<int>(counts.size()), 1);
    QStringList names = Column(model.get(), "name");
    names.sort();
    QCOMPARE(names, Names(group));
    for (const QString& each : Column(model.get(), "group"))
        QCOMPARE(each, group.section(QLatin1Char('.'), 0, 0));
}

void ParameterLists::everyGroupHasATitle()
{
    QObject* const groups = m_Terminal->Named("ParameterGroups");
    QSet<QString> expected;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters())
        expected.insert(parameter.name.section(QLatin1Char('.'), 0, 0));
    const QStringList names = Column(groups, "group");
    QCOMPARE(QSet<QString>(names.begin(), names.end()), expected);
    QCOMPARE(static_cast<int>(names.size()), static_cast<int>(expected.size()));
    const QStringList titles = Column(groups, "title");
    QVERIFY(!titles.contains(QString()));
    QCOMPARE(static_cast<int>(QSet<QString>(titles.begin(), titles.end()).size()), static_cast<int>(titles.size()));
}

void ParameterLists::unitsBeginWithTheMeasures()
{
    const std::unique_ptr<QObject> model = m_Terminal->Make("ParameterModel { group: 'units' }");
    QCOMPARE(Column(model.get(), "name").mid(0, 3),
             QStringList({Latin("units.metric"), Latin("units.us"), Latin("units.area")}));
}

void ParameterLists::everyWordOfASearchMustOccur_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("names");
    const auto row = [](const char* group, const char* search, const QStringList& names) {
        QTest::newRow(qPrintable(Latin("%1: %2").arg(Latin(group), Latin(search))))
            << Latin(group) << Latin(search) << names;
    };
    row("", "decimal sign", {Latin("region.decimal-point")});
    row("", "SIGN  Decimal ", {Latin("region.decimal-point")});
    row("", "acre", {Latin("units.area")});                       // the text of a choice
    row("", "deutsch", {Latin("region.language")});               // of a language
    row("", "night-lightbar", {Latin("display.night-lightbar")}); // a name
    row("", "degrees horizon", {Latin("display.day-switching")}); // a meaning
    row("units", "density uk", {Latin("units.dry-density")});
    row("region", "acre", {});
    row("", "acre deutsch", {});
    row("", "xyzzy", {});
    row("rates", "  ", {Latin("rates.basis")});
}

void ParameterLists::everyWordOfASearchMustOccur()
{
    QFETCH(QString, group);
    QFETCH(QString, search);
    const std::unique_ptr<QObject> model = m_Terminal->Make("ParameterModel {}");
    model->setProperty("group", group);
    model->setProperty("search", search);
    QTEST(Column(model.get(), "name"), "names");
}

QTEST_GUILESS_MAIN(ParameterLists)
#include "ParameterLists.moc"
