#include "boundaries/NeighbourBoundaries.h"

#include "system/TSystemSettingsProxy.h"

#include <QDir>

std::vector<tagBoundary> NeighbourBoundaries(const QString& client, const QString& farm, const QString& field)
{
    const TSystemSettingsProxy system;
    const QString own = system.GetCFFPath(client, farm, field);
    if (own.isEmpty())
        return {};
    QDir fields(system.GetInternalDrivePath() + own);
    fields.cdUp();
    std::vector<tagBoundary> neighbours;
    const QStringList names = fields.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : names) {
        QString error;
        if (name == field)
            continue;
        const std::optional<tagBoundary> boundary =
            ReadBoundary(system.GetBoundaryFilePath(client, farm, name), &error);
        if (boundary)
            neighbours.push_back(*boundary);
    }
    return neighbours;
}
