#include "ScreenKeys.h"

#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "display/keyboard/ScreenKeyboard.h"

#include "region/ELanguage.h"

#include <QGuiApplication>
#include <QtTest>

/// The keyboard on the screen has the letters of the display's language, and one tap away those of English.
class TypingInGerman : public QObject
{
    Q_OBJECT

private slots:
    void theLettersAreGerman();
};

namespace {

const QString SmallUUmlaut(QChar(0xFC));
const QString CapitalUUmlaut(QChar(0xDC));

QQuickItem* FieldOfPage(QQuickItem& item)
{
    if (!item.isVisible() || item.inherits("QQuickTextInput"))
        return item.isVisible() ? &item : nullptr;
    for (QQuickItem* child : item.childItems()) {
        if (QQuickItem* const found = FieldOfPage(*child))
            return found;
    }
    return nullptr;
}

} // namespace

void TypingInGerman::theLettersAreGerman()
{
    QVERIFY2(ScreenKeyboard::IsChosen(), "Qt's virtual keyboard is not installed: see scripts/setup");
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.SetParameter(QStringLiteral("region.language"), LANGUAGE_GERMAN);
    display.Restart();
    display.ShowPage(QStringLiteral("settings-all"));
    QQuickItem& content = display.Content();
    const QQuickItem* const field = FieldOfPage(content);
    QVERIFY(field);
    display.Tap(ScreenKeys::Place(*field).center());
    QVERIFY(ScreenKeys::Waits(display));
    QTRY_VERIFY(ScreenKeys::Key(content, SmallUUmlaut));
    QVERIFY(ScreenKeys::Tap(display, ScreenKeys::Key(content, SmallUUmlaut)));
    QCOMPARE(ScreenKeys::Typed(display), SmallUUmlaut);
    QVERIFY(ScreenKeys::Tap(display, ScreenKeys::KeyOfType(content, "ShiftKey")));
    QVERIFY(ScreenKeys::Tap(display, ScreenKeys::Key(content, SmallUUmlaut)));
    QCOMPARE(ScreenKeys::Typed(display), SmallUUmlaut + CapitalUUmlaut);

    QVERIFY(ScreenKeys::ChangeLanguage(display));
    QTRY_VERIFY(ScreenKeys::Key(content, QStringLiteral("y")));
    QVERIFY(!ScreenKeys::Key(content, SmallUUmlaut));
    QVERIFY(ScreenKeys::ChangeLanguage(display));
    QTRY_VERIFY(ScreenKeys::Key(content, SmallUUmlaut));
    QCOMPARE(display.Warnings(), QStringList());
}

// Before the application object is made, as the display does.
int main(int argc, char* argv[])
{
    qunsetenv("QT_IM_MODULE");
    ScreenKeyboard::Choose();
    QGuiApplication application(argc, argv);
    TypingInGerman test;
    return QTest::qExec(&test, argc, argv);
}

#include "TypingInGerman.moc"
