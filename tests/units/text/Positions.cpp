#include "CoreTest.h"
#include "TChosenUnits.h"
#include "TestSeed.h"

#include <cfloat>
#include <cmath>
#include <limits>
#include <random>

class Positions : public QObject
{
    Q_OBJECT

private slots:
    void degreesMinutesAndSecondsAreShown_data();
    void degreesMinutesAndSecondsAreShown();
    void decimalDegreesAreShown_data();
    void decimalDegreesAreShown();
    void anyPositionIsWithinAHundredthOfASecond();
    void whatIsNoPositionHasATextAllTheSame_data();
    void whatIsNoPositionHasATextAllTheSame();
    void theFormIsReadAtEveryCall();
};

void Positions::degreesMinutesAndSecondsAreShown_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QString>("angle");
    QTest::addColumn<bool>("isNegative");

    const struct
    {
        const char* name;
        double degrees;
        const char* angle;
        bool isNegative;
    } rows[] = {
        {"half a degree", 51.5, "51\u00b030'00.00\"", false},
        {"little west", -0.1275, "0\u00b007'39.00\"", true},
        {"zero", 0.0, "0\u00b000'00.00\"", false},
        {"negative zero", -0.0, "0\u00b000'00.00\"", false},
        {"least negative", -4.9e-324, "0\u00b000'00.00\"", true},
        {"south", -33.86785, "33\u00b052'04.26\"", true},
        {"one digit everywhere", 1.0 + 2.0 / 60 + 3.5 / 3600, "1\u00b002'03.50\"", false},
        {"a pole", 90.0, "90\u00b000'00.00\"", false},
        {"the other pole", -90.0, "90\u00b000'00.00\"", true},
        {"the date line", 180.0, "180\u00b000'00.00\"", false},
        {"the date line from the west", -180.0, "180\u00b000'00.00\"", true},
        {"near the date line", 179.99999, "179\u00b059'59.96\"", false},
        {"seconds just below the carry", 10.0 + 20.0 / 60 + 59.994 / 3600, "10\u00b020'59.99\"", false},
        {"seconds are not carried", 10.0 + 20.0 / 60 + 59.9951 / 3600, "10\u00b020'60.00\"", false},
        {"seconds are not carried into degrees", 10.0 + 59.0 / 60 + 59.9995 / 3600, "10\u00b059'60.00\"", false},
        {"seconds are not carried in the south", -(59.0 / 60 + 59.9995 / 3600), "0\u00b059'60.00\"", true},
        {"a hair below a whole minute", 0.3833333333333333, "0\u00b023'00.00\"", false},
        {"another one", -6.766666666666667, "6\u00b046'00.00\"", true},
        {"beyond any position", 1234.5, "1234\u00b030'00.00\"", false},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << row.degrees << Utf8(row.angle) << row.isNegative;
}

void Positions::degreesMinutesAndSecondsAreShown()
{
    QFETCH(double, degrees);
    QFETCH(QString, angle);
    QFETCH(bool, isNegative);
    TChosenUnits store;
    store.values[8955] = true;
    QCOMPARE(TUnits::GetLatitudeString(degrees), angle + QLatin1Char(isNegative ? 'S' : 'N'));
    QCOMPARE(TUnits::GetLongitudeString(degrees), angle + QLatin1Char(isNegative ? 'W' : 'E'));
}

void Positions::decimalDegreesAreShown_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QString>("text");
    QTest::newRow("south") << -33.86785 << Utf8("-33.86785000");
    QTest::newRow("north") << 51.5 << Utf8("51.50000000");
    QTest::newRow("zero") << 0.0 << Utf8("0.00000000");
    QTest::newRow("a pole") << 90.0 << Utf8("90.00000000");
    QTest::newRow("the date line") << -180.0 << Utf8("-180.00000000");
    QTest::newRow("eight decimals, up") << 12.345678906 << Utf8("12.34567891");
    QTest::newRow("eight decimals, down") << 12.345678904 << Utf8("12.34567890");
    QTest::newRow("a millimetre") << 0.00000001 << Utf8("0.00000001");
}

void Positions::decimalDegreesAreShown()
{
    QFETCH(double, degrees);
    QFETCH(QString, text);
    TChosenUnits store; // the choice absent
    QCOMPARE(TUnits::GetLatitudeString(degrees), text);
    QCOMPARE(TUnits::GetLongitudeString(degrees), text);
    store.values[8955] = false;
    QCOMPARE(TUnits::GetLatitudeString(degrees), text);
    QCOMPARE(TUnits::GetLongitudeString(degrees), text);
}

void Positions::anyPositionIsWithinAHundredthOfASecond()
{
    std::mt19937 random(TestSeed());
    std::uniform_real_distribution<double> anywhere(-180, 180);
    std::uniform_int_distribution<int> hundredths(-180 * 360000, 180 * 360000);
    TChosenUnits store;
    store.values[8955] = true;
    for (int i = 0; i < 20000; ++i) {
        // Every other one a whole number of hundredths of a second, where rounding may go either way.
        const double degrees = i % 2 == 0 ? anywhere(random) : hundredths(random) / 360000.0;
        const QString text = TUnits::GetLongitudeString(degrees);
        const QByteArray told = (QByteArray::number(degrees, 'g', 17) + " is " + text.toUtf8());

        const QString angle = text.left(static_cast<int>(text.size()) - 1);
        const int degreeSign = static_cast<int>(angle.indexOf(QChar(0xB0)));
        const int minuteSign = static_cast<int>(angle.indexOf(QLatin1Char('\'')));
        QVERIFY2(degreeSign > 0 && minuteSign == degreeSign + 3, told.constData());
        QVERIFY2(angle.size() == minuteSign + 7 && angle.endsWith(QLatin1Char('"')), told.constData());
        const int whole = angle.left(degreeSign).toInt();
        const int minutes = angle.mid(degreeSign + 1, 2).toInt();
        const double seconds = angle.mid(minuteSign + 1, 5).toDouble();
        QVERIFY2(minutes >= 0 && minutes <= 59 && seconds >= 0 && seconds <= 60, told.constData());
        const double read = whole * 3600.0 + minutes * 60.0 + seconds;
        QVERIFY2(std::fabs(read - std::fabs(degrees) * 3600) < 0.00501, told.constData());
        QVERIFY2(text.endsWith(QLatin1Char(degrees < 0 ? 'W' : 'E')), told.constData());
    }
}

void Positions::whatIsNoPositionHasATextAllTheSame_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<bool>("isNegative");
    QTest::addColumn<QString>("decimal");
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << false << Utf8("nan");
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << false << Utf8("inf");
    QTest::newRow("negative infinity") << -std::numeric_limits<double>::infinity() << true << Utf8("-inf");
    QTest::newRow("greatest") << DBL_MAX << false << QString();
    QTest::newRow("least") << -DBL_MAX << true << QString();
    QTest::newRow("beyond an int") << -3e9 << true << Utf8("-3000000000.00000000");
}

void Positions::whatIsNoPositionHasATextAllTheSame()
{
    QFETCH(double, degrees);
    QFETCH(bool, isNegative);
    QFETCH(QString, decimal);
    TChosenUnits store;
    store.values[8955] = true;
    QVERIFY(TUnits::GetLatitudeString(degrees).endsWith(QLatin1Char(isNegative ? 'S' : 'N')));
    QVERIFY(TUnits::GetLongitudeString(degrees).endsWith(QLatin1Char(isNegative ? 'W' : 'E')));
    store.values[8955] = false;
    QVERIFY(!TUnits::GetLatitudeString(degrees).isEmpty());
    if (!decimal.isEmpty())
        QCOMPARE(TUnits::GetLatitudeString(degrees), decimal);
}

void Positions::theFormIsReadAtEveryCall()
{
    TChosenUnits store;
    QStringList texts;
    for (bool inMinutes : {false, true, false}) {
        store.values[8955] = inMinutes;
        texts << TUnits::GetLatitudeString(51.5);
    }
    QCOMPARE(texts, QStringList() << Utf8("51.50000000") << Utf8("51\u00b030'00.00\"N") << Utf8("51.50000000"));
}

int main(int argc, char** argv) { return RunCoreTest<Positions>(argc, argv); }
#include "Positions.moc"
