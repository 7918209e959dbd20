#pragma once

#include <QByteArray>

#include <sys/types.h>

/// Removes the files in @p folder that unfinished copies of processes that died have left.
void RemoveUnfinishedCopies(const QByteArray& folder);

/// A hidden file that receives the content of a copy until the copy is complete.
///
/// The file is locked while the object exists, and the system drops the lock when the process dies. So a hidden file
/// that is not locked was left behind by a process that died, and the next unfinished copy in that folder removes it.
class TUnfinishedCopy
{
public:
    /// Removes the files left behind in @p folder, then makes a new one there, of a name that was not there before and
    /// that nobody can foretell.
    /// @param mode the permissions of the file, less the umask. Others never get the one to write.
    TUnfinishedCopy(const QByteArray& folder, mode_t mode);

    /// Removes the file unless MoveTo() has succeeded.
    ~TUnfinishedCopy();

    TUnfinishedCopy(const TUnfinishedCopy&) = delete;
    TUnfinishedCopy& operator=(const TUnfinishedCopy&) = delete;

    /// The descriptor to write to; -1 when no file could be made, errno then tells why.
    int Descriptor() const { return m_Descriptor; }

    /// Waits until the content is on the disk. Returns false with errno set when that has failed.
    bool Sync() const;

    /// Gives the file the name @p target, in the same folder. An existing target is replaced only when @p overwrite is
    /// true. Returns false with errno set when that is not possible.
    bool MoveTo(const QByteArray& target, bool overwrite);

private:
    bool Make(const QByteArray& folder, mode_t mode);
    void LockOrDrop();
    void Close();

    QByteArray m_Path;
    int m_Descriptor;
};
