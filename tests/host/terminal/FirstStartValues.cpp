#include "terminal/FirstStartValues.h"
#include "colors/TColorSettings.h"
#include "parameters/HostParameters.h"
#include "parameters/TParameterCatalogue.h"
#include "stores/TMemoryStore.h"

#include <QtTest>

#include <cmath>

class FirstStartValues : public QObject
{
    Q_OBJECT

private slots:
    void everyParameterTheLibraryReadsHasAValue_data();
    void everyParameterTheLibraryReadsHasAValue();
    void whatTheStoreHoldsStays();
    void everyTerminalHasAnIdentityOfItsOwn();
    void textIsLegible_data();
    void textIsLegible();
    void theNightIsDark_data();
    void theNightIsDark();
};

namespace {

/// The relative luminance of sRGB: 0 for black, 1 for white.
double Luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& a, const QColor& b)
{
    const double lighter = qMax(Luminance(a), Luminance(b));
    const double darker = qMin(Luminance(a), Luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

QColor FirstColor(EParamID id)
{
    TMemoryStore store;
    SetFirstStartValues(store);
    return store.GetParameter(id).value<QColor>();
}

} // namespace

void FirstStartValues::everyParameterTheLibraryReadsHasAValue_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("type");
    for (const int number : {8952, 8953, 8954, 8955, 8966, 9011, 9012, 9060})
        QTest::newRow(qPrintable(QString::number(number))) << number << static_cast<int>(QMetaType::Bool);
    for (const int number : {1929, 8949, 8950, 8951, 8957, 8960, 8961, 8962, 8963,  8964,
                             9009, 9010, 9061, 9062, 9063, 9079, 9095, 9103, 10471, 10472})
        QTest::newRow(qPrintable(QString::number(number))) << number << static_cast<int>(QMetaType::Int);
    for (const int number : {8932, 8933, 8934})
        QTest::newRow(qPrintable(QString::number(number))) << number << static_cast<int>(QMetaType::QString);
    for (int number = 9064; number <= 9094; ++number) {
        if (number != 9079)
            QTest::newRow(qPrintable(QString::number(number))) << number << static_cast<int>(QMetaType::QColor);
    }
}

void FirstStartValues::everyParameterTheLibraryReadsHasAValue()
{
    QFETCH(int, number);
    QFETCH(int, type);
    TMemoryStore store;
    SetFirstStartValues(store);
    QCOMPARE(store.GetParameter(static_cast<EParamID>(number)).userType(), type);
}

void FirstStartValues::whatTheStoreHoldsStays()
{
    TMemoryStore store;
    store.SetParameter(PARAM_METRIC, false, true);
    store.SetParameter(PARAM_TEXT_COLOR_DAY, QColor(1, 2, 3), true);
    SetFirstStartValues(store);
    QCOMPARE(store.GetParameter(PARAM_METRIC), QVariant(false));
    QCOMPARE(store.GetParameter(PARAM_TEXT_COLOR_DAY).value<QColor>(), QColor(1, 2, 3));
}

void FirstStartValues::everyTerminalHasAnIdentityOfItsOwn()
{
    TMemoryStore one;
    TMemoryStore other;
    SetFirstStartValues(one);
    SetFirstStartValues(other);
    const QVariant identity = one.GetParameter(PARAM_TERMINAL_IDENTITY);
    QString error;
    QVERIFY(TParameterCatalogue::Read(*TParameterCatalogue::Find(PARAM_TERMINAL_IDENTITY), identity.toString(), &error)
                .isValid());
    QVERIFY(identity != other.GetParameter(PARAM_TERMINAL_IDENTITY));
    SetFirstStartValues(one);
    QCOMPARE(one.GetParameter(PARAM_TERMINAL_IDENTITY), identity);
}

void FirstStartValues::textIsLegible_data()
{
    QTest::addColumn<int>("text");
    QTest::addColumn<int>("ground");
    for (const int scheme : {0, 1}) {
        const QByteArray name = scheme == 0 ? "day" : "night";
        const auto row = [scheme, &name](const char* title, const EParamID(&text)[2], const EParamID(&ground)[2]) {
            QTest::newRow((name + ": " + title).constData())
                << static_cast<int>(text[scheme]) << static_cast<int>(ground[scheme]);
        };
        using Color = TColorSettings;
        row("text on background", Color::TextColorKey, Color::BackgroundColorKey);
        row("title on background", Color::TitleColorKey, Color::BackgroundColorKey);
        row("text on map", Color::TextColorKey, Color::MapColorKey);
        row("button text on button", Color::ButtonTextColorKey, Color::ButtonColorKey);
        row("outer boundary on map", Color::ExternalBoundaryColorKey, Color::MapColorKey);
        row("inner boundary on map", Color::InternalBoundaryColorKey, Color::MapColorKey);
        row("track on map", Color::TrackColorKey, Color::MapColorKey);
        row("cross hairs on map", Color::CrossHairsColorKey, Color::MapColorKey);
    }
}

void FirstStartValues::textIsLegible()
{
    QFETCH(int, text);
    QFETCH(int, ground);
    const double contrast =
        Contrast(FirstColor(static_cast<EParamID>(text)), FirstColor(static_cast<EParamID>(ground)));
    QVERIFY2(contrast >= 4.5, qPrintable(QString::number(contrast)));
}

void FirstStartValues::theNightIsDark_data()
{
    QTest::addColumn<int>("area");
    QTest::newRow("background") << 9083;
    QTest::newRow("map") << 9091;
    QTest::newRow("button") << 9081;
    QTest::newRow("grid") << 9093;
    QTest::newRow("coverage") << 9088;
}

void FirstStartValues::theNightIsDark()
{
    QFETCH(int, area);
    const double luminance = Luminance(FirstColor(static_cast<EParamID>(area)));
    QVERIFY2(luminance < 0.06, qPrintable(QString::number(luminance)));
}

QTEST_GUILESS_MAIN(FirstStartValues)
#include "FirstStartValues.moc"
