#include "TRunningDisplay.h"
#include "support/WrittenByTheTerminal.h"

#include "parameters/HostParameters.h"
#include "parameters/TParameterCatalogue.h"
#include "platform/EParamID.h"
#include "region/ELanguage.h"
#include "stores/TSqliteStore.h"
#include "terminal/DataFolder.h"

#include <QDirIterator>
#include <QTranslator>
#include <QtTest>

#include <cmath>
#include <memory>

namespace {

const int Patience = TRunningDisplay::Patience;
const double LeastDistance = 10; // metres

QString Text(const char* text) { return QString::fromLatin1(text); }

QMap<QString, QVariant> Values(TSqliteStore& store)
{
    QMap<QString, QVariant> values;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (!IsWrittenByTheTerminal(parameter.name))
            values.insert(parameter.name, store.GetParameter(parameter.id));
    }
    return values;
}

/// The size of each file below the folder, without those that come and go with an open store.
QMap<QString, qint64> Files(const QString& folder)
{
    QMap<QString, qint64> sizes;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (!path.contains(QLatin1String("settings.db")))
            sizes.insert(path, files.fileInfo().size());
    }
    return sizes;
}

QString German(const char* context, const char* text)
{
    QTranslator translator;
    return translator.load(QLatin1String(":/translations/cabsettings_de.qm")) ? translator.translate(context, text)
                                                                              : QString();
}

} // namespace

/// The button "Restart": the program itself starts again.
class RestartedDisplay : public QObject
{
    Q_OBJECT

private slots:
    void showsTheNewLanguageAndLosesNothing();
};

void RestartedDisplay::showsTheNewLanguageAndLosesNothing()
{
    TRunningDisplay display(SimulatedInEnglish());
    QVERIFY2(display.Await(), qPrintable(display.Problem()));
    QVERIFY(display.Texts().contains(Text("Settings")));
    QVERIFY(!display.Texts().contains(Text("Restart")));

    QString error;
    const QString path = DataFolder::StoreFile(display.DataFolder());
    const std::unique_ptr<TSqliteStore> store = TSqliteStore::Open(path, &error, Patience);
    QVERIFY2(store, qPrintable(error));
    QVERIFY(store->SetParameter(PARAM_TILES, Text("distance"), true));
    QVERIFY(display.Tap("Not working. Switch the implement on"));
    QVERIFY(QTest::qWaitFor([&] { return display.Distance() > LeastDistance; }, Patience));
    QVERIFY(display.Tap("Working. Switch the implement off"));

    // The operator changes what the command line has set, and more.
    QVERIFY(store->SetParameter(PARAM_RECEIVER_ADDRESS, Text("tcp://127.0.0.1:9"), true));
    QVERIFY(store->SetParameter(PARAM_DAY_MODE, false, true));
    QVERIFY(store->SetParameter(PARAM_LANGUAGE, LANGUAGE_GERMAN, true));
    QVERIFY(QTest::qWaitFor([&] { return display.Texts().contains(Text("Restart")); }, Patience));
    const double distance = display.Distance();
    QVERIFY(distance > LeastDistance);
    const QMap<QString, QVariant> values = Values(*store);
    const QMap<QString, qint64> files = Files(display.DataFolder());

    QVERIFY(display.Tap("Restart"));
    QVERIFY2(display.Await(), qPrintable(display.Problem()));
    const QStringList again = {Text("--data"), display.DataFolder(), Text("--size"), Text("1280x800")};
    QCOMPARE(display.Arguments(), again);
    const QString settings = German("DoorBand", "Settings");
    QVERIFY(!settings.isEmpty() && settings != QLatin1String("Settings"));
    QVERIFY2(display.Texts().contains(settings), qPrintable(display.Texts().join(QLatin1Char('\n'))));
    const QString reason = German("TRestart", "The new language is shown after a restart.");
    QVERIFY(!reason.isEmpty() && !display.Texts().contains(reason));

    QVERIFY(QTest::qWaitFor([&] { return std::abs(display.Distance() - distance) < LeastDistance / 10; }, Patience));
    const QMap<QString, QVariant> after = Values(*store);
    for (auto value = values.begin(); value != values.end(); ++value)
        QVERIFY2(after.value(value.key()) == value.value(),
                 qPrintable(value.key() + QLatin1String(": ") + after.value(value.key()).toString() +
                            QLatin1String(" after ") + value.value().toString()));
    const QMap<QString, qint64> filesAfter = Files(display.DataFolder());
    for (auto file = files.begin(); file != files.end(); ++file)
        QVERIFY2(filesAfter.value(file.key(), -1) >= file.value(), qPrintable(file.key()));
    QCOMPARE(display.End(), 0);
}

QTEST_MAIN(RestartedDisplay)
#include "RestartedDisplay.moc"
