#pragma once

#include "platform/Export.h"

#include <QString>

#include <optional>
#include <vector>

/// The files of a diagnostic log: which files belong to it, which of them is the newest, and which number comes next.
/// TDiagnosticLog chooses its files by these rules. They are public for tools that list or read the files of a log.
///
///     const TLogSeries series(QLatin1String("/logs/user.log"));
///     for (const TLogSeries::tagFile& file : series.GetFiles())
///         Show(series.GetPath(file.name), file.size);
///
/// A file belongs to the series when it is a regular file, or a link to one, in the folder of the base path, and its
/// name begins with the stem and ends with the extension of the base path. Hidden files belong to it too. A name
/// without a number, "user.log" or "userguide.log", belongs to the series of /logs/user.log as well.
///
/// Reads the folder at each call and keeps nothing but the base path. Objects may be used by one thread at a time.
class CABSETTINGS_EXPORT TLogSeries
{
public:
    /// A file of the series, as it was when the folder was read.
    struct tagFile
    {
        QString name;              ///< without the folder
        qint64 size;               ///< bytes
        qint64 modified;           ///< last modification, milliseconds since 1970-01-01 UTC
        std::optional<int> number; ///< what stands between stem and extension; nothing when it is not a whole number
    };

    /// @param basePath folder, stem and extension of the series, as given to TDiagnosticLog::Restore(): the folder is
    ///        what stands before the last "/", the extension what follows the last "." of the rest, with that dot.
    explicit TLogSeries(const QString& basePath);

    /// Whether the folder of the series exists.
    bool HasFolder() const;

    /// Path of the file @p name of the series.
    QString GetPath(const QString& name) const;

    /// Name of the file with this number: "user00001.log".
    QString GetName(int number) const;

    /// The files of the series, the oldest first; the last one is the newest, the file that the log goes on with or
    /// takes the next number from. Empty when there are none and when the folder cannot be read.
    ///
    /// The modification time decides. Of files with the same time, @p lastWritten is the newest; the others follow
    /// their numbers, 00001 after 99999, those without a number first.
    ///
    /// @param lastWritten path of the file that was written last; empty when it is not known
    std::vector<tagFile> GetFiles(const QString& lastWritten = QString()) const;

    /// The same, for callers that must know whether these are all. False when the folder does not exist or cannot be
    /// read to its end, or when nothing can be learnt of one of its files; @p files receives the others, and errno is
    /// the reason. A link to nothing is no file.
    bool ReadFiles(const QString& lastWritten, std::vector<tagFile>* files) const;

    /// @p number as it stands in a file name, in at least five digits: "00001".
    static QString GetNumberText(int number);

    /// The number that follows @p number: 1 after 99999, and after anything outside 1 to 99999.
    static int GetNumberAfter(int number);

private:
    QString m_Folder; ///< up to and including the last "/"; empty for the current folder
    QString m_Stem;
    QString m_Extension; ///< with its dot
};
