#include "profiles/ProfileGroups.h"

#include "parameters/ParameterGroups.h"

QStringList ProfileGroups::All() { return ParameterGroups::All(); }

QStringList ProfileGroups::ImportedByDefault()
{
    QStringList groups = All();
    groups.removeAll(QLatin1String(ParameterGroups::Device));
    return groups;
}

QString ProfileGroups::Of(const QString& parameterName) { return ParameterGroups::Of(parameterName); }
