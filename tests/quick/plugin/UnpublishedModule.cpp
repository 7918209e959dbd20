#include "TCaughtMessages.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QtTest>

#include <memory>

/// A program that has published no terminal, and QML that imports the module all the same.
class UnpublishedModule : public QObject
{
    Q_OBJECT

private slots:
    void oneWarningSaysWhatIsMissing();
};

void UnpublishedModule::oneWarningSaysWhatIsMissing()
{
    const TCaughtMessages messages;
    const QString missing = QLatin1String("has not called CabQuick::Publish()");
    for (int i = 0; i < 2; ++i) {
        QQmlEngine engine;
        engine.addImportPath(QString::fromUtf8(CABSETTINGS_QML));
        QQmlComponent component(&engine);
        component.setData("import CabSettings 1.0\nParameter { name: 'units.metric' }", QUrl());
        const std::unique_ptr<QObject> parameter(component.create());
        QVERIFY(!parameter);
        QVERIFY2(component.errorString().contains(missing), qPrintable(component.errorString()));

        // A singleton is looked up only when it is used.
        QQmlComponent other(&engine);
        other.setData("import QtQml 2.15\nimport CabSettings 1.0\nQtObject { property var day: Scheme.isDay }", QUrl());
        const std::unique_ptr<QObject> object(other.create());
        QVERIFY(!object || !object->property("day").isValid());
    }
    QCOMPARE(static_cast<int>(messages.Texts().filter(missing).size()), 1);
}

QTEST_GUILESS_MAIN(UnpublishedModule)
#include "UnpublishedModule.moc"
