#pragma once

#include <cstdio>
#include <utility>

/// Sends what the host and Qt say on standard error nowhere while it lives: a store that fails a thousand times says so
/// a thousand times.
///
/// The stream alone goes nowhere, which is a variable in the GNU C library. The descriptor stays: a sanitizer writes
/// its report to that, and the report must be seen.
class TSilence
{
public:
    TSilence() : m_Original(stderr)
    {
        if (std::FILE* nowhere = std::fopen("/dev/null", "we"))
            stderr = nowhere;
    }

    ~TSilence()
    {
        if (stderr != m_Original)
            std::fclose(std::exchange(stderr, m_Original));
    }

    TSilence(const TSilence&) = delete;
    TSilence& operator=(const TSilence&) = delete;

private:
    std::FILE* const m_Original;
};
