#include "TQuickTerminal.h"

/// The plugin on the import path of a program that has published its terminal.
class PublishedModule : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void thePluginIsNotInTheWay();
    void twoEnginesShowOneTerminal();
    void aTerminalCanBePublishedAgain();
};

namespace {

void FailAtAWarning(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type != QtDebugMsg)
        qFatal("%s", qPrintable(message));
}

} // namespace

void PublishedModule::initTestCase()
{
    // Before the first engine, as an installed module is there before it.
    qputenv("QML2_IMPORT_PATH", CABSETTINGS_QML);
    qputenv("QML_IMPORT_PATH", CABSETTINGS_QML);
}

void PublishedModule::thePluginIsNotInTheWay()
{
    qInstallMessageHandler(FailAtAWarning);
    const TQuickTerminal terminal;
    const std::unique_ptr<QObject> parameter = terminal.Make("Parameter { name: 'units.metric' }");
    qInstallMessageHandler(nullptr);
    QCOMPARE(parameter->property("value"), QVariant(true));
}

void PublishedModule::twoEnginesShowOneTerminal()
{
    const TQuickTerminal terminal;
    QQmlEngine other;
    QQmlComponent component(&other);
    component.setData("import CabSettings 1.0\nParameter { name: 'units.area' }", QUrl());
    const std::unique_ptr<QObject> second(component.create());
    QVERIFY2(second, qPrintable(component.errorString()));
    const std::unique_ptr<QObject> first = terminal.Make("Parameter { name: 'units.area' }");
    first->setProperty("value", 1);
    QCOMPARE(second->property("value"), QVariant(1));
}

void PublishedModule::aTerminalCanBePublishedAgain()
{
    for (const bool isMetric : {true, false}) {
        const TQuickTerminal terminal({{PARAM_METRIC, isMetric}});
        QCOMPARE(terminal.Make("Parameter { name: 'units.metric' }")->property("value"), QVariant(isMetric));
    }
}

QTEST_GUILESS_MAIN(PublishedModule)
#include "PublishedModule.moc"
