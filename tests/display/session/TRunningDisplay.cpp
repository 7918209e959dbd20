#include "TRunningDisplay.h"

#include <QFile>
#include <QJsonDocument>
#include <QProcessEnvironment>
#include <QtTest>

#include <limits>

namespace {

struct tagUnit
{
    const char* text;
    double metres;
};

/// Those of the tile of the driven distance.
constexpr tagUnit Units[] = {{"mm", 0.001}, {"cm", 0.01}, {"m", 1}, {"km", 1000}};

} // namespace

TRunningDisplay::TRunningDisplay(const QStringList& arguments)
{
    if (m_Server.listen(m_Folder.Path(QLatin1String("probe"))))
        Begin(arguments);
    else
        m_Problem = QLatin1String("the probe cannot be listened to: ") + m_Server.errorString();
}

TRunningDisplay::~TRunningDisplay() { Kill(); }

void TRunningDisplay::Begin(const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String("QT_QPA_PLATFORM"), QLatin1String("offscreen"));
    environment.insert(QLatin1String("QT_PLUGIN_PATH"), QLatin1String(CABSETTINGS_TEST_PLUGINS));
    environment.insert(QLatin1String("QT_QPA_GENERIC_PLUGINS"), QLatin1String("probe:") + m_Server.fullServerName());
    m_Process.setProcessEnvironment(environment);
    m_Process.setProcessChannelMode(QProcess::ForwardedChannels);
    m_Process.start(QLatin1String(CABSETTINGS_DISPLAY), QStringList{QLatin1String("--data"), DataFolder()} + arguments);
}

void TRunningDisplay::Kill()
{
    m_Process.kill();
    m_Process.waitForFinished();
}

bool TRunningDisplay::Await()
{
    if (!m_Problem.isEmpty())
        return false;
    m_Probe.reset();
    if (!m_Server.waitForNewConnection(Patience)) {
        m_Problem = QLatin1String("the program does not start: ") + m_Process.errorString();
        return false;
    }
    m_Probe.reset(m_Server.nextPendingConnection());
    const bool isShowing = QTest::qWaitFor([this] { return !Texts().isEmpty(); }, Patience);
    if (!isShowing)
        m_Problem = QLatin1String("the program shows nothing");
    return isShowing;
}

QStringList TRunningDisplay::Arguments() const
{
    QFile file(QString::fromLatin1("/proc/%1/cmdline").arg(m_Process.processId()));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList arguments;
    for (const QByteArray& argument : file.readAll().split('\0'))
        arguments.append(QString::fromUtf8(argument));
    return arguments.mid(1, arguments.size() - 2); // the last one is the end of the file
}

QStringList TRunningDisplay::Texts(const char* below)
{
    return QJsonDocument::fromJson(Ask(QByteArray("texts ") + below)).toVariant().toStringList();
}

double TRunningDisplay::Distance()
{
    const QStringList texts = Texts("tile.distance");
    for (const QString& text : texts) {
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        for (const tagUnit& unit : Units) {
            if (isNumber && texts.contains(QLatin1String(unit.text)))
                return number * unit.metres;
        }
    }
    return std::numeric_limits<double>::quiet_NaN();
}

bool TRunningDisplay::Tap(const char* name)
{
    return QTest::qWaitFor([this, name] { return Ask(QByteArray("tap ") + name) == "1"; }, Patience);
}

int TRunningDisplay::End()
{
    m_Process.terminate();
    return m_Process.waitForFinished(Patience) && m_Process.exitStatus() == QProcess::NormalExit ? m_Process.exitCode()
                                                                                                 : -1;
}

QByteArray TRunningDisplay::Ask(const QByteArray& request)
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

QStringList SimulatedInEnglish()
{
    return {QStringLiteral("--receiver"), QStringLiteral("simulator"), QStringLiteral("--language=en"),
            QStringLiteral("--size"), QStringLiteral("1280x800")};
}
