#include "TQuickTerminal.h"

#include "platform/EDecimalPoint.h"
#include "region/ELanguage.h"

/// The display says when a choice takes a restart, and no longer when it is taken back.
class RestartNeeds : public QObject
{
    Q_OBJECT

private slots:
    void aChangeThatTakesARestartIsSaid_data();
    void aChangeThatTakesARestartIsSaid();
    void theLanguageOfTheStartNeedsNone();
    void aRequestIsPassedOn();
};

void RestartNeeds::aChangeThatTakesARestartIsSaid_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("language") << QStringLiteral("region.language") << int{LANGUAGE_ENGLISH} << int{LANGUAGE_GERMAN};
    QTest::newRow("decimal sign") << QStringLiteral("region.decimal-point") << int{DECIMAL_POINT_FULL_STOP}
                                  << int{DECIMAL_POINT_COMMA};
}

void RestartNeeds::aChangeThatTakesARestartIsSaid()
{
    QFETCH(QString, name);
    QFETCH(int, before);
    QFETCH(int, after);
    const TQuickTerminal terminal;
    QObject* const restart = terminal.Named("Restart");
    QCOMPARE(restart->property("needed").toBool(), false);
    QCOMPARE(restart->property("reason").toString(), QString());

    const std::unique_ptr<QObject> parameter = terminal.Make("Parameter {}");
    parameter->setProperty("name", name);
    QCOMPARE(parameter->property("needsRestart").toBool(), true);
    parameter->setProperty("value", after);
    QTRY_COMPARE_WITH_TIMEOUT(restart->property("needed").toBool(), true, Patience);
    QVERIFY(restart->property("reason").toString().endsWith(QLatin1Char('.')));
    parameter->setProperty("value", before);
    QTRY_COMPARE_WITH_TIMEOUT(restart->property("needed").toBool(), false, Patience);
}

void RestartNeeds::theLanguageOfTheStartNeedsNone()
{
    const TQuickTerminal terminal({{PARAM_LANGUAGE, int{LANGUAGE_GERMAN}}});
    QCOMPARE(terminal.Named("Restart")->property("needed").toBool(), false);
}

void RestartNeeds::aRequestIsPassedOn()
{
    const TQuickTerminal terminal;
    QObject* const restart = terminal.Named("Restart");
    QSignalSpy requests(restart, SIGNAL(requested()));
    QVERIFY(QMetaObject::invokeMethod(restart, "request"));
    QCOMPARE(static_cast<int>(requests.size()), 1);
}

QTEST_GUILESS_MAIN(RestartNeeds)
#include "RestartNeeds.moc"
