#include "diagnostics/TLogTail.h"

#include <QFile>

#include <algorithm>
#include <utility>

namespace {

const qint64 PieceBytes = 0x10000;

/// One byte more than the longest line, by which a cut line is seen, and one for the carriage return.
const int KeptBytes = TLogTail::LongestLine + 2;

/// The logs are written in Latin-1, and their lines end in carriage return and line feed. Raw traffic may hold zeros.
QString Text(const QByteArray& line)
{
    const int size = static_cast<int>(line.size()) - (line.endsWith('\r') ? 1 : 0);
    const bool isCut = size > TLogTail::LongestLine;
    const QString text = QString::fromLatin1(line.constData(), isCut ? TLogTail::LongestLine : size);
    return isCut ? text + TLogTail::CutMark : text;
}

int RoomBehind(const QByteArray& rest) { return KeptBytes - static_cast<int>(rest.size()); }

} // namespace

TLogTail::TLogTail(const QString& basePath, qint64 firstBytes) : m_BasePath(basePath), m_FirstBytes(firstBytes) {}

QList<tagLogLine> TLogTail::Read(QString* error)
{
    error->clear();
    QList<tagLogLine> lines;
    QHash<QString, qint64> read;
    const TLogSeries series(m_BasePath);
    std::vector<TLogSeries::tagFile> files = series.GetFiles();
    const auto turn = [this](const TLogSeries::tagFile& file) {
        return !m_Read.contains(file.name) ? 2 : file.name == m_LastFile ? 1 : 0;
    };
    if (m_FirstBytes >= 0)
        SkipTo(std::exchange(m_FirstBytes, -1), files);
    std::stable_sort(files.begin(), files.end(),
                     [&turn](const TLogSeries::tagFile& a, const TLogSeries::tagFile& b) { return turn(a) < turn(b); });
    for (const TLogSeries::tagFile& found : files) {
        const QString& name = found.name;
        QFile file(series.GetPath(name));
        if (!file.open(QIODevice::ReadOnly) && !file.exists())
            continue; // the log has just given it up
        const qint64 before = m_Read.value(name);
        const qint64 start = before <= file.size() ? before : 0; // a shorter one is another file of that name
        qint64 end = start;
        if (file.isOpen() && file.seek(start)) {
            for (QByteArray piece = file.read(PieceBytes); !piece.isEmpty(); piece = file.read(PieceBytes)) {
                end += piece.size();
                Split(name, piece, &lines);
            }
        }
        if (file.error() != QFileDevice::NoError)
            *error = QString::fromLatin1("cannot read \"%1\": %2").arg(file.fileName(), file.errorString());
        read.insert(name, end);
        if (end > start)
            m_LastFile = name;
    }
    m_Read = read;
    if (m_SkipsLine && !lines.isEmpty()) {
        lines.removeFirst();
        m_SkipsLine = false;
    }
    return lines;
}

/// Marks what lies before the newest @p bytes as read, except for one byte: it is the end of a line if the newest bytes
/// begin with a line, so that the line that has lost its beginning is never a whole one.
void TLogTail::SkipTo(qint64 bytes, const std::vector<TLogSeries::tagFile>& files)
{
    qint64 left = bytes + 1;
    for (auto file = files.rbegin(); file != files.rend(); ++file) {
        const qint64 taken = std::min(left, file->size);
        left -= taken;
        m_Read.insert(file->name, file->size - taken);
    }
    m_SkipsLine = left == 0;
}

tagLogLine TLogTail::Unfinished() const { return {m_RestFile, Text(m_Rest)}; }

void TLogTail::Split(const QString& file, const QByteArray& bytes, QList<tagLogLine>* lines)
{
    int start = 0;
    for (int end = static_cast<int>(bytes.indexOf('\n')); end >= 0;
         end = static_cast<int>(bytes.indexOf('\n', start))) {
        const QByteArray line = m_Rest + bytes.mid(start, qMin(end - start, RoomBehind(m_Rest)));
        lines->append({m_Rest.isEmpty() ? file : m_RestFile, Text(line)});
        m_Rest.clear();
        start = end + 1;
    }
    if (m_Rest.isEmpty())
        m_RestFile = file;
    m_Rest += bytes.mid(start, RoomBehind(m_Rest));
}
