#pragma once

#include <cerrno>

#include <unistd.h>

/// A file descriptor that is closed at the end of its scope, with errno left as it was.
class TDescriptor
{
public:
    explicit TDescriptor(int fd) : m_Fd(fd) {}
    ~TDescriptor()
    {
        const int error = errno;
        if (m_Fd >= 0)
            close(m_Fd);
        errno = error;
    }
    TDescriptor(const TDescriptor&) = delete;
    TDescriptor& operator=(const TDescriptor&) = delete;

    int Get() const { return m_Fd; }
    bool IsOpen() const { return m_Fd >= 0; }

private:
    const int m_Fd;
};
