#include "StoreTestSupport.h"
#include "TTemporaryFolder.h"

#include "display/session/TDisplaySession.h"
#include "terminal/DataFolder.h"

#include <QProcess>
#include <QtTest>

#include <memory>

namespace {

const int Patience = 60000;
const int Impatience = 50;

/// Another program has all the settings to itself.
std::unique_ptr<TOtherProgram> Hold(const QString& dataFolder)
{
    const QString path = DataFolder::StoreFile(dataFolder);
    OpenStore(path)->SetParameter(PARAM_METRIC, true, true);
    auto other = std::make_unique<TOtherProgram>(path);
    other->Run(QLatin1String("PRAGMA locking_mode = EXCLUSIVE"));
    other->Run(QLatin1String("UPDATE parameters SET value = 'false', digest = NULL"));
    return other;
}

} // namespace

/// Another program holds the settings when the display starts.
class HeldStore : public QObject
{
    Q_OBJECT

private slots:
    void theDisplayWaitsForItAndSaysSo();
    void theReasonIsSaidAfterAWhile();
};

void HeldStore::theDisplayWaitsForItAndSaysSo()
{
    const TTemporaryFolder folder;
    std::unique_ptr<TOtherProgram> other = Hold(folder.Path());
    QProcess display;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String("QT_QPA_PLATFORM"), QLatin1String("offscreen"));
    display.setProcessEnvironment(environment);
    display.setReadChannel(QProcess::StandardError);
    display.start(QLatin1String(CABSETTINGS_DISPLAY), {QLatin1String("--data"), folder.Path()});
    QByteArray said;
    while (!said.contains("it is tried for 10 s") && display.waitForReadyRead(Patience))
        said += display.readAllStandardError();
    QVERIFY2(said.contains("another program has locked it"), said.constData());
    other.reset();
    display.terminate(); // it ends when it has started
    QVERIFY(display.waitForFinished(Patience));
    QCOMPARE(display.exitStatus(), QProcess::NormalExit);
    QCOMPARE(display.exitCode(), 0);
}

void HeldStore::theReasonIsSaidAfterAWhile()
{
    const TTemporaryFolder folder;
    const std::unique_ptr<TOtherProgram> other = Hold(folder.Path());
    tagDisplayOptions options;
    options.dataFolder = folder.Path();
    QString error;
    TDisplaySession session;
    QVERIFY(!session.Start(options, &error, Impatience));
    QVERIFY2(error.contains(QLatin1String("another program has locked it")), qPrintable(error));
}

QTEST_MAIN(HeldStore)
#include "HeldStore.moc"
