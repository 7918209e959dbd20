#pragma once

#include "platform/Export.h"

#include <QRegExp>
#include <QString>

/// File operations that depend on the display's storage. Imported: the host defines them.
class CABSETTINGS_EXPORT TFileSystemHelper
{
public:
    /// Matches, as a whole, a lower-case file-name extension with its leading dot and no further dot.
    static QRegExp LowerCaseFilenameExtensionRegExp();

    /// Copies one file. An existing @p destination is replaced only when @p overwrite is true. Returns whether
    /// @p destination now holds the complete copy.
    static bool FileCopy(const QString& source, const QString& destination, bool overwrite);
};
