#include "ScreenKeys.h"

#include "support/PictureLight.h"
#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "display/keyboard/ScreenKeyboard.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QtTest>

#include <algorithm>

/// Texts are typed on Qt's virtual keyboard, which is a part of the window.
class TypingOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void anotherInputMethodIsKept();
    void aNameIsTyped_data();
    void aNameIsTyped();
    void nothingThatIsTypedInIsCovered_data();
    void nothingThatIsTypedInIsCovered();
    void whatIsSearchedForIsNotCovered_data();
    void whatIsSearchedForIsNotCovered();
    void itGoesAwayAndComesBack();
    void theKeysOfAKeyboardTypeToo();
    void numbersHaveTheirOwnKeypad();
    void theLanguageIsThatOfTheDisplay_data();
    void theLanguageIsThatOfTheDisplay();
    void theNightStaysDark_data();
    void theNightStaysDark();
};

namespace {

QString Text(const char* text) { return QLatin1String(text); }

const QSize Small(800, 480);
const QSize Low(1024, 600);
const QSize Narrow(480, 800);
const QSize Usual(1280, 800);

void AddSizes(const QList<QSize>& sizes)
{
    QTest::addColumn<QSize>("size");
    for (const QSize& size : sizes)
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

QString DescribeAll(TOpenDisplay& display)
{
    QStringList names;
    for (const QQuickItem* target : VisibleItems::Targets(display.Content()))
        names.append(VisibleItems::NameOf(*target));
    return QLatin1String("only ") + names.join(QLatin1String(", "));
}

/// What of the field that is typed in, and of all else that can be tapped above the page, is not wholly seen.
QString WhatIsCovered(TOpenDisplay& display, bool isPageOpen)
{
    const QQuickItem* const keyboard = ScreenKeys::Keyboard(display.Content());
    const QQuickItem* const field = ScreenKeys::Field(display);
    if (keyboard == nullptr || field == nullptr)
        return QLatin1String("no keyboard, or nothing that is typed in");
    const QSizeF window = display.Window().size();
    const QRectF keys = ScreenKeys::Place(*keyboard);
    if (keys != QRectF(0, window.height() - keys.height(), window.width(), keys.height()))
        return QLatin1String("the keyboard is not at the foot of the window");
    const QRectF room(0, 0, window.width(), keys.top());
    // With the frame around the field.
    if (!room.contains(ScreenKeys::Place(*field->parentItem())))
        return QLatin1String("the field");
    for (const QQuickItem* target : VisibleItems::Targets(display.Content())) {
        if (!isPageOpen && !keyboard->isAncestorOf(target) && !room.contains(ScreenKeys::Place(*target)))
            return VisibleItems::Describe(*target);
    }
    for (const QQuickItem* text : VisibleItems::Texts(display.Content())) {
        const QRectF place = ScreenKeys::Place(*text);
        if (!isPageOpen && text->isEnabled() && field->parentItem()->parentItem()->isAncestorOf(text) &&
            !room.contains(place))
            return VisibleItems::Describe(*text);
    }
    return QString();
}

} // namespace

void TypingOnScreen::initTestCase()
{
    QVERIFY2(ScreenKeyboard::IsChosen(), "Qt's virtual keyboard is not installed: see scripts/setup");
}

void TypingOnScreen::anotherInputMethodIsKept()
{
    const QByteArray before = qgetenv("QT_IM_MODULE");
    qputenv("QT_IM_MODULE", "compose");
    ScreenKeyboard::Choose();
    const QByteArray kept = qgetenv("QT_IM_MODULE");
    const bool isChosen = ScreenKeyboard::IsChosen();
    qputenv("QT_IM_MODULE", before);
    QCOMPARE(kept, QByteArray("compose"));
    QVERIFY(!isChosen);
}

void TypingOnScreen::aNameIsTyped_data()
{
    AddSizes({Small, Low, Narrow, Usual, QSize(1920, 1200), QSize(800, 1280), QSize(1200, 1920)});
}

void TypingOnScreen::aNameIsTyped()
{
    QFETCH(const QSize, size);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.ShowPage(Text("fields"));
    QVERIFY(display.Tap(Text("New client")));
    QVERIFY(ScreenKeys::Waits(display));
    QCOMPARE(WhatIsCovered(display, false), QString());
    for (const QQuickItem* key : ScreenKeys::Keys(display.Content())) {
        const QRectF place = ScreenKeys::Place(*key);
        QVERIFY2(place.height() >= (std::min(size.width(), size.height()) < 560 ? 60 : 76),
                 qPrintable(VisibleItems::Describe(*key)));
    }
    // The first letter of a name is a capital.
    QVERIFY(ScreenKeys::TapAll(display, "nort"));
    QCOMPARE(ScreenKeys::Typed(display), Text("Nort"));
    QVERIFY(ScreenKeys::Tap(display, ScreenKeys::Key(display.Content(), Text("&123"))));
    QVERIFY(ScreenKeys::TapAll(display, "17"));
    QVERIFY(ScreenKeys::Tap(display, ScreenKeys::KeyOfType(display.Content(), "BackspaceKey")));
    QCOMPARE(ScreenKeys::Typed(display), Text("Nort1"));
    QVERIFY(ScreenKeys::Tap(display, ScreenKeys::KeyOfType(display.Content(), "EnterKey")));
    QVERIFY(!ScreenKeys::Keyboard(display.Content()));
    QTRY_VERIFY2(VisibleItems::Target(display.Content(), Text("Nort1")), qPrintable(DescribeAll(display)));
    QCOMPARE(display.Warnings(), QStringList());
}

void TypingOnScreen::nothingThatIsTypedInIsCovered_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("taps");
    QTest::addColumn<QSize>("size");
    struct tagEntry
    {
        const char* name;
        const char* page;
        QStringList taps;
    };
    const tagEntry entries[] = {
        {"client", "fields", {Text("New client")}},
        {"receiver", "receiver", {Text("Network")}},
        {"color", "settings-colors", {Text("Text, by day"), Text("Digits of the colour")}},
        {"vehicle", "settings-machine", {Text("Vehicle"), Text("New")}},
    };
    for (const tagEntry& entry : entries) {
        for (const QSize& size : {Small, Low, Narrow})
            QTest::addRow("%s, %dx%d", entry.name, size.width(), size.height())
                << Text(entry.page) << entry.taps << size;
    }
}

void TypingOnScreen::nothingThatIsTypedInIsCovered()
{
    QFETCH(const QString, page);
    QFETCH(const QStringList, taps);
    QFETCH(const QSize, size);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.ShowPage(page);
    for (const QString& tap : taps)
        QVERIFY2(display.Tap(tap), qPrintable(DescribeAll(display)));
    QVERIFY(ScreenKeys::Waits(display));
    QCOMPARE(WhatIsCovered(display, false), QString());
    // What is wrong is said below the field.
    display.Press(Qt::Key_A);
    display.Type(Text("/:"));
    QCOMPARE(WhatIsCovered(display, false), QString());
    QVERIFY(display.Tap(Text("Cancel")));
    QVERIFY(!ScreenKeys::Keyboard(display.Content()));
    QCOMPARE(display.Warnings(), QStringList());
}

void TypingOnScreen::whatIsSearchedForIsNotCovered_data() { AddSizes({Small, Low, Narrow, Usual}); }

void TypingOnScreen::whatIsSearchedForIsNotCovered()
{
    QFETCH(const QSize, size);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.ShowPage(Text("settings-all"));
    QVERIFY(display.Tap(Text("Words of a setting")));
    QVERIFY(ScreenKeys::Waits(display));
    QVERIFY(ScreenKeys::TapAll(display, "clock"));
    QCOMPARE(ScreenKeys::Typed(display), Text("clock"));
    QCOMPARE(WhatIsCovered(display, true), QString());
    // What was found has the whole page afterwards.
    QVERIFY(ScreenKeys::Tap(display, ScreenKeys::KeyOfType(display.Content(), "EnterKey")));
    QVERIFY(!ScreenKeys::Keyboard(display.Content()));
    QCOMPARE(ScreenKeys::Typed(display), Text("clock"));
    QTRY_VERIFY2(VisibleItems::Target(display.Content(), Text("24 hours")), qPrintable(DescribeAll(display)));
    QCOMPARE(display.Warnings(), QStringList());
}

void TypingOnScreen::itGoesAwayAndComesBack()
{
    TOpenDisplay display(Usual);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.ShowPage(Text("fields"));
    QVERIFY(display.Tap(Text("New client")));
    QVERIFY(ScreenKeys::Waits(display));
    QVERIFY(ScreenKeys::Hide(display));
    QTRY_VERIFY(!ScreenKeys::Keyboard(display.Content()));
    QVERIFY(display.Tap(Text("New client"))); // the field, which has still the focus
    QVERIFY(ScreenKeys::Keyboard(display.Content()));
    display.Press(Qt::Key_Escape);
    QVERIFY(!ScreenKeys::Keyboard(display.Content()));
    QVERIFY(!ScreenKeys::Field(display));
    QVERIFY(display.Tap(Text("New client")));
    QVERIFY(ScreenKeys::Keyboard(display.Content()));
    QCOMPARE(display.Warnings(), QStringList());
}

void TypingOnScreen::theKeysOfAKeyboardTypeToo()
{
    TOpenDisplay display(Usual);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.ShowPage(Text("fields"));
    QVERIFY(display.Tap(Text("New client")));
    QVERIFY(ScreenKeys::Waits(display));
    display.Type(Text("Ost"));
    QCOMPARE(ScreenKeys::Typed(display), Text("Ost"));
    display.Press(Qt::Key_Return);
    QVERIFY(!ScreenKeys::Keyboard(display.Content()));
    QTRY_VERIFY2(VisibleItems::Target(display.Content(), Text("Ost")), qPrintable(DescribeAll(display)));
}

void TypingOnScreen::numbersHaveTheirOwnKeypad()
{
    TOpenDisplay display(Usual);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.ShowPage(Text("settings-all"));
    QVERIFY(display.Tap(Text("Words of a setting")));
    QVERIFY(ScreenKeys::Waits(display));
    display.ShowPage(Text("settings-machine"));
    QVERIFY(!ScreenKeys::Keyboard(display.Content()));
    QVERIFY2(display.Tap(Text("Implement width")), qPrintable(DescribeAll(display)));
    QVERIFY(display.Tap(Text("7")));
    QVERIFY(!ScreenKeys::Keyboard(display.Content()));
    QVERIFY(!QGuiApplication::inputMethod()->isVisible());
}

void TypingOnScreen::theLanguageIsThatOfTheDisplay_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("locales");
    QTest::newRow("English") << Text("en") << Text("en_GB");
    QTest::newRow("German") << Text("de") << Text("de_DE en_GB");
    QTest::newRow("of the country with the name") << Text("pt") << Text("pt_PT en_GB");
    QTest::newRow("of no country with the name") << Text("cs") << Text("cs_CZ en_GB");
    QTest::newRow("Qt has none") << Text("lv") << Text("en_GB");
    QTest::newRow("none is set") << QString() << Text("en_GB");
}

void TypingOnScreen::theLanguageIsThatOfTheDisplay()
{
    QFETCH(const QString, language);
    QFETCH(const QString, locales);
    const QStringList available = {Text("cs_CZ"), Text("de_DE"), Text("en_GB"),
                                   Text("en_US"), Text("pt_BR"), Text("pt_PT")};
    QCOMPARE(ScreenKeyboard::LocalesFor(language, available).join(QLatin1Char(' ')), locales);
    QCOMPARE(ScreenKeyboard::LocalesFor(language, {}), QStringList());
}

void TypingOnScreen::theNightStaysDark_data() { AddSizes({Small, Narrow, Usual}); }

void TypingOnScreen::theNightStaysDark()
{
    QFETCH(const QSize, size);
    TOpenDisplay display(size);
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.SetParameter(Text("display.day-switching"), 0);
    display.SetParameter(Text("display.day"), false);
    display.ShowPage(Text("fields"));
    QVERIFY(display.Tap(Text("New client")));
    QVERIFY(ScreenKeys::Waits(display));
    const QImage picture = display.Picture();
    QVERIFY(!picture.isNull());
    QVERIFY(!PictureLight::HasWhite(picture));
    const double mean = PictureLight::MeanLuminance(picture);
    qDebug("mean luminance %.4f", mean);
    QVERIFY2(mean < PictureLight::MostLuminanceAtNight, qPrintable(QString::number(mean)));
    for (const QQuickItem* key : ScreenKeys::Keys(display.Content())) {
        if (key == ScreenKeys::KeyOfType(display.Content(), "SpaceKey"))
            continue;
        const QRect face = ScreenKeys::Place(*key).toAlignedRect() & picture.rect();
        QVERIFY2(PictureLight::Contrast(picture, face) >= PictureLight::LeastContrast,
                 qPrintable(VisibleItems::Describe(*key)));
    }
    QCOMPARE(display.Warnings(), QStringList());
}

// Before the application object is made, as the display does.
int main(int argc, char* argv[])
{
    qunsetenv("QT_IM_MODULE");
    ScreenKeyboard::Choose();
    QGuiApplication application(argc, argv);
    TypingOnScreen test;
    return QTest::qExec(&test, argc, argv);
}

#include "TypingOnScreen.moc"
