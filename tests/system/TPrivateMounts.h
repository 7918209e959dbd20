#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

/// Mounts that this program alone sees and that vanish with it.
namespace PrivateMounts {

namespace Detail {

inline bool WriteText(const char* path, const QByteArray& text)
{
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(text) == text.size();
}

/// Whoever may not mount becomes the superuser of a user namespace of its own, where he may.
inline bool BecomeSuperuserApart()
{
    const QByteArray user = QByteArray::number(static_cast<uint>(geteuid()));
    const QByteArray group = QByteArray::number(static_cast<uint>(getegid()));
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    WriteText("/proc/self/setgroups", "deny");
    return WriteText("/proc/self/uid_map", "0 " + user + " 1") && WriteText("/proc/self/gid_map", "0 " + group + " 1");
}

inline bool arePermitted = false;

} // namespace Detail

/// To be called first of all, as a program with threads cannot do it any more.
inline void Enter()
{
    if (unshare(CLONE_NEWNS) != 0 && !Detail::BecomeSuperuserApart())
        return;
    // Else what is mounted here would be mounted for all.
    Detail::arePermitted = mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

inline bool ArePermitted() { return Detail::arePermitted; }

} // namespace PrivateMounts

/// A drive in memory, mounted over a folder while it lives.
class TMemoryDrive
{
public:
    TMemoryDrive(const QString& folder, const char* options)
        : m_Folder(QFile::encodeName(folder))
        , m_IsMounted(mount("tmpfs", m_Folder.constData(), "tmpfs", 0, options) == 0)
    {}

    ~TMemoryDrive() { Pull(); }

    TMemoryDrive(const TMemoryDrive&) = delete;
    TMemoryDrive& operator=(const TMemoryDrive&) = delete;

    bool IsMounted() const { return m_IsMounted; }

    bool MountAgain(unsigned long flags, const char* options) const
    {
        return mount("tmpfs", m_Folder.constData(), "tmpfs", MS_REMOUNT | flags, options) == 0;
    }

    /// As when a stick is pulled: files that are open stay open.
    void Pull()
    {
        if (m_IsMounted)
            umount2(m_Folder.constData(), MNT_DETACH);
        m_IsMounted = false;
    }

private:
    QByteArray m_Folder;
    bool m_IsMounted;
};
