#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Small files of the work on a field: one DataBlock each. Its payload begins with what the file is.
namespace WorkFile {

/// The size of the largest file of the work on a field that is read.
constexpr qint64 MostBytes = qint64{64} * 1024 * 1024;

/// What a file is.
struct tagKind
{
    const char* name; ///< "guidance line": stored, and part of messages
    unsigned version;
};

/// Writes the file, so that it is on the disk; makes its folder. Whatever happens on the way, @p path is the old file
/// or the complete new one. A file of a newer version is not replaced.
/// @param content what follows the kind in the payload.
/// @param error says what failed when the result is false.
bool Write(const QString& path, const tagKind& kind, const QByteArray& content, QString* error);

/// The content of the file. Nothing when there is no file, with an empty @p error; and when it cannot be read, is not
/// of this kind or version, or is damaged, which @p error then says in one line.
std::optional<QByteArray> Read(const QString& path, const tagKind& kind, QString* error);

/// The @p error of a content that is not what the kind has.
QString Damage(const QString& path, const tagKind& kind);

} // namespace WorkFile
