#include "module/RegisterTypes.h"

#include "fields/RegisterFieldTypes.h"
#include "logs/RegisterLogTypes.h"
#include "look/RegisterLookTypes.h"
#include "module/TParameterHub.h"
#include "module/TTypeRegistrar.h"
#include "quantities/RegisterQuantityTypes.h"
#include "settings/RegisterSettingsTypes.h"
#include "terminal/RegisterTerminalTypes.h"
#include "transfer/RegisterTransferTypes.h"

#include <QQmlModuleRegistration>
#include <QtGlobal>

#include <initializer_list>

namespace {

const char* const Uri = "CabSettings";

/// Registers at the first import. Before it, types of a module that has a plugin on the import path would be taken for
/// those of another one, and the plugin refused.
#if QT_VERSION >= 0x060000
const QQmlModuleRegistration AtFirstImport(Uri, &CabQuick::RegisterTypes);
#else
const QQmlModuleRegistration AtFirstImport(Uri, 1, &CabQuick::RegisterTypes);
#endif

using RegisterRoom = void (*)(const TTypeRegistrar& types);

/// One function for each room, which registers its types.
constexpr std::initializer_list<RegisterRoom> Rooms = {
    RegisterSettingsTypes, RegisterQuantityTypes, RegisterLookTypes,     RegisterTerminalTypes,
    RegisterFieldTypes,    RegisterLogTypes,      RegisterTransferTypes,
};

} // namespace

void TTypeRegistrar::AddUnavailable(const char* name) const
{
    qmlRegisterTypeNotAvailable(
        m_Uri, 1, 0, name, QLatin1String("this program has not called CabQuick::Publish() before its first engine"));
}

void CabQuick::RegisterTypes()
{
    static bool isRegistered = false;
    if (isRegistered)
        return;
    isRegistered = true;

    const bool isPublished = TParameterHub::IsPublished();
    if (!isPublished)
        qWarning("CabSettings: this program has not called CabQuick::Publish() before its first engine");
    qmlRegisterModule(Uri, 1, 0);
    const TTypeRegistrar types(Uri, isPublished);
    for (const RegisterRoom registerRoom : Rooms)
        registerRoom(types);
}
