// A display on the ready host: starts a terminal in the folder named on the command line, and prints what the façades
// return.

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

#include "region/TRegionSettingsProxy.h"
#include "stores/TSqliteStore.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"
#include "units/TUnits.h"

static int Fail(const QString& error)
{
    QTextStream(stderr) << error << '\n';
    return 1;
}

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc != 2)
        return Fail(QLatin1String("usage: with-host FOLDER"));
    const QString folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    if (!QDir().mkpath(folder))
        return Fail(QLatin1String("cannot make ") + folder);

    QString error;
    const auto store = TSqliteStore::Open(DataFolder::StoreFile(folder), &error);
    if (!store)
        return Fail(error);
    TTerminal terminal(*store); // declared after the store: it closes the logs while the store is still there
    if (!terminal.Start(folder, &error, {QLatin1String("2.1.4-r7")})) // the version of the display's software
        return Fail(error);

    store->SetParameter(PARAM_CLIENT, QLatin1String("Miller"), true);
    store->SetParameter(PARAM_FARM, QLatin1String("Home"), true);
    store->SetParameter(PARAM_FIELD, QLatin1String("East"), true);
    TSystemSettingsProxy().SetActiveJob(QLatin1String("Harvest"));
    QTextStream(stdout) << "coverage  " << TSystemSettingsProxy().GetActiveCoveragePath() << '\n'
                        << "area      " << TUnits::GetAreaString(12.5F, -1, nullptr) << '\n'
                        << "date      " << TRegionSettingsProxy().GetDateString() << '\n';
    return 0;
}
