#include "CoreTest.h"
#include "InOwnProcess.h"
#include "Latin1.h"
#include "TChosenUnits.h"

#include <climits>

/// The decimal point is chosen once for a run of the display, so each case here runs in a process of its own.
class DecimalPoint : public QObject
{
    Q_OBJECT

private slots:
    void theStoredNumberChoosesThePoint_data();
    void theStoredNumberChoosesThePoint();
    void theChoiceIsKeptForTheRun_data();
    void theChoiceIsKeptForTheRun();
    void eachFunctionMakesItsOwnChoice();
    void theChoiceIsReadOnceByEach();
    void quantitiesAreShownWithThePoint_data();
    void quantitiesAreShownWithThePoint();
};

void DecimalPoint::theStoredNumberChoosesThePoint_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("point");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("read");

    const QString stop = Latin1(".");
    QTest::newRow("comma") << QVariant(1) << Latin1(",") << Latin1("12,50 kg/ha") << Latin1("1.5 2.5");
    QTest::newRow("comma, as text") << QVariant(Latin1("1")) << Latin1(",") << Latin1("12,50 kg/ha")
                                    << Latin1("1.5 2.5");
    QTest::newRow("full stop") << QVariant(0) << stop << Latin1("12.50 kg/ha") << Latin1("1,5 2.5");
    QTest::newRow("two") << QVariant(2) << stop << Latin1("12.50 kg/ha") << Latin1("1,5 2.5");
    QTest::newRow("negative") << QVariant(-1) << stop << Latin1("12.50 kg/ha") << Latin1("1,5 2.5");
    QTest::newRow("greatest") << QVariant(INT_MAX) << stop << Latin1("12.50 kg/ha") << Latin1("1,5 2.5");
    QTest::newRow("absent") << QVariant() << stop << Latin1("12.50 kg/ha") << Latin1("1,5 2.5");
}

void DecimalPoint::theStoredNumberChoosesThePoint()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, point);
    QFETCH(QString, shown);
    QFETCH(QString, read);
    const QStringList answers = InOwnProcess([&stored] {
        TTestStore store;
        if (stored.isValid())
            store.values[9010] = stored;
        return QStringList() << QString(TUnits::InternalDecimalPointChar())
                             << QString(TUnits::DisplayableDecimalPointChar())
                             << TUnits::InternalToDisplayableFloatStr(Latin1("12.50 kg/ha"))
                             << TUnits::DisplayableToInternalFloatStr(Latin1("1,5 2.5"));
    });
    QCOMPARE(answers, QStringList() << Latin1(".") << point << shown << read);
}

void DecimalPoint::theChoiceIsKeptForTheRun_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("later");
    QTest::addColumn<QString>("point");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("read");
    QTest::newRow("comma, then full stop") << 1 << 0 << Latin1(",") << Latin1("1,5") << Latin1("2.5");
    QTest::newRow("full stop, then comma") << 0 << 1 << Latin1(".") << Latin1("1.5") << Latin1("2,5");
    QTest::newRow("another number, then comma") << 2 << 1 << Latin1(".") << Latin1("1.5") << Latin1("2,5");
}

void DecimalPoint::theChoiceIsKeptForTheRun()
{
    QFETCH(int, first);
    QFETCH(int, later);
    QFETCH(QString, point);
    QFETCH(QString, shown);
    QFETCH(QString, read);
    const QStringList answers = InOwnProcess([first, later] {
        QStringList texts;
        for (int stored : {first, later}) {
            TTestStore store;
            store.values[9010] = stored;
            texts << QString(TUnits::DisplayableDecimalPointChar())
                  << TUnits::InternalToDisplayableFloatStr(Latin1("1.5"))
                  << TUnits::DisplayableToInternalFloatStr(Latin1("2,5"));
        }
        return texts;
    });
    const QStringList once = QStringList() << point << shown << read;
    QCOMPARE(answers, once + once);
}

void DecimalPoint::eachFunctionMakesItsOwnChoice()
{
    const QStringList showing = InOwnProcess([] {
        TTestStore store;
        const QString before = TUnits::InternalToDisplayableFloatStr(Latin1("1.5"));
        store.values[9010] = 1;
        return QStringList() << before << TUnits::DisplayableToInternalFloatStr(Latin1("2,5"))
                             << QString(TUnits::DisplayableDecimalPointChar())
                             << TUnits::InternalToDisplayableFloatStr(Latin1("1.5"));
    });
    QCOMPARE(showing, QStringList() << Latin1("1.5") << Latin1("2.5") << Latin1(",") << Latin1("1.5"));

    const QStringList reading = InOwnProcess([] {
        TTestStore store;
        const QString before = TUnits::DisplayableToInternalFloatStr(Latin1("2,5"));
        store.values[9010] = 1;
        return QStringList() << before << TUnits::InternalToDisplayableFloatStr(Latin1("1.5"))
                             << TUnits::DisplayableToInternalFloatStr(Latin1("2,5"));
    });
    QCOMPARE(reading, QStringList() << Latin1("2,5") << Latin1("1,5") << Latin1("2,5"));
}

void DecimalPoint::theChoiceIsReadOnceByEach()
{
    const QStringList counts = InOwnProcess([] {
        TTestStore store;
        QStringList reads;
        for (int i = 0; i < 3; ++i) {
            TUnits::InternalToDisplayableFloatStr(Latin1("1.5"));
            TUnits::DisplayableToInternalFloatStr(Latin1("2,5"));
            TUnits::DisplayableDecimalPointChar();
            reads << QString::number(store.reads.count(9010));
        }
        return reads;
    });
    QCOMPARE(counts, QStringList() << Latin1("3") << Latin1("3") << Latin1("3"));
}

void DecimalPoint::quantitiesAreShownWithThePoint_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("full stop") << 0
                               << (QStringList() << Latin1("12.35 ha") << Latin1("2.5 hrs") << Latin1("7:30")
                                                 << Latin1("2.5 kg") << Latin1("5.00 m") << Latin1("10.5 L/ha")
                                                 << Latin1("12.50  (1.50%)") << Latin1("5.00 L") << Latin1("3.5 A")
                                                 << Latin1("-33.86785000") << Latin1("-33.86785000"));
    QTest::newRow("comma") << 1
                           << (QStringList() << Latin1("12,35 ha") << Latin1("2,5 hrs") << Latin1("7:30")
                                             << Latin1("2,5 kg") << Latin1("5,00 m") << Latin1("10,5 L/ha")
                                             << Latin1("12,50  (1,50%)") << Latin1("5,00 L") << Latin1("3,5 A")
                                             << Latin1("-33.86785000") // a position is copied into other systems
                                             << Latin1("-33,86785000"));
}

void DecimalPoint::quantitiesAreShownWithThePoint()
{
    QFETCH(int, stored);
    QFETCH(QStringList, texts);
    const QStringList shown = InOwnProcess([stored] {
        TChosenUnits store;
        store.values[9010] = stored;
        store.values[PARAM_24_HOUR_CLOCK] = true;
        store.ChooseMeasures(true, false);
        return QStringList() << TUnits::GetAreaString(12.349F, -1, nullptr) << TUnits::GetDurationString(2.5F)
                             << TUnits::GetValueString(7.5, Latin1("HH:mm:ss"), -1, nullptr)
                             << TUnits::GetValueString(2.5, Latin1(" kg"), -1, nullptr)
                             << TUnits::GetDistanceStringAdaptive(true, 5.0F, false, false)
                             << TUnits::GetValueString(10.5, UNITS_L_PER_HA, 100, nullptr)
                             << TUnits::GetDischargeRateAndRelativeErrorString(true, false, 12.5F, 1.5F)
                             << TUnits::GetValueString(5, UNITS_LITERS, 2, nullptr)
                             << TUnits::GetValueString(3.5, UNITS_AMPERES, 1, nullptr)
                             << TUnits::GetLatitudeString(-33.86785)
                             << TUnits::GetValueString(-33.86785, UNITS_LATITUDE, -1, nullptr);
    });
    QCOMPARE(shown, texts);
}

int main(int argc, char** argv) { return RunCoreTest<DecimalPoint>(argc, argv); }
#include "DecimalPoint.moc"
