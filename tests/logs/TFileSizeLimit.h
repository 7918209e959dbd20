#pragma once

#include <csignal>

#include <sys/resource.h>

/// While it lives no file of this process grows past @p size bytes.
class TFileSizeLimit
{
public:
    explicit TFileSizeLimit(int size)
    {
        m_Action = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_Before);
        rlimit limit = m_Before;
        limit.rlim_cur = static_cast<rlim_t>(size);
        m_IsSet = setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }

    ~TFileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_Before);
        std::signal(SIGXFSZ, m_Action);
    }

    TFileSizeLimit(const TFileSizeLimit&) = delete;
    TFileSizeLimit& operator=(const TFileSizeLimit&) = delete;

    bool IsSet() const { return m_IsSet; }

private:
    void (*m_Action)(int);
    rlimit m_Before;
    bool m_IsSet;
};
