#include "console/logs/LogTail.h"

#include "console/logs/LogFiles.h"

#include <QFile>

namespace {

/// The logs are written in Latin-1, and their lines end in carriage return and line feed. Raw traffic may hold zeros.
QString Text(const QByteArray& line)
{
    const int size = static_cast<int>(line.size());
    return QString::fromLatin1(line.constData(), line.endsWith('\r') ? size - 1 : size);
}

} // namespace

TLogTail::TLogTail(const QString& basePath) : m_BasePath(basePath) {}

QList<tagLogLine> TLogTail::Read(QString* error)
{
    error->clear();
    QList<tagLogLine> lines;
    QHash<QString, qint64> read;
    const QFileInfoList files = LogFiles(m_BasePath);
    for (const QFileInfo& info : files) {
        const QString name = info.fileName();
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly) && !file.exists())
            continue; // the log has just given it up
        const qint64 before = m_Read.value(name);
        const qint64 start = before <= file.size() ? before : 0; // a shorter one is another file of that name
        const QByteArray bytes = file.isOpen() && file.seek(start) ? file.readAll() : QByteArray();
        if (file.error() != QFileDevice::NoError)
            *error = QString::fromLatin1("%1 cannot be read: %2").arg(info.filePath(), file.errorString());
        read.insert(name, start + bytes.size());
        Split(name, bytes, &lines);
    }
    m_Read = read;
    return lines;
}

tagLogLine TLogTail::Unfinished() const { return {m_RestFile, Text(m_Rest)}; }

void TLogTail::Split(const QString& file, const QByteArray& bytes, QList<tagLogLine>* lines)
{
    int start = 0;
    for (int end = static_cast<int>(bytes.indexOf('\n')); end >= 0;
         end = static_cast<int>(bytes.indexOf('\n', start))) {
        const QByteArray line = m_Rest + bytes.mid(start, end - start);
        lines->append({m_Rest.isEmpty() ? file : m_RestFile, Text(line)});
        m_Rest.clear();
        start = end + 1;
    }
    if (m_Rest.isEmpty())
        m_RestFile = file;
    m_Rest += bytes.mid(start);
}
