#include "platform/TFileSystemHelper.h"
#include "system/TSystemSettings.h"

#include <algorithm>
#include <iterator>

bool TSystemSettings::AreFilenameExtensionInvariantsSatisfied()
{
    // Without ".tar.gz", which has two dots, and three others that were never tested.
    static const char* const extensions[] = {
        IniExtension,     CurveExtension,    CoverageExtension, BoundaryExtension,   PdfExtension,
        ShpExtension,     ShxExtension,      DbfExtension,      XMLExtension,        LogExtension,
        PackageExtension, ChecksumExtension, CSVExtension,      GPSQualityExtension, TpoExtension,
        TxtExtension,     BinExtension,      ZIPExtension,      BoomMaskExtension,   DownForceRateExtension,
    };
    static const QRegExp pattern = TFileSystemHelper::LowerCaseFilenameExtensionRegExp();
    static const bool satisfied = std::all_of(std::begin(extensions), std::end(extensions), [](const char* extension) {
        return pattern.exactMatch(QLatin1String(extension));
    });
    return satisfied;
}
