#include "TWorkingDisplay.h"

#include "FacadeOperations.h"
#include "Latin1.h"

#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"

#include <QColor>

TWorkingDisplay::TWorkingDisplay(bool isStickPresent)
{
    TTestFiles::Reset();
    SetDriveOfOperations(drive.Path());
    Settings = &settings;
    TSystemSettings::SoftwareVersion = Latin1("2.1.4-r7");
    TSystemSettings().SetCFFRoot(Latin1("Root"));

    drive.MakeFolder(Latin1("Jobs/J_1"));
    drive.MakeFolder(Latin1("Jobs/J_2"));
    drive.MakeFile(Latin1("Logs/Sized00005.csv"), QByteArray(2000, 'x'));
    drive.MakeFolder(Latin1("Exported"));
    drive.MakeFolder(Latin1("Stick"));

    QMap<int, QVariant>& values = store.values;
    for (int id = PARAM_ACTIVE_JOB; id <= PARAM_FIELD; ++id)
        values[id] = Latin1("Name %1").arg(id);
    values[PARAM_INTERNAL_DRIVE] = drive.Path() + QLatin1Char('/');
    // /proc is mounted everywhere, and nothing can be made in it by mistake.
    values[PARAM_EXTERNAL_DRIVE] = isStickPresent ? Latin1("/proc") : drive.Path(Latin1("Stick"));
    values[PARAM_UTC_OFFSET_HOURS] = -5;
    values[PARAM_UTC_OFFSET_MINUTES] = -30;
    values[PARAM_CLOCK_OFFSET] = 1234;
    values[PARAM_LANGUAGE] = LANGUAGE_SLOVAK;
    values[PARAM_MONTH_FIRST] = true;
    for (int id = PARAM_DAY_MODE; id <= PARAM_BUTTON_LED_NIGHT_LEVEL; ++id)
        values[id] = id;
    for (int id = PARAM_TEXT_COLOR_DAY; id < PARAM_BACKGROUND_NUMBER_NIGHT; ++id)
        values[id] = QColor(id - PARAM_TEXT_COLOR_DAY, 100, 200);
    values[PARAM_BACKGROUND_NUMBER_DAY] = 3;
    values[PARAM_BACKGROUND_NUMBER_NIGHT] = 4;

    settings.Initialise();
    TUserDiagnosticLogProxy().Restore(drive.Path(Latin1("Logs/User.csv")), 0, 0);
    TNEMADiagnosticLogProxy().Restore(drive.Path(Latin1("Logs/NMEA.csv")), 0, 0);
    store.calls.clear();
}

TWorkingDisplay::~TWorkingDisplay()
{
    Settings = nullptr;
    TSystemSettings().SetCFFRoot(QString());
}

QStringList TWorkingDisplay::Files() const
{
    QStringList files;
    for (const QString& entry : drive.Entries())
        files.append(entry + QLatin1Char('=') + QString::fromLatin1(drive.Content(entry)));
    return files;
}
