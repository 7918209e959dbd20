#include "stores/DurableFiles.h"

#include "platform/DurableCopy.h"
#include "platform/TUnfinishedCopy.h"
#include "platform/Uninterrupted.h"

#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace DurableFiles {

namespace {

const mode_t ReadableByAll = 0644;

} // namespace

// Not strerror(), which translates to the machine's language.
QString SystemText(int error)
{
    const char* const text = strerrordesc_np(error);
    return text ? QString::fromLatin1(text) : QString::fromLatin1("error %1").arg(error);
}

QString SystemText() { return SystemText(errno); }

QString SystemReason(const QString& doing, const QString& path)
{
    return QString::fromLatin1("%1 %2: %3").arg(doing, path, SystemText());
}

bool Identify(const QString& path, tagIdentity* identity)
{
    struct stat status;
    if (stat(path.toUtf8().constData(), &status) != 0)
        return false;
    *identity = {status.st_dev, status.st_ino};
    return true;
}

bool Exists(const QString& path)
{
    tagIdentity identity;
    return Identify(path, &identity);
}

bool SyncContent(const QString& path, QString* reason)
{
    const QByteArray name = path.toUtf8();
    const int file = Uninterrupted([&] { return open(name.constData(), O_RDONLY | O_CLOEXEC); });
    const bool isSynced = file >= 0 && Uninterrupted([&] { return fsync(file); }) == 0;
    if (!isSynced)
        *reason = SystemReason(QLatin1String("cannot sync"), path);
    if (file >= 0)
        close(file);
    return isSynced;
}

bool Rename(const QString& source, const QString& target, QString* reason)
{
    if (std::rename(source.toUtf8().constData(), target.toUtf8().constData()) != 0) {
        *reason = SystemReason(QLatin1String("cannot rename"), source);
        return false;
    }
    const QString folder = QFileInfo(target).path();
    if (SyncFolder(folder.toUtf8()))
        return true;
    *reason = SystemReason(QLatin1String("cannot sync"), folder);
    return false;
}

bool Copy(const QString& source, const QString& target, QString* reason)
{
    if (CopyDurably(source.toUtf8(), target.toUtf8(), false))
        return true;
    *reason = SystemReason(QLatin1String("cannot copy"), source);
    return false;
}

bool Write(const QString& path, const QByteArray& content, QString* reason)
{
    const QByteArray folder = QFileInfo(path).path().toUtf8();
    TUnfinishedCopy copy(folder, ReadableByAll);
    const bool isWritten = copy.Descriptor() >= 0 &&
                           WriteAll(copy.Descriptor(), content.constData(), static_cast<std::size_t>(content.size()));
    if (isWritten && copy.Sync() && copy.MoveTo(path.toUtf8(), true) && SyncFolder(folder))
        return true;
    *reason = SystemReason(QLatin1String("cannot write"), path);
    return false;
}

bool Remove(const QString& path, QString* reason)
{
    if (unlink(path.toUtf8().constData()) == 0 || errno == ENOENT)
        return true;
    *reason = SystemReason(QLatin1String("cannot remove"), path);
    return false;
}

} // namespace DurableFiles
