#include "TQuickTerminal.h"

#include "region/ELanguage.h"

#include <QTranslator>

/// A German display shows the settings in German; that the catalogue has every text is tested for all languages.
class GermanTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void everyMeaningIsTranslated_data();
    void everyMeaningIsTranslated();
    void theDisplayShowsThem();

private:
    QTranslator m_German;
};

void GermanTexts::initTestCase() { QVERIFY(m_German.load(QLatin1String(":/translations/cabsettings_de"))); }

void GermanTexts::everyMeaningIsTranslated_data()
{
    QTest::addColumn<QString>("meaning");
    QTest::addColumn<QString>("accepts");
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (parameter.name.startsWith(QLatin1String("colors."))) // composed for tools; the display has a row for each
            continue;
        const bool isTyped = parameter.type != PARAMETER_INT && parameter.mostBytes == 0 && parameter.names.isEmpty();
        QTest::newRow(qPrintable(parameter.name)) << parameter.meaning << (isTyped ? parameter.accepts : QString());
    }
}

void GermanTexts::everyMeaningIsTranslated()
{
    QFETCH(QString, meaning);
    QFETCH(QString, accepts);
    // A meaning that names other parameters is for tools; the display has another one.
    bool isForTools = false;
    for (const tagParameter& other : TParameterCatalogue::Parameters())
        isForTools = isForTools || meaning.contains(other.name);
    QVERIFY(isForTools || !m_German.translate("Parameters", meaning.toUtf8().constData()).isEmpty());
    QVERIFY(accepts.isEmpty() || !m_German.translate("ParameterTexts", accepts.toUtf8().constData()).isEmpty());
}

void GermanTexts::theDisplayShowsThem()
{
    const TQuickTerminal terminal({{PARAM_LANGUAGE, int{LANGUAGE_GERMAN}}});
    const std::unique_ptr<QObject> parameter = terminal.Make("Parameter { name: 'colors.day.coverage' }");
    QCOMPARE(parameter->property("title").toString(), QString::fromUtf8("Bearbeitete Fläche, bei Tag"));
    QCOMPARE(parameter->property("meaning").toString(), QString::fromUtf8("Farbe der bearbeiteten Fläche"));
    const std::unique_ptr<QObject> vehicle = terminal.Make("Parameter { name: 'active.vehicle' }");
    QCOMPARE(vehicle->property("value").toString(), QString::fromLatin1("No Vehicle")); // as it is stored
    QCOMPARE(vehicle->property("shownText").toString(), QString::fromLatin1("Kein Fahrzeug"));
    QCOMPARE(vehicle->property("accepts").toString(), QString::fromUtf8("ein Name ohne / \\ : * ? \" < > |"));
    const std::unique_ptr<QObject> area = terminal.Make("Quantity { kind: Quantity.Area }");
    QCOMPARE(area->property("title").toString(), QString::fromUtf8("Fläche"));
    const std::unique_ptr<QObject> found = terminal.Make("ParameterModel { search: 'dezimalzeichen' }");
    QCOMPARE(found->property("count").toInt(), 1);
}

QTEST_GUILESS_MAIN(GermanTexts)
#include "GermanTexts.moc"
