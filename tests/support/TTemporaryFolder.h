#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QStringList>

/// A folder of the test's own, empty at first and removed with everything in it.
class TTemporaryFolder
{
public:
    TTemporaryFolder()
    {
        static int count = 0;
        const QString name =
            QString::fromLatin1("cabsettings-%1-%2").arg(QCoreApplication::applicationPid()).arg(++count);
        m_Path = QDir::temp().absoluteFilePath(name);
        Remove(m_Path); // what a test that crashed under the same process id has left
        QDir().mkpath(m_Path);
    }

    ~TTemporaryFolder() { Remove(m_Path); }

    TTemporaryFolder(const TTemporaryFolder&) = delete;
    TTemporaryFolder& operator=(const TTemporaryFolder&) = delete;

    /// Absolute, without a separator at the end; with @p relative, of an entry inside.
    QString Path() const { return m_Path; }
    QString Path(const QString& relative) const { return m_Path + QLatin1Char('/') + relative; }

    bool Exists(const QString& relative) const { return QFileInfo(Path(relative)).exists(); }

    void MakeFolder(const QString& relative) const { QDir(m_Path).mkpath(relative); }

    /// Makes a file and the folders it lies in.
    void MakeFile(const QString& relative, const QByteArray& content = QByteArray()) const
    {
        QDir().mkpath(QFileInfo(Path(relative)).path());
        QFile file(Path(relative));
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
    }

    /// Empty for a file that does not exist.
    QByteArray Content(const QString& relative) const
    {
        QFile file(Path(relative));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Every folder (ending in "/") and file inside, relative and sorted, a folder before what it holds.
    QStringList Entries() const
    {
        QStringList entries;
        List(m_Path, QString(), entries);
        return entries;
    }

private:
    static QFileInfoList In(const QString& folder)
    {
        return QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                          QDir::Name);
    }

    static void List(const QString& folder, const QString& prefix, QStringList& entries)
    {
        for (const QFileInfo& entry : In(folder)) {
            const QString name = prefix + entry.fileName();
            const bool isFolder = entry.isDir() && !entry.isSymLink();
            entries.append(isFolder ? name + QLatin1Char('/') : name);
            if (isFolder)
                List(entry.filePath(), name + QLatin1Char('/'), entries);
        }
    }

    static void Remove(const QString& folder)
    {
        for (const QFileInfo& entry : In(folder)) {
            if (entry.isDir() && !entry.isSymLink())
                Remove(entry.filePath());
            else
                QFile::remove(entry.filePath());
        }
        QDir().rmdir(folder);
    }

    QString m_Path;
};
