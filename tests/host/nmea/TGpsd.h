#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <arpa/inet.h>
#include <csignal>
#include <netinet/in.h>
#include <sched.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

/// A port of 127.0.0.1 that nobody uses at the moment.
inline quint16 FreePort()
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const anyAddress = reinterpret_cast<sockaddr*>(&address);
    const int fd = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool isFound = bind(fd, anyAddress, size) == 0 && getsockname(fd, anyAddress, &size) == 0;
    close(fd);
    return isFound ? ntohs(address.sin_port) : quint16(0);
}

/// gpsd on a receiver's device, listening on the loopback interface.
class TGpsd
{
public:
    TGpsd(const QString& device, quint16 port)
    {
        const QByteArray portText = QByteArray::number(port);
        const QByteArray path = QFile::encodeName(device);
        // In the foreground, reading at once, and writing nothing to the device.
        const char* const arguments[] = {CABSETTINGS_GPSD, "-N",   "-n", "-b", "-S", portText.constData(),
                                         path.constData(), nullptr};
        m_Process = fork();
        if (m_Process != 0)
            return;
        // What gpsd tells in shared memory is not for others: the machine's own gpsd, and the clock's NTP. Only root
        // can set it apart; else another key has to do.
        if (unshare(CLONE_NEWIPC) != 0)
            unshare(CLONE_NEWIPC | CLONE_NEWUSER); // not as root
        setenv("GPSD_SHM_KEY", "0x43414253", 1);
        execv(arguments[0], const_cast<char* const*>(arguments));
        _exit(127);
    }

    ~TGpsd()
    {
        if (!IsRunning())
            return;
        kill(m_Process, SIGTERM);
        waitpid(m_Process, nullptr, 0);
    }

    TGpsd(const TGpsd&) = delete;
    TGpsd& operator=(const TGpsd&) = delete;

    bool IsRunning()
    {
        if (m_Process > 0 && waitpid(m_Process, nullptr, WNOHANG) != 0)
            m_Process = -1;
        return m_Process > 0;
    }

private:
    pid_t m_Process;
};
