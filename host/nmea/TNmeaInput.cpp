#include "nmea/TNmeaInput.h"

#include "nmea/TNmeaStreamTime.h"

#include <QFile>
#include <QSocketNotifier>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <system_error>
#include <utility>

namespace {

const double LongestWait = 60000; // milliseconds; QTimer counts them in an int

int OpenForReading(const QString& path)
{
    // A descriptor of our own, so that the end closes it like any other. No O_NONBLOCK there: the flag would hold for
    // every process that shares the standard input.
    if (path == QLatin1String("-"))
        return fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0);
    // Without waiting for the other end of a pipe, or for a modem's carrier.
    return open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}

} // namespace

TNmeaInput::TNmeaInput(const QString& path, double speed, QObject* parent)
    : QObject(parent)
    , m_Path(path)
    , m_Speed(speed)
    , m_DueAt(0)
    , m_Notifier(nullptr)
    , m_Fd(-1)
    , m_IsRunning(false)
    , m_IsAtEnd(false)
{
    m_Timer.setSingleShot(true);
    m_Timer.setTimerType(Qt::PreciseTimer);
    connect(&m_Timer, &QTimer::timeout, this, &TNmeaInput::Step);
}

TNmeaInput::~TNmeaInput()
{
    delete m_Notifier;
    if (m_Fd >= 0)
        close(m_Fd);
}

void TNmeaInput::Start()
{
    m_IsRunning = true;
    m_Timer.start(0);
}

void TNmeaInput::Stop()
{
    if (m_IsRunning && m_Notifier) { // what a live source has sent is received, be the last line complete or not
        TNmeaLineSplitter received = std::exchange(m_Splitter, TNmeaLineSplitter());
        for (QByteArray line = received.TakeLine(); !line.isEmpty(); line = received.TakeLine())
            emit LineReceived(line);
        const QByteArray rest = received.TakeRest();
        if (!rest.isEmpty())
            emit LineReceived(rest);
    }
    End(true, QString());
}

void TNmeaInput::Step()
{
    if (m_Fd < 0 && !Open())
        return;
    if (m_Waiting.isEmpty() && !m_IsAtEnd && !Read())
        return;
    HandOn();
}

bool TNmeaInput::Open()
{
    m_Fd = OpenForReading(m_Path);
    struct stat status = {};
    const bool isOpen = m_Fd >= 0 && fstat(m_Fd, &status) == 0;
    if (!isOpen || S_ISDIR(status.st_mode)) {
        Fail(isOpen ? EISDIR : errno);
        return false;
    }
    m_Elapsed.start();
    if (!S_ISREG(status.st_mode)) {
        m_Notifier = new QSocketNotifier(m_Fd, QSocketNotifier::Read);
        connect(m_Notifier, &QSocketNotifier::activated, this, &TNmeaInput::Step);
        return false; // it tells when there is something to read
    }
    if (m_Speed > 0)
        m_StreamTime = std::make_unique<TNmeaStreamTime>();
    return true;
}

/// False when nothing came, for now or for ever.
bool TNmeaInput::Read()
{
    std::array<char, 0x10000> buffer;
    const ssize_t count = read(m_Fd, buffer.data(), buffer.size());
    if (count < 0) {
        if (errno != EAGAIN && errno != EINTR)
            Fail(errno);
        else if (!m_Notifier)
            m_Timer.start(0);
        return false;
    }
    m_IsAtEnd = count == 0;
    m_Splitter.Append(buffer.data(), static_cast<int>(count));
    return true;
}

void TNmeaInput::HandOn()
{
    for (QByteArray line = NextLine(); !line.isEmpty(); line = NextLine()) {
        if (const double wait = Wait(); wait > 0) {
            m_Waiting = line;
            m_Timer.start(static_cast<int>(std::ceil(std::min(wait, LongestWait))));
            return;
        }
        emit LineReceived(line);
        if (!m_IsRunning)
            return;
    }
    if (m_IsAtEnd)
        End(true, QString());
    else if (!m_Notifier)
        m_Timer.start(0);
}

QByteArray TNmeaInput::NextLine()
{
    if (!m_Waiting.isEmpty())
        return std::exchange(m_Waiting, QByteArray());
    QByteArray line = m_Splitter.TakeLine();
    if (line.isEmpty() && m_IsAtEnd)
        line = m_Splitter.TakeRest();
    if (m_StreamTime && !line.isEmpty())
        m_DueAt = static_cast<double>(m_StreamTime->Advance(line)) / m_Speed;
    return line;
}

/// Milliseconds until the line is due; none for what is not paced.
double TNmeaInput::Wait() const { return m_StreamTime ? m_DueAt - static_cast<double>(m_Elapsed.elapsed()) : 0; }

void TNmeaInput::Fail(int error)
{
    const QString name = m_Path == QLatin1String("-") ? QString(QLatin1String("standard input")) : m_Path;
    const QString reason = QString::fromStdString(std::generic_category().message(error));
    End(false, QString::fromLatin1("cannot %1 %2: %3").arg(QLatin1String(m_Fd < 0 ? "open" : "read"), name, reason));
}

void TNmeaInput::End(bool ok, const QString& error)
{
    if (!m_IsRunning)
        return;
    m_IsRunning = false;
    m_Timer.stop();
    if (m_Notifier) {
        m_Notifier->setEnabled(false);
        m_Notifier->deleteLater(); // it may be the one that is calling
        m_Notifier = nullptr;
    }
    if (m_Fd >= 0)
        close(m_Fd);
    m_Fd = -1;
    emit Finished(ok, error);
}
