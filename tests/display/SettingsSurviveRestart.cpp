#include "support/TOpenDisplay.h"
#include "support/VisibleItems.h"
#include "support/WrittenByTheTerminal.h"

#include "parameters/TParameterCatalogue.h"

#include <QMap>
#include <QtTest>

/// Every setting that an operator changes on its page is there again after a restart.
class SettingsSurviveRestart : public QObject
{
    Q_OBJECT

private slots:
    void eachOfTheCatalogue();
};

namespace {

/// A text that the parameter accepts and that is not its value now.
QString OtherText(const tagParameter& parameter, const QVariant& now)
{
    QStringList texts;
    switch (parameter.type) {
    case PARAMETER_BOOL:
        texts = QStringList{QLatin1String("true"), QLatin1String("false")};
        break;
    case PARAMETER_COLOR:
        texts = QStringList{QLatin1String("#336699"), QLatin1String("#996633")};
        break;
    case PARAMETER_INT:
        for (const tagParameterChoice& choice : parameter.choices)
            texts.append(choice.name);
        texts << QLatin1String("1") << QLatin1String("2") << QLatin1String("30");
        break;
    case PARAMETER_STRING:
        texts << QLatin1String("Chosen") << QLatin1String("/tmp/") << QLatin1String("/tmp")
              << QLatin1String("tcp://127.0.0.1:2947") << QLatin1String("speed,rate")
              << QLatin1String("2026-03-05T13:05:09Z") << QLatin1String("6ba7b810-9dad-41d1-80b4-00c04fd430c8");
        break;
    }
    for (const QString& text : texts) {
        QString error;
        const QVariant value = TParameterCatalogue::Read(parameter, text, &error);
        if (value.isValid() && value != now)
            return text;
    }
    return QString();
}

/// The row of the parameter on the page, null when it is not seen.
QQuickItem* Row(TOpenDisplay& display, const QString& name)
{
    for (QQuickItem* target : VisibleItems::Targets(display.Content())) {
        for (QQuickItem* item = target; item; item = item->parentItem()) {
            if (item->objectName() == QLatin1String("parameter row") && item->property("name").toString() == name)
                return item;
        }
    }
    return nullptr;
}

/// The words by which the page shows a choice.
QString ShownChoice(const QObject& parameter, const QString& name)
{
    for (const QVariant& choice : parameter.property("choices").toList()) {
        if (choice.toMap().value(QLatin1String("name")).toString() == name)
            return choice.toMap().value(QLatin1String("text")).toString();
    }
    return QString();
}

bool TapWithin(TOpenDisplay& display, QQuickItem& part, const QString& name)
{
    const QQuickItem* const target = VisibleItems::Target(part, name);
    if (target)
        display.Tap(VisibleItems::SeenPart(*target).center());
    return target;
}

/// Sets the parameter as an operator does: finds it by a search, and taps and types. Says what has failed.
QString SetOnItsPage(TOpenDisplay& display, const tagParameter& parameter, const QString& text)
{
    display.ShowPage(QLatin1String("work"));
    display.ShowPage(QLatin1String("settings-all"));
    if (!display.Tap(QLatin1String("Words of a setting")))
        return QLatin1String("no search field");
    display.Type(parameter.name);
    QQuickItem* row = Row(display, parameter.name);
    while (!row && display.Tap(QLatin1String("Rows below")))
        row = Row(display, parameter.name);
    if (!row)
        return QLatin1String("not found by its name");
    const QObject* const object = row->property("parameter").value<QObject*>();
    const QString title = object->property("title").toString();
    const QString choice = ShownChoice(*object, text);
    // A choice beside the setting, or one on a page of its own.
    if (!choice.isEmpty() && TapWithin(display, *row, choice))
        return QString();
    if (!TapWithin(display, *row, title))
        return QLatin1String("its button is not seen");
    if (parameter.name == QLatin1String("display.tiles")) {
        // The page of tiles hides the first one.
        return display.Tap(QLatin1String("Hidden")) ? QString() : QLatin1String("no tile");
    }
    if (!choice.isEmpty()) {
        while (!display.Tap(choice)) {
            if (!display.Tap(QLatin1String("Rows below")))
                return QLatin1String("its choice is not seen");
        }
        return QString();
    }
    if (parameter.type == PARAMETER_COLOR && !display.Tap(QLatin1String("Digits of the colour")))
        return QLatin1String("no digits");
    display.Type(text);
    display.Press(Qt::Key_Return);
    return QString();
}

} // namespace

void SettingsSurviveRestart::eachOfTheCatalogue()
{
    TOpenDisplay display(QSize(1280, 800));
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    QStringList problems;
    QMap<QString, QVariant> chosen;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        const QVariant before = display.Parameter(parameter.name);
        const QString text = OtherText(parameter, before);
        QVERIFY2(!text.isEmpty(), qPrintable(parameter.name));
        const QString problem = SetOnItsPage(display, parameter, text);
        const QVariant after = display.Parameter(parameter.name);
        if (!problem.isEmpty() || after == before || !after.isValid())
            problems.append(parameter.name + QLatin1String(" to ") + text + QLatin1String(": ") +
                            (problem.isEmpty() ? QLatin1String("it has not changed") : problem));
        else
            chosen.insert(parameter.name, after);
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));

    // A value that was set later may have moved another one, such as the selections below a client.
    for (auto value = chosen.begin(); value != chosen.end(); ++value)
        value.value() = display.Parameter(value.key());
    display.Restart();
    QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
    for (auto value = chosen.cbegin(); value != chosen.cend(); ++value) {
        if (IsWrittenByTheTerminal(value.key()))
            continue;
        const QVariant kept = display.Parameter(value.key());
        QVERIFY2(kept == value.value(), qPrintable(value.key() + QLatin1String(": ") + kept.toString() +
                                                   QLatin1String(" after ") + value.value().toString()));
    }
}

QTEST_MAIN(SettingsSurviveRestart)
#include "SettingsSurviveRestart.moc"
