#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

/// Sends what the host says on standard error nowhere while it lives: a store that fails a thousand times says so a
/// thousand times.
class TSilence
{
public:
    TSilence() : m_Original(dup(STDERR_FILENO))
    {
        std::fflush(stderr);
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        dup2(nowhere, STDERR_FILENO);
        close(nowhere);
    }

    ~TSilence()
    {
        std::fflush(stderr);
        dup2(m_Original, STDERR_FILENO);
        close(m_Original);
    }

    TSilence(const TSilence&) = delete;
    TSilence& operator=(const TSilence&) = delete;

private:
    int m_Original;
};
