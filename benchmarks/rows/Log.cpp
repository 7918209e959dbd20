#include "Rows.h"
#include "Work.h"

#include <QFile>

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace Work;

constexpr off_t MostBytes = 0x100000; // of a user log

/// A file that is written to without ever growing past the size of a log.
class TBareFile
{
public:
    explicit TBareFile(const char* folder)
        : m_Path(QFile::encodeName(BenchFolder::Fresh(folder) + QLatin1String("/bare.log")))
        , m_Fd(open(m_Path.constData(), O_CREAT | O_RDWR | O_APPEND | O_CLOEXEC, 0644))
    {}
    ~TBareFile() { close(m_Fd); }
    TBareFile(const TBareFile&) = delete;
    TBareFile& operator=(const TBareFile&) = delete;

    bool Write(const char* data, int length)
    {
        m_Size += write(m_Fd, data, static_cast<std::size_t>(length));
        if (m_Size > MostBytes) {
            m_Size = 0;
            return ftruncate(m_Fd, 0) == 0;
        }
        return true;
    }

    const QByteArray& Path() const { return m_Path; }

private:
    QByteArray m_Path;
    int m_Fd;
    off_t m_Size = 0;
};

bool BareFlushedLine(unsigned)
{
    static TBareFile file("bare");
    return file.Write(Entry, EntryLength);
}

/// By the C library, with a buffer of its own of that size, or none.
template <std::size_t BufferSize>
bool StandardLine(const char* data, int length)
{
    static TBareFile file(BufferSize > 0 ? "stdio-staged" : "stdio");
    static char buffer[BufferSize + 1];
    static std::FILE* const stream = [] {
        std::FILE* const opened = std::fopen(file.Path().constData(), "ab");
        std::setvbuf(opened, BufferSize > 0 ? buffer : nullptr, BufferSize > 0 ? _IOFBF : _IONBF, BufferSize);
        return opened;
    }();
    static long size = 0;
    size += length;
    if (size > MostBytes) {
        size = 0;
        if (ftruncate(fileno(stream), 0) != 0)
            return false;
    }
    return std::fwrite(data, 1, static_cast<std::size_t>(length), stream) == static_cast<std::size_t>(length);
}

bool StandardFlushedLine(unsigned) { return StandardLine<0>(Entry, EntryLength); }
bool StandardStagedLine(unsigned) { return StandardLine<1024>(Sentence, SentenceLength); }

bool CopiedSentence(unsigned number)
{
    static char staging[1024];
    char* const to = staging + number % 14 * SentenceLength;
    std::copy_n(Sentence, SentenceLength, to);
    benchmark::DoNotOptimize(to);
    return true;
}

/// What a rotation cannot do without: a listing, a file less, a file more, a line.
bool BareRotation(unsigned number)
{
    static const QByteArray folder = QFile::encodeName(BenchFolder::Fresh("bare-rotation")) + '/';
    const QByteArray oldest = folder + QByteArray::number(number % 4);
    unlink(oldest.constData());
    const int fd = open(oldest.constData(), O_CREAT | O_RDWR | O_APPEND | O_CLOEXEC, 0644);
    const bool isWritten = write(fd, Entry, static_cast<std::size_t>(EntryLength)) == EntryLength;
    return close(fd) == 0 && isWritten;
}

const TRows Rows = {
    {"log.flush", ROW_LIMIT, "write(2)", Timed<BareFlushedLine>},
    {"log.flush", ROW_OURS, "user log, LogDiagnostic", Timed<FlushedLine>},
    {"log.flush", ROW_PEER, "stdio, unbuffered", Timed<StandardFlushedLine>},

    {"log.stamp", ROW_LIMIT, "write(2)", Timed<BareFlushedLine>},
    {"log.stamp", ROW_OURS, "user log, AddEntry", Timed<StampedLine>},

    {"log.staged", ROW_LIMIT, "the line copied", Timed<CopiedSentence>},
    {"log.staged", ROW_OURS, "NMEA log, Log", Timed<StagedLine>},
    {"log.staged", ROW_PEER, "fwrite, 1024 bytes of buffer", Timed<StandardStagedLine>},

    {"log.rotate", ROW_LIMIT, "unlink, open, write, close", Timed<BareRotation>},
    {"log.rotate", ROW_OURS, "4 files in the folder", Timed<RotatingLine>},
    {"log.rotate", ROW_OURS, "and 1,000 foreign files", Timed<RotatingLineInFullFolder>},
};

} // namespace
