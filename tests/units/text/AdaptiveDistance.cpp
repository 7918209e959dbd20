#include "CoreTest.h"
#include "TChosenUnits.h"

#include <cmath>
#include <limits>

/// A distance in the unit that suits its magnitude.
class AdaptiveDistance : public QObject
{
    Q_OBJECT

private slots:
    void theUnitFollowsTheMagnitude_data();
    void theUnitFollowsTheMagnitude();
    void noParameterIsAsked();
};

void AdaptiveDistance::theUnitFollowsTheMagnitude_data()
{
    QTest::addColumn<bool>("metric");
    QTest::addColumn<float>("meters");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("wholeInches");
    QTest::addColumn<QString>("noDecimals");

    const float above999 = std::nextafter(999.0F, 1000.0F);
    const float belowOne = std::nextafter(1.0F, 0.0F);
    const float belowTen = std::nextafter(10.0F, 0.0F);
    const float yard = 0.9144F;
    const float belowYard = std::nextafter(yard, 0.0F);
    const float mile = 1609.344F;
    const float aboveMile = std::nextafter(mile, 2000.0F);
    const float NaN = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    const struct
    {
        const char* name;
        bool metric;
        float meters;
        const char* text;
        const char* wholeInches;
        const char* noDecimals;
    } rows[] = {
        {"no centimetre", true, 0.0F, "0 cm", "0 cm", "0 cm"},
        {"half a metre", true, 0.5F, "50 cm", "50 cm", "50 cm"},
        {"centimetres are rounded", true, 0.126F, "13 cm", "13 cm", "13 cm"},
        {"negative centimetres", true, -0.5F, "-50 cm", "-50 cm", "-50 cm"},
        {"just below a metre", true, belowOne, "100 cm", "100 cm", "100 cm"},
        {"a metre", true, 1.0F, "1.00 m", "1.00 m", "1 m"},
        {"a metre back", true, -1.0F, "-1.00 m", "-1.00 m", "-1 m"},
        {"five metres", true, 5.0F, "5.00 m", "5.00 m", "5 m"},
        {"metres and centimetres", true, 5.678F, "5.68 m", "5.68 m", "6 m"},
        {"just below ten metres", true, belowTen, "10.00 m", "10.00 m", "10 m"},
        {"ten metres", true, 10.0F, "10.0 m", "10.0 m", "10 m"},
        {"ten metres back", true, -10.0F, "-10.0 m", "-10.0 m", "-10 m"},
        {"twenty-five metres", true, 25.0F, "25.0 m", "25.0 m", "25 m"},
        {"the most metres", true, 999.0F, "999.0 m", "999.0 m", "999 m"},
        {"the most metres back", true, -999.0F, "-999.0 m", "-999.0 m", "-999 m"},
        {"just beyond the most metres", true, above999, "1.0 km", "1.0 km", "1 km"},
        {"just beyond the most metres back", true, -above999, "-1.0 km", "-1.0 km", "-1 km"},
        {"kilometres", true, 1500.0F, "1.5 km", "1.5 km", "2 km"},
        {"many kilometres", true, 12345.0F, "12.3 km", "12.3 km", "12 km"},
        {"kilometres without end", true, infinity, "inf km", "inf km", "inf km"},
        {"no metric distance", true, NaN, "nan km", "nan km", "nan km"},

        {"no inch", false, 0.0F, "0.00\"", "0\"", "0\""},
        {"inches", false, 0.5F, "19.69\"", "20\"", "20\""},
        {"negative inches", false, -0.5F, "-19.69\"", "-20\"", "-20\""},
        {"more than a foot in inches", false, 0.4F, "15.75\"", "16\"", "16\""},
        {"just below a yard", false, belowYard, "36.00\"", "36\"", "36\""},
        {"just below a yard back", false, -belowYard, "-36.00\"", "-36\"", "-36\""},
        // In 32 bits a yard is a little less than three feet, and both feet and inches are cut.
        {"a yard", false, yard, "2'11\"", "2'11\"", "2'"},
        {"a yard back", false, -yard, "-2'11\"", "-2'11\"", "-2'"},
        {"three feet and a little", false, 0.915F, "3'0\"", "3'0\"", "3'"},
        {"a metre in feet", false, 1.0F, "3'3\"", "3'3\"", "3'"},
        {"feet and inches", false, 1.7F, "5'6\"", "5'6\"", "5'"},
        {"feet and inches back", false, -1.7F, "-5'6\"", "-5'6\"", "-5'"},
        {"nine feet", false, 3.0F, "9'10\"", "9'10\"", "9'"},
        {"just below ten feet", false, 3.047F, "9'11\"", "9'11\"", "9'"},
        {"ten feet", false, 3.048F, "10'", "10'", "10'"},
        {"ten feet back", false, -3.048F, "-10'", "-10'", "-10'"},
        {"whole feet only", false, 4.0F, "13'", "13'", "13'"},
        {"whole feet back", false, -4.0F, "-13'", "-13'", "-13'"},
        {"many feet", false, 25.0F, "82'", "82'", "82'"},
        {"a kilometre in feet", false, 999.0F, "3277'", "3277'", "3277'"},
        {"a mile", false, mile, "5280'", "5280'", "5280'"},
        {"a mile back", false, -mile, "-5280'", "-5280'", "-5280'"},
        {"just beyond a mile", false, aboveMile, "1.0 miles", "1.0 miles", "1 miles"},
        {"just beyond a mile back", false, -aboveMile, "-1.0 miles", "-1.0 miles", "-1 miles"},
        {"miles", false, 2500.0F, "1.6 miles", "1.6 miles", "2 miles"},
        {"ten miles", false, 16093.44F, "10.0 miles", "10.0 miles", "10 miles"},
        {"miles without end", false, -infinity, "-inf miles", "-inf miles", "-inf miles"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << row.metric << row.meters << Utf8(row.text) << Utf8(row.wholeInches)
                                << Utf8(row.noDecimals);
}

void AdaptiveDistance::theUnitFollowsTheMagnitude()
{
    QFETCH(bool, metric);
    QFETCH(float, meters);
    QFETCH(QString, text);
    QFETCH(QString, wholeInches);
    QFETCH(QString, noDecimals);
    const TChosenUnits store;
    QCOMPARE(TUnits::GetDistanceStringAdaptive(metric, meters, false, false), text);
    QCOMPARE(TUnits::GetDistanceStringAdaptive(metric, meters, true, false), wholeInches);
    QCOMPARE(TUnits::GetDistanceStringAdaptive(metric, meters, false, true), noDecimals);
    QCOMPARE(TUnits::GetDistanceStringAdaptive(metric, meters, true, true), noDecimals);
}

void AdaptiveDistance::noParameterIsAsked()
{
    const TChosenUnits store;
    TUnits::GetDistanceStringAdaptive(true, 5.0F, false, false); // asks for the decimal point of the run
    const auto reads = store.reads.size();
    TUnits::GetDistanceStringAdaptive(true, 5.0F, false, false);
    TUnits::GetDistanceStringAdaptive(false, 5.0F, false, false);
    QCOMPARE(store.reads.size(), reads);
}

int main(int argc, char** argv) { return RunCoreTest<AdaptiveDistance>(argc, argv); }
#include "AdaptiveDistance.moc"
