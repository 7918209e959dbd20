#include "nmea/TFileSource.h"

#include "nmea/SourceFile.h"
#include "stores/DurableFiles.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

TFileSource::TFileSource(const QString& path) : m_Path(path), m_Fd(-1), m_IsRecording(false) {}

TFileSource::~TFileSource() { Close(); }

void TFileSource::Close()
{
    if (m_Notifier)
        m_Notifier->setEnabled(false);
    if (m_Fd >= 0)
        close(m_Fd);
    m_Fd = -1;
}

void TFileSource::Read()
{
    if (m_Fd < 0 && !Open())
        return;
    if (m_IsRecording)
        ReadPiece();
}

bool TFileSource::Open()
{
    m_Fd = OpenSourceFile(m_Path);
    if (m_Fd < 0) {
        Fail("open", errno);
        return false;
    }
    struct stat status = {};
    const int error = fstat(m_Fd, &status) != 0 ? errno : S_ISDIR(status.st_mode) ? EISDIR : 0;
    if (error != 0) {
        Fail("read", error);
        return false;
    }
    m_IsRecording = S_ISREG(status.st_mode);
    if (!m_IsRecording) {
        m_Notifier = std::make_unique<QSocketNotifier>(m_Fd, QSocketNotifier::Read);
        connect(m_Notifier.get(), &QSocketNotifier::activated, this, &TFileSource::ReadPiece);
    }
    return true;
}

void TFileSource::ReadPiece()
{
    std::array<char, 0x10000> piece;
    ssize_t count = 0;
    do
        count = read(m_Fd, piece.data(), piece.size());
    while (count < 0 && errno == EINTR);

    if (count > 0) {
        emit Received(QByteArray(piece.data(), static_cast<int>(count)));
    } else if (count == 0) {
        emit Ended(QString());
    } else if (errno != EAGAIN) {
        Fail("read", errno);
    }
}

void TFileSource::Fail(const char* what, int error)
{
    const QString name = m_Path == QLatin1String("-") ? QString(QLatin1String("standard input")) : m_Path;
    emit Ended(QString::fromLatin1("cannot %1 %2: %3").arg(QLatin1String(what), name, DurableFiles::SystemText(error)));
}
