// The smallest host: a store in memory, the machine's clock, plain file copies. The library asks for nothing more.

#include <QCoreApplication>
#include <QDir>
#include <QMap>
#include <QTextStream>

#include "colors/TColorSettingsProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "platform/TConfigManager.h"
#include "platform/TFileSystemHelper.h"
#include "platform/TLocalTime.h"
#include "settings/TSettings.h"

struct TStore : TConfigManager
{
    QMap<int, QVariant> values;
    QString text = QLatin1String("started");
    bool SetParameter(EParamID id, const QVariant& value, bool) override { return values[id] = value, true; }
    QVariant GetParameter(EParamID id) override { return values.value(id); }
    bool HasParameter(EParamID id) override { return values.contains(id); }
    const QString& GetDiagnosticText(EDiagnosticComponent, EDiagnosticType, int) override { return text; }
};

TConfigManager* ConfigManager = nullptr;

QDate TLocalTime::currentDate() { return QDate::currentDate(); }
QTime TLocalTime::currentTime() { return QTime::currentTime(); }
QDateTime TLocalTime::currentDateTime() { return QDateTime::currentDateTime(); }
int TLocalTime::SetDateTime(int, int, int, int, int, int) { return 0; } // a clock that cannot be set
int TLocalTime::GetOffset() { return 0; }
void TLocalTime::SetOffset(int) {}

QRegExp TFileSystemHelper::LowerCaseFilenameExtensionRegExp() { return QRegExp(QLatin1String("\\.[a-z]+")); }
bool TFileSystemHelper::FileCopy(const QString& from, const QString& to, bool) { return QFile::copy(from, to); }

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    TStore store;
    ConfigManager = &store;
    store.values[PARAM_INTERNAL_DRIVE] = QDir::currentPath() + QLatin1String("/drive/");
    store.values[PARAM_EXTERNAL_DRIVE] = QDir::currentPath(); // no mount point: no stick

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
