// The smallest host: the imports of Host.cpp, the store of TStore.h, and the start-up below. The library asks for
// nothing more.

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

#include "TStore.h"
#include "colors/TColorSettingsProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "settings/TSettings.h"

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    TStore store;
    ConfigManager = &store;
    store.SetParameter(PARAM_INTERNAL_DRIVE, QDir::currentPath() + QLatin1String("/drive/"), true); // ends in "/"
    store.SetParameter(PARAM_EXTERNAL_DRIVE, QDir::currentPath(), true); // no mount point: no stick

    TSettings settings;
    Settings = &settings;
    settings.Initialise();
    settings.Restore();

    TColorSettingsProxy().SetDayMode(true);
    TColorSettingsProxy().SetMapColor(QColor(0xe6, 0xe2, 0xd3));
    const bool isLogged = TUserDiagnosticLogProxy().AddEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_EVENT, 1,
                                                             TColorSettingsProxy().GetMapColor().name(), QString());
    QTextStream(stdout) << "map " << TColorSettingsProxy().GetMapColor().name() << ", log "
                        << (isLogged ? "written" : "closed") << '\n';
    return isLogged ? 0 : 1;
}
