#include "ScreenKeys.h"

#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"

#include "display/keyboard/ScreenKeyboard.h"

#include <QDir>
#include <QGuiApplication>
#include <QInputMethod>
#include <QTemporaryDir>
#include <QtTest>

/// Where Qt's virtual keyboard is not installed, texts are typed on a keyboard, and nothing is complained of.
class TypingWithoutScreenKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void itIsNotChosen();
    void aNameIsTyped();
};

namespace {

/// Lets the program find all plugins of Qt but the input methods.
void HideInputMethods(const QString& folder)
{
    for (const QString& path : QCoreApplication::libraryPaths()) {
        for (const QString& plugins : QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            if (plugins != QLatin1String("platforminputcontexts"))
                QFile::link(path + QLatin1Char('/') + plugins, folder + QLatin1Char('/') + plugins);
        }
    }
    QCoreApplication::setLibraryPaths({folder});
}

} // namespace

void TypingWithoutScreenKeyboard::itIsNotChosen()
{
    QVERIFY(!ScreenKeyboard::IsChosen());
    QVERIFY(!qEnvironmentVariableIsSet("QT_IM_MODULE"));
}

void TypingWithoutScreenKeyboard::aNameIsTyped()
{
    TOpenDisplay display(QSize(800, 480));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    display.ShowPage(QStringLiteral("fields"));
    QVERIFY(display.Tap(QStringLiteral("New client")));
    QVERIFY(!QGuiApplication::inputMethod()->isVisible());
    QVERIFY(!ScreenKeys::Keyboard(display.Content()));
    const QQuickItem* const field = display.Window().activeFocusItem();
    QVERIFY(field && field->inherits("QQuickTextInput"));
    display.Type(QStringLiteral("North"));
    QCOMPARE(field->property("text").toString(), QStringLiteral("North"));
    display.Press(Qt::Key_Return);
    QTRY_VERIFY(VisibleItems::Target(display.Content(), QStringLiteral("North")));
    QCOMPARE(display.Warnings(), QStringList());
}

int main(int argc, char* argv[])
{
    qunsetenv("QT_IM_MODULE");
    const QTemporaryDir plugins;
    HideInputMethods(plugins.path());
    ScreenKeyboard::Choose();
    QGuiApplication application(argc, argv);
    TypingWithoutScreenKeyboard test;
    return QTest::qExec(&test, argc, argv);
}

#include "TypingWithoutScreenKeyboard.moc"
