#pragma once

#include <QByteArray>

#include <cstdio>
#include <unistd.h>

/// Takes what is written to standard error while it lives, by whatever means.
class TCapturedErrors
{
public:
    TCapturedErrors() : m_StandardError(dup(STDERR_FILENO)), m_File(std::tmpfile())
    {
        if (!m_File || m_StandardError < 0)
            qFatal("standard error cannot be captured");
        std::fflush(stderr);
        dup2(fileno(m_File), STDERR_FILENO);
    }

    ~TCapturedErrors()
    {
        std::fflush(stderr);
        dup2(m_StandardError, STDERR_FILENO);
        close(m_StandardError);
        std::fclose(m_File);
    }

    TCapturedErrors(const TCapturedErrors&) = delete;
    TCapturedErrors& operator=(const TCapturedErrors&) = delete;

    QByteArray Text() const
    {
        std::fflush(stderr);
        QByteArray text(4096, '\0');
        const ssize_t length = pread(fileno(m_File), text.data(), static_cast<size_t>(text.size()), 0);
        text.truncate(length < 0 ? 0 : static_cast<int>(length));
        return text;
    }

private:
    int m_StandardError;
    std::FILE* m_File;
};
