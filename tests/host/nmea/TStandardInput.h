#pragma once

#include <unistd.h>

/// Puts another descriptor in the place of the standard input.
class TStandardInput
{
public:
    explicit TStandardInput(int fd) : m_Kept(dup(STDIN_FILENO)) { dup2(fd, STDIN_FILENO); }
    ~TStandardInput()
    {
        dup2(m_Kept, STDIN_FILENO);
        close(m_Kept);
    }
    TStandardInput(const TStandardInput&) = delete;
    TStandardInput& operator=(const TStandardInput&) = delete;

private:
    int m_Kept;
};
