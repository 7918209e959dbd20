#include "coverage/TCoverageWriter.h"

#include "platform/DurableCopy.h"
#include "platform/Uninterrupted.h"
#include "stores/DurableFiles.h"
#include "stores/DurableFolder.h"

#include <QFileInfo>
#include <QMutexLocker>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace {

using namespace CoverageBlocks;

const mode_t ReadableByAll = 0644;
constexpr int BytesOfStrip = 16;
constexpr qint64 MillisecondsBeforeWrite = TCoverageFile::WriteSeconds * qint64(1000);
constexpr int StripsBeforeWrite = TCoverageFile::BytesBeforeWrite / BytesOfStrip;

} // namespace

TCoverageWriter::TCoverageWriter(const QString& path, int descriptor, qint64 end, bool hasOrigin)
    : m_Path(path), m_HasOrigin(hasOrigin), m_Descriptor(descriptor), m_End(end)
{
    start();
}

TCoverageWriter::~TCoverageWriter()
{
    {
        const QMutexLocker lock(&m_Mutex);
        m_IsEnding = true;
        m_Changed.wakeAll();
    }
    wait();
    if (m_Descriptor >= 0)
        close(m_Descriptor);
}

void TCoverageWriter::SetOrigin(const tagGeoPoint& origin)
{
    const QMutexLocker lock(&m_Mutex);
    if (m_HasOrigin || !IsGeoPoint(origin))
        return;
    m_Header = Header(origin);
    m_HasOrigin = true;
}

void TCoverageWriter::Add(const tagCoverageStrip& strip)
{
    std::array<int, NumbersOfEdge> before = {};
    std::array<int, NumbersOfEdge> after = {};
    if (!Edges(strip, &before, &after))
        return;
    const QMutexLocker lock(&m_Mutex);
    if (!m_HasOrigin)
        return;
    if (m_State.waiting >= TCoverageFile::MostWaitingStrips) {
        ++m_State.lost;
        return;
    }
    const bool goesOn =
        m_Run.size() >= NumbersOfEdge && std::equal(before.begin(), before.end(), m_Run.cend() - NumbersOfEdge);
    if (!goesOn) {
        EndRun();
        m_Run.clear();
        std::copy(before.begin(), before.end(), std::back_inserter(m_Run));
    }
    std::copy(after.begin(), after.end(), std::back_inserter(m_Run));
    ++m_StagedStrips;
    ++m_State.waiting;
    if (m_State.waiting == 1)
        m_Due.setRemainingTime(MillisecondsBeforeWrite);
    if (m_State.waiting == 1 || m_StagedStrips == StripsBeforeWrite)
        m_Changed.wakeAll();
}

/// Puts the strips of the current run with the complete ones. What follows may still go on from its last edge.
void TCoverageWriter::EndRun()
{
    if (m_Run.size() <= NumbersOfEdge)
        return;
    m_CompleteRuns.push_back(m_Run);
    m_Run = m_Run.mid(static_cast<int>(m_Run.size()) - NumbersOfEdge);
}

bool TCoverageWriter::Flush()
{
    const QMutexLocker lock(&m_Mutex);
    // A try that is in progress may have begun before the last strip was added.
    const qint64 wanted = m_Tries + 2;
    m_Wanted = std::max(m_Wanted, wanted);
    m_Changed.wakeAll();
    while (m_Tries < wanted)
        m_Tried.wait(&m_Mutex);
    return m_State.waiting == 0 && m_State.problem.isEmpty();
}

tagCoverageState TCoverageWriter::State() const
{
    const QMutexLocker lock(&m_Mutex);
    return m_State;
}

void TCoverageWriter::AwaitWork()
{
    while (!m_IsEnding && m_Tries >= m_Wanted && m_StagedStrips < StripsBeforeWrite) {
        if (m_State.waiting == 0)
            m_Changed.wait(&m_Mutex);
        else if (!m_Due.hasExpired())
            m_Changed.wait(&m_Mutex, m_Due);
        else
            return;
    }
}

TCoverageWriter::tagPiece TCoverageWriter::TakeStaged()
{
    EndRun();
    tagPiece piece = {m_Header, m_StagedStrips};
    if (m_StagedStrips == 0)
        return {QByteArray(), 0};
    for (const TRun& run : m_CompleteRuns)
        piece.bytes += Run(run);
    m_Header.clear();
    m_CompleteRuns.clear();
    m_StagedStrips = 0;
    return piece;
}

void TCoverageWriter::run()
{
    QMutexLocker lock(&m_Mutex);
    for (bool isLast = false; !isLast;) {
        AwaitWork();
        isLast = m_IsEnding;
        const tagPiece piece = TakeStaged();
        lock.unlock();

        if (piece.strips > 0)
            m_Pieces.push_back(piece);
        QString reason;
        const qint64 written = WritePieces(&reason);

        lock.relock();
        m_State.waiting -= written;
        m_State.written += written;
        m_State.problem = reason;
        m_Due.setRemainingTime(MillisecondsBeforeWrite);
        ++m_Tries;
        m_Tried.wakeAll();
    }
}

/// The file, with its folder, of a coverage that has none yet.
bool TCoverageWriter::Make(QString* reason)
{
    const QString folder = QFileInfo(m_Path).path();
    if (!MakeFolderDurably(folder, reason))
        return false;
    const QByteArray path = m_Path.toUtf8();
    const int descriptor =
        Uninterrupted([&] { return open(path.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, ReadableByAll); });
    const bool isLockedElsewhere = descriptor >= 0 &&
                                   Uninterrupted([&] { return flock(descriptor, LOCK_EX | LOCK_NB); }) != 0 &&
                                   errno == EWOULDBLOCK;
    if (descriptor < 0 || isLockedElsewhere) {
        *reason = DurableFiles::SystemReason(QLatin1String("cannot make"), m_Path);
        if (descriptor >= 0)
            close(descriptor);
        return false;
    }
    m_Descriptor = descriptor;
    SyncFolder(folder.toUtf8());
    return true;
}

/// Writes as many pieces as possible. Returns the number of strips that have come to the disk.
qint64 TCoverageWriter::WritePieces(QString* reason)
{
    if (m_Pieces.empty() || (m_Descriptor < 0 && !Make(reason)))
        return 0;
    qint64 end = m_End;
    qint64 strips = 0;
    std::size_t count = 0;
    while (count < m_Pieces.size() &&
           WriteAllAt(m_Descriptor, m_Pieces[count].bytes.constData(),
                      static_cast<std::size_t>(m_Pieces[count].bytes.size()), static_cast<off_t>(end))) {
        end += m_Pieces[count].bytes.size();
        strips += m_Pieces[count].strips;
        ++count;
    }
    if (count < m_Pieces.size()) {
        *reason = DurableFiles::SystemReason(QLatin1String("cannot write"), m_Path);
        // The next try writes to the same place. If there is none, this spares the next opening a cut.
        static_cast<void>(Uninterrupted([&] { return ftruncate(m_Descriptor, static_cast<off_t>(end)); }) == 0);
    }
    if (count == 0)
        return 0;
    if (Uninterrupted([&] { return fsync(m_Descriptor); }) !=
        0) { // nobody knows what is on the disk now: all of it is written again
        *reason = DurableFiles::SystemReason(QLatin1String("cannot sync"), m_Path);
        return 0;
    }
    m_End = end;
    m_Pieces.erase(m_Pieces.begin(), m_Pieces.begin() + static_cast<std::ptrdiff_t>(count));
    return strips;
}
