#include "CoreTest.h"
#include "TChosenUnits.h"
#include "TestSeed.h"

#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

/// The digits of numbers, which the library writes faster than Qt does: for every number they are Qt's.
class DecimalDigits : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { m_Random.seed(TestSeed()); }

    void randomNumbersHaveTheDigitsOfQt_data();
    void randomNumbersHaveTheDigitsOfQt();
    void powersHaveTheDigitsOfQt_data();
    void powersHaveTheDigitsOfQt();
    void anyNumberOfDecimalsIsShown_data();
    void anyNumberOfDecimalsIsShown();

private:
    TChosenUnits m_Store;
    qint64 m_Values = 10 * 1000 * 1000;
    std::mt19937_64 m_Random;
};

namespace {

const char* const ValuesVariable = "CABSETTINGS_TEST_VALUES"; // a number of values for slow machines

struct tagNumber
{
    double value;
    int decimals;
};

/// What a kind of number is made of, bit by bit.
struct tagBits
{
    quint64 left;

    unsigned Take(int count)
    {
        const unsigned bits = static_cast<unsigned>(left & ((1ULL << count) - 1));
        left >>= count;
        return bits;
    }

    double Signed(double value) { return Take(1) ? value : -value; }
};

double Neighbour(double value, unsigned choice)
{
    const double direction = choice == 0 ? -HUGE_VAL : HUGE_VAL;
    return choice > 1 ? value : std::nextafter(value, direction);
}

/// 53 random bits, at 0.0001 to 10 millions.
tagNumber OfEverydaySize(tagBits bits)
{
    const int decimals[] = {0, 0, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 4, 4, 6, 9};
    const int count = decimals[bits.Take(4)];
    const double size = std::ldexp(1.0, static_cast<int>(bits.Take(6) % 37) - 13);
    return {bits.Signed(static_cast<double>(bits.left) / std::ldexp(1.0, 53) * size), count};
}

/// The same as 32 bits hold it: most values come from such.
tagNumber Float(tagBits bits)
{
    const tagNumber number = OfEverydaySize(bits);
    return {static_cast<double>(static_cast<float>(number.value)), number.decimals};
}

/// Few of them: most are so long that Qt takes its time.
tagNumber OfAnyBits(tagBits bits)
{
    const int decimals = static_cast<int>(bits.left % 10);
    double value = 0;
    std::memcpy(&value, &bits.left, sizeof value);
    return {value, decimals};
}

/// An odd number of halves, quarters, eighths, … ends in a 5, one decimal behind those shown.
tagNumber Tie(tagBits bits)
{
    const int halvings = 1 + static_cast<int>(bits.Take(4) % 10);
    const double sign = bits.Signed(1);
    const quint64 odd = (bits.left >> (16 + bits.Take(5))) | 1;
    return {sign * std::ldexp(static_cast<double>(odd), -halvings), halvings - 1};
}

tagNumber BesideTie(tagBits bits)
{
    const unsigned side = bits.Take(1);
    const tagNumber tie = Tie(bits);
    return {Neighbour(tie.value, side), tie.decimals};
}

/// What a person takes for a tie: 1.005, whose bits are a little more or less.
tagNumber NearTie(tagBits bits)
{
    const int decimals = static_cast<int>(bits.Take(3));
    const unsigned side = bits.Take(2);
    const double sign = bits.Signed(1);
    const unsigned shift = bits.Take(4);
    const double odd = static_cast<double>((bits.Take(28) >> shift) | 1);
    return {sign * Neighbour(odd * 5 / std::pow(10.0, decimals + 1), side), decimals};
}

/// Numbers that round up through all their nines.
tagNumber BelowCarry(tagBits bits)
{
    const int decimals = static_cast<int>(bits.Take(3));
    const double whole = std::pow(10.0, static_cast<int>(bits.Take(4) % 10));
    const double below = static_cast<double>(bits.Take(10)) / 512 * std::pow(10.0, -decimals);
    return {bits.Signed(whole - below), decimals};
}

using TKind = tagNumber (*)(tagBits bits);

QString Shown(const tagNumber& number)
{
    return TUnits::GetValueString(number.value, QString(), number.decimals, nullptr);
}

QString ByQt(const tagNumber& number) { return QString::number(number.value, 'f', number.decimals); }

} // namespace

Q_DECLARE_METATYPE(TKind)

void DecimalDigits::initTestCase()
{
    const QByteArray given = qgetenv(ValuesVariable);
    if (given.isEmpty())
        return;
    bool isNumber = false;
    m_Values = given.toLongLong(&isNumber);
    QVERIFY2(isNumber && m_Values > 0, ValuesVariable);
}

void DecimalDigits::randomNumbersHaveTheDigitsOfQt_data()
{
    QTest::addColumn<int>("share"); // of a thousand
    QTest::addColumn<TKind>("kind");
    QTest::newRow("everyday size") << 350 << &OfEverydaySize;
    QTest::newRow("floats") << 250 << &Float;
    QTest::newRow("any bits") << 4 << &OfAnyBits;
    QTest::newRow("ties") << 80 << &Tie;
    QTest::newRow("beside ties") << 100 << &BesideTie;
    QTest::newRow("near ties") << 116 << &NearTie;
    QTest::newRow("nines") << 100 << &BelowCarry;
}

void DecimalDigits::randomNumbersHaveTheDigitsOfQt()
{
    QFETCH(int, share);
    QFETCH(TKind, kind);
    for (qint64 left = m_Values * share / 1000; left > 0; --left) {
        const tagNumber number = kind(tagBits{m_Random()});
        if (Shown(number) != ByQt(number)) {
            qDebug("%.17g", number.value);
            QCOMPARE(Shown(number), ByQt(number));
        }
    }
}

void DecimalDigits::powersHaveTheDigitsOfQt_data()
{
    QTest::addColumn<double>("base");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("greatest");
    QTest::newRow("of two") << 2.0 << -70 << 70;
    QTest::newRow("of 1024") << 1024.0 << DBL_MIN_EXP / 10 - 5 << DBL_MAX_EXP / 10;
    QTest::newRow("of ten") << 10.0 << -20 << 22;
}

void DecimalDigits::powersHaveTheDigitsOfQt()
{
    QFETCH(double, base);
    QFETCH(int, least);
    QFETCH(int, greatest);
    for (int exponent = least; exponent <= greatest; ++exponent) {
        for (unsigned side : {0U, 1U, 2U}) {
            const double value = Neighbour(std::pow(base, exponent), side);
            for (int decimals = 0; decimals < 12; ++decimals) {
                QCOMPARE(Shown({value, decimals}), ByQt({value, decimals}));
                QCOMPARE(Shown({-value, decimals}), ByQt({-value, decimals}));
            }
        }
    }
}

void DecimalDigits::anyNumberOfDecimalsIsShown_data()
{
    QTest::addColumn<double>("value");
    using Limits = std::numeric_limits<double>;
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative zero") << -0.0;
    QTest::newRow("rounds to zero") << 0.001;
    QTest::newRow("rounds to zero from below") << -0.001;
    QTest::newRow("smallest") << Limits::denorm_min();
    QTest::newRow("smallest from below") << -Limits::denorm_min();
    QTest::newRow("subnormal") << DBL_MIN / 3;
    QTest::newRow("smallest normal") << DBL_MIN;
    QTest::newRow("a position") << -33.86785;
    QTest::newRow("greatest in 31 bits") << 2147483647.9999998;
    QTest::newRow("least in 31 bits") << -2147483647.9999998;
    QTest::newRow("31 bits") << 2147483648.0;
    QTest::newRow("32 bits") << 4294967295.75;
    QTest::newRow("beyond 64 bits") << 1e20;
    QTest::newRow("greatest") << DBL_MAX;
    QTest::newRow("infinity") << Limits::infinity();
    QTest::newRow("negative infinity") << -Limits::infinity();
    QTest::newRow("NaN") << Limits::quiet_NaN();
    QTest::newRow("NaN with a sign") << -Limits::quiet_NaN();
    QTest::newRow("signalling NaN") << Limits::signaling_NaN();
}

void DecimalDigits::anyNumberOfDecimalsIsShown()
{
    QFETCH(double, value);
    for (int decimals = -9; decimals < 40; ++decimals) {
        if (decimals == -1) // the default of the unit
            continue;
        QCOMPARE(TUnits::GetTemperatureString(true, value, decimals, nullptr),
                 ByQt({value, decimals}) + Utf8(" \u00b0C"));
    }
}

int main(int argc, char** argv) { return RunCoreTest<DecimalDigits>(argc, argv); }
#include "DecimalDigits.moc"
