#pragma once

#include "platform/TUnfinishedCopy.h"

#include <QByteArray>
#include <QString>

struct archive;

/// A zip archive that is written piece by piece. It has its name only when it is complete and on the disk.
class TZipFile
{
public:
    explicit TZipFile(const QString& path);
    ~TZipFile();

    TZipFile(const TZipFile&) = delete;
    TZipFile& operator=(const TZipFile&) = delete;

    /// Each returns false when writing has failed, and so does everything after it; Reason() then says why.
    bool Begin(const QString& member);
    bool Write(const QByteArray& piece);
    bool Finish();

    QString Reason() const { return m_Reason; }

private:
    bool Check(int result);
    bool Fail();

    const QString m_Path;
    TUnfinishedCopy m_File;
    archive* m_Archive;
    QString m_Reason;
};
