#include "TQuickTerminal.h"
#include "TestSeed.h"

#include "colors/ColorContrast.h"
#include "parameters/TParameterCatalogue.h"

#include <QAbstractListModel>
#include <QColor>

#include <random>

/// The colours in force, and those that are mixed from them.
class SchemeColors : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase() { m_Terminal.reset(); }

    void everyElementIsOfTheScheme_data();
    void everyElementIsOfTheScheme();
    void theBackgroundNumberIsOfTheScheme();
    void anInvalidColorIsTheFirstOne();
    void oneTapSwitches();
    void levelsAreThoseOfTheNight();
    void theSchemesCarryTheDisplay_data();
    void theSchemesCarryTheDisplay();
    void anOwnSchemeCarriesTheDisplay_data();
    void anOwnSchemeCarriesTheDisplay();
    void theNightIsDark();
    void contrastsAreListed_data();
    void contrastsAreListed();
    void contrastsFollowAColor();

private:
    QColor Color(const char* name) const { return Scheme()->property(name).value<QColor>(); }
    QObject* Scheme() const { return m_Terminal->Named("Scheme"); }
    void Set(const QString& name, const QVariant& value) const;
    void Night() const;
    void CheckLegibility() const;

    std::unique_ptr<TQuickTerminal> m_Terminal;
};

namespace {

QString Latin(const char* text) { return QString::fromLatin1(text); }

/// A colour of the scheme, and its name in the catalogue.
struct tagElement
{
    const char* property;
    const char* name;
};

const tagElement Elements[] = {
    {"text", "text"},
    {"button", "button"},
    {"buttonText", "button-text"},
    {"background", "background"},
    {"title", "title"},
    {"externalBoundary", "external-boundary"},
    {"internalBoundary", "internal-boundary"},
    {"inactiveBoundaries", "inactive-boundaries"},
    {"coverage", "coverage"},
    {"vehicle", "vehicle"},
    {"track", "track"},
    {"map", "map"},
    {"exclusionZone", "exclusion-zone"},
    {"grid", "grid"},
    {"crossHairs", "cross-hairs"},
};

QString Name(bool isDay, const char* element)
{
    return Latin("colors.%1.%2").arg(Latin(isDay ? "day" : "night"), Latin(element));
}

QColor FirstColor(bool isDay, const char* element)
{
    return TParameterCatalogue::Find(Name(isDay, element))->firstValue.value<QColor>();
}

QColor AnyColor(std::mt19937& random)
{
    std::uniform_int_distribution<int> channel(0, 255);
    return QColor(channel(random), channel(random), channel(random));
}

double Luminance(const QColor& color) { return (ContrastRatio(color, QColor(Qt::black)) * 0.05) - 0.05; }

} // namespace

void SchemeColors::initTestCase() { TestSeed(); }

/// Each row begins with the schemes of a first start, by day.
void SchemeColors::init()
{
    if (!m_Terminal)
        m_Terminal = std::make_unique<TQuickTerminal>();
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (parameter.name.startsWith(Latin("colors.")) || parameter.name.startsWith(Latin("display.")))
            m_Terminal->Store().SetParameter(parameter.id, parameter.firstValue, false);
    }
    QCoreApplication::processEvents();
    QCOMPARE(Scheme()->property("isDay").toBool(), true);
}

void SchemeColors::Set(const QString& name, const QVariant& value) const
{
    m_Terminal->Store().SetParameter(TParameterCatalogue::Find(name)->id, value, false);
}

void SchemeColors::Night() const
{
    Set(Latin("display.day"), false);
    QTRY_COMPARE_WITH_TIMEOUT(Scheme()->property("isDay").toBool(), false, Patience);
}

void SchemeColors::everyElementIsOfTheScheme_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QByteArray>("element");
    for (const tagElement& element : Elements)
        QTest::newRow(element.name) << QByteArray(element.property) << QByteArray(element.name);
}

void SchemeColors::everyElementIsOfTheScheme()
{
    QFETCH(QByteArray, property);
    QFETCH(QByteArray, element);
    QCOMPARE(Color(property), FirstColor(true, element));
    Set(Name(true, element), QColor(1, 2, 3));
    QTRY_COMPARE_WITH_TIMEOUT(Color(property), QColor(1, 2, 3), Patience);
    Night();
    QCOMPARE(Color(property), FirstColor(false, element));
    Set(Name(false, element), QColor(4, 5, 6));
    QTRY_COMPARE_WITH_TIMEOUT(Color(property), QColor(4, 5, 6), Patience);
}

void SchemeColors::theBackgroundNumberIsOfTheScheme()
{
    const auto number = [this] { return Scheme()->property("backgroundNumber").toInt(); };
    QCOMPARE(number(), 1);
    Set(Name(true, "background-number"), 7);
    QTRY_COMPARE_WITH_TIMEOUT(number(), 7, Patience);
    Night();
    QCOMPARE(number(), 2);
    Set(Name(false, "background-number"), 0);
    QTRY_COMPARE_WITH_TIMEOUT(number(), 0, Patience);
}

void SchemeColors::anInvalidColorIsTheFirstOne()
{
    for (const tagElement& element : Elements) {
        Set(Name(true, element.name), QVariant());
        Set(Name(false, element.name), QColor());
    }
    QCoreApplication::processEvents();
    for (const tagElement& element : Elements)
        QCOMPARE(Color(element.property), FirstColor(true, element.name));
    Night();
    for (const tagElement& element : Elements)
        QCOMPARE(Color(element.property), FirstColor(false, element.name));
}

void SchemeColors::oneTapSwitches()
{
    QSignalSpy changes(Scheme(), SIGNAL(changed()));
    QVERIFY(QMetaObject::invokeMethod(Scheme(), "toggle"));
    QTRY_COMPARE_WITH_TIMEOUT(Scheme()->property("isDay").toBool(), false, Patience);
    QCOMPARE(static_cast<int>(changes.size()), 1);
    QCOMPARE(m_Terminal->Store().GetParameter(PARAM_DAY_MODE), QVariant(false));
    for (int taps = 0; taps < 3; ++taps) // faster than they arrive
        QVERIFY(QMetaObject::invokeMethod(Scheme(), "toggle"));
    QTRY_COMPARE_WITH_TIMEOUT(Scheme()->property("isDay").toBool(), true, Patience);
    Scheme()->setProperty("isDay", false);
    QTRY_COMPARE_WITH_TIMEOUT(Scheme()->property("isDay").toBool(), false, Patience);
    m_Terminal.reset();
}

void SchemeColors::levelsAreThoseOfTheNight()
{
    const auto level = [this](const char* name) { return Scheme()->property(name).toDouble(); };
    QCOMPARE(level("lightbarLevel"), 1.0);
    QCOMPARE(level("backlightLevel"), 1.0);
    QCOMPARE(level("buttonLevel"), 1.0);
    Night();
    QCOMPARE(level("lightbarLevel"), 0.3);
    QCOMPARE(level("backlightLevel"), 0.2);
    QCOMPARE(level("buttonLevel"), 0.1);
    Set(Latin("display.night-lightbar"), 75);
    QTRY_COMPARE_WITH_TIMEOUT(level("lightbarLevel"), 0.75, Patience);
    Set(Latin("display.night-lightbar"), 1000); // what a library of another version may have left
    QTRY_COMPARE_WITH_TIMEOUT(level("lightbarLevel"), 1.0, Patience);
}

void SchemeColors::CheckLegibility() const
{
    const auto ratio = [this](const char* color, const char* ground) {
        return ContrastRatio(Color(color), Color(ground));
    };
    const auto check = [&](const char* color, const char* ground, double least) {
        const QString pair = Latin("%1 %2 on %3 %4: %5 of %6")
                                 .arg(Latin(color), Color(color).name(), Latin(ground), Color(ground).name())
                                 .arg(ratio(color, ground))
                                 .arg(least);
        QVERIFY2(ratio(color, ground) >= least, qPrintable(pair));
    };
    for (const char* ground : {"panel", "background"}) {
        check("text", ground, Scheme()->property("isDay").toBool() ? 7 : 4.5);
        check("muted", ground, 4.5);
        check("good", ground, 4.5);
        check("attention", ground, 4.5);
        check("focus", ground, 3);
    }
    check("accentText", "accent", 4.5);
    check("accentGroundText", "accentGround", 4.5);
    check("goodGroundText", "goodGround", 4.5);
    check("line", "panel", 1.15);
    QCOMPARE(Color("accent"), Color("title"));
    QVERIFY(Color("muted") != Color("text"));
    QVERIFY(Color("coverageEdge") != Color("coverage"));
    QVERIFY(Color("scrim").alpha() < 255 && Color("scrim").alpha() > 0);
    for (const char* solid : {"panel", "line", "muted", "accentText", "good", "attention", "focus", "coverageEdge"})
        QCOMPARE(Color(solid).alpha(), 255);
}

void SchemeColors::theSchemesCarryTheDisplay_data()
{
    QTest::addColumn<bool>("isDay");
    QTest::newRow("day") << true;
    QTest::newRow("night") << false;
}

void SchemeColors::theSchemesCarryTheDisplay()
{
    QFETCH(bool, isDay);
    if (!isDay)
        Night();
    CheckLegibility();
}

void SchemeColors::anOwnSchemeCarriesTheDisplay_data()
{
    QTest::addColumn<bool>("isDay");
    QTest::addColumn<unsigned>("seed");
    for (unsigned i = 0; i < 10; ++i)
        QTest::newRow(qPrintable(Latin("%1 %2").arg(Latin(i % 2 == 0 ? "day" : "night")).arg(i))) << (i % 2 == 0) << i;
}

void SchemeColors::anOwnSchemeCarriesTheDisplay()
{
    QFETCH(bool, isDay);
    QFETCH(unsigned, seed);
    if (!isDay)
        Night();
    // Any colours of which the operator can read the text; the title may be any.
    std::mt19937 random(TestSeed() + seed);
    QColor text;
    QColor background;
    do {
        text = AnyColor(random);
        background = AnyColor(random);
    } while (ContrastRatio(text, background) < 7);
    const QColor title = AnyColor(random);
    Set(Name(isDay, "text"), text);
    Set(Name(isDay, "background"), background);
    Set(Name(isDay, "title"), title);
    QTRY_COMPARE_WITH_TIMEOUT(Color("title"), title, Patience);
    QCOMPARE(Color("text"), text);
    QCOMPARE(Color("background"), background);
    CheckLegibility();
}

void SchemeColors::theNightIsDark()
{
    Night();
    for (const char* ground :
         {"background", "panel", "button", "map", "line", "coverageEdge", "accentGround", "goodGround"})
        QVERIFY2(Luminance(Color(ground)) < 0.08, ground);
    for (const char* drawn : {"text", "muted", "accentText", "good", "attention", "focus", "accent"}) {
        QVERIFY2(Color(drawn) != QColor(Qt::white), drawn);
        QVERIFY2(Luminance(Color(drawn)) < 0.65, drawn);
    }
}

void SchemeColors::contrastsAreListed_data() { theSchemesCarryTheDisplay_data(); }

void SchemeColors::contrastsAreListed()
{
    QFETCH(bool, isDay);
    const std::unique_ptr<QObject> object = m_Terminal->Make("ContrastModel {}");
    object->setProperty("day", isDay);
    const auto* const model = qobject_cast<QAbstractItemModel*>(object.get());
    const auto cell = [model](int row, const char* role) {
        return model->index(row, 0).data(model->roleNames().key(role));
    };
    int row = 0;
    for (const tagContrastCheck& check : CheckContrasts(m_Terminal->Store())) {
        if (check.isDay != isDay)
            continue;
        QVERIFY(!cell(row, "element").toString().isEmpty());
        QVERIFY(!cell(row, "ground").toString().isEmpty());
        QCOMPARE(cell(row, "elementName").toString(), Name(isDay, qPrintable(check.element)));
        QCOMPARE(cell(row, "groundName").toString(), Name(isDay, qPrintable(check.ground)));
        QCOMPARE(cell(row, "color").value<QColor>(), check.color);
        QCOMPARE(cell(row, "groundColor").value<QColor>(), check.groundColor);
        QCOMPARE(cell(row, "ratioText").toString(), Latin("%1:1").arg(check.ratio, 0, 'f', 1));
        QCOMPARE(cell(row, "boundText").toString(), Latin("%1:1").arg(check.bound, 0, 'f', 1));
        QCOMPARE(cell(row, "isLegible").toBool(), check.isLegible);
        ++row;
    }
    QVERIFY(row > 10);
    QCOMPARE(model->rowCount(), row);
}

void SchemeColors::contrastsFollowAColor()
{
    const std::unique_ptr<QObject> object = m_Terminal->Make("ContrastModel {}");
    const auto* const model = qobject_cast<QAbstractItemModel*>(object.get());
    const int role = model->roleNames().key("isLegible");
    QCOMPARE(model->index(0, 0).data(role).toBool(), true);
    QSignalSpy changes(model, &QAbstractItemModel::dataChanged);
    Set(Name(true, "text"), FirstColor(true, "background"));
    QTRY_COMPARE_WITH_TIMEOUT(model->index(0, 0).data(role).toBool(), false, Patience);
    QCOMPARE(model->index(0, 0).data(model->roleNames().key("ratioText")).toString(), Latin("1.0:1"));
    QCOMPARE(static_cast<int>(changes.size()), 2); // on the background and on the map
}

QTEST_GUILESS_MAIN(SchemeColors)
#include "SchemeColors.moc"
