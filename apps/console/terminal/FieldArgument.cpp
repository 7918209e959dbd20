#include "console/terminal/FieldArgument.h"

#include "console/terminal/Session.h"

#include "fields/FieldPath.h"
#include "parameters/ParameterText.h"
#include "terminal/DataFolder.h"

#include <QFileInfo>

#include <iterator>

namespace {

struct tagDriveName
{
    const char* name;
    EFieldDrive drive;
};

constexpr tagDriveName DriveNames[] = {
    {"internal", FIELD_DRIVE_INTERNAL},
    {"stick", FIELD_DRIVE_STICK},
};

EFieldDrive Other(EFieldDrive drive) { return drive == FIELD_DRIVE_STICK ? FIELD_DRIVE_INTERNAL : FIELD_DRIVE_STICK; }

QStringList PathsOn(EFieldDrive drive, const tagContext& context)
{
    // A terminal that was never used has no items, and completion does not make one.
    TSession session;
    if (!QFileInfo::exists(DataFolder::StoreFile(context.dataFolder)) || !session.Open(context, SESSION_TERMINAL))
        return {};
    QList<tagFieldItem> items;
    QString error;
    QStringList paths;
    TFieldTree(session.Store()).List(drive, {}, &items, &error);
    for (const tagFieldItem& item : items)
        paths.append(FieldPath::Text(item.path));
    return paths;
}

} // namespace

QStringList FieldDriveNames::All()
{
    QStringList names;
    for (const tagDriveName& row : DriveNames)
        names.append(QLatin1String(row.name));
    return names;
}

std::optional<EFieldDrive> FieldDriveNames::Read(const TCommandLine& line, const QString& option)
{
    for (const tagDriveName& row : DriveNames) {
        if (line.Value(option) == QLatin1String(row.name))
            return row.drive;
    }
    line.InvalidValue(option, ParameterText::Alternatives(All()));
    return std::nullopt;
}

void OfferFieldPaths(TCommandLine& line, const tagContext& context, const QString& driveOption, bool isOther)
{
    line.Offer(QLatin1String("PATH"), [&line, context, driveOption, isOther] {
        EFieldDrive drive = FIELD_DRIVE_INTERNAL;
        if (!driveOption.isEmpty() && line.IsSet(driveOption)) {
            const auto named = FieldDriveNames::Read(line, driveOption);
            drive = !named ? drive : isOther ? Other(*named) : *named;
        }
        return PathsOn(drive, context);
    });
}

QStringList ReadFieldPath(const TCommandLine& line)
{
    QString error;
    QStringList path = FieldPath::Read(line.Words().first(), &error);
    if (path.isEmpty())
        line.Misused(error);
    return path;
}
