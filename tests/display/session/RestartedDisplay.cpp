#include "TTemporaryFolder.h"
#include "support/WrittenByTheTerminal.h"

#include "parameters/HostParameters.h"
#include "parameters/TParameterCatalogue.h"
#include "platform/EParamID.h"
#include "region/ELanguage.h"
#include "stores/TSqliteStore.h"
#include "terminal/DataFolder.h"

#include <QDirIterator>
#include <QJsonDocument>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTranslator>
#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>

namespace {

const int Patience = 60000;
const double LeastDistance = 10; // metres

struct tagUnit
{
    const char* text;
    double metres;
};

/// Those of the tile of the driven distance.
constexpr tagUnit Units[] = {{"mm", 0.001}, {"cm", 0.01}, {"m", 1}, {"km", 1000}};

QString Text(const char* text) { return QString::fromLatin1(text); }

/// The program itself in a process of its own, on a data folder of its own. A probe in the process tells what it shows,
/// and taps.
class TRunningDisplay
{
public:
    explicit TRunningDisplay(const QStringList& arguments)
    {
        m_Server.listen(m_Folder.Path(QLatin1String("probe")));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QLatin1String("QT_QPA_PLATFORM"), QLatin1String("offscreen"));
        environment.insert(QLatin1String("QT_PLUGIN_PATH"), QLatin1String(CABSETTINGS_TEST_PLUGINS));
        environment.insert(QLatin1String("QT_QPA_GENERIC_PLUGINS"),
                           QLatin1String("probe:") + m_Server.fullServerName());
        m_Process.setProcessEnvironment(environment);
        m_Process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_Process.start(QLatin1String(CABSETTINGS_DISPLAY),
                        QStringList{QLatin1String("--data"), DataFolder()} + arguments);
    }

    ~TRunningDisplay()
    {
        m_Process.kill();
        m_Process.waitForFinished();
    }

    TRunningDisplay(const TRunningDisplay&) = delete;
    TRunningDisplay& operator=(const TRunningDisplay&) = delete;

    QString DataFolder() const { return m_Folder.Path(QLatin1String("data")); }

    /// Waits until the program has started, or has started again.
    bool Await()
    {
        m_Probe.reset();
        if (!m_Server.waitForNewConnection(Patience))
            return false;
        m_Probe.reset(m_Server.nextPendingConnection());
        return QTest::qWaitFor([this] { return !Texts().isEmpty(); }, Patience);
    }

    /// The command line of the process, which is the same process after a restart.
    QStringList Arguments() const
    {
        QFile file(QString::fromLatin1("/proc/%1/cmdline").arg(m_Process.processId()));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QStringList arguments;
        for (const QByteArray& argument : file.readAll().split('\0'))
            arguments.append(QString::fromUtf8(argument));
        return arguments.mid(1, arguments.size() - 2); // the last one is the end of the file
    }

    QStringList Texts(const char* below = "")
    {
        return QJsonDocument::fromJson(Ask(QByteArray("texts ") + below)).toVariant().toStringList();
    }

    /// What that tile shows, in metres; not a number while it shows none.
    double Distance()
    {
        const QStringList texts = Texts("tile.distance");
        for (const QString& text : texts) {
            bool isNumber = false;
            const double number = text.toDouble(&isNumber);
            for (const tagUnit& unit : Units) {
                if (isNumber && texts.contains(Text(unit.text)))
                    return number * unit.metres;
            }
        }
        return std::numeric_limits<double>::quiet_NaN();
    }

    bool Tap(const char* name)
    {
        return QTest::qWaitFor([this, name] { return Ask(QByteArray("tap ") + name) == "1"; }, Patience);
    }

    /// Its status, or -1 when it does not end.
    int End()
    {
        m_Process.terminate();
        return m_Process.waitForFinished(Patience) && m_Process.exitStatus() == QProcess::NormalExit
                   ? m_Process.exitCode()
                   : -1;
    }

private:
    QByteArray Ask(const QByteArray& request)
    {
        if (!m_Probe)
            return {};
        m_Probe->write(request + '\n');
        while (!m_Probe->canReadLine()) {
            if (!m_Probe->waitForReadyRead(Patience))
                return {};
        }
        return m_Probe->readLine().trimmed();
    }

    TTemporaryFolder m_Folder;
    QLocalServer m_Server;
    QProcess m_Process;
    std::unique_ptr<QLocalSocket> m_Probe;
};

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
    TRunningDisplay display(
        {Text("--receiver"), Text("simulator"), Text("--language=en"), Text("--size"), Text("1280x800")});
    QVERIFY(display.Await());
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
    QVERIFY(display.Await());
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
