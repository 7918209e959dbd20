#pragma once

#include "platform/Export.h"

#include <QRegExp>
#include <QString>

/// File operations that depend on the storage of the display. The host defines them:
///
///     QRegExp TFileSystemHelper::LowerCaseFilenameExtensionRegExp()
///     {
///         return QRegExp(QLatin1String("\\.[a-z0-9_]+"));
///     }
class CABSETTINGS_EXPORT TFileSystemHelper
{
public:
    /// A pattern that exactly matches a lower-case file-name extension: a leading dot and no other dot.
    static QRegExp LowerCaseFilenameExtensionRegExp();

    /// Copies one file. An existing @p destination is replaced only when @p overwrite is true. Returns whether
    /// @p destination now holds the complete copy.
    static bool FileCopy(const QString& source, const QString& destination, bool overwrite);
};
