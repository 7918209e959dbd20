#include "CoreTest.h"
#include "TestHost.h"

#include "colors/TColorSettings.h"
#include "colors/TColorSettingsProxy.h"
#include "settings/TSettings.h"

#include <QtTest>

namespace {

struct tagElement
{
    const char* name;
    const EParamID* key;
    int dayParameter;
    QColor (TColorSettings::*get)() const;
    void (TColorSettings::*set)(const QColor&);
    QColor (TColorSettingsProxy::*proxyGet)() const;
    void (TColorSettingsProxy::*proxySet)(const QColor&);
};

using Color = TColorSettings;
using Proxy = TColorSettingsProxy;

// clang-format off
const tagElement Elements[] = {
    {"text", Color::TextColorKey, 9064, &Color::GetTextColor, &Color::SetTextColor, &Proxy::GetTextColor, &Proxy::SetTextColor},
    {"button", Color::ButtonColorKey, 9065, &Color::GetButtonColor, &Color::SetButtonColor, &Proxy::GetButtonColor, &Proxy::SetButtonColor},
    {"button text", Color::ButtonTextColorKey, 9066, &Color::GetButtonTextColor, &Color::SetButtonTextColor, &Proxy::GetButtonTextColor, &Proxy::SetButtonTextColor},
    {"background", Color::BackgroundColorKey, 9067, &Color::GetBackgroundColor, &Color::SetBackgroundColor, &Proxy::GetBackgroundColor, &Proxy::SetBackgroundColor},
    {"title", Color::TitleColorKey, 9068, &Color::GetTitleColor, &Color::SetTitleColor, &Proxy::GetTitleColor, &Proxy::SetTitleColor},
    {"external boundary", Color::ExternalBoundaryColorKey, 9069, &Color::GetExternalBoundaryColor, &Color::SetExternalBoundaryColor, &Proxy::GetExternalBoundaryColor, &Proxy::SetExternalBoundaryColor},
    {"internal boundary", Color::InternalBoundaryColorKey, 9070, &Color::GetInternalBoundaryColor, &Color::SetInternalBoundaryColor, &Proxy::GetInternalBoundaryColor, &Proxy::SetInternalBoundaryColor},
    {"inactive boundaries", Color::InactiveBoundariesColorKey, 9071, &Color::GetInactiveBoundariesColor, &Color::SetInactiveBoundariesColor, &Proxy::GetInactiveBoundariesColor, &Proxy::SetInactiveBoundariesColor},
    {"coverage", Color::CoverageColorKey, 9072, &Color::GetCoverageColor, &Color::SetCoverageColor, &Proxy::GetCoverageColor, &Proxy::SetCoverageColor},
    {"vehicle", Color::VehicleColorKey, 9073, &Color::GetVehicleColor, &Color::SetVehicleColor, &Proxy::GetVehicleColor, &Proxy::SetVehicleColor},
    {"track", Color::TrackColorKey, 9074, &Color::GetTrackColor, &Color::SetTrackColor, &Proxy::GetTrackColor, &Proxy::SetTrackColor},
    {"map", Color::MapColorKey, 9075, &Color::GetMapColor, &Color::SetMapColor, &Proxy::GetMapColor, &Proxy::SetMapColor},
    {"exclusion zone", Color::ExclusionZoneColorKey, 9076, &Color::GetExclusionZoneColor, &Color::SetExclusionZoneColor, &Proxy::GetExclusionZoneColor, &Proxy::SetExclusionZoneColor},
    {"grid", Color::GridColorKey, 9077, &Color::GetGridColor, &Color::SetGridColor, &Proxy::GetGridColor, &Proxy::SetGridColor},
    {"cross hairs", Color::CrossHairsColorKey, 9078, &Color::GetCrossHairsColor, &Color::SetCrossHairsColor, &Proxy::GetCrossHairsColor, &Proxy::SetCrossHairsColor},
};
// clang-format on

const int NightDistance = 16;

} // namespace

Q_DECLARE_METATYPE(const tagElement*)

class ColorScheme : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyElementHasADayAndANightParameter_data() { AddElements(); }
    void everyElementHasADayAndANightParameter();
    void aSetterWritesTheSchemeInUse_data() { AddElements(); }
    void aSetterWritesTheSchemeInUse();
    void theFacadeReachesTheSameElement_data() { AddElements(); }
    void theFacadeReachesTheSameElement();

    void storedValuesReadAsColors_data();
    void storedValuesReadAsColors();

    void backgroundNumberFollowsTheMode();
    void anAbsentModeIsNight();
    void levelsArePassedThrough_data();
    void levelsArePassedThrough();
    void writesArePersistent();
    void restoreTouchesNothing();

private:
    static void AddElements();

    TTestStore* m_Store;
    TSettings* m_Settings;
};

void ColorScheme::init()
{
    TTestClock::Reset();
    m_Store = new TTestStore;
    m_Settings = new TSettings;
    Settings = m_Settings;
    m_Store->reads.clear();
}

void ColorScheme::cleanup()
{
    Settings = nullptr;
    delete m_Settings;
    delete m_Store;
}

void ColorScheme::AddElements()
{
    QTest::addColumn<const tagElement*>("element");
    for (const tagElement& element : Elements)
        QTest::newRow(element.name) << &element;
}

void ColorScheme::everyElementHasADayAndANightParameter()
{
    QFETCH(const tagElement*, element);
    QCOMPARE(static_cast<int>(element->key[0]), element->dayParameter);
    QCOMPARE(static_cast<int>(element->key[1]), element->dayParameter + NightDistance);

    const TColorSettings settings;
    m_Store->values[9060] = true;
    m_Store->values[element->dayParameter] = QColor(1, 2, 3);
    m_Store->values[element->dayParameter + NightDistance] = QColor(4, 5, 6);
    QCOMPARE((settings.*element->get)(), QColor(1, 2, 3));
    m_Store->values[9060] = false;
    QCOMPARE((settings.*element->get)(), QColor(4, 5, 6));
}

void ColorScheme::aSetterWritesTheSchemeInUse()
{
    QFETCH(const tagElement*, element);
    TColorSettings settings;
    settings.SetDayMode(true);
    (settings.*element->set)(QColor(10, 20, 30));
    settings.SetDayMode(false);
    QVERIFY(!(settings.*element->get)().isValid());
    (settings.*element->set)(QColor(40, 50, 60));

    QCOMPARE(m_Store->values[element->dayParameter].value<QColor>(), QColor(10, 20, 30));
    QCOMPARE(m_Store->values[element->dayParameter + NightDistance].value<QColor>(), QColor(40, 50, 60));
    QCOMPARE(m_Store->values.size(), 3); // the mode and the two colours, nothing else
}

void ColorScheme::theFacadeReachesTheSameElement()
{
    QFETCH(const tagElement*, element);
    TColorSettingsProxy proxy;
    (proxy.*element->proxySet)(QColor(7, 8, 9));
    QCOMPARE((proxy.*element->proxyGet)(), QColor(7, 8, 9));
    QCOMPARE(m_Store->values.keys(), QList<int>() << element->dayParameter + NightDistance);
}

void ColorScheme::storedValuesReadAsColors_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QColor>("color");

    QTest::newRow("colour") << QVariant(QColor(255, 128, 0)) << QColor(255, 128, 0);
    QTest::newRow("translucent colour") << QVariant(QColor(255, 128, 0, 77)) << QColor(255, 128, 0, 77);
    QTest::newRow("hexadecimal text") << QVariant(QLatin1String("#ff0000")) << QColor(255, 0, 0);
    QTest::newRow("name") << QVariant(QLatin1String("navy")) << QColor(0, 0, 128);
    QTest::newRow("text that is no colour") << QVariant(QLatin1String("no such colour")) << QColor();
    QTest::newRow("number") << QVariant(42) << QColor();
    QTest::newRow("absent") << QVariant() << QColor();
    QTest::newRow("invalid colour") << QVariant(QColor()) << QColor();
}

void ColorScheme::storedValuesReadAsColors()
{
    QFETCH(QVariant, stored);
    QFETCH(QColor, color);
    m_Store->values[9080] = stored;
    const QColor read = TColorSettings().GetTextColor();
    QCOMPARE(read.isValid(), color.isValid());
    QCOMPARE(read, color);
}

void ColorScheme::backgroundNumberFollowsTheMode()
{
    TColorSettingsProxy proxy;
    QCOMPARE(proxy.GetBackgroundNumber(), 0);
    proxy.SetDayMode(true);
    proxy.SetBackgroundNumber(3);
    proxy.SetDayMode(false);
    QCOMPARE(proxy.GetBackgroundNumber(), 0);
    proxy.SetBackgroundNumber(5);
    QCOMPARE(m_Store->values[9079], QVariant(3));
    QCOMPARE(m_Store->values[9095], QVariant(5));
    QCOMPARE(static_cast<int>(TColorSettings::BackgroundNumberKey[0]), 9079);
    QCOMPARE(static_cast<int>(TColorSettings::BackgroundNumberKey[1]), 9095);
}

void ColorScheme::anAbsentModeIsNight()
{
    TColorSettings settings;
    QVERIFY(!settings.IsDayMode());
    QCOMPARE(settings.GetKeyIndex(), 1);
    m_Store->reads.clear();
    settings.GetTextColor();
    QCOMPARE(m_Store->reads, QList<int>() << 9060 << 9080);

    settings.SetDayMode(true);
    QVERIFY(TColorSettingsProxy().IsDayMode());
    QCOMPARE(settings.GetKeyIndex(), 0);
}

void ColorScheme::levelsArePassedThrough_data()
{
    QTest::addColumn<int>("level");
    QTest::newRow("zero") << 0;
    QTest::newRow("middle") << 50;
    QTest::newRow("negative") << -1;
    QTest::newRow("beyond any scale") << 100000;
}

void ColorScheme::levelsArePassedThrough()
{
    QFETCH(int, level);
    TColorSettingsProxy proxy;
    QCOMPARE(proxy.GetLightbarNightLevel(), 0);
    m_Store->values[9061] = level;
    m_Store->values[9062] = level + 1;
    m_Store->values[9063] = level + 2;
    QCOMPARE(proxy.GetLightbarNightLevel(), level);
    QCOMPARE(proxy.GetBacklightNightLevel(), level + 1);
    QCOMPARE(proxy.GetButtonLedNightLevel(), level + 2);
}

void ColorScheme::writesArePersistent()
{
    TColorSettingsProxy proxy;
    proxy.SetDayMode(true);
    proxy.SetTitleColor(QColor(1, 2, 3));
    proxy.SetBackgroundNumber(1);
    QCOMPARE(m_Store->writes.size(), 3);
    QVERIFY(m_Store->allWritesPersist);
}

void ColorScheme::restoreTouchesNothing()
{
    m_Store->reads.clear();
    TColorSettingsProxy().Restore();
    QVERIFY(m_Store->reads.isEmpty());
    QVERIFY(m_Store->writes.isEmpty());
}

int main(int argc, char** argv) { return RunCoreTest<ColorScheme>(argc, argv); }
#include "ColorScheme.moc"
