#include "diagnostics/DiagnosticTexts.h"
#include "diagnostics/EConsoleEvent.h"
#include "diagnostics/EReceiverEvent.h"
#include "parameters/TParameterCatalogue.h"

#include <QtTest>

#include <thread>

class DiagnosticTexts : public QObject
{
    Q_OBJECT

private slots:
    void eventsOfTheTerminalHaveNames();
    void receiverEventsHaveNames_data();
    void receiverEventsHaveNames();
    void whatHasNoNameIsItsNumber_data();
    void whatHasNoNameIsItsNumber();
    void parametersAreNamedAsInTheCatalogue();
    void codesWithoutANameTakeOnePlace();
    void eachThreadHasItsOwnText();
};

void DiagnosticTexts::eventsOfTheTerminalHaveNames()
{
    QCOMPARE(DiagnosticText(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, CONSOLE_EVENT_LINES_LOST),
             QString::fromLatin1("Lines lost"));
}

void DiagnosticTexts::receiverEventsHaveNames_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<QString>("text");
    QTest::newRow("first fix") << static_cast<int>(RECEIVER_EVENT_FIRST_FIX) << "First fix";
    QTest::newRow("fix lost") << static_cast<int>(RECEIVER_EVENT_FIX_LOST) << "Fix lost";
    QTest::newRow("fix regained") << static_cast<int>(RECEIVER_EVENT_FIX_REGAINED) << "Fix regained";
    QTest::newRow("time set") << static_cast<int>(RECEIVER_EVENT_TIME_SET) << "Time set";
    QTest::newRow("bad checksums") << static_cast<int>(RECEIVER_EVENT_BAD_CHECKSUMS) << "Bad checksums";
    QTest::newRow("fix unstable") << static_cast<int>(RECEIVER_EVENT_FIX_UNSTABLE) << "Fix unstable";
}

void DiagnosticTexts::receiverEventsHaveNames()
{
    QFETCH(int, event);
    QFETCH(QString, text);
    QCOMPARE(DiagnosticText(DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, event), text);
}

void DiagnosticTexts::whatHasNoNameIsItsNumber_data()
{
    QTest::addColumn<int>("component");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("code");
    QTest::newRow("unknown event") << 1 << 1 << 99;
    QTest::newRow("another component's event") << 0 << 1 << 1;
    QTest::newRow("a number that is no parameter") << 1 << 0 << 7;
    QTest::newRow("a parameter's number as an event") << 1 << 1 << static_cast<int>(PARAM_METRIC);
    QTest::newRow("negative") << 4 << 1 << -7;
}

void DiagnosticTexts::whatHasNoNameIsItsNumber()
{
    QFETCH(int, component);
    QFETCH(int, type);
    QFETCH(int, code);
    QCOMPARE(DiagnosticText(static_cast<EDiagnosticComponent>(component), static_cast<EDiagnosticType>(type), code),
             QString::number(code));
}

void DiagnosticTexts::parametersAreNamedAsInTheCatalogue()
{
    QCOMPARE(DiagnosticText(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_PARAM, PARAM_METRIC),
             QString::fromLatin1("units.metric"));
    for (const tagParameter& parameter : TParameterCatalogue::Parameters())
        QCOMPARE(DiagnosticText(DIAG_COMPONENT_NONE, DIAG_TYPE_PARAM, parameter.id), parameter.name);
}

void DiagnosticTexts::codesWithoutANameTakeOnePlace()
{
    const QString& first = DiagnosticText(DIAG_COMPONENT_NONE, DIAG_TYPE_EVENT, 1000);
    for (int code = 1001; code < 3000; ++code) {
        const QString& text = DiagnosticText(DIAG_COMPONENT_NONE, DIAG_TYPE_EVENT, code);
        QCOMPARE(text, QString::number(code));
        QCOMPARE(&text, &first);
    }
}

void DiagnosticTexts::eachThreadHasItsOwnText()
{
    const QString& text = DiagnosticText(DIAG_COMPONENT_NONE, DIAG_TYPE_EVENT, 1000);
    QString other;
    std::thread([&other] { other = DiagnosticText(DIAG_COMPONENT_NONE, DIAG_TYPE_EVENT, 2000); }).join();
    QCOMPARE(other, QString::fromLatin1("2000"));
    QCOMPARE(text, QString::fromLatin1("1000"));
}

QTEST_GUILESS_MAIN(DiagnosticTexts)
#include "DiagnosticTexts.moc"
