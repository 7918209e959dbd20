#include "diagnostics/DiagnosticTexts.h"
#include "diagnostics/EReceiverEvent.h"

#include <QtTest>

class DiagnosticTexts : public QObject
{
    Q_OBJECT

private slots:
    void receiverEventsHaveNames_data();
    void receiverEventsHaveNames();
    void whatHasNoNameIsItsNumber_data();
    void whatHasNoNameIsItsNumber();
    void referencesStayValid();
};

void DiagnosticTexts::receiverEventsHaveNames_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<QString>("text");
    QTest::newRow("first fix") << static_cast<int>(RECEIVER_EVENT_FIRST_FIX) << "First fix";
    QTest::newRow("fix lost") << static_cast<int>(RECEIVER_EVENT_FIX_LOST) << "Fix lost";
    QTest::newRow("fix regained") << static_cast<int>(RECEIVER_EVENT_FIX_REGAINED) << "Fix regained";
    QTest::newRow("time set") << static_cast<int>(RECEIVER_EVENT_TIME_SET) << "Time set";
    QTest::newRow("bad checksums") << static_cast<int>(RECEIVER_EVENT_BAD_CHECKSUMS) << "Bad checksums";
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
    QTest::newRow("parameter") << 1 << 0 << 8953;
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

void DiagnosticTexts::referencesStayValid()
{
    const QString& first = DiagnosticText(DIAG_COMPONENT_NONE, DIAG_TYPE_EVENT, 1000);
    for (int code = 1001; code < 3000; ++code)
        DiagnosticText(DIAG_COMPONENT_NONE, DIAG_TYPE_EVENT, code);
    QCOMPARE(first, QString::fromLatin1("1000"));
    QCOMPARE(&first, &DiagnosticText(DIAG_COMPONENT_NONE, DIAG_TYPE_EVENT, 1000));
}

QTEST_GUILESS_MAIN(DiagnosticTexts)
#include "DiagnosticTexts.moc"
