#include "logs/TLogSeries.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <memory>
#include <string_view>
#include <tuple>

namespace {

const int LastNumber = 99999;
const int NumberDigits = 5;

std::string_view View(const QByteArray& bytes)
{
    return std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

bool IsOf(std::string_view stem, std::string_view extension, std::string_view name)
{
    return name.size() >= stem.size() + extension.size() && name.substr(0, stem.size()) == stem &&
           name.substr(name.size() - extension.size()) == extension;
}

/// Whether there is no file of the name: it was removed just now, or is a link to nothing.
bool IsGone(int error) { return error == ENOENT || error == ENOTDIR || error == ELOOP; }

/// Orders the numbers of a series whose greatest number is @p greatest. A number far below it comes after it: 00001
/// follows 99999. Less than 0 without a number.
qint64 Rank(const std::optional<int>& number, int greatest)
{
    const qint64 rank = number.value_or(-1);
    return rank >= 0 && greatest - rank > LastNumber / 2 ? rank + LastNumber : rank;
}

} // namespace

TLogSeries::TLogSeries(const QString& basePath)
{
    const auto fileStart = basePath.lastIndexOf(QLatin1Char('/')) + 1;
    const QString file = basePath.mid(fileStart);
    const auto dot = file.lastIndexOf(QLatin1Char('.'));
    m_Folder = basePath.left(fileStart);
    m_Stem = file.left(dot);
    m_Extension = dot < 0 ? QString() : file.mid(dot);
}

bool TLogSeries::HasFolder() const { return QDir(m_Folder).exists(); }

QString TLogSeries::GetPath(const QString& name) const { return m_Folder + name; }

QString TLogSeries::GetName(int number) const { return m_Stem + GetNumberText(number) + m_Extension; }

std::vector<TLogSeries::tagFile> TLogSeries::GetFiles(const QString& lastWritten) const
{
    std::vector<tagFile> files;
    ReadFiles(lastWritten, &files);
    return files;
}

bool TLogSeries::ReadFiles(const QString& lastWritten, std::vector<tagFile>* files) const
{
    // Read without Qt, which makes an object for every name: a folder may hold a thousand other files. Names are
    // compared byte by byte. In a wildcard, a "[" of the stem would be more than a letter.
    const QByteArray stem = QFile::encodeName(m_Stem);
    const QByteArray extension = QFile::encodeName(m_Extension);
    const QByteArray path = m_Folder.isEmpty() ? QByteArray(".") : QFile::encodeName(m_Folder);
    const bool isPath = !path.contains('\0'); // the system would end the path at a zero and read another folder
    std::unique_ptr<DIR, int (*)(DIR*)> folder(isPath ? opendir(path.constData()) : nullptr, &closedir);
    int error = folder ? 0 : isPath ? errno : ENOENT;

    files->clear();
    int greatest = -1;
    const auto next = [&folder] {
        errno = 0; // readdir() leaves it alone at the end of the folder
        return folder ? readdir(folder.get()) : nullptr;
    };
    const dirent* entry = nullptr;
    while ((entry = next())) {
        if (!IsOf(View(stem), View(extension), entry->d_name))
            continue;
        struct stat status = {};
        if (fstatat(dirfd(folder.get()), entry->d_name, &status, 0) != 0) {
            error = error != 0 || IsGone(errno) ? error : errno; // the others are listed all the same
            continue;
        }
        if (!S_ISREG(status.st_mode))
            continue;
        const QByteArray bytes = entry->d_name;
        const QString name = QFile::decodeName(bytes);
        if (QFile::encodeName(name) != bytes)
            continue;            // Qt could not open a file of this name
        bool isNumbered = false; // by the bytes: with Qt 4 a QString also reads the digits of the machine's locale
        const int number = bytes.mid(stem.size(), bytes.size() - stem.size() - extension.size()).toInt(&isNumbered);
        const qint64 modified = static_cast<qint64>(status.st_mtim.tv_sec) * 1000 + status.st_mtim.tv_nsec / 1000000;
        files->push_back({name, status.st_size, modified, isNumbered ? std::optional<int>(number) : std::nullopt});
        if (isNumbered)
            greatest = std::max(greatest, number);
    }
    if (folder && errno != 0)
        error = errno;
    folder.reset();

    // Files written within one tick of the file system's clock have the same time.
    const QString newest = lastWritten.startsWith(m_Folder) ? lastWritten.mid(m_Folder.size()) : QString();
    const auto key = [&newest, greatest](const tagFile& file) {
        return std::make_tuple(file.modified, file.name == newest, Rank(file.number, greatest), file.name);
    };
    std::sort(files->begin(), files->end(), [&key](const tagFile& a, const tagFile& b) { return key(a) < key(b); });
    if (error != 0)
        errno = error;
    return error == 0;
}

QString TLogSeries::GetNumberText(int number)
{
    return QString::number(number).rightJustified(NumberDigits, QLatin1Char('0'));
}

int TLogSeries::GetNumberAfter(int number) { return number >= 1 && number < LastNumber ? number + 1 : 1; }
