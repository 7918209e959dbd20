#pragma once

#include "nmea/TByteSource.h"

#include <QSocketNotifier>

#include <memory>

/// A file, a pipe, a device as it is set up, or the standard input. Files are recordings, the others are live.
class TFileSource : public TByteSource
{
    Q_OBJECT

public:
    /// @param path "-" is the standard input.
    explicit TFileSource(const QString& path);
    ~TFileSource() override;

    void Read() override;
    void Close() override;
    bool IsRecording() const override { return m_IsRecording; }

private:
    bool Open();
    void ReadPiece();
    void Fail(const char* what, int error);

    const QString m_Path;
    std::unique_ptr<QSocketNotifier> m_Notifier; ///< of what is live; it may be the one that is calling
    int m_Fd;
    bool m_IsRecording;
};
