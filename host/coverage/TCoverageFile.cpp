#include "coverage/TCoverageFile.h"

#include "blocks/DataBlock.h"
#include "coverage/CoverageBlocks.h"
#include "coverage/TCoverageWriter.h"
#include "platform/Uninterrupted.h"
#include "stores/DurableFiles.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <limits>

namespace {

using namespace CoverageBlocks;

/// How a file was taken apart.
enum EReading : int
{
    READING_GOOD,
    READING_REFUSED, ///< the file stays as it is
};

// Takes the bytes of a file apart.
class TReading
{
public:
    TReading(const QString& path, const QByteArray& bytes, tagCoverage* found)
        : m_Path(path), m_Bytes(bytes), m_Found(found)
    {}

    EReading Take();

    int GoodBytes() const { return m_At; } ///< what follows them is to be cut off
    QString Reason() const { return m_Reason; }

private:
    EReading TakeHeader();
    EReading TakeRuns();
    void Lose(int end);
    EReading Refuse(const QString& reason);
    EReading RefuseVersion(unsigned version);

    const QString& m_Path;
    const QByteArray& m_Bytes;
    tagCoverage* const m_Found;
    QString m_Reason;
    int m_At = 0;
};

EReading TReading::Refuse(const QString& reason)
{
    m_Reason = reason;
    return READING_REFUSED;
}

EReading TReading::RefuseVersion(unsigned version)
{
    return Refuse(QString::fromLatin1("%1 is a coverage of version %2; this program has version %3")
                      .arg(m_Path, QString::number(version), QString::number(Version)));
}

/// Counts the bytes up to @p end as lost, and goes on behind them.
void TReading::Lose(int end)
{
    unsigned version = 0;
    const qint64 lost = end - m_At;
    const qint64 claimed = DataBlock::IsBlock(m_Bytes, m_At, &version) ? DataBlock::ClaimedBytes(m_Bytes, m_At) : -1;
    // A damaged length may claim anything.
    const qint64 most = TCoverageFile::MostWaitingStrips;
    const qint64 strips = StripsOfBytes(claimed);
    m_Found->lostStrips += strips <= most ? strips : StripsOfBytes(lost);
    m_Found->lostBytes += lost;
}

EReading TReading::TakeHeader()
{
    const int size = static_cast<int>(m_Bytes.size());
    const QByteArray likeThis = Header({0, 0}); // all headers have this length
    unsigned version = Version;
    DataBlock::tagBlock block;
    const bool isBlock = DataBlock::IsBlock(m_Bytes, 0, &version);
    if (isBlock && version != Version)
        return RefuseVersion(version);
    const bool isCutOff = size < likeThis.size() && likeThis.startsWith(m_Bytes.left(DataBlock::BytesBeforePayload));
    const bool isZeros = m_Bytes.count('\0') == size; // a power cut has left the length without the content
    if (isCutOff || isZeros) {
        Lose(size); // the very first piece was not completed
        return READING_GOOD;
    }
    tagGeoPoint origin = {};
    if (!isBlock)
        return Refuse(QString::fromLatin1("%1 is not a coverage").arg(m_Path));
    if (!DataBlock::Take(m_Bytes, &m_At, &block))
        return Refuse(QString::fromLatin1("%1 is damaged: its beginning cannot be read").arg(m_Path));
    if (!ReadHeader(block.payload, &origin))
        return Refuse(QString::fromLatin1("%1 is not a coverage").arg(m_Path));
    m_Found->origin = origin;
    return READING_GOOD;
}

EReading TReading::TakeRuns()
{
    const int size = static_cast<int>(m_Bytes.size());
    m_Found->strips.reserve(static_cast<std::size_t>(StripsOfBytes(size) + 1));
    DataBlock::tagBlock block;
    while (m_At < size) {
        int end = m_At;
        if (DataBlock::Take(m_Bytes, &end, &block)) {
            if (block.version != Version)
                return RefuseVersion(block.version);
            if (!ReadRun(block.payload, &m_Found->strips))
                Lose(end);
            m_At = end;
            continue;
        }
        const int next = DataBlock::Find(m_Bytes, m_At + 1);
        Lose(next >= 0 ? next : size);
        if (next < 0)
            return READING_GOOD;
        m_At = next;
    }
    return READING_GOOD;
}

EReading TReading::Take()
{
    if (m_Bytes.isEmpty())
        return READING_GOOD;
    const EReading reading = TakeHeader();
    return reading == READING_GOOD && m_Found->origin ? TakeRuns() : reading;
}

bool ReadAll(int descriptor, QByteArray* bytes)
{
    struct stat status = {};
    if (fstat(descriptor, &status) != 0)
        return false;
    if (!S_ISREG(status.st_mode) || status.st_size > std::numeric_limits<int>::max() / 2) {
        errno = S_ISREG(status.st_mode) ? EFBIG : EINVAL;
        return false;
    }
    bytes->resize(static_cast<int>(status.st_size));
    int at = 0;
    while (at < bytes->size()) {
        const std::size_t left = static_cast<std::size_t>(bytes->size() - at);
        const ssize_t count =
            Uninterrupted([&] { return pread(descriptor, bytes->data() + at, left, static_cast<off_t>(at)); });
        if (count < 0)
            return false;
        if (count == 0)
            break;
        at += static_cast<int>(count);
    }
    bytes->truncate(at);
    return true;
}

/// Reads the file, and cuts off what is not complete. Returns the number of good bytes; -1 with @p error.
qint64 ReadAndCut(int descriptor, const QString& path, tagCoverage* found, QString* error)
{
    if (Uninterrupted([&] { return flock(descriptor, LOCK_EX | LOCK_NB); }) != 0 && errno == EWOULDBLOCK) {
        *error = QString::fromLatin1("another program has %1 open").arg(path);
        found->isHeld = true;
        return -1;
    }
    QByteArray bytes;
    if (!ReadAll(descriptor, &bytes)) {
        *error = DurableFiles::SystemReason(QLatin1String("cannot read"), path);
        return -1;
    }
    TReading reading(path, bytes, found);
    if (reading.Take() != READING_GOOD) {
        *error = reading.Reason();
        return -1;
    }
    const bool isCut = reading.GoodBytes() == bytes.size() ||
                       (Uninterrupted([&] { return ftruncate(descriptor, reading.GoodBytes()); }) == 0 &&
                        Uninterrupted([&] { return fsync(descriptor); }) == 0);
    if (!isCut) {
        *error = DurableFiles::SystemReason(QLatin1String("cannot cut off the end of"), path);
        return -1;
    }
    return reading.GoodBytes();
}

} // namespace

std::unique_ptr<TCoverageFile> TCoverageFile::Open(const QString& path, tagCoverage* found, QString* error)
{
    *found = tagCoverage();
    error->clear();
    const QByteArray name = path.toUtf8();
    const int descriptor = Uninterrupted([&] { return open(name.constData(), O_RDWR | O_CLOEXEC | O_NONBLOCK); });
    if (descriptor < 0 && errno != ENOENT) {
        *error = DurableFiles::SystemReason(QLatin1String("cannot open"), path);
        return nullptr;
    }
    qint64 end = 0;
    if (descriptor >= 0)
        end = ReadAndCut(descriptor, path, found, error);
    if (end < 0) {
        const bool isHeld = found->isHeld;
        *found = tagCoverage();
        found->isHeld = isHeld;
        close(descriptor);
        return nullptr;
    }
    auto writer = std::make_unique<TCoverageWriter>(path, descriptor, end, found->origin.has_value());
    return std::unique_ptr<TCoverageFile>(new TCoverageFile(std::move(writer)));
}

TCoverageFile::TCoverageFile(std::unique_ptr<TCoverageWriter> writer) : m_Writer(std::move(writer)) {}

TCoverageFile::~TCoverageFile() = default;

void TCoverageFile::SetOrigin(const tagGeoPoint& origin) { m_Writer->SetOrigin(origin); }

void TCoverageFile::Add(const tagCoverageStrip& strip) { m_Writer->Add(strip); }

bool TCoverageFile::Flush() { return m_Writer->Flush(); }

tagCoverageState TCoverageFile::State() const { return m_Writer->State(); }
