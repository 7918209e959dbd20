#include "stores/StoreHeader.h"

#include "platform/Uninterrupted.h"
#include "stores/DurableFiles.h"
#include "stores/StoreTable.h"

#include <QtEndian>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

// The header of an SQLite file, version 3: its length, and the positions of the fields that are used here.
constexpr int HeaderLength = 100;
constexpr char Magic[] = "SQLite format 3"; // with the NUL at its end
constexpr std::size_t WriteVersionAt = 18;
constexpr std::size_t ReadVersionAt = 19;
constexpr unsigned char LastVersion = 2;
constexpr std::size_t UserVersionAt = 60;
constexpr std::size_t ApplicationIdAt = 68;

using THeader = std::array<unsigned char, HeaderLength>;

qint32 Number(const THeader& header, std::size_t at) { return qFromBigEndian<qint32>(&header.at(at)); }

// Returns the number of bytes that were read; -1 with errno set when the file cannot be read.
ssize_t ReadHeader(const QString& path, THeader* header)
{
    const QByteArray name = path.toUtf8();
    const int file = Uninterrupted([&] { return open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); });
    if (file < 0)
        return -1;
    const ssize_t length = Uninterrupted([&] { return pread(file, header->data(), header->size(), 0); });
    const int error = errno;
    close(file);
    errno = error;
    return length;
}

} // namespace

tagStoreFinding RecogniseStoreFile(const QString& path)
{
    THeader header{};
    const ssize_t length = ReadHeader(path, &header);
    if (length < 0) {
        if (errno == ENOENT)
            return {STORE_FILE_MISSING, QLatin1String("missing")};
        if (errno == EIO)
            return {STORE_FILE_FOREIGN, QLatin1String("a file whose beginning cannot be read")};
        return {STORE_FILE_INACCESSIBLE, DurableFiles::SystemText()};
    }
    if (length == 0)
        return {STORE_FILE_EMPTY, QLatin1String("an empty file")};
    if (length < HeaderLength || std::memcmp(header.data(), Magic, sizeof Magic) != 0)
        return {STORE_FILE_FOREIGN, QLatin1String("a file that is not of SQLite")};
    if (Number(header, ApplicationIdAt) != StoreTable::ApplicationId)
        return {STORE_FILE_FOREIGN,
                QString::fromLatin1("an SQLite file with application id %1").arg(Number(header, ApplicationIdAt))};
    if (Number(header, UserVersionAt) > StoreTable::SchemaVersion)
        return {STORE_FILE_NEWER, QString::fromLatin1("schema %1").arg(Number(header, UserVersionAt))};
    // SQLite does not open, or does not write, a file whose format is of a later version than it knows.
    if (header.at(ReadVersionAt) > LastVersion || header.at(WriteVersionAt) != header.at(ReadVersionAt))
        return {STORE_FILE_DAMAGED, QLatin1String("its header is broken")};
    return {STORE_FILE_CLEAN, QString()};
}
