#include "Rows.h"
#include "Work.h"

#include <QStringBuilder>

namespace {

using namespace Work;

QString Expression(const QString& drive)
{
    return drive % QLatin1String("Clients/") % Client % QLatin1Char('/') % Farm % QLatin1Char('/') % Field %
           QLatin1String("/Jobs/") % Job % QLatin1Char('/') % Job % QLatin1String(".cov");
}

QString OfReadyStrings(unsigned)
{
    static const QString drive = QLatin1String("/mnt/data/");
    return Expression(drive);
}

QString OfTheStoresDrive(unsigned) { return Expression(ConfigManager->GetParameter(PARAM_INTERNAL_DRIVE).toString()); }

const TRows Rows = {
    {"path.compose", ROW_LIMIT, "one QStringBuilder expression of ready strings", Timed<OfReadyStrings>},
    {"path.compose", ROW_PEER, "one QStringBuilder expression, the drive read", Timed<OfTheStoresDrive>},
    {"path.compose", ROW_OURS, "GetCoverageFilePath", Timed<CoveragePath>},

    {"path.active", ROW_OURS, "GetActiveCoveragePath", Timed<ActiveCoveragePath>},
};

} // namespace
