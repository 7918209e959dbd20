#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

/// A serial line without hardware: what is written here is received on the device. Pulled out, it vanishes.
class TPseudoTerminal
{
public:
    TPseudoTerminal()
    {
        if (openpty(&m_Receiver, &m_Device, nullptr, nullptr, nullptr) != 0)
            return;
        fcntl(m_Receiver, F_SETFD, FD_CLOEXEC);
        fcntl(m_Device, F_SETFD, FD_CLOEXEC);
        // Neither echo nor line editing before it is set up, and a speed that nobody asks for.
        termios line = Line();
        cfmakeraw(&line);
        cfsetspeed(&line, B50);
        tcsetattr(m_Device, TCSANOW, &line);
    }
    ~TPseudoTerminal()
    {
        PullOut();
        if (m_Device >= 0)
            close(m_Device);
    }
    TPseudoTerminal(const TPseudoTerminal&) = delete;
    TPseudoTerminal& operator=(const TPseudoTerminal&) = delete;

    bool IsThere() const { return m_Receiver >= 0; }

    /// The name that the system has given the device.
    QString Name() const { return QString::fromLocal8Bit(ptsname(m_Receiver)); }

    /// The name under which it is found from now on; it takes the place of whatever had it before.
    bool PlugIn(const QString& path) const
    {
        QFile::remove(path);
        return QFile::link(Name(), path);
    }

    /// From now on, what does not fit into the device's buffer is lost, as on a line that nobody reads.
    void LoseWhatIsNotRead() const { fcntl(m_Receiver, F_SETFL, O_NONBLOCK); }

    /// Whether all of it was written.
    bool Write(const QByteArray& bytes) const
    {
        return write(m_Receiver, bytes.constData(), static_cast<std::size_t>(bytes.size())) == bytes.size();
    }

    /// How the device is set up.
    termios Line() const
    {
        termios line = {};
        tcgetattr(m_Device, &line);
        return line;
    }

    void PullOut()
    {
        if (m_Receiver >= 0)
            close(m_Receiver);
        m_Receiver = -1;
    }

private:
    int m_Receiver = -1;
    int m_Device = -1; ///< held open, so that the settings stay
};
