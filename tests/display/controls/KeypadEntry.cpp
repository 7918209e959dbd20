#include "TTemporaryFolder.h"

#include "display/icons/TIconProvider.h"
#include "display/session/TDisplaySession.h"

#include "module/CabQuick.h"
#include "platform/EDecimalPoint.h"
#include "platform/EParamID.h"
#include "platform/EShortDistanceUnit.h"
#include "stores/TSqliteStore.h"
#include "terminal/DataFolder.h"

#include <QQuickItem>
#include <QQuickView>
#include <QtTest>

#include <memory>

namespace {

// The library reads it once: each sign has a program of its own.
const EDecimalPoint Sign = CABSETTINGS_DECIMAL_POINT;

const char* const Page = R"(
import QtQuick 2.15
import CabSettings 1.0
import "qrc:/cabdisplay/controls"

Item {
    property real width_: 24
    property real behind: 2.5
    property alias fieldWidth: field.width

    Binding { target: Sizes; property: "width"; value: root.width }
    Binding { target: Sizes; property: "height"; value: root.height }
    Binding { target: Sizes; property: "overlay"; value: over }
    id: root

    PushButton {
        id: field
        objectName: "below"
        focus: true
    }
    Item {
        id: over
        property int count: 0
        objectName: "over"
        anchors.fill: parent
    }
    Keypad {
        objectName: "widthPad"
        title: "Implement width"
        quantity: Quantity { kind: Quantity.Distance; value: root.width_ }
        least: 1
        greatest: 48
        onAccepted: function(value) { root.width_ = value }
    }
    Keypad {
        objectName: "behindPad"
        title: "Behind the antenna"
        quantity: Quantity { kind: Quantity.Distance; value: root.behind }
        least: -5
        greatest: 20
        onAccepted: function(value) { root.behind = value }
    }
    Keypad {
        objectName: "levelPad"
        parameter: Parameter { name: "display.night-backlight" }
    }
}
)";

} // namespace

/// Keys that a Repeater has made are children for the eye alone.
static QQuickItem* Below(QQuickItem* item, const QString& name)
{
    if (item->objectName() == name)
        return item;
    for (QQuickItem* const child : item->childItems()) {
        if (QQuickItem* const found = Below(child, name))
            return found;
    }
    return nullptr;
}

/// The keypad: what taps and keys type, what it says meanwhile, and what it sets.
class KeypadEntry : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void itShowsTheOldValueAndTheRange();
    void tapsType();
    void keysTypeWithEitherSign_data();
    void keysTypeWithEitherSign();
    void whatCannotBeSetIsSaid_data();
    void whatCannotBeSetIsSaid();
    void theShownEndsOfTheRangeCanBeSet_data();
    void theShownEndsOfTheRangeCanBeSet();
    void theSignChangesWhereItMay();
    void backAndClearRemove();
    void aNumberEndsAtItsGreatestLength();
    void escapeLeavesTheOldValue();
    void enterSetsOnlyWhatIsRight();
    void theFocusComesBack();
    void aParameterChecksAndStores();

private:
    QQuickItem* Find(const char* pad, const char* name) const;
    void Open(const char* pad) const;
    bool IsOpen(const char* pad) const { return Find(pad)->property("isOpen").toBool(); }
    QQuickItem* Find(const char* pad) const { return m_View->rootObject()->findChild<QQuickItem*>(QLatin1String(pad)); }
    QString Text(const char* pad, const char* name) const { return Find(pad, name)->property("text").toString(); }
    void Tap(const char* pad, const char* name) const;
    void Type(const char* text) const;
    double Value(const char* name) const { return m_View->rootObject()->property(name).toDouble(); }
    /// As the library writes it.
    QString Format(double stored) const
    {
        QString text;
        QMetaObject::invokeMethod(Find("widthPad")->property("quantity").value<QObject*>(), "format",
                                  Q_RETURN_ARG(QString, text), Q_ARG(double, stored));
        return text;
    }
    static QString Shown(const char* text)
    {
        return QString::fromLatin1(text).replace(QLatin1Char('.'),
                                                 QLatin1Char(Sign == DECIMAL_POINT_COMMA ? ',' : '.'));
    }

    std::unique_ptr<TTemporaryFolder> m_Folder;
    std::unique_ptr<TDisplaySession> m_Session;
    std::unique_ptr<QQuickView> m_View;
};

void KeypadEntry::initTestCase()
{
    qputenv("QT_QUICK_BACKEND", "software");
    Q_INIT_RESOURCE(cabdisplay);
    m_Folder = std::make_unique<TTemporaryFolder>();
    QString error;
    {
        const auto store = TSqliteStore::Open(DataFolder::StoreFile(m_Folder->Path()), &error);
        QVERIFY2(store, qPrintable(error));
        QVERIFY(store->SetParameter(PARAM_DECIMAL_POINT, Sign, true));
    }
    tagDisplayOptions options;
    options.dataFolder = m_Folder->Path();
    m_Session = std::make_unique<TDisplaySession>();
    QVERIFY2(m_Session->Start(options, &error), qPrintable(error));
}

void KeypadEntry::init()
{
    m_View = std::make_unique<QQuickView>();
    m_View->engine()->addImageProvider(QLatin1String("icon"), new TIconProvider);
    m_View->setResizeMode(QQuickView::SizeRootObjectToView);
    m_View->resize(1280, 800);
    QQmlComponent component(m_View->engine());
    component.setData(Page, QUrl(QLatin1String("qrc:/test.qml")));
    QObject* const page = component.create();
    QVERIFY2(page, qPrintable(component.errorString()));
    m_View->setContent(QUrl(), nullptr, page);
    m_View->show();
    m_View->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_View.get()));
}

void KeypadEntry::cleanup()
{
    m_View.reset();
    m_Session->Store().SetParameter(PARAM_SHORT_DISTANCE_UNIT, SHORT_DISTANCE_UNIT_METRIC, true);
}

QQuickItem* KeypadEntry::Find(const char* pad, const char* name) const
{
    QQuickItem* const found = Below(Find(pad), QLatin1String(name));
    if (!found)
        qFatal("no %s", name);
    return found;
}

void KeypadEntry::Open(const char* pad) const
{
    QMetaObject::invokeMethod(Find(pad), "open");
    QCoreApplication::processEvents();
}

void KeypadEntry::Tap(const char* pad, const char* name) const
{
    const QQuickItem* const key = Find(pad, name);
    const QPointF middle = key->mapToScene(QPointF(key->width() / 2, key->height() / 2));
    QTest::mouseClick(m_View.get(), Qt::LeftButton, Qt::NoModifier, middle.toPoint());
}

void KeypadEntry::Type(const char* text) const
{
    for (const char* sign = text; *sign != '\0'; ++sign)
        QTest::keyClick(m_View.get(), *sign);
}

void KeypadEntry::itShowsTheOldValueAndTheRange()
{
    QVERIFY(!IsOpen("widthPad"));
    Open("widthPad");
    QVERIFY(IsOpen("widthPad"));
    const auto* const quantity = Find("widthPad")->property("quantity").value<QObject*>();
    QCOMPARE(Text("widthPad", "title"), QLatin1String("Implement width"));
    QCOMPARE(Text("widthPad", "old"), QLatin1String("now ") + quantity->property("text").toString());
    QCOMPARE(Text("widthPad", "entry"), QString());
    QCOMPARE(Text("widthPad", "unit"), QLatin1String("m"));
    QCOMPARE(Text("widthPad", "sentence"), Format(1) + QLatin1String(" to ") + Format(48) + QLatin1String(" m"));
    QVERIFY(!Find("widthPad", "set")->isEnabled());
    QVERIFY(!Find("widthPad", "keySign")->isEnabled());
}

void KeypadEntry::tapsType()
{
    Open("widthPad");
    for (const char* const key : {"key1", "key2", "keyDecimal", "key0", "key5"})
        Tap("widthPad", key);
    QCOMPARE(Text("widthPad", "entry"), Shown("12.05"));
    Tap("widthPad", "keyDecimal"); // there is one already
    QCOMPARE(Text("widthPad", "entry"), Shown("12.05"));
    QVERIFY(Find("widthPad", "set")->isEnabled());
    Tap("widthPad", "set");
    QVERIFY(!IsOpen("widthPad"));
    QCOMPARE(Value("width_"), 12.05);
}

void KeypadEntry::keysTypeWithEitherSign_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("point") << QString::fromLatin1("36.25");
    QTest::newRow("comma") << QString::fromLatin1("36,25");
}

void KeypadEntry::keysTypeWithEitherSign()
{
    QFETCH(const QString, typed);
    Open("widthPad");
    Type(qPrintable(typed));
    QCOMPARE(Text("widthPad", "entry"), Shown("36.25"));
    QTest::keyClick(m_View.get(), Qt::Key_Return);
    QCOMPARE(Value("width_"), 36.25);
}

void KeypadEntry::whatCannotBeSetIsSaid_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("begin");
    QTest::newRow("too large") << QString::fromLatin1("52.5") << QString::fromLatin1("Too large.\n");
    QTest::newRow("too small") << QString::fromLatin1("0.99") << QString::fromLatin1("Too small.\n");
    QTest::newRow("zero") << QString::fromLatin1("0") << QString::fromLatin1("Too small.\n");
    QTest::newRow("far too large") << QString::fromLatin1("999999999999") << QString::fromLatin1("Too large.\n");
    QTest::newRow("no digit") << QString::fromLatin1(".") << QString::fromLatin1("This is not a number yet.");
}

void KeypadEntry::whatCannotBeSetIsSaid()
{
    QFETCH(const QString, typed);
    QFETCH(const QString, begin);
    Open("widthPad");
    Type(qPrintable(typed));
    const QString sentence = Text("widthPad", "sentence");
    QVERIFY2(sentence.startsWith(begin), qPrintable(sentence));
    if (begin.endsWith(QLatin1Char('\n')))
        QVERIFY2(sentence.endsWith(Format(48) + QLatin1String(" m")), qPrintable(sentence));
    QVERIFY(!Find("widthPad", "set")->isEnabled());
    Tap("widthPad", "set");
    QTest::keyClick(m_View.get(), Qt::Key_Return);
    QVERIFY(IsOpen("widthPad"));
    QCOMPARE(Value("width_"), 24.0);
}

void KeypadEntry::theShownEndsOfTheRangeCanBeSet_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("name");
    QTest::newRow("metres") << int(SHORT_DISTANCE_UNIT_METRIC) << QString::fromLatin1("m");
    QTest::newRow("inches") << int(SHORT_DISTANCE_UNIT_INCH) << QString::fromLatin1("\"");
    QTest::newRow("feet") << int(SHORT_DISTANCE_UNIT_FOOT) << QString::fromLatin1("'");
}

/// 3.28 ft is less than the metre that is the least: the operator may type what is shown, and the least is set.
void KeypadEntry::theShownEndsOfTheRangeCanBeSet()
{
    QFETCH(const int, unit);
    QFETCH(const QString, name);
    m_Session->Store().SetParameter(PARAM_SHORT_DISTANCE_UNIT, unit, true);
    Open("widthPad");
    QTRY_COMPARE(Text("widthPad", "unit"), name);
    const QStringList words = Text("widthPad", "sentence").split(QLatin1Char(' '));
    QCOMPARE(words.size(), 4);
    for (const int end : {0, 2}) {
        Open("widthPad");
        Type(qPrintable(words.at(end)));
        QVERIFY2(Find("widthPad", "set")->isEnabled(), qPrintable(Text("widthPad", "sentence")));
        Tap("widthPad", "set");
        QCOMPARE(IsOpen("widthPad"), false);
        const double set = Value("width_");
        QVERIFY2(set >= 1 && set <= 48, qPrintable(QString::number(set, 'g', 17)));
        QVERIFY2(qAbs(set - (end == 0 ? 1 : 48)) < 0.05, qPrintable(QString::number(set, 'g', 17)));
    }
}

void KeypadEntry::theSignChangesWhereItMay()
{
    Open("behindPad");
    QVERIFY(Find("behindPad", "keySign")->isEnabled());
    Type("3");
    Tap("behindPad", "keySign");
    QCOMPARE(Text("behindPad", "entry"), QLatin1String("-3"));
    Tap("behindPad", "keySign");
    QCOMPARE(Text("behindPad", "entry"), QLatin1String("3"));
    Type("-");
    Tap("behindPad", "set");
    QCOMPARE(Value("behind"), -3.0);

    Open("widthPad");
    Type("-3");
    QCOMPARE(Text("widthPad", "entry"), QLatin1String("3"));
}

void KeypadEntry::backAndClearRemove()
{
    Open("widthPad");
    Type("123");
    Tap("widthPad", "keyBack");
    QCOMPARE(Text("widthPad", "entry"), QLatin1String("12"));
    QTest::keyClick(m_View.get(), Qt::Key_Backspace);
    QCOMPARE(Text("widthPad", "entry"), QLatin1String("1"));
    Type("4");
    Tap("widthPad", "keyClear");
    QCOMPARE(Text("widthPad", "entry"), QString());
    QVERIFY(!Find("widthPad", "set")->isEnabled());
    QVERIFY(!Find("widthPad", "keyBack")->isEnabled());
    Type("56");
    QTest::keyClick(m_View.get(), Qt::Key_Delete);
    QCOMPARE(Text("widthPad", "entry"), QString());
}

void KeypadEntry::aNumberEndsAtItsGreatestLength()
{
    Open("widthPad");
    Type("12345678901234567890");
    QCOMPARE(Text("widthPad", "entry"), QLatin1String("123456789012"));
}

void KeypadEntry::escapeLeavesTheOldValue()
{
    Open("widthPad");
    Type("30");
    QTest::keyClick(m_View.get(), Qt::Key_Escape);
    QVERIFY(!IsOpen("widthPad"));
    QCOMPARE(Value("width_"), 24.0);
    Open("widthPad");
    QCOMPARE(Text("widthPad", "entry"), QString()); // what was typed before is forgotten
    Tap("widthPad", "cancel");
    QVERIFY(!IsOpen("widthPad"));
}

void KeypadEntry::enterSetsOnlyWhatIsRight()
{
    Open("widthPad");
    QTest::keyClick(m_View.get(), Qt::Key_Enter);
    QVERIFY(IsOpen("widthPad"));
    Type("9");
    QTest::keyClick(m_View.get(), Qt::Key_Enter);
    QVERIFY(!IsOpen("widthPad"));
    QCOMPARE(Value("width_"), 9.0);
}

void KeypadEntry::theFocusComesBack()
{
    const QQuickItem* const over = m_View->rootObject()->findChild<QQuickItem*>(QLatin1String("over"));
    QQuickItem* const below = m_View->rootObject()->findChild<QQuickItem*>(QLatin1String("below"));
    below->forceActiveFocus();
    Open("widthPad");
    QCOMPARE(over->property("count").toInt(), 1);
    QVERIFY(!below->hasActiveFocus());
    QTest::keyClick(m_View.get(), Qt::Key_Escape);
    QCOMPARE(over->property("count").toInt(), 0);
    QVERIFY(below->hasActiveFocus());
}

void KeypadEntry::aParameterChecksAndStores()
{
    Open("levelPad");
    QVERIFY(!Text("levelPad", "title").isEmpty());
    QVERIFY(!Text("levelPad", "sentence").isEmpty());
    QVERIFY(!Find("levelPad", "keyDecimal")->isEnabled());
    Type("4000");
    QVERIFY(!Find("levelPad", "set")->isEnabled());
    QVERIFY(!Text("levelPad", "sentence").isEmpty());
    Tap("levelPad", "keyClear");
    Type("37");
    Tap("levelPad", "set");
    QVERIFY(!IsOpen("levelPad"));
    QTRY_COMPARE(m_Session->Store().GetParameter(PARAM_BACKLIGHT_NIGHT_LEVEL).toInt(), 37);
}

QTEST_MAIN(KeypadEntry)
#include "KeypadEntry.moc"
