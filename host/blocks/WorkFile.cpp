#include "blocks/WorkFile.h"

#include "blocks/DataBlock.h"
#include "platform/RegularFile.h"
#include "serialization/TBinarySerializer.h"
#include "stores/DurableFiles.h"
#include "stores/DurableFolder.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

namespace {

QString Utf8(const char* text) { return QString::fromUtf8(text); }

QString NotOfKind(const QString& path, const WorkFile::tagKind& kind)
{
    return QString::fromLatin1("%1 is not a file of the kind \"%2\"").arg(path, Utf8(kind.name));
}

QString OtherVersion(const QString& path, const WorkFile::tagKind& kind, unsigned version)
{
    return QString::fromLatin1("%1 has version %2 of the kind \"%3\"; this program has version %4")
        .arg(path, QString::number(version), Utf8(kind.name), QString::number(kind.version));
}

bool Open(const QString& path, QFile* file)
{
    const int descriptor = OpenRegularFile(path.toUtf8());
    return descriptor >= 0 && file->open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
}

} // namespace

QString WorkFile::Damage(const QString& path, const tagKind& kind)
{
    return QString::fromLatin1("%1 is damaged (kind \"%2\")").arg(path, Utf8(kind.name));
}

bool WorkFile::Write(const QString& path, const tagKind& kind, const QByteArray& content, QString* error)
{
    QFile old;
    unsigned version = 0;
    if (Open(path, &old) && DataBlock::IsBlock(old.read(DataBlock::BytesBeforePayload), 0, &version) &&
        version > kind.version) {
        *error = OtherVersion(path, kind, version);
        return false;
    }
    old.close();

    const QString folder = QFileInfo(path).path();
    if (!MakeFolderDurably(folder, error))
        return false;
    QByteArray payload;
    QBuffer buffer(&payload);
    buffer.open(QIODevice::WriteOnly);
    TBinarySerializer(&buffer) << Utf8(kind.name);
    payload += content;
    return DurableFiles::Write(path, DataBlock::Framed(kind.version, payload), error);
}

std::optional<QByteArray> WorkFile::Read(const QString& path, const tagKind& kind, QString* error)
{
    error->clear();
    QFile file;
    if (!Open(path, &file)) {
        if (errno == EINVAL) // a pipe, a device or a folder
            *error = NotOfKind(path, kind);
        else if (errno != ENOENT && errno != ENOTDIR)
            *error = DurableFiles::SystemReason(QLatin1String("cannot read"), path);
        return std::nullopt;
    }
    const QByteArray bytes = file.size() <= MostBytes ? file.readAll() : QByteArray();
    unsigned version = kind.version;
    if (!DataBlock::IsBlock(bytes, 0, &version)) {
        *error = NotOfKind(path, kind);
        return std::nullopt;
    }
    if (version != kind.version) {
        *error = OtherVersion(path, kind, version);
        return std::nullopt;
    }
    int end = 0;
    DataBlock::tagBlock block;
    if (!DataBlock::Take(bytes, &end, &block) || end != bytes.size()) {
        *error = Damage(path, kind);
        return std::nullopt;
    }
    QBuffer buffer(&block.payload);
    buffer.open(QIODevice::ReadOnly);
    QString name;
    TBinarySerializer(&buffer) >> name;
    if (name != Utf8(kind.name)) {
        *error = NotOfKind(path, kind);
        return std::nullopt;
    }
    return block.payload.mid(static_cast<int>(buffer.pos()));
}
