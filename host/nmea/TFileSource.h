#pragma once

#include "nmea/TByteSource.h"

#include <QSocketNotifier>

#include <memory>

/// A file, a pipe, a device or the standard input. A regular file is a recording, also on standard input; everything
/// else is live.
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
    std::unique_ptr<QSocketNotifier> m_Notifier; ///< of a live source; not deleted in Close(), which it may have called
    int m_Fd;
    bool m_IsRecording;
};
